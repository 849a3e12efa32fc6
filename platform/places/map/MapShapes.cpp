#include "platform/places/map/MapShapes.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace Quorbel {

namespace {

// Straight lines along a bin's edge are curves in the image: they get a corner every so many units.
constexpr double edgeStep = MapFormat::binUnits / 16.0;
// Corners closer than this to the last one are left out.
constexpr double leastDistance = 0.4;  // pixels
constexpr double leastSize = 0.6;  // pixels: smaller islands are left out

struct BinPoint {
    double x = 0;
    double y = 0;
    bool operator==(const BinPoint&) const = default;
};
using Ring = std::vector<BinPoint>;

struct BinBox {
    double left = 0;
    double bottom = 0;
    double right = MapFormat::binUnits;
    double top = MapFormat::binUnits;

    bool isOutside(const BinBox& other) const
    {
        return left > other.right || right < other.left || bottom > other.top || top < other.bottom;
    }
    bool isInside(const BinBox& other) const
    {
        return left >= other.left && right <= other.right && bottom >= other.bottom && top <= other.top;
    }
};

BinBox boxOf(const MapShape& shape)
{
    BinBox box{ MapFormat::binUnits, MapFormat::binUnits, 0, 0 };
    for (int i = 0; i < shape.size; ++i) {
        box.left = std::min<double>(box.left, shape.x(i));
        box.right = std::max<double>(box.right, shape.x(i));
        box.bottom = std::min<double>(box.bottom, shape.y(i));
        box.top = std::max<double>(box.top, shape.y(i));
    }
    return box;
}

BinBox boundsIn(const SeenBin& bin, const MapProjection::Bounds& bounds)
{
    return { (bounds.west - bin.west) / bin.degreesPerUnit, (bounds.south - bin.south) / bin.degreesPerUnit,
        (bounds.east - bin.west) / bin.degreesPerUnit, (bounds.north - bin.south) / bin.degreesPerUnit };
}

// Sutherland and Hodgman's step: keeps what lies on one side of a line. `signedDistance` is positive there.
template <typename SignedDistance>
void clipTo(Ring& ring, Ring& spare, SignedDistance signedDistance)
{
    spare.clear();
    for (size_t i = 0; i < ring.size(); ++i) {
        const auto& a = ring[i];
        const auto& b = ring[i + 1 == ring.size() ? 0 : i + 1];
        const double da = signedDistance(a);
        const double db = signedDistance(b);
        if (da >= 0)
            spare.push_back(a);
        if ((da >= 0) != (db >= 0)) {
            const double t = da / (da - db);
            spare.push_back({ std::lerp(a.x, b.x, t), std::lerp(a.y, b.y, t) });
        }
    }
    ring.swap(spare);
}

void clip(Ring& ring, Ring& spare, const BinBox& box)
{
    clipTo(ring, spare, [&](const BinPoint& p) { return p.x - box.left; });
    clipTo(ring, spare, [&](const BinPoint& p) { return box.right - p.x; });
    clipTo(ring, spare, [&](const BinPoint& p) { return p.y - box.bottom; });
    clipTo(ring, spare, [&](const BinPoint& p) { return box.top - p.y; });
}

// Projects one bin's points, as sparsely as the image allows.
class Tracer {
public:
    Tracer(const MapProjection& projection, qreal density)
        : m_projection(projection)
        , m_leastSquare(std::pow(leastDistance / density, 2))
    {
    }

    void setBin(const SeenBin& bin) { m_bin = bin; }
    const QPolygonF& points() const { return m_points; }
    bool isWhole() const { return m_isWhole; }  // all of it is on the side of the earth that is seen

    void begin()
    {
        m_points.clear();
        m_isWhole = true;
    }

    void add(const BinPoint& point, bool isKept)
    {
        const auto at = project(point);
        if (!m_points.isEmpty() && !isKept) {
            const auto step = at - m_points.constLast();
            if (QPointF::dotProduct(step, step) < m_leastSquare)
                return;
        }
        m_points.append(at);
    }

