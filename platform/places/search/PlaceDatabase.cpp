#include "platform/places/search/PlaceDatabase.h"

#include <QFile>
#include <QUuid>
#include <QVariant>

#include <algorithm>
#include <cmath>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr double radians = 3.14159265358979323846 / 180;
constexpr double kilometersPerDegree = 111.2;
constexpr int formatVersion = 1;
constexpr int landCellsPerDegree = 40;
constexpr int landColumns = 360 * landCellsPerDegree;
constexpr int townCellsPerDegree = 4;
constexpr int townColumns = 360 * townCellsPerDegree;
constexpr quint16 sea = 0xFFFF;

const QString placeColumns =
    u"p.id, p.kind, p.name, p.town, p.state, p.country, p.latitude, p.longitude, p.population, p.rank"_s;

std::optional<QSqlQuery> prepare(const QSqlDatabase& database, const QString& statement)
{
    QSqlQuery query(database);
    query.setForwardOnly(true);
    return query.prepare(statement) ? std::optional(std::move(query)) : std::nullopt;
}

PlaceRow readPlace(const QSqlQuery& query)
{
    PlaceRow row;
    row.id = query.value(0).toInt();
    row.kind = PlaceKind(query.value(1).toInt());
    row.name = query.value(2).toString();
    row.town = query.value(3).toString();
    row.state = query.value(4).toInt();
    row.country = query.value(5).toInt();
    row.point = { query.value(6).toInt() / 1e6, query.value(7).toInt() / 1e6 };
    row.population = query.value(8).toLongLong();
    row.rank = query.value(9).toInt() / 1000.0;
    return row;
}

quint16 littleEndian(const QByteArray& bytes, qsizetype at)
{
    return quint16(quint8(bytes[at]) | (quint8(bytes[at + 1]) << 8U));
}

// The value of a column in a row of runs: four bytes each, first column and value.
quint16 runValue(const QByteArray& runs, int column)
{
    qsizetype low = 0;
    qsizetype high = runs.size() / 4;
    while (high - low > 1) {
        const auto mid = (low + high) / 2;
        (littleEndian(runs, mid * 4) <= column ? low : high) = mid;
    }
    return high > 0 ? littleEndian(runs, low * 4 + 2) : sea;
}

int wrapped(int column, int columns)
{
    return ((column % columns) + columns) % columns;
}

}  // namespace

double kilometersBetween(const GeoPoint& a, const GeoPoint& b)
{
    const double halfLatitude = std::sin((b.latitude - a.latitude) * radians / 2);
    const double halfLongitude = std::sin((b.longitude - a.longitude) * radians / 2);
    const double chord = halfLatitude * halfLatitude
        + std::cos(a.latitude * radians) * std::cos(b.latitude * radians) * halfLongitude * halfLongitude;
    return 2 * 6371.0 * std::asin(std::min(1.0, std::sqrt(chord)));
}

PlaceDatabase::PlaceDatabase(const QString& path)
    : m_connection(u"places-"_s + QUuid::createUuid().toString(QUuid::WithoutBraces))
{
    if (!QFile::exists(path))
        return;
    auto database = QSqlDatabase::addDatabase(u"QSQLITE"_s, m_connection);
    // Nobody writes the file while the program runs: no locks, no journal, and pages straight from the mapped file.
    database.setDatabaseName(QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded) + u"?immutable=1"_s);
    database.setConnectOptions(u"QSQLITE_OPEN_READONLY;QSQLITE_OPEN_URI"_s);
    if (!database.open())
        return;
    QSqlQuery pragma(database);
    pragma.exec(u"PRAGMA mmap_size=268435456"_s);
    if (!pragma.exec(u"PRAGMA user_version"_s) || !pragma.next() || pragma.value(0) != formatVersion)
        return;
    pragma.clear();
    m_matching = prepare(database,
        u"SELECT %1, p.alternates FROM (SELECT rowid AS r FROM place_text "
        "WHERE place_text MATCH ? ORDER BY rowid LIMIT ?) JOIN place p ON p.id = r"_s.arg(placeColumns));
    m_place = prepare(database, u"SELECT %1, p.alternates FROM place p WHERE p.id = ?"_s.arg(placeColumns));
    m_towns =
        prepare(database, u"SELECT %1 FROM place p WHERE p.kind = 0 AND p.cell BETWEEN ? AND ?"_s.arg(placeColumns));
    m_land = prepare(database, u"SELECT runs FROM land WHERE row = ?"_s);
    m_isOpen = m_matching && m_place && m_towns && m_land;
    if (m_isOpen)
        readAreas();
}

