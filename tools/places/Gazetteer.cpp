#include "tools/places/Gazetteer.h"

#include "platform/places/search/PlaceText.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace Quorbel::Places {

using namespace Qt::StringLiterals;

namespace {

constexpr double radians = 3.14159265358979323846 / 180;

QJsonDocument readJson(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw BuildError(path, file.errorString());
    QJsonParseError error;
    const auto document = QJsonDocument::fromJson(file.readAll(), &error);
    if (error.error != QJsonParseError::NoError)
        throw BuildError(path, error.errorString());
    return document;
}

QString text(const QJsonValue& object, const char* key)
{
    return object[QLatin1String(key)].toString();
}

// One text, or a list of them.
QStringList texts(const QJsonValue& value)
{
    if (!value.isArray())
        return { value.toString() };
    QStringList all;
    for (const QJsonValue item : value.toArray())
        all << item.toString();
    return all;
}

// Countries and states ------------------------------------------------------------------------------------------------

// Languages whose names of countries are found, besides English.
constexpr std::array languages{ "en", "de", "fr", "es", "it", "pt", "nl", "da", "sv", "nb", "fi", "pl", "cs", "hu",
    "ro", "el", "ru", "uk", "tr", "ar", "he", "ja", "ko", "zh" };

void readCountries(const Sources& sources, Gazetteer& gazetteer)
{
    QMap<QString, QStringList> names;
    QMap<QString, QString> codes;
    for (const auto* language : languages) {
        const auto path = QDir(sources.countryNames).filePath(QLatin1String(language) + QLatin1String(".json"));
        if (!QFile::exists(path))
            continue;
        const auto countries = readJson(path)[QLatin1String("countries")].toObject();
        for (auto it = countries.begin(); it != countries.end(); ++it)
            names[it.key()] += texts(it.value());
    }
    for (const QJsonValue row : readJson(sources.countryCodes).array())
        codes[row[0].toString()] = foldPlaceName(row[0].toString() + u' ' + row[1].toString());
    codes[u"GB"_s] += u" uk"_s;
    QMap<QString, QString> shown;
    for (const QJsonValue country : readJson(sources.countries).array())
        shown[text(country, "code")] = text(country, "name");
    for (auto it = names.cbegin(); it != names.cend(); ++it) {
        QStringList words;
        for (const auto& name : it.value())
            words += foldPlaceName(name).split(u' ', Qt::SkipEmptyParts);
        words += codes.value(it.key()).split(u' ', Qt::SkipEmptyParts);
        words.removeDuplicates();
        gazetteer.countryByCode[it.key()] = int(gazetteer.countries.size());
        gazetteer.countries.append(
            { it.key(), shown.value(it.key(), it.value().first()), words.join(u' '), codes.value(it.key()) });
    }
}

void readStates(const Sources& sources, Gazetteer& gazetteer)
{
    for (const QJsonValue object : readJson(sources.states).array()) {
        State state{ text(object, "code"), text(object, "name"), {}, -1 };
        state.country = gazetteer.countryOf(state.code.section(u'.', 0, 0));
        if (state.country < 0)
            continue;
        const auto code = state.code.section(u'.', 1);
        if (!code.isEmpty() && code[0].isLetter())
            state.shortCodes = foldPlaceName(code);
        gazetteer.stateByCode[state.code] = int(gazetteer.states.size());
        gazetteer.states.append(state);
    }
}

// ISO 3166-2 code of a state → our state, where the two sources agree on its name or code. What people type
// ("nsw", "on") is learnt on the way.
QHash<QString, int> matchRegions(const Sources& sources, Gazetteer& gazetteer)
{
    QHash<QString, int> matches;
    for (const QJsonValue region : readJson(sources.regions).array()) {
        const auto country = gazetteer.countryOf(text(region, "iso_country"));
        const auto local = text(region, "local_code");
        auto state = gazetteer.stateNamed(country, text(region, "name"));
        if (state < 0 && !local.isEmpty() && local[0].isLetter())
            state = gazetteer.stateByCode.value(text(region, "iso_country") + u'.' + local, -1);
        if (state < 0)
            continue;
        matches[text(region, "code")] = state;
        auto& codes = gazetteer.states[state].shortCodes;
        const auto folded = foldPlaceName(local);
        if (!local.isEmpty() && local[0].isLetter() && !codes.split(u' ').contains(folded))
            codes = (codes + u' ' + folded).trimmed();
    }
    return matches;
}

// Towns ---------------------------------------------------------------------------------------------------------------

// Whether an alternate name is one that people would type. The source mixes in web addresses and transcriptions
// syllable by syllable, all in lower case.
bool isUsefulAlternate(const QString& name)
{
    if (name.size() < 2 || name.size() > 60 || name.startsWith(u"http"))
        return false;
    const bool startsSmall = name[0].unicode() < 0x80 && name[0].isLower();
    return !startsSmall || std::any_of(name.begin(), name.end(), [](QChar c) { return c.isUpper(); });
}

QStringList usefulAlternates(const QString& name, const QStringList& candidates)
{
    QSet<QString> seen{ foldPlaceName(name) };
    QStringList kept;
    for (const auto& candidate : candidates) {
        const auto trimmed = candidate.trimmed();
        const auto folded = foldPlaceName(trimmed);
        if (!isUsefulAlternate(trimmed) || folded.isEmpty() || seen.contains(folded))
            continue;
        seen.insert(folded);
        kept << trimmed;
    }
    return kept;
}

// Places of the source that nobody lives in any more.
bool isAbandoned(const QString& feature)
{
    return feature == u"PPLH" || feature == u"PPLQ" || feature == u"PPLW" || feature == u"PPLCH";
}

double featureRank(const QString& feature)
{
    if (feature == u"PPLC")
        return 1.5;
    if (feature == u"PPLA")
        return 0.7;
    return feature == u"PPLX" ? -0.7 : 0;
}

double townRank(qint64 population, const QString& feature, qsizetype alternates)
{
    return 10 * std::log10(1.0 + double(population)) / 7 + featureRank(feature)
        + std::min(1.5, double(alternates) / 40);
}

struct FreshTown {
    Point point{};
    QString state{};
};
using FreshTowns = QHash<QString, QList<FreshTown>>;  // by country and name

FreshTowns readFreshTowns(const QString& path)
{
    FreshTowns fresh;
    for (const QJsonValue town : readJson(path).array()) {
        const Point point{ text(town, "lat").toDouble(), text(town, "lng").toDouble() };
        fresh[text(town, "country") + u'|' + text(town, "name")].append({ point, text(town, "admin1") });
    }
    return fresh;
}

// Columns of the towns file.
enum Column {
    nameColumn = 1,
    asciiColumn = 2,
    alternatesColumn = 3,
    latitudeColumn = 4,
    longitudeColumn = 5,
    featureColumn = 7,
    countryColumn = 8,
    stateColumn = 10,
    populationColumn = 14,
    columnCount = 19
};

void freshen(Entry& town, QString& stateCode, const QList<FreshTown>& candidates)
{
    constexpr double sameTown = 0.1;  // degrees
    for (const auto& candidate : candidates) {
        if (std::abs(candidate.point.latitude - town.point.latitude) < sameTown
            && std::abs(candidate.point.longitude - town.point.longitude) < sameTown) {
            town.point = candidate.point;
            stateCode = candidate.state;
            return;
        }
    }
}

void readTowns(const Sources& sources, Gazetteer& gazetteer)
{
    const auto fresh = readFreshTowns(sources.freshTowns);
    QFile file(sources.towns);
    if (!file.open(QIODevice::ReadOnly))
        throw BuildError(sources.towns, file.errorString());
    while (!file.atEnd()) {
        const auto columns = QString::fromUtf8(file.readLine()).split(u'\t');
        if (columns.size() < columnCount || isAbandoned(columns[featureColumn]))
            continue;
        Entry town;
        town.name = columns[nameColumn];
        town.point = { columns[latitudeColumn].toDouble(), columns[longitudeColumn].toDouble() };
        town.population = columns[populationColumn].toLongLong();
        town.country = gazetteer.countryOf(columns[countryColumn]);
        if (town.country < 0)
            continue;
        auto stateCode = columns[stateColumn];
        freshen(town, stateCode, fresh.value(columns[countryColumn] + u'|' + town.name));
        town.state = gazetteer.stateByCode.value(columns[countryColumn] + u'.' + stateCode, -1);
        town.alternates =
            usefulAlternates(town.name, QStringList{ columns[asciiColumn] } + columns[alternatesColumn].split(u','));
        town.rank = townRank(town.population, columns[featureColumn], town.alternates.size());
        gazetteer.entries.append(town);
    }
}

void readAirports(const Sources& sources, const QHash<QString, int>& regions, Gazetteer& gazetteer)
{
    const TownGrid towns(gazetteer);
    QList<Entry> airports;
    for (const QJsonValue object : readJson(sources.airports).array()) {
        Entry airport;
        airport.kind = Kind::airport;
        airport.name = text(object, "name");
        airport.code = text(object, "iata_code");
        airport.town = text(object, "municipality");
        airport.point = { text(object, "latitude_deg").toDouble(), text(object, "longitude_deg").toDouble() };
        airport.country = gazetteer.countryOf(text(object, "iso_country"));
        if (airport.country < 0)
            continue;
        airport.state = regions.value(text(object, "iso_region"), -1);
        const auto nearest = towns.nearest(airport.point);
        if (airport.state < 0 && nearest >= 0 && gazetteer.entries[nearest].country == airport.country)
            airport.state = gazetteer.entries[nearest].state;
        airport.alternates = usefulAlternates(airport.name,
            QStringList{
                airport.code, text(object, "ident"), airport.town.isEmpty() ? QString() : airport.town + u" Airport"_s }
                + text(object, "keywords").split(u','));
        airport.rank = text(object, "type") == u"large_airport" ? 5 : 3;
        airports.append(airport);
    }
    gazetteer.entries += airports;
}

int cellOf(int row, int column)
{
    return row * 360 + ((column % 360) + 360) % 360;
}

}  // namespace

