// Where a photo lies in the view in which it is looked at closely, and how large.
// Thread: any. A plain value with pure functions. All lengths are device pixels.
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSize>

namespace Quorbel {

struct CloseupPlace {
    /// Device pixels for each of the photo's; 0: as large as the view lets, but not beyond the photo's own pixels.
    double zoom = 0;
    QPointF center{ .5, .5 };  ///< what is in the view's middle, as parts of the photo's width and height

    static constexpr double mostZoom = 8;

    bool isFitted() const { return zoom == 0; }
    static double fittedZoom(QSize photo, QSize view);
    double shownZoom(QSize photo, QSize view) const { return zoom > 0 ? zoom : fittedZoom(photo, view); }
    /// The whole photo as it lies in the view; its corner is on a whole pixel.
    QRectF rect(QSize photo, QSize view) const;
    /// The same photo, so large; what lies at `at` of the view stays there as far as the photo's edges let it. Not
    /// beyond mostZoom; what would be smaller than fitted is fitted.
    CloseupPlace zoomed(double newZoom, QPointF at, QSize photo, QSize view) const;
    /// Moved with the hand.
    CloseupPlace panned(QPointF by, QSize photo, QSize view) const;
    /// Larger or smaller by one step: fitted, half, whole, twice, and on. Around the view's middle.
    CloseupPlace stepped(int steps, QSize photo, QSize view) const;

    bool operator==(const CloseupPlace&) const = default;

private:
    CloseupPlace within(QSize photo, QSize view) const;
};

}  // namespace Quorbel
