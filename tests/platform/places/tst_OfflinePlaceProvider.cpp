#include "platform/places/search/OfflinePlaceProvider.h"
#include "platform/places/search/PlaceText.h"
#include "tests/platform/places/PlaceWorld.h"
#include "tests/support/Support.h"

#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

PlaceResult<QList<PlaceSuggestion>> suggest(PlaceProvider& provider, const PlaceQuery& query)
{
    std::optional<PlaceResult<QList<PlaceSuggestion>>> answer;
    provider.suggest(query, [&](const auto& result) { answer = result; });
    return answer.value();  // throws when the answer did not come within the call
}

PlaceQuery typed(const QString& text)
{
    PlaceQuery query;
    query.text = text;
    return query;
}

PlaceResult<Placemark> reverse(PlaceProvider& provider, GeoPoint point)
{
    std::optional<PlaceResult<Placemark>> answer;
    provider.reverse(point, QLocale::c(), [&](const auto& result) { answer = result; });
    return answer.value();
}

QString shown(const PlaceSuggestion& suggestion)
{
    return suggestion.title + u" | "_s + suggestion.subtitle;
}

}  // namespace

class tst_OfflinePlaceProvider : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const auto run = m_world.build(goodLandmarks());
        QCOMPARE(run.errors, QByteArray());
        QCOMPARE(run.exitCode, 0);
        m_provider = std::make_unique<OfflinePlaceProvider>(m_world.folder());
    }

    void folding_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("folded");
        QTest::addRow("marks") << u"São Tomé"_s << u"sao tome"_s;
        QTest::addRow("letters that do not come apart") << u"Łódź Straße Ærø İzmir"_s << u"lodz strasse aero izmir"_s;
        QTest::addRow("silent marks") << u"'s-Hertogenbosch, O’Fallon St. Moritz"_s
                                      << u"s hertogenbosch ofallon st moritz"_s;
        QTest::addRow("only marks") << u" -- ,"_s << QString();
        QTest::addRow("other scripts") << u"Москва́ ΑΘΉΝΑ 東京"_s << u"москва αθηνα 東京"_s;
        QTest::addRow("full width") << u"ＴＯＫＹＯ"_s << u"tokyo"_s;
    }
    void folding()
    {
        QFETCH(QString, name);
        QTEST(foldPlaceName(name), "folded");
    }

    void misspelling_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("expected");
        for (const auto* text : { "winterthr", "winnterthur", "wintarthur", "winetrthur", "interthur", "xwinterthur",
                 "xinterthur", "iwnterthur", "winterthurs", "wintart" })
            QTest::addRow("%s", text) << QByteArray(text) << true;
        for (const auto* text : { "wintrthr", "winterthurss", "wxxterthur", "hurwinter", "w" })
            QTest::addRow("not %s", text) << QByteArray(text) << false;
    }
    void misspelling()
    {
        QFETCH(QByteArray, text);
        QTEST(isMisspeltStart(text, "winterthur"), "expected");
    }

    void first_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const QString zurich = u"Zürich | Zurich, Switzerland"_s;
        QTest::addRow("beginning") << u"zür"_s << zurich;
        QTest::addRow("without marks, capitals, blanks") << u"  ZURICH "_s << zurich;
        QTest::addRow("another name says why") << u"turicum"_s << u"Zürich | Turicum · Zurich, Switzerland"_s;
        QTest::addRow("another script") << u"цюрих"_s << u"Zürich | Цюрих · Zurich, Switzerland"_s;
        QTest::addRow("beginning in another script") << u"チュー"_s << u"Zürich | チューリッヒ · Zurich, Switzerland"_s;
        QTest::addRow("town and state") << u"springfield ill"_s << u"Springfield | Illinois, United States"_s;
        QTest::addRow("town and code of the state")
            << u"Springfield, IL"_s << u"Springfield | Illinois, United States"_s;
        QTest::addRow("the larger one") << u"springfield"_s << u"Springfield | Missouri, United States"_s;
        QTest::addRow("town and country") << u"zürich switz"_s << zurich;
        QTest::addRow("country in another language") << u"innsbruck österr"_s << u"Innsbruck | Tyrol, Austria"_s;
        QTest::addRow("state and country") << u"innsbruck tyrol austria"_s << u"Innsbruck | Tyrol, Austria"_s;
        QTest::addRow("a letter that has only begun") << u"innsbruck x"_s << u"Innsbruck | Tyrol, Austria"_s;
        QTest::addRow("airport by code") << u"zrh"_s << u"Kloten Airport | ZRH · Zürich, Zurich, Switzerland"_s;
        QTest::addRow("landmark") << u"golden roof"_s << u"Golden Roof | Innsbruck, Tyrol, Austria"_s;
        QTest::addRow("later word") << u"dachl"_s << u"Golden Roof | Goldenes Dachl · Innsbruck, Tyrol, Austria"_s;
        QTest::addRow("landmark and town") << u"golden roof innsbr"_s << u"Golden Roof | Innsbruck, Tyrol, Austria"_s;
        QTest::addRow("a letter left out") << u"insbruck"_s << u"Innsbruck | Tyrol, Austria"_s;
        QTest::addRow("letters swapped") << u"winterhtur"_s << u"Winterthur | Zurich, Switzerland"_s;
        QTest::addRow("state from the newer file") << u"zürs"_s << u"Zürs | Vorarlberg, Austria"_s;
        QTest::addRow("no state") << u"lodz"_s << u"Łódź | Poland"_s;
    }
    void first()
    {
        QFETCH(QString, text);
        const auto result = suggest(*m_provider, typed(text));
        QCOMPARE(result.error, PlaceError::none);
        QVERIFY(!result.value.isEmpty());
        QTEST(shown(result.value[0]), "expected");
    }

    void nothing_data()
    {
        QTest::addColumn<QString>("text");
        // What the index and its language give a meaning to must stay plain text.
        for (const auto& text : { u""_s, u"  "_s, u"\"*"_s, u"ghost town"_s, u"su li shi"_s, u"http"_s,
                 u"zürich brazil"_s, u"NEAR("_s, u"name:"_s, u"\u01C3cch"_s, u"qqqqqqqq"_s })
            QTest::newRow(qPrintable(text)) << text;
    }
    void nothing()
    {
        QFETCH(QString, text);
        const auto result = suggest(*m_provider, typed(text));
        QCOMPARE(result.error, PlaceError::none);
        QVERIFY2(result.value.isEmpty(), qPrintable(result.value.isEmpty() ? QString() : shown(result.value[0])));
    }

    void limitAndBias()
    {
        auto query = typed(u"springfield"_s);
        query.limit = 1;
        QCOMPARE(suggest(*m_provider, query).value.size(), 1);
        query.bias = GeoPoint{ 39.8, -89.6 };
        QCOMPARE(suggest(*m_provider, query).value[0].placemark->administrativeArea, u"Illinois"_s);
    }

    void resolving()
    {
        auto suggestion = suggest(*m_provider, typed(u"rietberg"_s)).value.value(0);
        const Placemark expected{ u"Rietberg"_s, u"Zürich"_s, u"Zurich"_s, u"Switzerland"_s, u"CH"_s,
            { 47.3587, 8.5302 } };
        QCOMPARE(suggestion.placemark.value(), expected);
        suggestion.placemark.reset();
        PlaceResult<Placemark> result;
        const auto keep = [&](const auto& answer) { result = answer; };
        m_provider->resolve(suggestion, keep);
        QCOMPARE(result.value, expected);
        for (const auto& id : { u"place:999999"_s, u"place:x"_s, u"other"_s, QString() }) {
            suggestion.id = id;
            m_provider->resolve(suggestion, keep);
            QCOMPARE(result.error, PlaceError::noResult);
        }
    }

    void reverse_data()
    {
        QTest::addColumn<double>("latitude");
        QTest::addColumn<double>("longitude");
        QTest::addColumn<QString>("expected");  // town, state, country; empty: open sea
        QTest::addRow("in a town") << 47.36 << 8.54 << u"Zürich|Zurich|CH"_s;
        QTest::addRow("a large town reaches farther") << 47.385 << 8.565 << u"Zürich|Zurich|CH"_s;
        QTest::addRow("far from towns") << 42.0 << 3.0 << u"|Zurich|CH"_s;
        QTest::addRow("not the town across the border") << 47.17 << 9.99 << u"|Zurich|CH"_s;
        QTest::addRow("just inside the border") << 47.17 << 10.01 << u"Zürs|Tyrol|AT"_s;
        QTest::addRow("in a town beyond the border as drawn") << 45.0 << 9.995 << u"Borderton|Tyrol|AT"_s;
        QTest::addRow("open sea") << 30.0 << -40.0 << QString();
        QTest::addRow("at sea near a town") << 39.9 << -89.6 << u"Springfield|Illinois|US"_s;
        QTest::addRow("across the antimeridian") << 83.5 << -179.9 << u"Northmost|Illinois|US"_s;
        QTest::addRow("south pole") << -90.0 << 0.0 << u"||PL"_s;
        QTest::addRow("north pole") << 90.0 << 180.0 << QString();
        QTest::addRow("no position") << 91.0 << 0.0 << QString();
    }
    void reverse()
    {
        QFETCH(double, latitude);
        QFETCH(double, longitude);
        QFETCH(QString, expected);
        const auto result = ::reverse(*m_provider, { latitude, longitude });
        QCOMPARE(result.error, expected.isEmpty() ? PlaceError::noResult : PlaceError::none);
        const auto& place = result.value;
        const auto found = place.locality + u'|' + place.administrativeArea + u'|' + place.countryCode;
        QCOMPARE(expected.isEmpty() ? QString() : found, expected);
        QCOMPARE(place.name, place.locality);
    }

    void missingOrForeignFile()
    {
        const PhotoFolder folder;
        OfflinePlaceProvider provider(folder.path());
        const auto isMissing = [&] {
            const auto result = suggest(provider, typed(u"zür"_s));
            return result.error == PlaceError::noData && !result.detail.isEmpty() && result.value.isEmpty()
                && ::reverse(provider, { 47, 8 }).error == PlaceError::noData;
        };
        QVERIFY(isMissing());
        folder.add(u"places.db"_s, "not a database, but long enough to look like one, perhaps");
        QVERIFY(isMissing());
        writeFile(folder.path(u"places.db"_s), readFile(m_world.folder() + u"/world.gpkg"_s));
        QVERIFY(isMissing());
        writeFile(folder.path(u"places.db"_s), readFile(m_world.folder() + u"/places.db"_s));
        QCOMPARE(suggest(provider, typed(u"zür"_s)).error, PlaceError::none);
    }

    void sameInputSameBytes()
    {
        QCOMPARE(m_world.build(goodLandmarks(), u"again.db"_s).exitCode, 0);
        QVERIFY(readFile(m_world.folder() + u"/again.db"_s) == readFile(m_world.folder() + u"/places.db"_s));
    }

    void badLandmarks()
    {
        const QList<std::pair<QByteArray, QByteArray>> rows{ //
            { "Roof\t\tInnsbruck\tZurich\tCH\t47.26\t11.39", "the position lies in AT" },
            { "Roof\t\tWinterthur\tTyrol\tAT\t47.26\t11.39", "no town “Winterthur” within" },
            { "Roof\t\tInnsbruck\tBavaria\tAT\t47.26\t11.39", "no state “Bavaria”; here it may be “Tyrol”" },
            { "Roof\t\t\t\tXX\t47.26\t11.39", "there is no country “XX”" },
            { "Roof\t\t\t\tAT\t47.26 N\t11.39", "is no position" }, { "Roof\t\t\t\tAT\t97\t11.39", "is no position" },
            { "Roof\t\tInnsbruck\tTyrol\tAT\t47.26", "6 columns" }
        };
        auto landmarks = goodLandmarks();
        for (const auto& row : rows)
            landmarks += row.first + '\n';
        const auto run = m_world.build(landmarks, u"bad.db"_s);
        QCOMPARE(run.exitCode, 1);
        QVERIFY(!QFile::exists(m_world.folder() + u"/bad.db"_s));
        const auto faults = run.errors.trimmed().split('\n');
        QCOMPARE(faults.size(), rows.size());
        for (qsizetype i = 0; i < rows.size(); ++i) {
            QVERIFY2(
                faults[i].contains("landmarks.tsv:" + QByteArray::number(i + 5) + ": Roof: "), faults[i].constData());
            QVERIFY2(faults[i].contains(rows[i].second), faults[i].constData());
        }
    }

    void realWorld_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("country");
        QTest::addRow("diacritics") << u"münch"_s << u"Munich"_s << u"DE"_s;
        QTest::addRow("own name") << u"praha"_s << u"Prague"_s << u"CZ"_s;
        QTest::addRow("Cyrillic") << u"москва"_s << u"Moscow"_s << u"RU"_s;
        QTest::addRow("Japanese") << u"東京"_s << u"Tokyo"_s << u"JP"_s;
        QTest::addRow("Korean") << u"서울"_s << u"Seoul"_s << u"KR"_s;
        QTest::addRow("state code") << u"springfield il"_s << u"Springfield"_s << u"US"_s;
        QTest::addRow("country") << u"zürich switz"_s << u"Zürich"_s << u"CH"_s;
        QTest::addRow("airport code") << u"ZRH"_s << u"Zürich Airport"_s << u"CH"_s;
        QTest::addRow("airport code in capitals beats towns")
            << u"SAN"_s << u"San Diego International Airport"_s << u"US"_s;
        QTest::addRow("misspelt") << u"dubrovnick"_s << u"Dubrovnik"_s << u"HR"_s;
        QTest::addRow("landmark") << u"eiffel"_s << u"Eiffel Tower"_s << u"FR"_s;
    }
    void realWorld()
    {
        const auto folder = qEnvironmentVariable("QUORBEL_TEST_SHARE") + u"/places"_s;
        if (!QFile::exists(folder + u"/places.db"_s))
            QSKIP("no place data in this build: scripts/places fetches what it is made from");
        OfflinePlaceProvider provider(folder);
        QFETCH(QString, text);
        const auto places = suggest(provider, typed(text)).value;
        QVERIFY(!places.isEmpty());
        QTEST(places[0].title, "title");
        QTEST(places[0].placemark->countryCode, "country");
    }

private:
    PlaceWorld m_world;
    std::unique_ptr<PlaceProvider> m_provider;
};

QTEST_GUILESS_MAIN(tst_OfflinePlaceProvider)
#include "tst_OfflinePlaceProvider.moc"
