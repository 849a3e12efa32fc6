// What is known of one photo: before a read little, after it all.
// Thread: any. Plain values: a change on disk is picked up by reading the file again.
#pragma once

#include <QDateTime>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <optional>

namespace Quorbel {

/// A read-only camera detail; the label is one of FieldSchema::cameraRows.
struct CameraRow {
    QString label{};
    QString value{};
    bool operator==(const CameraRow&) const = default;
};

/// A field of the user's own in the XMP group "XMP-Quorbel"; the name, without group, identifies it.
struct CustomValue {
    QString name{};
    QString value{};
    const QString& id() const { return name; }
    bool operator==(const CustomValue&) const = default;
};

struct ImageRecord {
    /// Only what the file system knows is here: the name, the size, the dates, the type by its extension.
    bool isUnread = false;
    QUrl url{};  ///< the photo; the record's identity
    QString fileName{};  ///< last path component of the URL
    QString fileType{};  ///< ExifTool's file type, or the extension in upper case
    std::optional<int> pixelWidth{};
    std::optional<int> pixelHeight{};
    std::optional<qint64> fileSize{};  ///< bytes
    QMap<QString, QString> values{};  ///< field id to display text; a field without a value has no entry
    QMap<QString, QStringList> lists{};  ///< field id to items, in file order (keywords, people)
    QList<CustomValue> custom{};  ///< sorted by name
    QList<CameraRow> camera{};
    std::optional<QDateTime> creationDate{};  ///< the file system's
    std::optional<QDateTime> contentModificationDate{};  ///< the file system's, to the millisecond
    /// Name of the sidecar whose values stand over the file's; "" where there is none, or none was asked for.
    QString sidecarName{};
    std::optional<QDateTime> sidecarModificationDate{};  ///< the file system's, to the millisecond

    const QUrl& id() const { return url; }
    /// "JPEG · 4000×3000 · 2.4 MB"; parts that are unknown are left out.
    QString detailLine() const;
    /// The same without the file type.
    QString sidebarLine() const;

    bool operator==(const ImageRecord&) const = default;
};

}  // namespace Quorbel
