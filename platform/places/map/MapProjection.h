// The earth seen from far above a point: an orthographic projection onto an image, north upwards at its middle. Poles
// and the antimeridian are places like any other.
// Thread: any; a value.
#pragma once

#include "platform/places/search/PlaceProvider.h"

#include <QPointF>
#include <QSizeF>

namespace Quorbel {

class MapProjection {
public:
    static constexpr double earthRadius = 6371.0;  ///< km, mean

    MapProjection(const GeoPoint& center, const QSizeF& size, double kilometersAcross);

    /// Degrees to points of the image.
    QPointF map(double latitude, double longitude) const;
    /// Whether it is on the side of the earth that is seen.
    bool isInFront(double latitude, double longitude) const;
    /// On the sphere, from the centre.
    double kilometersTo(double latitude, double longitude) const;

    const GeoPoint& center() const { return m_center; }
    QSizeF size() const { return m_size; }
    double kilometersAcross() const { return m_size.width() / m_scale; }
    double scale() const { return m_scale; }  ///< points a kilometre, at the centre
    double radius() const { return m_radius; }  ///< km on the sphere from the centre to the image's corner

    /// The degrees that the image can show, a margin included. Longitudes are as seen from the centre's: -180…180.
    struct Bounds {
        double south = -90;
        double north = 90;
        double west = -180;
        double east = 180;
    };
    const Bounds& bounds() const { return m_bounds; }

private:
    Bounds computeBounds() const;

    GeoPoint m_center;
    QSizeF m_size;
    double m_scale;
    double m_radius = 0;
    double m_sin = 0;
    double m_cos = 1;
    Bounds m_bounds{};
};

/// An angle between -180 and 180 degrees.
double wrappedDegrees(double degrees);

}  // namespace Quorbel
