#include "tests/ui/UiSupport.h"
#include "ui/controls/SuggestionList.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/places/LocationSearchField.h"
#include "ui/places/MapPreview.h"

#include <QLineEdit>
#include <QSignalSpy>

using namespace Quorbel;
using namespace Qt::StringLiterals;

namespace {

// Answers when the test says so. A token that is gone means that nobody waits any more.
template <typename T>
class Mailbox {
public:
    PlaceToken take(PlaceCallback<T> answer)
    {
        class Token final : public PlaceRequest {
        public:
            explicit Token(std::shared_ptr<bool> wanted)
                : m_wanted(std::move(wanted))
            {
            }
            ~Token() override { *m_wanted = false; }

        private:
            std::shared_ptr<bool> m_wanted;
        };
        auto wanted = std::make_shared<bool>(true);
        m_letters.append({ std::move(answer), wanted });
        return std::make_unique<Token>(wanted);
    }
    bool isWanted(qsizetype i) const { return *m_letters.at(i).second; }
    qsizetype count() const { return m_letters.size(); }
    void answer(qsizetype i, const PlaceResult<T>& result)
    {
        if (isWanted(i))
            m_letters.at(i).first(result);
    }
    void answerLast(const PlaceResult<T>& result) { answer(count() - 1, result); }

private:
    QList<std::pair<PlaceCallback<T>, std::shared_ptr<bool>>> m_letters;
};

class FakePlaces final : public PlaceProvider {
public:
    PlaceToken suggest(const PlaceQuery& query, PlaceCallback<QList<PlaceSuggestion>> answer) override
    {
        queries.append(query.text);
        return suggesting.take(std::move(answer));
    }
    PlaceToken resolve(const PlaceSuggestion& suggestion, PlaceCallback<Placemark> answer) override
    {
        resolved.append(suggestion.id);
        return resolving.take(std::move(answer));
    }
    PlaceToken reverse(const GeoPoint&, const QLocale&, PlaceCallback<Placemark>) override { return {}; }
    QString attribution() const override { return {}; }

    QStringList queries{};
    QStringList resolved{};
    Mailbox<QList<PlaceSuggestion>> suggesting{};
    Mailbox<Placemark> resolving{};
};

class FakeMaps final : public MapRenderer {
public:
    PlaceToken render(const MapRequest& request, PlaceCallback<MapImage> answer) override
    {
        requests.append(request);
        return drawing.take(std::move(answer));
    }
    static PlaceResult<MapImage> picture(const MapRequest& request, const QColor& color, const QString& credit = {})
    {
        QImage image((request.size * request.devicePixelRatio).toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(request.devicePixelRatio);
        image.fill(color);
        return { MapImage{ image, 150, credit }, PlaceError::none, {} };
    }

    QList<MapRequest> requests{};
    Mailbox<MapImage> drawing{};
};

const QList<PlaceSuggestion> zurichs{ { u"Zürich"_s, u"Switzerland"_s, u"1"_s, {} },
    { u"Zürich Altstetten"_s, u"Zürich, Switzerland"_s, u"2"_s, {} } };
const Placemark altstetten{ u"Altstetten"_s, u"Zürich"_s, u"Canton of Zürich"_s, u"Switzerland"_s, u"CH"_s,
    { 47.39, 8.48 } };

// A field on a stage with its dropdown, typed into.
struct Search {
    Search()
        : field(stage.add(new LocationSearchField(&places)))
        , other(stage.add(new QLineEdit))
    {
        QObject::connect(field, &LocationSearchField::picked, field,
            [this](const LocationFill::Result& result) { picks.append(result); });
        stage.show();
        field->setFocus();
    }
    void type(const QString& text) { QTest::keyClicks(field, text); }
    void suggest(const QList<PlaceSuggestion>& suggestions)
    {
        const qsizetype before = places.suggesting.count();
        type(u"z"_s);
        QTRY_COMPARE(places.suggesting.count(), before + 1);
        places.suggesting.answerLast({ suggestions, PlaceError::none, {} });
    }
    SuggestionList* list() { return stage.window()->findChild<SuggestionList*>(); }

    FakePlaces places{};
    Test::Stage stage{};
    LocationSearchField* field;
    QLineEdit* other;
    QList<LocationFill::Result> picks{};
};

}  // namespace

class tst_LocationSearch : public QObject {
    Q_OBJECT

private slots:
    void init() { Test::failOnWarnings(); }

    void quickTypingAsksOnce()
    {
        Search search;
        search.type(u"Zuric"_s);
        QCOMPARE(search.places.queries, QStringList());
        QTRY_COMPARE(search.places.queries, QStringList(u"Zuric"_s));
        search.type(u"h"_s);
        QVERIFY2(!search.places.suggesting.isWanted(0), "a newer query ends the older one");
        QTRY_COMPARE(search.places.queries, QStringList({ u"Zuric"_s, u"Zurich"_s }));
    }

