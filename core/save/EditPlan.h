// What one save is asked to do. Thread: any. Plain values.
#pragma once

#include "core/schema/ImageRecord.h"
#include "core/tool/MetadataWriter.h"

#include <QSet>

namespace Quorbel {

/// What becomes of a list of IptcSchema's.
struct ListChange {
    std::optional<QStringList> whole{};  ///< the items that replace it; nothing leaves them
    QStringList added{};
    QStringList removed{};
    bool operator==(const ListChange&) const = default;
};

/// What a plan needs beside its edits when it is written into a photo's sidecar.
struct SidecarNote {
    QString extension{};  ///< of the photo, to be noted there; "" where some is
    QString savedAt{};  ///< "yyyy:MM:dd HH:mm:ss+hh:mm"
    /// Keys (field ids, FieldLanguages::key(), CustomFields::key()) of emptied values that the photo's own file holds:
    /// the sidecar keeps them as texts without characters.
    QStringList hidden{};
    bool operator==(const SidecarNote&) const = default;
};

struct EditPlan {
    QMap<QString, QString> scalars{};  ///< field id, or FieldLanguages::key(), to new text; empty text deletes it
    QMap<QString, QStringList> lists{};  ///< field id to new items
    QList<CustomValue> customs{};
    MetadataWriter::ListMode listMode = MetadataWriter::ListMode::replace;
    QMap<QString, QStringList> removed{};  ///< field id to items to be taken away; only where items are appended
    /// The same of fields of IptcSchema, each of its own mode; structures as StructureText has them.
    QMap<QString, ListChange> iptcLists{};
    QStringList paths{};  ///< keyword paths that the photos gain, beside the keywords that they lead to
    bool isExact = false;  ///< the items of the lists are as files spell them: nothing is trimmed or left out

    /// Homes (homeOf()) that the save does not write to, because the files' own cannot be written.
    QStringList leftOut{};

    /// What belongs to fields of the plan in these photos and is written with them, by field id. Decided from what the
    /// photos hold (PhotoPlans), like the next one. Of a structure it is all that is written.
    QMap<QString, QList<Assignment>> together{};
    /// Of the tags of fields whose own text the plan writes: those whose texts in further languages stay.
    QStringList keptLanguages{};

    /// Ids of fields of which the record shows another standard's tag, which no save writes: whether they are written
    /// their own homes tell.
    QStringList notShown{};

    /// The plan is written into a sidecar, with the tags of SidecarSchema; its lists and IPTC lists are whole then.
    std::optional<SidecarNote> sidecar{};

    /// The field with the tags of the file that the plan is written into; nothing for an id that no field has.
    const FieldSpec* spec(const QString& id) const;
    /// Whether this key is emptied, and hides what the photo's own file holds.
    bool hides(const QString& key) const { return sidecar && sidecar->hidden.contains(key); }
    /// Nothing to write; the list mode plays no part.
    bool isEmpty() const
    {
        return scalars.isEmpty() && lists.isEmpty() && removed.isEmpty() && iptcLists.isEmpty() && customs.isEmpty()
            && paths.isEmpty();
    }
    bool operator==(const EditPlan&) const = default;
};

struct WriteOptions {
    bool backupOriginals = false;  ///< ExifTool keeps each photo's "_original" copy; sidecars have none
    bool writeSidecar = false;  ///< an XMP sidecar beside each image is brought up to date
    QStringList leftOut{};  ///< homes that the plan then leaves out
    QSet<QUrl> unmirrored{};  ///< images that no sidecar mirrors all the same: theirs is another file's

    /// Those of these images whose sidecars are brought up to date.
    QList<QUrl> mirrored(QList<QUrl> images) const;
    bool operator==(const WriteOptions&) const = default;
};

}  // namespace Quorbel
