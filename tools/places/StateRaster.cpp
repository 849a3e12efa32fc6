#include "tools/places/StateRaster.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace Quorbel::Places {

using namespace Qt::StringLiterals;

namespace {

constexpr quint16 sea = 0xFFFF;

// Reads the geometry of a geopackage: a header, then well-known binary.
class GeometryReader {
public:
    explicit GeometryReader(const QByteArray& bytes)
        : m_bytes(bytes)
    {
    }

    QList<Ring> rings()
    {
        constexpr std::array<qsizetype, 5> envelopeSizes{ 0, 32, 48, 48, 64 };
        skip(3);
        const auto flags = take<quint8>();
        const auto envelope = (flags >> 1U) & 7U;
        if (envelope >= envelopeSizes.size())
            throw BuildError(u"a geometry with an unknown header"_s);
        skip(4 + envelopeSizes[envelope]);
        QList<Ring> all;
        readGeometry(all);
        return all;
    }

private:
    static constexpr quint32 polygonType = 3;
    static constexpr quint32 multiPolygonType = 6;

    void readGeometry(QList<Ring>& all)
    {
        if (take<quint8>() != 1)
            throw BuildError(u"a geometry that is not little-endian"_s);
        const auto type = take<quint32>();
        const auto count = take<quint32>();
        for (quint32 i = 0; i < count; ++i) {
            if (type == multiPolygonType)
                readGeometry(all);
            else if (type == polygonType)
                all.append(readRing());
            else
                throw BuildError(u"a geometry that is no polygon"_s);
        }
    }

    Ring readRing()
    {
        Ring ring;
        for (auto left = take<quint32>(); left > 0; --left) {
            const auto longitude = take<double>();
            ring.append({ take<double>(), longitude });
        }
        return ring;
    }

    void skip(qsizetype count)
    {
        if (m_bytes.size() - m_at < count)
            throw BuildError(u"a geometry that ends too early"_s);
        m_at += count;
    }

    template <typename T>
    T take()
    {
        const auto from = m_at;
        skip(sizeof(T));
        T value{};
        std::memcpy(&value, m_bytes.constData() + from, sizeof(T));
        return value;
    }

    const QByteArray& m_bytes;
    qsizetype m_at = 0;
};

QList<Polygon> readPolygons(const QString& path)
{
    const auto connection = u"polygons"_s;
    QList<Polygon> polygons;
    {
        auto database = QSqlDatabase::addDatabase(u"QSQLITE"_s, connection);
        database.setDatabaseName(path);
        database.setConnectOptions(u"QSQLITE_OPEN_READONLY"_s);
        if (!database.open())
            throw BuildError(path, database.lastError().text());
        QSqlQuery query(database);
        if (!query.exec(u"SELECT geom, iso_a2, name FROM states_provinces ORDER BY fid"_s))
            throw BuildError(path, query.lastError().text());
        while (query.next()) {
            const auto geometry = query.value(0).toByteArray();
            if (!geometry.isEmpty())
                polygons.append(
                    { GeometryReader(geometry).rings(), query.value(1).toString(), query.value(2).toString() });
        }
    }
    QSqlDatabase::removeDatabase(connection);
    return polygons;
}

int rowOf(double latitude)
{
    return std::clamp(int(std::floor((latitude + 90) * StateRaster::cellsPerDegree)), 0, StateRaster::rows - 1);
}

int columnOf(double longitude)
{
    const int column = int(std::floor((longitude + 180) * StateRaster::cellsPerDegree));
    return ((column % StateRaster::columns) + StateRaster::columns) % StateRaster::columns;
}

double middle(int cell, double start)
{
    return start + (cell + 0.5) / StateRaster::cellsPerDegree;
}

// Calls visit(row, first column, past the last) for the cells whose middles lie inside the rings (even-odd).
template <typename Visit>
void visitInside(const QList<Ring>& rings, Visit visit)
{
    QMap<int, QList<double>> crossings;
    for (const auto& ring : rings) {
        for (qsizetype i = 1; i < ring.size(); ++i) {
            const auto [low, high] =
                std::minmax(ring[i - 1], ring[i], [](auto a, auto b) { return a.latitude < b.latitude; });
            for (int row = rowOf(low.latitude); row <= rowOf(high.latitude); ++row) {
                const double y = middle(row, -90);
                if (low.latitude <= y && y < high.latitude) {
                    const double along = (y - low.latitude) / (high.latitude - low.latitude);
                    crossings[row].append(low.longitude + along * (high.longitude - low.longitude));
                }
            }
        }
    }
    const auto firstFrom = [](double x) {
        return std::clamp(int(std::ceil((x + 180) * StateRaster::cellsPerDegree - 0.5)), 0, StateRaster::columns);
    };
    for (auto it = crossings.begin(); it != crossings.end(); ++it) {
        auto& xs = it.value();
        std::sort(xs.begin(), xs.end());
        for (qsizetype i = 1; i < xs.size(); i += 2)
            visit(it.key(), firstFrom(xs[i - 1]), firstFrom(xs[i]));
    }
}

using Votes = QMap<int, int>;

int winner(const Votes& votes, int otherwise)
{
    int best = otherwise;
    int most = 0;
    for (auto it = votes.begin(); it != votes.end(); ++it) {
        if (it.value() > most) {
            most = it.value();
            best = it.key();
        }
    }
    return best;
}

}  // namespace

