// Reads the areas of time zones as the package geo-tz has them: a tree of quarters of the earth, each either in one
// zone or a place in a file of polygons in the geobuf form. Thread: any. Throws BuildError when something is not as
// expected.
#pragma once

#include "tools/zones/ZoneRows.h"

#include <QJsonObject>

namespace Quorbel::ZoneBuild {

class ZoneSource {
public:
    /// `path`: of the two files "….index.json" and "….geo.dat", without that.
    explicit ZoneSource(const QString& path);
    const QList<QByteArray>& zones() const { return m_zones; }
    void drawTo(ZoneRows& rows);

private:
    void drawTree(const QJsonObject& tree, const Area& area, ZoneRows& rows);
    QByteArrayView polygonsAt(const QJsonObject& place) const;
    void drawPolygons(QByteArrayView bytes, ZoneRows& rows);

    QList<QByteArray> m_zones;
    QJsonObject m_tree;
    QByteArray m_polygons;
};

}  // namespace Quorbel::ZoneBuild