    // The corners between two points along a line of equal latitude or longitude, the same ones in either direction.
    void addBetween(const BinPoint& a, const BinPoint& b)
    {
        const bool isAcross = a.y == b.y;
        const double from = isAcross ? a.x : a.y;
        const double to = isAcross ? b.x : b.y;
        if ((!isAcross && a.x != b.x) || std::abs(to - from) <= edgeStep)
            return;
        const auto place = [&](double at) { add(isAcross ? BinPoint{ at, a.y } : BinPoint{ a.x, at }, true); };
        if (from < to) {
            for (double k = std::floor(from / edgeStep) + 1; k * edgeStep < to; ++k)
                place(k * edgeStep);
        } else {
            for (double k = std::ceil(from / edgeStep) - 1; k * edgeStep > to; --k)
                place(k * edgeStep);
        }
    }

private:
    QPointF project(const BinPoint& point)
    {
        const double latitude = m_bin.south + point.y * m_bin.degreesPerUnit;
        const double longitude = m_projection.center().longitude + m_bin.west + point.x * m_bin.degreesPerUnit;
        m_isWhole = m_isWhole && m_projection.isInFront(latitude, longitude);
        return m_projection.map(latitude, longitude);
    }

    const MapProjection& m_projection;
    double m_leastSquare;
    SeenBin m_bin{};
    QPolygonF m_points{};
    bool m_isWhole = true;
};

bool isOnEdge(const BinPoint& point)
{
    const auto isEnd = [](double at) { return at == 0 || at == MapFormat::binUnits; };
    return isEnd(point.x) || isEnd(point.y);
}

void traceRing(Tracer& tracer, const Ring& ring)
{
    tracer.begin();
    for (size_t i = 0; i < ring.size(); ++i) {
        tracer.add(ring[i], isOnEdge(ring[i]));
        tracer.addBetween(ring[i], ring[i + 1 == ring.size() ? 0 : i + 1]);
    }
}

}  // namespace

MapPaths mapAreas(const MapFile& file, const MapProjection& projection, qreal density, const IsCancelled& isCancelled)
{
    MapPaths paths;
    Tracer tracer(projection, density);
    Ring ring;
    Ring spare;
    for (const auto& bin : seenBins(file, projection)) {
        if (isCancelled())
            return {};
        tracer.setBin(bin);
        const auto bounds = boundsIn(bin, projection.bounds());
        const double pixelsPerUnit = bin.degreesPerUnit * 111 * projection.scale() * density;
        file.forEachShape(bin.number, [&](const MapShape& shape) {
            const auto box = boxOf(shape);
            if (box.isOutside(bounds)
                || std::max(box.right - box.left, box.top - box.bottom) * pixelsPerUnit < leastSize)
                return;
            ring.resize(size_t(shape.size));
            for (int i = 0; i < shape.size; ++i)
                ring[size_t(i)] = { double(shape.x(i)), double(shape.y(i)) };
            if (!box.isInside(bounds))
                clip(ring, spare, bounds);
            traceRing(tracer, ring);
            if (tracer.points().size() < 3 || !tracer.isWhole())
                return;
            auto& path = paths[shape.type];
            path.setFillRule(Qt::WindingFill);
            path.addPolygon(tracer.points());
            path.closeSubpath();
        });
    }
    return paths;
}

MapPaths mapLines(
    const MapFile& file, const MapProjection& projection, qreal density, int last, const IsCancelled& isCancelled)
{
    MapPaths paths;
    Tracer tracer(projection, density);
    for (const auto& bin : seenBins(file, projection)) {
        if (isCancelled())
            return {};
        tracer.setBin(bin);
        const auto bounds = boundsIn(bin, projection.bounds());
        file.forEachShape(bin.number, [&](const MapShape& shape) {
            if (shape.type > last || boxOf(shape).isOutside(bounds))
                return;
            tracer.begin();
            for (int i = 0; i < shape.size; ++i) {
                const BinPoint point{ double(shape.x(i)), double(shape.y(i)) };
                if (i > 0)
                    tracer.addBetween({ double(shape.x(i - 1)), double(shape.y(i - 1)) }, point);
                tracer.add(point, i == 0 || i == shape.size - 1);
            }
            if (tracer.isWhole() && tracer.points().size() > 1)
                paths[shape.type].addPolygon(tracer.points());
        });
    }
    return paths;
}

}  // namespace Quorbel
