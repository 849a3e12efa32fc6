// What a photo holds beside the one value that its record shows of each field: texts in further languages, keyword
// paths, the fields of IptcSchema, Content Credentials, and what each home of a field holds where the homes disagree.
// Thread: any. Plain values.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QUrl>

namespace Quorbel {

/// One place in which a field may stand, and what it holds there.
struct FieldHome {
    /// As it is written: "XMP-dc:Rights", "IPTC:CopyrightNotice"; of a position "EXIF:GPSLatitude · GPSLongitude", of a
    /// date in two tags that of the day.
    QString tag{};
    QStringList values{};  ///< in the form in which the field is shown and edited; one, but of lists
    bool isShown = false;  ///< holds what the record shows
    /// A tag of another standard that ExifTool takes for the field's own: it is read, but never written.
    bool isForeign = false;
    /// Keeps several items (creators) of a field that is shown as one text.
    bool isSeveral = false;
    bool operator==(const FieldHome&) const = default;
};

struct PhotoDetails {
    QUrl url{};
    /// By FieldLanguages::key(), of all languages that the photo holds, and by id of IptcSchema's fields that hold one
    /// value; a structure as StructureText has it.
    QMap<QString, QString> texts{};
    QMap<QString, QStringList> lists{};  ///< of IptcSchema's fields that hold several
    QStringList paths{};  ///< keyword paths of all homes, each once (see KeywordPath)
    /// Field id to its homes, for the fields of which they disagree: the shown one first, absent ones left out.
    QMap<QString, QList<FieldHome>> disagreements{};
    /// Its file is sealed (C2PA): whatever is written into it, programs that check it will say that it was changed.
    bool hasCredentials = false;
    bool operator==(const PhotoDetails&) const = default;

    /// Whether what stands under this key is known from the details, and not from the record: a text in a further
    /// language, a field of IptcSchema.
    static bool hold(const QString& key);
};

}  // namespace Quorbel
