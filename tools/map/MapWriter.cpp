#include "tools/map/MapWriter.h"

#include <QSaveFile>
#include <QtEndian>

#include <algorithm>
#include <cmath>

namespace Quorbel::MapBuild {

using namespace Qt::StringLiterals;

namespace {

template <typename T>
void put(QByteArray& bytes, T value)
{
    const T little = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char*>(&little), sizeof little);
}

// Where along a…b, from 0 to 1, the coordinate passes multiples of the step.
void appendCrossings(QList<double>& at, double a, double b, double step)
{
    const auto [low, high] = std::minmax(a, b);
    for (double line = std::ceil(low / step) * step; line <= high; line += step) {
        if (a != b)
            at.append((line - a) / (b - a));
    }
}

}  // namespace

MapWriter::MapWriter(MapFormat::Kind kind, int columns, int rows)
    : m_kind(kind)
    , m_columns(columns)
    , m_rows(rows)
    , m_bins(qsizetype(columns) * rows)
{
}

void MapWriter::addShape(int bin, quint8 type, const QList<BinPoint>& points)
{
    if (points.size() < 2)
        return;
    auto& bytes = m_bins[bin];
    put(bytes, quint32(type | (quint32(points.size()) << 8U)));
    for (const auto& point : points) {
        put(bytes, point.x);
        put(bytes, point.y);
    }
}

MapWriter::Cell MapWriter::cellOf(const Position& position) const
{
    const double degrees = 360.0 / m_columns;
    const int column = int(std::floor(position.longitude / degrees));
    const int row = int(std::floor((90 - position.latitude) / degrees));
    return { ((column % m_columns) + m_columns) % m_columns, std::clamp(row, 0, m_rows - 1) };
}

BinPoint MapWriter::pointIn(const Cell& cell, const Position& position) const
{
    const double degrees = 360.0 / m_columns;
    const double east = std::remainder(position.longitude - (cell.column + 0.5) * degrees, 360) / degrees + 0.5;
    const double north = (position.latitude - 90) / degrees + cell.row + 1;
    const auto units = [](double share) {
        return quint16(std::lround(std::clamp(share, 0.0, 1.0) * MapFormat::binUnits));
    };
    return { units(east), units(north) };
}

void MapWriter::addLine(quint8 type, const QList<Position>& line)
{
    const double degrees = 360.0 / m_columns;
    Cell cell;
    QList<BinPoint> points;
    QList<double> cuts;
    for (qsizetype i = 1; i < line.size(); ++i) {
        const auto a = line[i - 1];
        const auto b = line[i];
        cuts = { 0, 1 };
        appendCrossings(cuts, a.longitude, b.longitude, degrees);
        appendCrossings(cuts, a.latitude, b.latitude, degrees);
        std::sort(cuts.begin(), cuts.end());
        const auto along = [&](double t) {
            return Position{ std::lerp(a.longitude, b.longitude, t), std::lerp(a.latitude, b.latitude, t) };
        };
        for (qsizetype k = 1; k < cuts.size(); ++k) {
            if (cuts[k] == cuts[k - 1])
                continue;
            const auto here = cellOf(along((cuts[k - 1] + cuts[k]) / 2));
            if (points.isEmpty() || here != cell) {
                addShape(cell.row * m_columns + cell.column, type, points);
                points = { pointIn(here, along(cuts[k - 1])) };
                cell = here;
            }
            if (const auto next = pointIn(here, along(cuts[k])); next != points.constLast())
                points.append(next);
        }
    }
    addShape(cell.row * m_columns + cell.column, type, points);
}

void MapWriter::addTown(const Town& town)
{
    const auto cell = cellOf(town.position);
    const auto point = pointIn(cell, town.position);
    auto& bytes = m_bins[cell.row * m_columns + cell.column];
    put(bytes, point.x);
    put(bytes, point.y);
    put(bytes, town.rank);
    put(bytes, town.flags);
    put(bytes, town.population);
    put(bytes, quint8(town.name.size()));
    bytes.append(town.name);
}

void MapWriter::write(const QString& path) const
{
    QByteArray head(MapFormat::magic, sizeof MapFormat::magic);
    for (const int number : { int(m_kind), m_columns, m_rows, 0 })
        put(head, quint16(number));
    auto offset = quint32(head.size() + (m_bins.size() + 1) * qsizetype(sizeof(quint32)));
    for (const auto& bin : m_bins) {
        put(head, offset);
        offset += quint32(bin.size());
    }
    put(head, offset);

    QSaveFile file(path);
    bool isWritten = file.open(QIODevice::WriteOnly) && file.write(head) == head.size();
    for (const auto& bin : m_bins)
        isWritten = isWritten && file.write(bin) == bin.size();
    if (!isWritten || !file.commit())
        throw BuildError(path + u": "_s + file.errorString());
}

}  // namespace Quorbel::MapBuild
