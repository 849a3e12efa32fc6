// Which of the open photos are listed: those that pass the search, and have all the traits that are asked for.
// Thread: any. Plain values.
#pragma once

#include <QFlags>
#include <QString>

namespace Quorbel {

/// What one photo can be picked for beside its name. What its record says, the list of photos finds out itself; who
/// finds out anything else tells it.
enum class PhotoTrait : quint16 {
    disagreement = 1,  ///< homes of one of its fields disagree
    noTitle = 1 << 1,
    noDescription = 1 << 2,
    noKeywords = 1 << 3,
    noDate = 1 << 4,
    noPlace = 1 << 5,
    noCreator = 1 << 6,
    noCopyright = 1 << 7,
    unrated = 1 << 8,  ///< no stars, and not rejected either
    edited = 1 << 9,  ///< has edits that are not saved, or that were left behind
    changed = 1 << 10,  ///< its file is another one since it was listed: a save of ours, or another program
    holdsText = 1 << 11,  ///< one of its fields holds PhotoFilter::text
    nextText = 1 << 12,  ///< one of its fields holds the text that is being looked for
    unread = 1 << 13,
    held = 1 << 14,  ///< is listed whatever traits are asked for: it is being edited
};
Q_DECLARE_FLAGS(PhotoTraits, PhotoTrait)

struct PhotoFilter {
    QString needle{};  ///< the search as it is compared: trimmed, lower case
    PhotoTraits traits{};  ///< all of them
    int stars = 0;  ///< at least
    QString text{};  ///< what `holdsText` was found for

    /// Asks for more than a name.
    bool isLimiting() const { return traits || stars > 0; }
    bool isEmpty() const { return needle.isEmpty() && !isLimiting(); }
    bool operator==(const PhotoFilter&) const = default;
};

}  // namespace Quorbel

// Not in the namespace, where they would hide those of Qt.
Q_DECLARE_OPERATORS_FOR_FLAGS(Quorbel::PhotoTraits)
