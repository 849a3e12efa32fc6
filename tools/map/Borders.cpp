#include "tools/map/Borders.h"

#include <QHash>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include <array>
#include <cmath>
#include <cstring>

namespace Quorbel::MapBuild {

using namespace Qt::StringLiterals;

namespace {

constexpr int columns = 180;  // bins of 2°
// Corners closer than this, a metre, are one: neighbours then have the same edges.
constexpr double step = 1e-5;

// A corner on the grid of steps, in one number so that it can be hashed.
using Corner = quint64;

Corner cornerAt(double longitude, double latitude)
{
    return (Corner(quint32(std::lround(longitude / step))) << 32U) | quint32(std::lround(latitude / step));
}

Position positionOf(Corner corner)
{
    return { qint32(corner >> 32U) * step, qint32(corner & 0xFFFFFFFFU) * step };
}

struct Ring {
    QString country{};
    QList<Corner> corners{};
};

// The geopackage's geometry: a header, then polygons as well-known binary.
class Geometry {
public:
    Geometry(const QByteArray& bytes, QString country, QList<Ring>& rings)
        : m_next(bytes.constData())
        , m_left(bytes.size())
        , m_country(std::move(country))
        , m_rings(rings)
    {
        constexpr std::array<qsizetype, 5> envelope{ 0, 32, 48, 48, 64 };
        const auto magic = take<quint16>();
        take<quint8>();
        const auto kind = (take<quint8>() >> 1U) & 7U;
        if (magic != 0x5047 || kind >= envelope.size())
            throw BuildError(u"a geometry of unknown form"_s);
        take<quint32>();
        skip(envelope[kind]);
        readShape();
    }

private:
    void readShape()
    {
        constexpr quint32 polygon = 3;
        constexpr quint32 multiPolygon = 6;
        if (take<quint8>() != 1)
            throw BuildError(u"a geometry that is not little-endian"_s);
        const auto type = take<quint32>();
        if (type != polygon && type != multiPolygon)
            throw BuildError(u"a geometry that is no polygon"_s);
        for (auto left = take<quint32>(); left > 0; --left) {
            if (type == multiPolygon)
                readShape();
            else
                readRing();
        }
    }

    void readRing()
    {
        Ring ring{ m_country };
        for (auto left = take<quint32>(); left > 0; --left) {
            const auto longitude = take<double>();
            const auto corner = cornerAt(longitude, take<double>());
            if (ring.corners.isEmpty() || ring.corners.constLast() != corner)
                ring.corners.append(corner);
        }
        m_rings.append(ring);
    }

    void skip(qsizetype count)
    {
        if (count > m_left)
            throw BuildError(u"a geometry that ends too early"_s);
        m_next += count;
        m_left -= count;
    }

    template <typename T>
    T take()
    {
        const char* const from = m_next;
        skip(sizeof(T));
        T value{};
        std::memcpy(&value, from, sizeof value);
        return value;
    }

    const char* m_next;
    qsizetype m_left;
    QString m_country;
    QList<Ring>& m_rings;
};

QList<Ring> readRings(const QString& geopackage)
{
    const auto connection = u"borders"_s;
    QList<Ring> rings;
    {
        auto database = QSqlDatabase::addDatabase(u"QSQLITE"_s, connection);
        database.setDatabaseName(geopackage);
        database.setConnectOptions(u"QSQLITE_OPEN_READONLY"_s);
        if (!database.open())
            throw BuildError(geopackage + u": "_s + database.lastError().text());
        QSqlQuery query(database);
        query.setForwardOnly(true);
        if (!query.exec(u"SELECT geom, adm0_a3 FROM states_provinces ORDER BY fid"_s))
            throw BuildError(geopackage + u": "_s + query.lastError().text());
        while (query.next()) {
            const auto bytes = query.value(0).toByteArray();
            if (!bytes.isEmpty())
                Geometry(bytes, query.value(1).toString(), rings);
        }
    }
    QSqlDatabase::removeDatabase(connection);
    return rings;
}

using Edge = std::pair<Corner, Corner>;

Edge edgeBetween(Corner a, Corner b)
{
    return a < b ? Edge{ a, b } : Edge{ b, a };
}

// What runs along an edge, found out by looking at every ring that has it.
struct Neighbors {
    QString country{};
    bool isShared = false;
    bool isNational = false;
    bool isDrawn = false;
};

}  // namespace

MapWriter readBorders(const QString& geopackage)
{
    const auto rings = readRings(geopackage);
    QHash<Edge, Neighbors> edges;
    for (const auto& ring : rings) {
        for (qsizetype i = 1; i < ring.corners.size(); ++i) {
            auto& edge = edges[edgeBetween(ring.corners[i - 1], ring.corners[i])];
            edge.isShared = !edge.country.isEmpty();
            edge.isNational = edge.isNational || (edge.isShared && edge.country != ring.country);
            edge.country = ring.country;
        }
    }

    MapWriter writer(MapFormat::Kind::borders, columns, columns / 2);
    for (const auto& ring : rings) {
        QList<Position> line;
        quint8 type = 0;
        for (qsizetype i = 1; i < ring.corners.size(); ++i) {
            auto& edge = edges[edgeBetween(ring.corners[i - 1], ring.corners[i])];
            const quint8 here = !edge.isShared || edge.isDrawn ? 0
                : edge.isNational                              ? MapFormat::national
                                                               : MapFormat::state;
            edge.isDrawn = true;
            if (here != type) {
                writer.addLine(type, line);
                line = { positionOf(ring.corners[i - 1]) };
                type = here;
            }
            if (type != 0)
                line.append(positionOf(ring.corners[i]));
        }
        writer.addLine(type, line);
    }
    return writer;
}

}  // namespace Quorbel::MapBuild
