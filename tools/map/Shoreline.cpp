#include "tools/map/Shoreline.h"

#include <netcdf.h>

#include <algorithm>
#include <array>
#include <vector>

namespace Quorbel::MapBuild {

using namespace Qt::StringLiterals;

namespace {

constexpr int edge = MapFormat::binUnits;
constexpr int minutesRound = 360 * 60;

class NetCdf {
public:
    explicit NetCdf(const QString& path)
        : m_path(path)
    {
        check(nc_open(path.toLocal8Bit().constData(), NC_NOWRITE, &m_id), "open");
    }
    ~NetCdf() { nc_close(m_id); }
    Q_DISABLE_COPY_MOVE(NetCdf)

    // A whole variable of one dimension. What the file holds as 16 bits is meant without sign.
    std::vector<int> numbers(const char* name) const
    {
        int variable = 0;
        int dimension = 0;
        size_t size = 0;
        nc_type type = 0;
        check(nc_inq_varid(m_id, name, &variable), name);
        check(nc_inq_var(m_id, variable, nullptr, &type, nullptr, &dimension, nullptr), name);
        check(nc_inq_dimlen(m_id, dimension, &size), name);
        std::vector<int> all(size);
        check(nc_get_var_int(m_id, variable, all.data()), name);
        if (type == NC_SHORT)
            std::transform(all.begin(), all.end(), all.begin(), [](int value) { return value & 0xFFFF; });
        return all;
    }

    int number(const char* name) const { return numbers(name).at(0); }

    [[noreturn]] void fail(const QString& what) const { throw BuildError(m_path + u": "_s + what); }

private:
    void check(int status, const char* what) const
    {
        if (status != NC_NOERR)
            fail(QLatin1String(what) + u": "_s + QLatin1String(nc_strerror(status)));
    }

    QString m_path;
    int m_id = 0;
};

// What shore and river files have in common: bins of segments of points.
struct Segments {
    explicit Segments(const NetCdf& file)
        : minutes(file.number("Bin_size_in_minutes"))
        , firstSegment(file.numbers("Id_of_first_segment_in_a_bin"))
        , segmentCount(file.numbers("N_segments_in_a_bin"))
        , firstPoint(file.numbers("Id_of_first_point_in_a_segment"))
        , x(file.numbers("Relative_longitude_from_SW_corner_of_bin"))
        , y(file.numbers("Relative_latitude_from_SW_corner_of_bin"))
    {
        if (minutes <= 0 || minutesRound % minutes != 0)
            file.fail(u"bins of %1 minutes"_s.arg(minutes));
        columns = minutesRound / minutes;
        rows = columns / 2;
        bool isSound = firstSegment.size() == size_t(columns) * size_t(rows)
            && segmentCount.size() == firstSegment.size() && x.size() == y.size();
        for (size_t bin = 0; isSound && bin < firstSegment.size(); ++bin) {
            isSound = segmentCount[bin] == 0
                || (firstSegment[bin] >= 0
                    && size_t(firstSegment[bin]) + size_t(segmentCount[bin]) <= firstPoint.size());
        }
        if (!isSound)
            file.fail(u"its tables do not fit together"_s);
    }

    QList<BinPoint> points(const NetCdf& file, int segment, int count) const
    {
        const int start = firstPoint[size_t(segment)];
        if (start < 0 || size_t(start) + size_t(count) > x.size())
            file.fail(u"segment %1 lies outside the points"_s.arg(segment));
        const auto first = size_t(start);
        QList<BinPoint> all(count);
        for (int i = 0; i < count; ++i)
            all[i] = { quint16(x[first + size_t(i)]), quint16(y[first + size_t(i)]) };
        return all;
    }

    int minutes;
    int columns = 0;
    int rows = 0;
    std::vector<int> firstSegment;
    std::vector<int> segmentCount;
    std::vector<int> firstPoint;
    std::vector<int> x;
    std::vector<int> y;
};

enum Side { south, east, north, west, inside };

// A piece of shore from one point of the bin's edge to another.
struct Piece {
    QList<BinPoint> points{};
    int start = 0;  // along the bin's edge, anticlockwise from the south-west corner
    int end = 0;
    bool isUsed = false;
};

int alongEdge(BinPoint point, int side)
{
    switch (side) {
    case south:
        return point.x;
    case east:
        return edge + point.y;
    case north:
        return 2 * edge + (edge - point.x);
    default:
        return 3 * edge + (edge - point.y);
    }
}

constexpr int wholeEdge = 4 * edge;
constexpr std::array<BinPoint, 4> corners{ { { 0, 0 }, { edge, 0 }, { edge, edge }, { 0, edge } } };

// How far it is along the edge, in the direction in which polygons of this kind are closed.
int walk(int from, int to, bool isAnticlockwise)
{
    return ((isAnticlockwise ? to - from : from - to) + wholeEdge) % wholeEdge;
}

// Adds the corners that lie strictly between two places on the edge, in the order in which they are passed.
void appendCorners(QList<BinPoint>& ring, int from, int distance, bool isAnticlockwise)
{
    std::array<std::pair<int, int>, 4> order{};
    for (int i = 0; i < 4; ++i)
        order[size_t(i)] = { walk(from, i * edge, isAnticlockwise), i };
    std::sort(order.begin(), order.end());
    for (const auto& [passed, corner] : order) {
        if (passed > 0 && passed < distance)
            ring.append(corners[size_t(corner)]);
    }
}

// Closes pieces into rings: from the end of each along the edge to where the next one starts.
QList<QList<BinPoint>> close(QList<Piece>& pieces, bool isAnticlockwise)
{
    QList<QList<BinPoint>> rings;
    for (auto& first : pieces) {
        if (first.isUsed)
            continue;
        QList<BinPoint> ring;
        for (auto* piece = &first;;) {
            piece->isUsed = true;
            ring += piece->points;
            Piece* next = &first;
            int nearest = walk(piece->end, first.start, isAnticlockwise);
            for (auto& other : pieces) {
                const int distance = walk(piece->end, other.start, isAnticlockwise);
                if (!other.isUsed && distance < nearest) {
                    nearest = distance;
                    next = &other;
                }
            }
            appendCorners(ring, piece->end, nearest, isAnticlockwise);
            if (next == &first)
                break;
            piece = next;
        }
        rings.append(ring);
    }
    return rings;
}

double signedArea(const QList<BinPoint>& ring)
{
    double twice = 0;
    for (qsizetype i = 0; i < ring.size(); ++i) {
        const auto& a = ring[i];
        const auto& b = ring[(i + 1) % ring.size()];
        twice += double(a.x) * b.y - double(b.x) * a.y;
    }
    return twice / 2;
}

// The shore file's own tables.
class ShoreFile {
public:
    explicit ShoreFile(const QString& path)
        : m_file(path)
        , m_segments(m_file)
        , m_corners(m_file.numbers("Embedded_node_levels_in_a_bin"))
        , m_packed(m_file.numbers("Embedded_npts_levels_exit_entry_for_a_segment"))
        , m_antarctic(m_file.numbers("Embedded_ANT_flag"))
    {
        if (m_corners.size() != m_segments.firstSegment.size() || m_packed.size() != m_segments.firstPoint.size()
            || m_antarctic.size() != m_packed.size())
            m_file.fail(u"its tables do not fit together"_s);
    }

