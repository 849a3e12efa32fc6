// Which photos are selected, and how clicks and disappearing photos change that.
// Thread: any. A plain value with pure functions over the list of photos.
#pragma once

#include "core/renaming/NewNames.h"

#include <QSet>
#include <QUrl>

#include <optional>

namespace Quorbel {

class PhotoList;

struct Selection {
    QSet<QUrl> photos{};
    std::optional<QUrl> anchor{};  ///< the fixed end of a range
    std::optional<QUrl> primary{};  ///< the photo whose values are shown and edited; one of `photos`

    static Selection of(const QUrl& photo) { return { { photo }, photo, photo }; }
    /// The first photo on screen; none where none is on screen.
    static Selection firstVisible(const PhotoList& list);

    /// After a click: `range` extends from the anchor (Shift), folded photos left out; `toggle` adds or takes out one
    /// photo (Ctrl); when that takes out the primary, the nearest photo that stays takes its place.
    Selection afterClick(const PhotoList& list, const QUrl& photo, bool range, bool toggle) const;
    /// All photos on screen, folded ones too; anchor and primary stay, unless the search hides the primary.
    Selection withAllVisible(const PhotoList& list) const;
    /// Without the photos that are not in the list any more; the first one on screen where none stays. `heir` becomes
    /// the primary where the primary is gone.
    Selection withoutGone(const PhotoList& list, const std::optional<QUrl>& heir) const;
    /// Of the selected photos that stay, the one closest to the primary on screen, the later one of two; where the
    /// primary is hidden by the search, the first.
    std::optional<QUrl> nearestStaying(const PhotoList& list, const QSet<QUrl>& gone) const;
    Selection renamed(const NewNames& names) const;

    bool operator==(const Selection&) const = default;
};

}  // namespace Quorbel
