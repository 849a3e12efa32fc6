// Which state or country each patch of land belongs to, from polygons.
// Thread: any. Throws BuildError when the file cannot be understood.
#pragma once

#include "tools/places/Gazetteer.h"

#include <QByteArray>

namespace Quorbel::Places {

using Ring = QList<Point>;

/// A state as the borders' file has it.
struct Polygon {
    QList<Ring> rings{};
    QString country{};  ///< ISO alpha-2, or something else where the source knows none
    QString name{};
};

/// The earth in cells of 1/40 degree (2.8 km at the equator), each holding the polygon at its middle, or none at sea.
class StateRaster {
public:
    static constexpr int cellsPerDegree = 40;
    static constexpr int columns = 360 * cellsPerDegree;
    static constexpr int rows = 180 * cellsPerDegree;

    /// An empty world.
    StateRaster() = default;
    /// From the table states_provinces of a geopackage. Each polygon takes the state that most of its towns belong to.
    StateRaster(const QString& geopackage, const Gazetteer& gazetteer);

    bool isEmpty() const { return m_cells.isEmpty(); }
    /// An area's number at the point, or in the next cells around it; -1 at sea.
    int areaNear(Point point) const;
    /// -1 at sea, and where the area has no state.
    int stateNear(Point point) const;
    int countryOf(int state) const { return m_gazetteer->states[state].country; }

    struct Area {
        int country = -1;
        int state = -1;
    };
    const QList<Area>& areas() const { return m_areas; }
    /// Runs of equal cells from west to east, row 0 at the south pole: four bytes each, little-endian, the first
    /// column (16 bits) and the area (16 bits, 0xFFFF at sea). Empty when all of the row is sea.
    QByteArray runsOfRow(int row) const;

private:
    void drawInside(const QList<Ring>& rings, quint16 number);
    void drawCorners(const QList<Ring>& rings, quint16 number);
    /// By polygon: the area that its towns' votes make it part of; 0xFFFF where even the country is unknown.
    QList<quint16> findAreas(const QList<Polygon>& polygons);

    const Gazetteer* m_gazetteer = nullptr;
    QList<Area> m_areas{};
    QList<quint16> m_cells{};  ///< row by row; 0xFFFF at sea
    QList<bool> m_hasLand{};  ///< by row: most of the world's rows need no second look when little land is known
};

}  // namespace Quorbel::Places