double kilometersBetween(Point a, Point b)
{
    const double halfLatitude = std::sin((b.latitude - a.latitude) * radians / 2);
    const double halfLongitude = std::sin((b.longitude - a.longitude) * radians / 2);
    const double chord = halfLatitude * halfLatitude
        + std::cos(a.latitude * radians) * std::cos(b.latitude * radians) * halfLongitude * halfLongitude;
    return 2 * 6371.0 * std::asin(std::min(1.0, std::sqrt(chord)));
}

QString State::words() const
{
    return (foldPlaceName(name) + u' ' + shortCodes).trimmed();
}

int Gazetteer::stateNamed(int country, const QString& name) const
{
    const auto folded = foldPlaceName(name);
    for (int i = 0; i < states.size(); ++i) {
        if (states[i].country == country && foldPlaceName(states[i].name) == folded)
            return i;
    }
    return -1;
}

TownGrid::TownGrid(const Gazetteer& gazetteer)
    : m_gazetteer(gazetteer)
{
    for (int i = 0; i < gazetteer.entries.size(); ++i) {
        const auto& entry = gazetteer.entries[i];
        if (entry.kind == Kind::town)
            m_cells[cellOf(int(std::floor(entry.point.latitude)), int(std::floor(entry.point.longitude)))].append(i);
    }
}

