// Puts shapes and towns into bins and writes a map file (see platform/places/MapFormat.h).
// Thread: any, one at a time. The bytes written depend on nothing but what was added, and its order.
#pragma once

#include "platform/places/map/MapFormat.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <stdexcept>

namespace Quorbel::MapBuild {

class BuildError : public std::runtime_error {
public:
    explicit BuildError(const QString& what)
        : std::runtime_error(what.toStdString())
    {
    }
};

/// Degrees; longitudes may lie anywhere, 181° is -179°.
struct Position {
    double longitude = 0;
    double latitude = 0;
    bool operator==(const Position&) const = default;
};

/// Within a bin, 0…65535.
struct BinPoint {
    quint16 x = 0;
    quint16 y = 0;
    bool operator==(const BinPoint&) const = default;
};

struct Town {
    Position position{};
    quint8 rank = 0;
    quint8 flags = 0;
    quint32 population = 0;
    QByteArray name{};  ///< UTF-8, at most 255 bytes
};

class MapWriter {
public:
    MapWriter(MapFormat::Kind kind, int columns, int rows);

    /// A shape whose points are already those of the bin. Shapes of fewer than two points are left out.
    void addShape(int bin, quint8 type, const QList<BinPoint>& points);
    /// A line anywhere, cut where it crosses from one bin into another.
    void addLine(quint8 type, const QList<Position>& line);
    /// Towns of one bin must come with the highest rank first.
    void addTown(const Town& town);
    /// Throws BuildError.
    void write(const QString& path) const;

private:
    struct Cell {
        int column = 0;
        int row = 0;
        bool operator==(const Cell&) const = default;
    };
    Cell cellOf(const Position& position) const;
    BinPoint pointIn(const Cell& cell, const Position& position) const;

    MapFormat::Kind m_kind;
    int m_columns;
    int m_rows;
    QList<QByteArray> m_bins{};
};

}  // namespace Quorbel::MapBuild