    MapWriter polygons() const
    {
        MapWriter writer(MapFormat::Kind::shore, m_segments.columns, m_segments.rows);
        for (int bin = 0; bin < m_segments.columns * m_segments.rows; ++bin) {
            for (int level = MapFormat::land; level <= MapFormat::pondOnIsland; ++level)
                addLevel(writer, bin, level);
        }
        return writer;
    }

private:
    // Of each segment: bits 0…2 the side where it leaves the bin, 3…5 where it enters, 6…8 the level, then the number
    // of points.
    void addLevel(MapWriter& writer, int bin, int level) const
    {
        constexpr int groundingLine = 2;  // of the Antarctic ice, inland of the shore
        QList<Piece> pieces;
        const int first = m_segments.firstSegment[size_t(bin)];
        for (int segment = first; segment < first + m_segments.segmentCount[size_t(bin)]; ++segment) {
            const auto packed = unsigned(m_packed[size_t(segment)]);
            if (int((packed >> 6U) & 7U) != level || m_antarctic[size_t(segment)] == groundingLine)
                continue;
            const auto points = m_segments.points(m_file, segment, int(packed >> 9U));
            const auto entry = int((packed >> 3U) & 7U);
            if (points.isEmpty())
                continue;
            if (entry == inside)
                addRing(writer, bin, level, points);
            else
                pieces.append({ points, alongEdge(points.first(), entry), alongEdge(points.last(), int(packed & 7U)) });
        }
        const bool isLand = level % 2 == 1;
        if (pieces.isEmpty() && lowestCorner(bin) >= level)
            addRing(writer, bin, level, QList<BinPoint>(corners.begin(), corners.end()));
        for (const auto& ring : close(pieces, isLand))
            addRing(writer, bin, level, ring);
    }

    // The levels of the four corners are kept in three bits each.
    int lowestCorner(int bin) const
    {
        const auto packed = unsigned(m_corners[size_t(bin)]);
        return int(std::min({ packed & 7U, (packed >> 3U) & 7U, (packed >> 6U) & 7U, (packed >> 9U) & 7U }));
    }

    // Turned anticlockwise, so that neighbours can be filled as one.
    static void addRing(MapWriter& writer, int bin, int level, QList<BinPoint> ring)
    {
        ring.erase(std::unique(ring.begin(), ring.end()), ring.end());
        if (ring.size() > 3 && ring.first() == ring.last())
            ring.removeLast();
        if (signedArea(ring) < 0)
            std::reverse(ring.begin(), ring.end());
        if (ring.size() >= 3)
            writer.addShape(bin, quint8(level), ring);
    }

    NetCdf m_file;
    Segments m_segments;
    std::vector<int> m_corners;
    std::vector<int> m_packed;
    std::vector<int> m_antarctic;
};

}  // namespace

MapWriter readShores(const QString& path)
{
    return ShoreFile(path).polygons();
}

MapWriter readRivers(const QString& path)
{
    constexpr int lastPermanent = 4;  // above: rivers that run dry, and canals
    const NetCdf file(path);
    const Segments segments(file);
    const auto counts = file.numbers("N_points_for_a_segment");
    const auto levels = file.numbers("Hierarchial_level_of_a_segment");
    if (counts.size() != segments.firstPoint.size() || levels.size() != counts.size())
        file.fail(u"its tables do not fit together"_s);
    MapWriter writer(MapFormat::Kind::rivers, segments.columns, segments.rows);
    for (int bin = 0; bin < segments.columns * segments.rows; ++bin) {
        const int first = segments.firstSegment[size_t(bin)];
        for (int segment = first; segment < first + segments.segmentCount[size_t(bin)]; ++segment) {
            if (levels[size_t(segment)] <= lastPermanent) {
                writer.addShape(
                    bin, quint8(levels[size_t(segment)]), segments.points(file, segment, counts[size_t(segment)]));
            }
        }
    }
    return writer;
}

}  // namespace Quorbel::MapBuild
