// Which of the open photos are listed: those that pass the search, and have all the traits that are asked for.
// Thread: any. Plain values.
#pragma once

#include <QFlags>
#include <QString>

namespace Quorbel {

/// What one photo can be picked for beside its name. Whoever finds it out tells the list of it.
enum class PhotoTrait : quint8 {
    disagreement = 1,  ///< homes of one of its fields disagree
};
Q_DECLARE_FLAGS(PhotoTraits, PhotoTrait)

struct PhotoFilter {
    QString needle{};  ///< the search as it is compared: trimmed, lower case
    PhotoTraits traits{};  ///< all of them

    bool isEmpty() const { return needle.isEmpty() && !traits; }
};

}  // namespace Quorbel

Q_DECLARE_OPERATORS_FOR_FLAGS(Quorbel::PhotoTraits)
