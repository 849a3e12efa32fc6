// Place search and reverse look-up: how fast, how lean, and how often right.
//
// The yardstick of speed is the plain question to the same file, "which names begin with this?", answered by SQLite's
// own LIKE without an index. The yardstick of being right is the towns, countries and states that OurAirports gives for
// its airports, whose positions and towns were entered by other people than those of the towns that are searched.
#include "platform/places/search/PlaceProvider.h"
#include "platform/places/search/PlaceText.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>

using namespace Quorbel;
using namespace Qt::StringLiterals;

namespace {

// Milliseconds that this thread has spent on a processor: other programs on the machine do not count.
double threadMilliseconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

struct Timings {
    QList<double> all{};

    template <typename Job>
    void measure(Job job)
    {
        const double start = threadMilliseconds();
        job();
        all.append(threadMilliseconds() - start);
    }
    double at(double share)
    {
        std::sort(all.begin(), all.end());
        return all.isEmpty() ? 0 : all[qsizetype(double(all.size() - 1) * share)];
    }
    void print(const char* what)
    {
        std::printf("%-34s n %5lld   p50 %.3f   p99 %.3f   most %.3f ms\n", what, static_cast<long long>(all.size()),
            at(0.5), at(0.99), at(1));
    }
};

// Memory of our own, without mapped files, in MiB.
double privateMemory()
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const auto& line : status.readAll().split('\n')) {
        if (line.startsWith("RssAnon:"))
            return line.simplified().split(' ').value(1).toDouble() / 1024;
    }
    return 0;
}

double kilometers(GeoPoint a, GeoPoint b)
{
    const double narrowing = std::cos((a.latitude + b.latitude) / 2 * 3.14159265 / 180);
    return 111.2 * std::hypot(a.latitude - b.latitude, (a.longitude - b.longitude) * narrowing);
}

struct Airport {
    QString town{};
    QString country{};
    QString region{};  // ISO 3166-2
    GeoPoint point{};
    bool isLarge = false;
};

QJsonArray readArray(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).array() : QJsonArray();
}

QList<Airport> readAirports(const QString& folder)
{
    QList<Airport> airports;
    for (const QJsonValue object : readArray(folder + u"/airports.json"_s)) {
        airports.append({ object[u"municipality"_s].toString(), object[u"iso_country"_s].toString(),
            object[u"iso_region"_s].toString(),
            { object[u"latitude_deg"_s].toString().toDouble(), object[u"longitude_deg"_s].toString().toDouble() },
            object[u"type"_s].toString() == u"large_airport" });
    }
    return airports;
}

struct Landmark {
    QString name{};
    GeoPoint point{};
};

QList<Landmark> readLandmarks(const QString& path)
{
    QList<Landmark> landmarks;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return landmarks;
    const auto lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const auto& line : lines.sliced(1)) {
        const auto columns = line.split(u'\t');
        landmarks.append({ columns.value(0), { columns.value(5).toDouble(), columns.value(6).toDouble() } });
    }
    return landmarks;
}

QList<PlaceSuggestion> suggest(PlaceProvider& provider, const QString& text)
{
    QList<PlaceSuggestion> found;
    PlaceQuery query;
    query.text = text;
    provider.suggest(query, [&](const auto& result) { found = result.value; });
    return found;
}

// How often the wanted place is first, and among the first five.
struct Hits {
    int asked = 0;
    int first = 0;
    int five = 0;
    QStringList missed{};

    template <typename Wanted>
    void count(PlaceProvider& provider, const QString& text, Wanted wanted)
    {
        const auto found = suggest(provider, text);
        const auto it = std::find_if(found.begin(), found.end(), wanted);
        const auto place = it - found.begin();
        ++asked;
        first += it != found.end() && place == 0 ? 1 : 0;
        five += it != found.end() && place < 5 ? 1 : 0;
        if (it == found.end() || place > 0)
            missed << text + u" → "_s + (found.isEmpty() ? u"nothing"_s : found[0].title + u", "_s + found[0].subtitle);
    }
    void print(const char* what) const
    {
        std::printf("%-34s n %5d   first %.1f %%   among five %.1f %%\n", what, asked, 100.0 * first / asked,
            100.0 * five / asked);
        if (qEnvironmentVariableIsSet("VERBOSE")) {
            for (const auto& miss : missed)
                std::printf("    %s\n", qPrintable(miss));
        }
    }
};

auto isNear(GeoPoint point, double distance)
{
    return [=](const PlaceSuggestion& s) { return s.placemark && kilometers(s.placemark->point, point) < distance; };
}

QString misspelt(QString name)
{
    name.remove(name.size() / 2, 1);
    return name;
}

void measureAccuracy(PlaceProvider& provider, const QList<Airport>& airports, const QList<Landmark>& landmarks)
{
    Hits towns;
    Hits starts;
    Hits wrong;
    Hits sights;
    for (const auto& airport : airports) {
        if (!airport.isLarge || airport.town.isEmpty())
            continue;
        // The source writes "Frankfurt am Main" and "Paris (Roissy-en-France, Val-d'Oise)": the town is before these.
        const auto town = airport.town.section(u'(', 0, 0).section(u'/', 0, 0).section(u',', 0, 0).trimmed();
        towns.count(provider, town, isNear(airport.point, 80));
        starts.count(provider, town.left(5), isNear(airport.point, 80));
        if (town.size() >= 6)
            wrong.count(provider, misspelt(town), isNear(airport.point, 80));
    }
    for (const auto& landmark : landmarks)
        sights.count(provider, landmark.name, isNear(landmark.point, 1));
    towns.print("towns of large airports, whole");
    starts.print("towns, first five letters");
    wrong.print("towns, a letter left out");
    sights.print("landmarks, whole");
}

