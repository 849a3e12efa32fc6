// What the texts of a field are that differ from photo to photo, without naming the photos.
// Thread: any. A plain value.
#pragma once

#include "core/save/Edits.h"

namespace Quorbel {

struct OwnSummary {
    int photos = 0;  ///< that have an edit of their own in this field
    int texts = 0;  ///< different ones among theirs; 0 for a list
    QString text{};  ///< theirs, where all of them have the same

    /// Of each field that some photo has an edit of its own of, by the keys of Edits.
    static QMap<QString, OwnSummary> of(const QHash<QUrl, OwnEdits>& own);

    /// For people, of so many photos: "40 different texts", "12 different texts in 12 of 40", "“Ana” in 12 of 40".
    QString told(qsizetype selected) const;

    bool operator==(const OwnSummary&) const = default;
};

}  // namespace Quorbel