    void clearingEmptiesAtOnce()
    {
        FakePlaces places;
        LocationSearch search(&places);
        search.update(u"z"_s);
        QTRY_COMPARE(places.queries.size(), 1);
        places.suggesting.answerLast({ zurichs, PlaceError::none, {} });
        QCOMPARE(search.suggestions(), zurichs);
        search.update(u"  "_s);
        QCOMPARE(search.suggestions().size(), 0);
        places.suggesting.answer(0, { zurichs, PlaceError::none, {} });
        QCOMPARE(search.suggestions().size(), 0);
    }

    void aPickFillsAndAsksNothingNew_data()
    {
        QTest::addColumn<bool>("byMouse");
        QTest::newRow("mouse") << true;
        QTest::newRow("keys") << false;
    }
    void aPickFillsAndAsksNothingNew()
    {
        QFETCH(bool, byMouse);
        Search search;
        search.suggest(zurichs);
        QVERIFY(search.list()->isVisible());
        QVERIFY(search.list()->width() <= px(320) + 60);
        if (byMouse) {
            QTest::mouseClick(search.list(), Qt::LeftButton, {}, search.list()->rowRect(1).center());
        } else {
            QTest::keyClick(search.field, Qt::Key_Down);
            QTest::keyClick(search.field, Qt::Key_Down);
            QTest::keyClick(search.field, Qt::Key_Return);
        }
        QVERIFY(!search.list()->isVisible());
        QVERIFY(search.field->hasFocus());
        QCOMPARE(search.places.resolved, QStringList(u"2"_s));
        search.places.resolving.answerLast({ altstetten, PlaceError::none, {} });
        QCOMPARE(search.picks.size(), 1);
        QCOMPARE(search.picks.first(),
            (LocationFill::Result{
                u"Altstetten"_s, u"Zürich"_s, u"Canton of Zürich"_s, u"Switzerland"_s, 47.39, 8.48, u"CH"_s }));
        QCOMPARE(search.field->text(), u"Zürich"_s);
        QTest::qWait(300);
        QCOMPARE(search.places.queries.size(), 1);
        // The next key is a search again.
        search.suggest(zurichs);
        QCOMPARE(search.places.queries.last(), u"Zürichz"_s);
    }

    void typingTakesTheSuggestionsOfTheOldTextAway()
    {
        Search search;
        search.suggest(zurichs);
        QTest::keyClick(search.field, Qt::Key_Down);
        search.type(u"u"_s);
        QVERIFY(!search.list()->isVisible());
        QTest::keyClick(search.field, Qt::Key_Down);
        QTest::keyClick(search.field, Qt::Key_Return);
        QCOMPARE(search.places.resolved, QStringList());
    }

    void whatCannotBeLookedUpSaysSo()
    {
        Search search;
        search.suggest(zurichs);
        QTest::keyClick(search.field, Qt::Key_Down);
        QTest::keyClick(search.field, Qt::Key_Return);
        search.places.resolving.answerLast({ {}, PlaceError::noResult, {} });
        QCOMPARE(search.picks.size(), 0);
        QCOMPARE(search.list()->message(), u"Couldn't look that up"_s);
        QCOMPARE(search.field->text(), u"z"_s);
        search.suggest(zurichs);
        QCOMPARE(search.list()->message(), QString());
    }

    void theProvidersOwnLineIsShown()
    {
        Search search;
        search.type(u"z"_s);
        QTRY_COMPARE(search.places.queries.size(), 1);
        search.places.suggesting.answerLast({ {}, PlaceError::noData, u"Place data is not installed"_s });
        QCOMPARE(search.list()->message(), u"Place data is not installed"_s);
        QCOMPARE(search.list()->accessibleName(), search.list()->message());
        QVERIFY(search.list()->isVisible());
    }

    void theDropdownGoesAway_data()
    {
        QTest::addColumn<QString>("how");
        for (const char* how : { "escape", "focus", "cleared", "none" })
            QTest::newRow(how) << QString::fromLatin1(how);
    }
    void theDropdownGoesAway()
    {
        QFETCH(QString, how);
        Search search;
        search.suggest(zurichs);
        QVERIFY(search.list()->isVisible());
        if (how == u"escape"_s)
            QTest::keyClick(search.field, Qt::Key_Escape);
        else if (how == u"focus"_s)
            search.other->setFocus();
        else if (how == u"cleared"_s)
            QTest::keyClick(search.field, Qt::Key_Backspace);
        else
            search.suggest({});
        QVERIFY(!search.list()->isVisible());
        QCOMPARE(search.picks.size(), 0);
    }

    void anAnswerAfterTheFieldWasLeftShowsNothing()
    {
        Search search;
        search.type(u"z"_s);
        QTRY_COMPARE(search.places.queries.size(), 1);
        search.other->setFocus();
        search.places.suggesting.answer(0, { zurichs, PlaceError::none, {} });
        QVERIFY(!search.list()->isVisible());
    }