void measureSpeed(PlaceProvider& provider, const QString& file, const QStringList& names)
{
    Timings search;
    for (const auto& name : names) {
        for (int size = 1; size <= name.size(); ++size)
            search.measure([&] { suggest(provider, name.left(size)); });
    }
    search.print("every typed prefix");

    Timings plain;
    auto database = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"baseline"_s);
    database.setDatabaseName(file);
    database.setConnectOptions(u"QSQLITE_OPEN_READONLY"_s);
    database.open();
    QSqlQuery query(database);
    query.prepare(u"SELECT name FROM place WHERE name LIKE ? ORDER BY rank DESC LIMIT 8"_s);
    for (const auto& name : names.first(std::min<qsizetype>(40, names.size()))) {
        plain.measure([&] {
            query.bindValue(0, name.left(4) + u'%');
            query.exec();
            while (query.next()) { }
        });
    }
    plain.print("baseline: LIKE on the same file");
    std::printf("%-34s %.0f times as fast as the baseline (p50)\n", "search", plain.at(0.5) / search.at(0.5));
}

// The name that reverse look-up gives most often to the airports of each region: the same state under another
// spelling ("Zurich" for "Canton of Zurich").
QHash<QString, QString> usualNames(const QHash<QString, QHash<QString, int>>& votes)
{
    QHash<QString, QString> names;
    for (auto region = votes.begin(); region != votes.end(); ++region) {
        const auto& counts = region.value();
        const auto most = std::max_element(counts.begin(), counts.end());
        names[region.key()] = most.key();
    }
    return names;
}

void measureReverse(PlaceProvider& provider, const QList<Airport>& airports, const QString& folder)
{
    QHash<QString, QString> regionNames;
    for (const QJsonValue region : readArray(folder + u"/regions.json"_s))
        regionNames[region[u"code"_s].toString()] = foldPlaceName(region[u"name"_s].toString());

    Timings time;
    QHash<QString, QHash<QString, int>> votes;
    QList<Placemark> places;
    int countries = 0;
    int named = 0;
    int sameName = 0;
    for (const auto& airport : airports) {
        Placemark place;
        time.measure(
            [&] { provider.reverse(airport.point, QLocale::c(), [&](const auto& result) { place = result.value; }); });
        places.append(place);
        countries += place.countryCode == airport.country ? 1 : 0;
        if (place.countryCode != airport.country && qEnvironmentVariableIsSet("VERBOSE"))
            std::printf("    %s %s: %s\n", qPrintable(airport.country), qPrintable(airport.town),
                qPrintable(place.countryCode + u' ' + place.locality));
        ++votes[airport.region][place.administrativeArea];
    }
    // Where the two sources share the name of a region, the name itself can be compared.
    QSet<QString> sharedNames;
    for (const auto& place : places)
        sharedNames.insert(place.countryCode + foldPlaceName(place.administrativeArea));
    const auto usual = usualNames(votes);
    int sameState = 0;
    for (qsizetype i = 0; i < places.size(); ++i) {
        sameState += places[i].administrativeArea == usual.value(airports[i].region) ? 1 : 0;
        const auto name = regionNames.value(airports[i].region);
        if (!sharedNames.contains(airports[i].country + name))
            continue;
        ++named;
        sameName += foldPlaceName(places[i].administrativeArea) == name ? 1 : 0;
    }
    const double count = double(places.size());
    std::printf("%-34s n %5lld   country %.2f %%\n", "reverse, airports", static_cast<long long>(places.size()),
        100 * countries / count);
    std::printf("%-34s n %5d   state %.2f %%\n", "  states both sources name alike", named, 100.0 * sameName / named);
    std::printf("%-34s n %5lld   state %.2f %%\n", "  states by most airports' answer",
        static_cast<long long>(places.size()), 100 * sameState / count);
    time.print("reverse");
}

}  // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const auto folder =
        argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString::fromUtf8(QUORBEL_BENCH_SHARE) + u"/places"_s;
    const auto airportsFolder = QString::fromUtf8(QUORBEL_BENCH_AIRPORTS);
    const auto airports = readAirports(airportsFolder);
    const auto landmarks = readLandmarks(QString::fromUtf8(QUORBEL_BENCH_LANDMARKS));
    if (!QFile::exists(folder + u"/places.db"_s) || airports.isEmpty()) {
        std::printf("No place data here: run scripts/places and build.\n");
        return 0;
    }
    QStringList names;
    for (const auto& airport : airports) {
        if (airport.isLarge && !airport.town.isEmpty() && names.size() < 460)
            names << airport.town;
    }
    for (const auto& landmark : landmarks.first(std::min<qsizetype>(40, landmarks.size())))
        names << landmark.name;

    const double before = privateMemory();
    Timings first;
    PlaceOptions options;
    options.dataFolder = folder;
    std::unique_ptr<PlaceProvider> provider;
    first.measure([&] {
        provider = makePlaceProvider(options);
        suggest(*provider, u"par"_s);
    });
    first.print("first question, opening included");
    measureSpeed(*provider, folder + u"/places.db"_s, names);
    std::printf("%-34s %.1f MiB\n", "memory beyond the mapped file", privateMemory() - before);
    measureAccuracy(*provider, airports, landmarks);
    measureReverse(*provider, airports, airportsFolder);
    return 0;
}
