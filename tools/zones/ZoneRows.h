// The earth in rows (see platform/places/zones/ZoneFormat.h), onto which the areas of zones are drawn.
// Thread: any, one at a time. The bytes written depend on nothing but what was drawn.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <stdexcept>
#include <vector>

namespace Quorbel::ZoneBuild {

class BuildError : public std::runtime_error {
public:
    explicit BuildError(const QString& what)
        : std::runtime_error(what.toStdString())
    {
    }
};

/// Degrees.
struct Corner {
    double longitude = 0;
    double latitude = 0;
};
using Ring = QList<Corner>;

struct Area {
    double west = 0;
    double south = 0;
    double east = 0;
    double north = 0;
};

class ZoneRows {
public:
    ZoneRows();

    /// All of a patch.
    void fill(const Area& area, quint16 zone);
    /// What lies inside the rings (even-odd).
    void draw(const QList<Ring>& rings, quint16 zone);
    /// By row; where areas overlap, the one that begins further west counts.
    QList<QByteArray> runs() const;

private:
    struct Span {
        double west = 0;
        double east = 0;
        quint16 zone = 0;
    };

    static QByteArray runsOf(std::vector<Span> spans);

    std::vector<std::vector<Span>> m_rows;
};

}  // namespace Quorbel::ZoneBuild