StateRaster::StateRaster(const QString& geopackage, const Gazetteer& gazetteer)
    : m_gazetteer(&gazetteer)
{
    const auto polygons = readPolygons(geopackage);
    if (polygons.size() >= sea)
        throw BuildError(geopackage, u"too many polygons"_s);
    m_cells = QList<quint16>(qsizetype(rows) * columns, sea);
    m_hasLand = QList<bool>(rows, false);
    for (int i = 0; i < polygons.size(); ++i)
        drawInside(polygons[i].rings, quint16(i));
    // Islets and spits may hold no cell's middle: every cell with a corner of the shore is land too.
    for (int i = 0; i < polygons.size(); ++i)
        drawCorners(polygons[i].rings, quint16(i));
    const auto areaOf = findAreas(polygons);
    for (int row = 0; row < rows; ++row) {
        if (!m_hasLand[row])
            continue;
        auto* const cells = m_cells.data() + qsizetype(row) * columns;
        std::transform(cells, cells + columns, cells, [&](quint16 cell) { return cell == sea ? sea : areaOf[cell]; });
    }
}

void StateRaster::drawInside(const QList<Ring>& rings, quint16 number)
{
    visitInside(rings, [&](int row, int from, int to) {
        auto* const cells = m_cells.data() + qsizetype(row) * columns;
        std::fill(cells + from, cells + std::max(from, to), number);
        m_hasLand[row] = true;
    });
}

void StateRaster::drawCorners(const QList<Ring>& rings, quint16 number)
{
    for (const auto& ring : rings) {
        for (const auto& point : ring) {
            const int row = rowOf(point.latitude);
            auto& cell = m_cells[qsizetype(row) * columns + columnOf(point.longitude)];
            cell = cell == sea ? number : cell;
            m_hasLand[row] = true;
        }
    }
}

QList<quint16> StateRaster::findAreas(const QList<Polygon>& polygons)
{
    QList<Votes> countries(polygons.size());
    QList<Votes> states(polygons.size());
    for (const auto& town : m_gazetteer->entries) {
        const auto cell = m_cells[qsizetype(rowOf(town.point.latitude)) * columns + columnOf(town.point.longitude)];
        if (town.kind != Kind::town || cell == sea)
            continue;
        ++countries[cell][town.country];
        if (town.state >= 0)
            ++states[cell][town.state];
    }
    QMap<std::pair<int, int>, quint16> numbers;
    QList<quint16> areaOf(polygons.size(), sea);
    for (int i = 0; i < polygons.size(); ++i) {
        Area area;
        area.country = winner(countries[i], m_gazetteer->countryOf(polygons[i].country));
        area.state = winner(states[i], m_gazetteer->stateNamed(area.country, polygons[i].name));
        if (area.state >= 0 && m_gazetteer->states[area.state].country != area.country)
            area.state = -1;
        if (area.country < 0)
            continue;
        const std::pair key(area.country, area.state);
        if (!numbers.contains(key)) {
            numbers[key] = quint16(m_areas.size());
            m_areas.append(area);
        }
        areaOf[i] = numbers[key];
    }
    return areaOf;
}

int StateRaster::areaNear(Point point) const
{
    if (isEmpty())
        return -1;
    const int row = rowOf(point.latitude);
    const int column = columnOf(point.longitude);
    if (const auto cell = m_cells[qsizetype(row) * columns + column]; cell != sea)
        return cell;
    for (int y = std::max(0, row - 1); y <= std::min(rows - 1, row + 1); ++y) {
        for (int x = column - 1; x <= column + 1; ++x) {
            const auto cell = m_cells[qsizetype(y) * columns + (x + columns) % columns];
            if (cell != sea)
                return cell;
        }
    }
    return -1;
}

int StateRaster::stateNear(Point point) const
{
    const int area = areaNear(point);
    return area < 0 ? -1 : m_areas[area].state;
}

QByteArray StateRaster::runsOfRow(int row) const
{
    QByteArray runs;
    if (isEmpty() || !m_hasLand[row])
        return runs;
    const auto* const cells = m_cells.constData() + qsizetype(row) * columns;
    for (int column = 0; column < columns; ++column) {
        if (column > 0 && cells[column] == cells[column - 1])
            continue;
        for (const auto number : { quint16(column), cells[column] }) {
            runs.append(char(number & 0xFFU));
            runs.append(char(number >> 8U));
        }
    }
    return runs;
}

}  // namespace Quorbel::Places
