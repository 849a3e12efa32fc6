#include "platform/places/map/MapProjection.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace Quorbel {

double wrappedDegrees(double degrees)
{
    return std::remainder(degrees, 360.0);
}

MapProjection::MapProjection(const GeoPoint& center, const QSizeF& size, double kilometersAcross)
    : m_center(center)
    , m_size(size)
    , m_scale(size.width() / kilometersAcross)
    , m_sin(std::sin(qDegreesToRadians(center.latitude)))
    , m_cos(std::cos(qDegreesToRadians(center.latitude)))
{
    const double corner = std::hypot(size.width(), size.height()) / 2 / m_scale;
    m_radius = earthRadius * std::asin(std::min(1.0, corner / earthRadius));
    m_bounds = computeBounds();
}

QPointF MapProjection::map(double latitude, double longitude) const
{
    const double phi = qDegreesToRadians(latitude);
    const double lambda = qDegreesToRadians(longitude - m_center.longitude);
    const double cosPhi = std::cos(phi);
    const double east = cosPhi * std::sin(lambda);
    const double north = m_cos * std::sin(phi) - m_sin * cosPhi * std::cos(lambda);
    const double points = earthRadius * m_scale;
    return { m_size.width() / 2 + points * east, m_size.height() / 2 - points * north };
}

bool MapProjection::isInFront(double latitude, double longitude) const
{
    const double phi = qDegreesToRadians(latitude);
    const double lambda = qDegreesToRadians(longitude - m_center.longitude);
    return m_sin * std::sin(phi) + m_cos * std::cos(phi) * std::cos(lambda) > 0;
}

double MapProjection::kilometersTo(double latitude, double longitude) const
{
    // The haversine formula: exact for small distances too.
    const double dPhi = qDegreesToRadians(latitude - m_center.latitude) / 2;
    const double dLambda = qDegreesToRadians(longitude - m_center.longitude) / 2;
    const double h =
        std::pow(std::sin(dPhi), 2) + m_cos * std::cos(qDegreesToRadians(latitude)) * std::pow(std::sin(dLambda), 2);
    return 2 * earthRadius * std::asin(std::min(1.0, std::sqrt(h)));
}

MapProjection::Bounds MapProjection::computeBounds() const
{
    constexpr double margin = 1.1;  // lines have a width, and what is cut off must not show
    const double angle = margin * m_radius / earthRadius;
    const double degrees = qRadiansToDegrees(angle);
    Bounds bounds{ std::max(-90.0, m_center.latitude - degrees), std::min(90.0, m_center.latitude + degrees) };
    // With a pole in sight every longitude is.
    const double sine = std::sin(std::min(angle, M_PI / 2)) / std::max(m_cos, 1e-9);
    if (std::abs(m_center.latitude) + degrees < 90 && sine < 1) {
        bounds.east = qRadiansToDegrees(std::asin(sine));
        bounds.west = -bounds.east;
    }
    return bounds;
}

}  // namespace Quorbel