template <typename Visit>
void TownGrid::visitAround(Point point, double degrees, Visit visit) const
{
    const double narrowing = std::max(0.02, std::cos(point.latitude * radians));
    const int columns = std::min(180, int(std::ceil(degrees / narrowing)));
    const int row = int(std::floor(point.latitude));
    const int column = int(std::floor(point.longitude));
    for (int y = row - int(std::ceil(degrees)); y <= row + int(std::ceil(degrees)); ++y) {
        for (int x = column - columns; x <= column + columns; ++x) {
            for (const int town : m_cells.value(cellOf(y, x)))
                visit(town);
        }
    }
}

int TownGrid::nearest(Point point) const
{
    int best = -1;
    double least = std::numeric_limits<double>::max();
    visitAround(point, 2, [&](int town) {
        const auto& entry = m_gazetteer.entries[town];
        const double distance =
            kilometersBetween(point, entry.point) - 0.25 * std::sqrt(double(entry.population) / 1000);
        if (distance < least) {
            least = distance;
            best = town;
        }
    });
    return best;
}

bool TownGrid::isNear(int country, Point point, double kilometers) const
{
    bool found = false;
    visitAround(point, kilometers / 111, [&](int town) {
        const auto& entry = m_gazetteer.entries[town];
        found = found || (entry.country == country && kilometersBetween(point, entry.point) <= kilometers);
    });
    return found;
}

int TownGrid::named(const QString& name, int country, Point point, double kilometers) const
{
    const auto folded = foldPlaceName(name);
    int best = -1;
    double least = kilometers;
    visitAround(point, kilometers / 111, [&](int town) {
        const auto& entry = m_gazetteer.entries[town];
        const double distance = kilometersBetween(point, entry.point);
        if (entry.country != country || distance > least)
            return;
        const auto isName = [&](const QString& other) { return foldPlaceName(other) == folded; };
        if (isName(entry.name) || std::any_of(entry.alternates.begin(), entry.alternates.end(), isName)) {
            least = distance;
            best = town;
        }
    });
    return best;
}

Gazetteer readGazetteer(const Sources& sources)
{
    Gazetteer gazetteer;
    readCountries(sources, gazetteer);
    readStates(sources, gazetteer);
    const auto regions = matchRegions(sources, gazetteer);
    readTowns(sources, gazetteer);
    readAirports(sources, regions, gazetteer);
    return gazetteer;
}

}  // namespace Quorbel::Places