    void anOpenDropdownGoesWithItsField()
    {
        Search search;
        search.suggest(zurichs);
        const QPointer<SuggestionList> list = search.list();
        delete search.field;
        QVERIFY(list->isHidden());
        QTRY_VERIFY(!list);
    }

    void aTextFromOutsideIsNoSearch()
    {
        Search search;
        search.field->setBoundText(u"Bern"_s);
        QTest::qWait(300);
        QCOMPARE(search.places.queries.size(), 0);
    }

    void arrowsGoRoundAndScreenReadersFollow()
    {
        Search search;
        search.suggest(zurichs);
        QCOMPARE(search.list()->rowRect(0).height(), px(44));
        QAccessibleInterface* list = QAccessible::queryAccessibleInterface(search.list());
        QCOMPARE(list->childCount(), 2);
        for (const int row : { 0, 1, 0 }) {
            QTest::keyClick(search.field, Qt::Key_Down);
            QCOMPARE(search.list()->currentRow(), row);
            QVERIFY(list->child(row)->state().selected);
            QCOMPARE(list->child(row)->text(QAccessible::Name), zurichs.at(row).title);
        }
        QTest::keyClick(search.field, Qt::Key_Up);
        QCOMPARE(search.list()->currentRow(), 1);
    }

    void theMapFollowsItsPoint()
    {
        FakeMaps maps;
        Test::Stage stage(Theme::dark());
        auto* map = stage.add(new MapPreview(&maps));
        map->setPoint({ 47.4, 8.5 });
        stage.show();
        QCOMPARE(map->height(), px(96));
        QCOMPARE(map->accessibleName(), u"Map of 47.400000, 8.500000"_s);
        QVERIFY(!maps.requests.isEmpty());
        QVERIFY(maps.requests.last().dark);
        QCOMPARE(maps.requests.last().size, QSizeF(map->size()));
        map->setPoint({ -33.9, 18.4 });
        const qsizetype last = maps.drawing.count() - 1;
        QVERIFY2(!maps.drawing.isWanted(last - 1), "the latest request wins");
        QCOMPARE(maps.requests.last().center, (GeoPoint{ -33.9, 18.4 }));
        maps.drawing.answer(last, FakeMaps::picture(maps.requests.last(), Qt::green));
        QCOMPARE(Test::colorAt(map, { 40, 40 }), QColor(Qt::green));
        // The marker stands on the point, the middle of the map.
        QVERIFY(Test::colorAt(map, { map->width() / 2, 96 / 2 - 17 }) != QColor(Qt::green));
    }

    void theMapIsDrawnAnewForAThemeOrAWidth()
    {
        FakeMaps maps;
        Test::Stage stage;
        auto* map = stage.add(new MapPreview(&maps));
        map->setPoint({ 47.4, 8.5 });
        stage.show();
        maps.drawing.answerLast(FakeMaps::picture(maps.requests.last(), Qt::green));
        setTheme(stage.window(), Theme::dark());
        QVERIFY(maps.requests.last().dark);
        stage.window()->resize(700, 400);
        QTRY_COMPARE(maps.requests.last().size.width(), 660.0);
    }

    void withoutMapsThereIsAPlainPanelWithTheMarker_data()
    {
        QTest::addColumn<bool>("hasRenderer");
        QTest::newRow("no renderer") << false;
        QTest::newRow("no data") << true;
    }
    void withoutMapsThereIsAPlainPanelWithTheMarker()
    {
        QFETCH(bool, hasRenderer);
        FakeMaps maps;
        Test::Stage stage;
        auto* map = stage.add(new MapPreview(hasRenderer ? &maps : nullptr));
        map->setPoint({ 47.4, 8.5 });
        stage.show();
        if (hasRenderer)
            maps.drawing.answerLast({ {}, PlaceError::noData, {} });
        QCOMPARE(Test::colorAt(map, { 40, 40 }), Theme::light().previewBg);
        QVERIFY(Test::colorAt(map, { map->width() / 2 + 5, 96 / 2 - 14 }) != Theme::light().previewBg);
    }

    void creditsAreShownOnTheMapThatAsksForThem()
    {
        FakeMaps maps;
        Test::Stage stage;
        auto* map = stage.add(new MapPreview(&maps));
        map->setPoint({ 47.4, 8.5 });
        stage.show();
        const QRect corner(map->width() - 120, 75, 115, 20);
        maps.drawing.answerLast(FakeMaps::picture(maps.requests.last(), Qt::white));
        const int bare = Test::pixelsLike(map->grab(corner).toImage(), Theme::light().derived.label);
        map->setPoint({ 47.5, 8.5 });
        maps.drawing.answerLast(FakeMaps::picture(maps.requests.last(), Qt::white, u"© ████████"_s));
        QVERIFY(Test::pixelsLike(map->grab(corner).toImage(), Theme::light().derived.label) > bare + 20);
    }
};

QTEST_MAIN(tst_LocationSearch)
#include "tst_LocationSearch.moc"
