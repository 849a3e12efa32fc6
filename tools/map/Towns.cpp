#include "tools/map/Towns.h"

#include <QFile>
#include <QSet>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace Quorbel::MapBuild {

using namespace Qt::StringLiterals;

namespace {

constexpr int columns = 180;  // bins of 2°
// A bin of the earth has few towns that matter; names beyond this never reach a map.
constexpr qsizetype longestName = 60;  // bytes

// Rank is a tenth of a power of ten people, capitals and seats of states before others of their size.
constexpr double ranksPerPowerOfTen = 30;
constexpr int capitalBonus = 40;
constexpr int seatBonus = 12;

QList<QList<QByteArray>> readTable(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw BuildError(path + u": "_s + file.errorString());
    QList<QList<QByteArray>> rows;
    for (const auto& line : file.readAll().split('\n')) {
        if (!line.isEmpty())
            rows.append(line.split('\t'));
    }
    return rows;
}

// Sections of cities and places that are no more: their names would stand beside the city's own.
bool isNamed(const QByteArray& code)
{
    static const QSet<QByteArray> others{ "PPLX", "PPLQ", "PPLH", "PPLW", "PPLCH", "STLMT", "PPLL", "PPLF" };
    return !others.contains(code);
}

Town townOf(const QList<QByteArray>& row)
{
    enum { name = 1, latitude = 4, longitude = 5, code = 7, population = 14 };
    Town town{ { row[longitude].toDouble(), row[latitude].toDouble() } };
    town.name = row[name];
    town.population = row[population].toUInt();
    const bool isCapital = row[code] == "PPLC";
    town.flags = isCapital ? MapFormat::capital : 0;
    const double rank = ranksPerPowerOfTen * std::log10(1.0 + town.population) + (isCapital ? capitalBonus : 0)
        + (row[code] == "PPLA" ? seatBonus : 0);
    town.rank = quint8(std::clamp(rank, 0.0, 255.0));
    return town;
}

// In Antarctica nothing else could be named.
QList<Town> antarcticLandmarks(const QString& path)
{
    enum { name = 0, country = 4, latitude = 5, longitude = 6, columnCount = 7 };
    QList<Town> all;
    for (const auto& row : readTable(path)) {
        if (row.size() != columnCount)
            throw BuildError(path + u": a row of %1 columns"_s.arg(row.size()));
        if (row[country] == "AQ")
            all.append(
                { { row[longitude].toDouble(), row[latitude].toDouble() }, 1, MapFormat::notATown, 0, row[name] });
    }
    return all;
}

}  // namespace

MapWriter readTowns(const QString& cities, const QString& landmarks)
{
    constexpr qsizetype columnCount = 15;  // that are read
    QList<Town> towns;
    for (const auto& row : readTable(cities)) {
        if (row.size() < columnCount)
            throw BuildError(cities + u": a row of %1 columns"_s.arg(row.size()));
        if (isNamed(row[7]) && row[1].size() <= longestName)
            towns.append(townOf(row));
    }
    QSet<QByteArray> names;
    for (const auto& town : towns)
        names.insert(town.name);
    for (const auto& landmark : antarcticLandmarks(landmarks)) {
        if (!names.contains(landmark.name))
            towns.append(landmark);
    }
    std::stable_sort(towns.begin(), towns.end(), [](const Town& a, const Town& b) { return a.rank > b.rank; });

    MapWriter writer(MapFormat::Kind::towns, columns, columns / 2);
    for (const auto& town : towns)
        writer.addTown(town);
    return writer;
}

}  // namespace Quorbel::MapBuild
