#include "ui/closeup/CloseupPlace.h"

#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>

namespace Quorbel {

namespace {

// What is centred in one direction: no empty room between the photo's edge and the view's while there is enough photo.
double heldWithin(double center, double photoLength, double viewLength)
{
    if (photoLength <= viewLength)
        return .5;
    const double half = viewLength / photoLength / 2;
    return std::clamp(center, half, 1 - half);
}

double offset(double center, double photoLength, double viewLength)
{
    return std::round(viewLength / 2 - center * photoLength);
}

}  // namespace

double CloseupPlace::fittedZoom(QSize photo, QSize view)
{
    if (photo.isEmpty() || view.isEmpty())
        return 1;
    return std::min({ 1.0, double(view.width()) / photo.width(), double(view.height()) / photo.height() });
}

QRectF CloseupPlace::rect(QSize photo, QSize view) const
{
    const double scale = shownZoom(photo, view);
    const CloseupPlace held = within(photo, view);
    const QSizeF size(photo.width() * scale, photo.height() * scale);
    return { QPointF(offset(held.center.x(), size.width(), view.width()),
                 offset(held.center.y(), size.height(), view.height())),
        size };
}

CloseupPlace CloseupPlace::within(QSize photo, QSize view) const
{
    const double scale = shownZoom(photo, view);
    return { zoom,
        { heldWithin(center.x(), photo.width() * scale, view.width()),
            heldWithin(center.y(), photo.height() * scale, view.height()) } };
}

CloseupPlace CloseupPlace::zoomed(double newZoom, QPointF at, QSize photo, QSize view) const
{
    if (photo.isEmpty())
        return *this;
    if (newZoom <= fittedZoom(photo, view) && fittedZoom(photo, view) < 1)
        return { 0, center };
    const QRectF before = rect(photo, view);
    const QPointF spot((at.x() - before.left()) / before.width(), (at.y() - before.top()) / before.height());
    CloseupPlace next{ std::clamp(newZoom, fittedZoom(photo, view), mostZoom) };
    next.center = { spot.x() + (view.width() / 2.0 - at.x()) / (photo.width() * next.zoom),
        spot.y() + (view.height() / 2.0 - at.y()) / (photo.height() * next.zoom) };
    return next.within(photo, view);
}

CloseupPlace CloseupPlace::panned(QPointF by, QSize photo, QSize view) const
{
    const QRectF before = rect(photo, view);
    if (before.isEmpty())
        return *this;
    CloseupPlace next = within(photo, view);
    next.center -= QPointF(by.x() / before.width(), by.y() / before.height());
    return next.within(photo, view);
}

CloseupPlace CloseupPlace::stepped(int steps, QSize photo, QSize view) const
{
    constexpr std::array stops{ .5, 1.0, 2.0, 4.0, mostZoom };
    constexpr double almost = 1.001;
    const double now = shownZoom(photo, view);
    double next = now;
    if (steps > 0) {
        const auto* larger =
            std::find_if(stops.begin(), stops.end(), [now](double stop) { return stop > now * almost; });
        next = larger == stops.end() ? mostZoom : *larger;
    } else {
        const auto smaller =
            std::find_if(stops.rbegin(), stops.rend(), [now](double stop) { return stop * almost < now; });
        next = smaller == stops.rend() ? 0 : *smaller;
    }
    return zoomed(next, { view.width() / 2.0, view.height() / 2.0 }, photo, view);
}

}  // namespace Quorbel
