#include "tools/places/Landmarks.h"

#include <QFile>

namespace Quorbel::Places {

using namespace Qt::StringLiterals;

namespace {

// A park's or a peak's town can be a good drive away.
constexpr double townDistance = 100;  // km
// Summits stand on borders, some borders are disputed, some countries are smaller than a cell of the raster: where
// neither the area nor the nearest town is of the country, one of its towns this near will do.
constexpr double borderDistance = 20;  // km
// Above small towns of the same name, below cities.
constexpr double landmarkRank = 7;

const QString header = u"name\talternates\ttown\tstate\tcountry\tlatitude\tlongitude"_s;

enum Column {
    nameColumn,
    alternatesColumn,
    townColumn,
    stateColumn,
    countryColumn,
    latitudeColumn,
    longitudeColumn,
    columnCount
};

class Reader {
public:
    Reader(const Gazetteer& gazetteer, const StateRaster& raster)
        : m_gazetteer(gazetteer)
        , m_raster(raster)
        , m_towns(gazetteer)
    {
    }

    Entry read(const QString& line) const
    {
        const auto columns = line.split(u'\t');
        if (columns.size() != columnCount)
            throw BuildError(u"%1 columns instead of %2"_s.arg(columns.size()).arg(int(columnCount)));
        Entry landmark;
        landmark.kind = Kind::landmark;
        landmark.rank = landmarkRank;
        landmark.name = columns[nameColumn];
        landmark.alternates = columns[alternatesColumn].split(u'|', Qt::SkipEmptyParts);
        landmark.town = columns[townColumn];
        landmark.point = point(columns[latitudeColumn], columns[longitudeColumn]);
        landmark.country = country(columns[countryColumn], landmark.point);
        landmark.state = state(columns[stateColumn], landmark);
        checkTown(landmark);
        if (landmark.name.trimmed().isEmpty())
            throw BuildError(u"the name is missing"_s);
        return landmark;
    }

private:
    static Point point(const QString& latitude, const QString& longitude)
    {
        bool isNumber[2];
        const Point point{ latitude.toDouble(&isNumber[0]), longitude.toDouble(&isNumber[1]) };
        if (!isNumber[0] || !isNumber[1] || std::abs(point.latitude) > 90 || std::abs(point.longitude) > 180)
            throw BuildError(u"“%1, %2” is no position"_s.arg(latitude, longitude));
        return point;
    }

    int country(const QString& code, Point point) const
    {
        const int country = m_gazetteer.countryOf(code);
        if (country < 0)
            throw BuildError(u"there is no country “%1”"_s.arg(code));
        const int area = m_raster.areaNear(point);
        const int ofArea = area < 0 ? -1 : m_raster.areas()[area].country;
        const int town = m_towns.nearest(point);
        const int ofTown = town < 0 ? -1 : m_gazetteer.entries[town].country;
        const bool isNowhere = ofArea < 0 && ofTown < 0;
        if (isNowhere || ofArea == country || ofTown == country || m_towns.isNear(country, point, borderDistance))
            return country;
        throw BuildError(u"the position lies in %1, not in %2"_s.arg(
            m_gazetteer.countries[ofArea < 0 ? ofTown : ofArea].code, code));
    }

    int state(const QString& name, const Entry& landmark) const
    {
        const int state = m_gazetteer.stateNamed(landmark.country, name);
        if (state >= 0 || name.isEmpty())
            return state;
        int known = m_raster.stateNear(landmark.point);
        if (const int town = m_towns.nearest(landmark.point); known < 0 && town >= 0)
            known = m_gazetteer.entries[town].state;
        throw BuildError(u"the country has no state “%1”; here it may be “%2”"_s.arg(
            name, known < 0 ? QString() : m_gazetteer.states[known].name));
    }

    void checkTown(const Entry& landmark) const
    {
        if (landmark.town.isEmpty()
            || m_towns.named(landmark.town, landmark.country, landmark.point, townDistance) >= 0)
            return;
        const int nearest = m_towns.nearest(landmark.point);
        throw BuildError(u"no town “%1” within %2 km; the nearest is “%3”"_s.arg(landmark.town)
                             .arg(townDistance)
                             .arg(nearest < 0 ? QString() : m_gazetteer.entries[nearest].name));
    }

    const Gazetteer& m_gazetteer;
    const StateRaster& m_raster;
    TownGrid m_towns;
};

}  // namespace

QList<Entry> readLandmarks(const QString& path, const Gazetteer& gazetteer, const StateRaster& raster)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw BuildError(path, file.errorString());
    const auto lines = QString::fromUtf8(file.readAll()).split(u'\n');
    if (lines.first() != header)
        throw BuildError(path, u"the first line must be “%1”"_s.arg(header));
    const Reader reader(gazetteer, raster);
    QList<Entry> landmarks;
    QStringList faults;
    for (int i = 1; i < lines.size(); ++i) {
        if (lines[i].isEmpty())
            continue;
        try {
            landmarks.append(reader.read(lines[i]));
        } catch (const BuildError& fault) {
            faults << u"%1:%2: %3: %4"_s.arg(path).arg(i + 1).arg(
                lines[i].section(u'\t', 0, 0), QString::fromUtf8(fault.what()));
        }
    }
    if (!faults.isEmpty())
        throw BuildError(faults.join(u'\n'));
    return landmarks;
}

}  // namespace Quorbel::Places