PlaceDatabase::~PlaceDatabase()
{
    m_matching.reset();
    m_place.reset();
    m_towns.reset();
    m_land.reset();
    QSqlDatabase::removeDatabase(m_connection);
}

void PlaceDatabase::readAreas()
{
    QSqlQuery query(QSqlDatabase::database(m_connection));
    query.setForwardOnly(true);
    query.exec(u"SELECT code, name, words FROM country ORDER BY id"_s);
    while (query.next())
        m_countries.append({ query.value(0).toString(), query.value(1).toString(), query.value(2).toString() });
    query.exec(u"SELECT name, words FROM state ORDER BY id"_s);
    while (query.next())
        m_states.append({ query.value(0).toString(), query.value(1).toString() });
    query.exec(u"SELECT country, state FROM area ORDER BY id"_s);
    while (query.next())
        m_areas.append({ query.value(0).toInt(), query.value(1).toInt() });
}

QList<PlaceRow> PlaceDatabase::matching(const QString& expression, int limit)
{
    QList<PlaceRow> rows;
    m_matching->bindValue(0, expression);
    m_matching->bindValue(1, limit);
    m_matching->exec();
    while (m_matching->next()) {
        rows.append(readPlace(*m_matching));
        rows.last().alternates = m_matching->value(10).toString();
    }
    m_matching->finish();
    return rows;
}

std::optional<PlaceRow> PlaceDatabase::place(int id)
{
    std::optional<PlaceRow> row;
    m_place->bindValue(0, id);
    if (m_place->exec() && m_place->next()) {
        row = readPlace(*m_place);
        row->alternates = m_place->value(10).toString();
    }
    m_place->finish();
    return row;
}

QList<PlaceRow> PlaceDatabase::townsAround(const GeoPoint& point, double kilometers)
{
    const double degrees = kilometers / kilometersPerDegree;
    const double narrowing = std::max(0.02, std::cos(point.latitude * radians));
    const auto rowOf = [](double latitude) { return int(std::floor((latitude + 90) * townCellsPerDegree)); };
    const auto columnOf = [](double longitude) { return int(std::floor((longitude + 180) * townCellsPerDegree)); };
    const int first = columnOf(point.longitude - degrees / narrowing);
    const int last = std::min(columnOf(point.longitude + degrees / narrowing), first + townColumns - 1);
    QList<PlaceRow> towns;
    const auto ask = [&](int row, int from, int to) {
        m_towns->bindValue(0, row * townColumns + from);
        m_towns->bindValue(1, row * townColumns + to);
        m_towns->exec();
        while (m_towns->next())
            towns.append(readPlace(*m_towns));
        m_towns->finish();
    };
    for (int row = std::max(0, rowOf(point.latitude - degrees)); row <= rowOf(point.latitude + degrees); ++row) {
        const int from = wrapped(first, townColumns);
        const int to = wrapped(last, townColumns);
        if (from <= to) {
            ask(row, from, to);
        } else {
            ask(row, from, townColumns - 1);
            ask(row, 0, to);
        }
    }
    return towns;
}

QByteArray PlaceDatabase::landRow(int row)
{
    QByteArray runs;
    m_land->bindValue(0, row);
    if (m_land->exec() && m_land->next())
        runs = m_land->value(0).toByteArray();
    m_land->finish();
    return runs;
}

std::optional<PlaceDatabase::Area> PlaceDatabase::areaAt(const GeoPoint& point)
{
    const int row =
        std::clamp(int(std::floor((point.latitude + 90) * landCellsPerDegree)), 0, 180 * landCellsPerDegree - 1);
    const int column = wrapped(int(std::floor((point.longitude + 180) * landCellsPerDegree)), landColumns);
    const auto number = runValue(landRow(row), column);
    return number < m_areas.size() ? std::optional(m_areas[number]) : std::nullopt;
}

const QByteArray& PlaceDatabase::spellings()
{
    if (m_spellings.isEmpty()) {
        QSqlQuery query(QSqlDatabase::database(m_connection));
        if (query.exec(u"SELECT records FROM spelling"_s) && query.next())
            m_spellings = query.value(0).toByteArray();
    }
    return m_spellings;
}

}  // namespace Quorbel
