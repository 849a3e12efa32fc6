// The structures of one field as cards: what is typed, what comes back, and what the keyboard reaches.
#include "core/iptc/IptcSchema.h"
#include "core/iptc/StructureText.h"
#include "tests/ui/LayoutAudit.h"
#include "tests/ui/UiSupport.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/ThemedMenu.h"
#include "ui/controls/cards/ItemCard.h"
#include "ui/controls/keywords/KeywordEditor.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/inspector/iptc/StructureCard.h"
#include "ui/inspector/iptc/StructureCards.h"
#include "ui/inspector/iptc/StructureFields.h"

#include <QShortcut>
#include <QSignalSpy>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

// With single quotes for double ones.
QString json(const char* text)
{
    return StructureText::tidied(QString::fromUtf8(text).replace(u'\'', u'"'));
}

const QString horn = json("{'City':'Horn','ProvinceState':'Thurgau','CountryName':'Switzerland'}");
const QString jona = json("{'Sublocation':'Lake promenade','City':'Rapperswil-Jona','ProvinceState':'St. Gallen',"
                          "'CountryName':'Switzerland','CountryCode':'CH'}");

// Cards in a window, and an owner that keeps what it is told.
class Desk {
public:
    explicit Desk(
        const QString& id, const QStringList& items = {}, const Theme& theme = Theme::light(), int width = 520)
    {
        qputenv("QUORBEL_REDUCE_MOTION", "1");
        setTheme(&m_window, theme);
        QPalette ground = m_window.palette();
        ground.setColor(QPalette::Window, theme.panel);
        m_window.setPalette(ground);
        cards = new StructureCards(*IptcSchema::spec(id));
        next = new QBTextField;
        auto* column = new QVBoxLayout(&m_window);
        column->setContentsMargins(8, 12, 20, 12);
        column->addWidget(cards);
        column->addStretch();
        column->addWidget(next);
        QObject::connect(cards, &StructureCards::itemsChanged, cards, [this](const QStringList& items) {
            told.append(items);
            state.edited = true;
            state.items = answer ? answer(items) : items;
            cards->setState(state, false);
        });
        m_window.resize(width, 700);
        m_window.show();
        m_window.activateWindow();
        state.items = items;
        state.held = items;
        cards->setState(state, true);
        // So that no assertion stands in a constructor.
        (void)QTest::qWaitForWindowActive(&m_window);
    }

    QWidget* window() { return &m_window; }
    StructureFields* fields(int place = 0) const { return cards->list().card(place)->fields(); }
    QBTextField* field(const QString& member, int place = 0) const
    {
        return qobject_cast<QBTextField*>(fields(place)->input(member));
    }
    QWidget* line(int place) const { return cards->list().card(place)->widget()->input(); }
    void picture(const QString& name)
    {
        QTest::qWait(100);
        if (const QString folder = qEnvironmentVariable("QUORBEL_TEST_PICTURES"); !folder.isEmpty())
            m_window.grab().save(folder + u'/' + name + u".png"_s);
    }

    StructureCards* cards = nullptr;
    QBTextField* next = nullptr;
    StructureCardsState state{};
    QList<QStringList> told{};
    std::function<QStringList(const QStringList&)> answer{};

private:
    QWidget m_window;
};

void type(QWidget* into, const QString& text)
{
    into->setFocus();
    QTest::keyClicks(into, text);
}

}  // namespace

class tst_StructureCards : public QObject {
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }

    // The whole list goes out, with what no card shows, and the caret stays where it is.
    void typingChangesOneMember()
    {
        const QString moody = json("{'City':'Hrn','Mood':'calm','LocationId':['a,b']}");
        Desk desk(u"iptc.locationsShown"_s, { jona, moody });
        desk.cards->open(1);
        QBTextField* city = desk.field(u"City"_s, 1);
        city->setFocus();
        city->setCursorPosition(1);
        QTest::keyClicks(city, u"o"_s);
        const QStringList expected{ jona, json("{'City':'Horn','Mood':'calm','LocationId':['a,b']}") };
        QCOMPARE(desk.told, QList<QStringList>{ expected });
        QCOMPARE(city->cursorPosition(), 2);
        QVERIFY(city->isUndoAvailable());
        QVERIFY(labels(desk.window()).join(u' ').contains(u"“Mood”"_s));
    }

    // Others follow the owner; what somebody types stays as it was typed, until the owner changes its mind.
    void ownerAnswersSomethingElse()
    {
        Desk desk(u"iptc.locationsShown"_s, { jona, horn });
        desk.cards->open(0);
        desk.answer = [](const QStringList&) { return QStringList{ jona, json("{'City':'Arbon'}") }; };
        type(desk.field(u"City"_s), u"!"_s);
        QCOMPARE(desk.field(u"City"_s)->text(), u"!Rapperswil-Jona"_s);
        QCOMPARE(desk.cards->list().card(1)->text(), json("{'City':'Arbon'}"));
        desk.state.items = { horn };
        desk.cards->setState(desk.state, false);
        QCOMPARE(desk.field(u"City"_s)->text(), u"Horn"_s);
        QCOMPARE(desk.cards->list().items(), QStringList(horn));
        // Another photo with the same.
        desk.cards->setState(desk.state, true);
        QVERIFY(!desk.field(u"City"_s)->isUndoAvailable());
    }

    void addedCards_data()
    {
        QTest::addColumn<QString>("typed");  // "<" Backspace, "~" Escape
        QTest::addColumn<QStringList>("cities");  // in the end
        QTest::newRow("left empty") << QString() << QStringList{ u"Horn"_s };
        QTest::newRow("folded empty") << u"~"_s << QStringList{ u"Horn"_s };
        QTest::newRow("filled") << u"Wil"_s << QStringList{ u"Horn"_s, u"Wil"_s };
        QTest::newRow("filled and emptied") << u"W<"_s << QStringList{ u"Horn"_s };
        QTest::newRow("emptied and filled") << u"W<Au"_s << QStringList{ u"Horn"_s, u"Au"_s };
    }
    void addedCards()
    {
        QFETCH(QString, typed);
        Desk desk(u"iptc.locationsShown"_s, { horn });
        click(button(desk.window(), u"Add place"_s));
        QVERIFY(!desk.cards->list().card(0)->isOpen());
        QVERIFY(desk.field(u"LocationName"_s, 1)->hasFocus());
        QCOMPARE(desk.told, QList<QStringList>());
        for (const QChar key : std::as_const(typed))
            if (key == u'<')
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
            else if (key == u'~')
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
            else
                QTest::keyClick(QApplication::focusWidget(), key.toLatin1());
        desk.next->setFocus();
        QStringList cities;
        for (int i = 0; const StructureCard* card = desk.cards->list().card(i); ++i)
            cities.append(card->widget()->input()->accessibleName().section(u": "_s, 1));
        QTEST(cities, "cities");
        QCOMPARE(desk.state.items.size(), cities.size());
        QCOMPARE(desk.line(0)->accessibleName(), u"Locations shown, place 1 of %1: Horn"_s.arg(cities.size()));
    }

    void cardsAreMovedAndRemoved()
    {
        Desk desk(u"iptc.locationsShown"_s, { jona, horn });
        QList<int> run;
        desk.cards->setActions({ { u"Copy from Location"_s, [&run](int item) { run.append(item); } } });
        desk.cards->open(1);
        QBTextField* city = desk.field(u"City"_s, 1);
        city->setFocus();
        QTest::keyClick(city, Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(desk.state.items, QStringList({ horn, jona }));
        QVERIFY(city->hasFocus());
        QVERIFY(desk.cards->tabStops().indexOf(city) < desk.cards->tabStops().indexOf(desk.line(1)));
        QList<QAction*> actions = desk.cards->list().card(1)->widget()->actions();
        actions.constFirst()->trigger();
        desk.cards->add();
        desk.cards->list().card(2)->widget()->actions().constFirst()->trigger();
        QCOMPARE(run, QList<int>({ 1, 2 }));
        desk.line(0)->setFocus();
        QTest::keyClick(desk.line(0), Qt::Key_Delete);
        QCOMPARE(desk.state.items, QStringList(jona));
        QVERIFY(desk.line(0)->hasFocus());
        QTest::keyClick(desk.line(0), Qt::Key_Delete);
        QCOMPARE(desk.state.items, QStringList());
        QVERIFY(desk.cards->list().addButton()->hasFocus());
    }

    void keysGoThroughTheCards()
    {
        Desk desk(u"iptc.locationsShown"_s, { jona, horn });
        desk.line(0)->setFocus();
        QTest::keyClick(desk.line(0), Qt::Key_Down);
        QVERIFY(desk.line(1)->hasFocus());
        QTest::keyClick(desk.line(1), Qt::Key_Down);
        QVERIFY(desk.cards->list().addButton()->hasFocus());
        QTest::keyClick(desk.cards->list().addButton(), Qt::Key_Home);
        QTest::keyClick(desk.line(0), Qt::Key_Right);
        QVERIFY(desk.cards->list().card(0)->isOpen());
        QTest::keyClick(desk.line(0), Qt::Key_End);
        QTest::keyClick(desk.line(1), Qt::Key_Up);
        // A shortcut of the window does not get the Escape that folds a card.
        QShortcut escape(Qt::Key_Escape, desk.window());
        QSignalSpy taken(&escape, &QShortcut::activated);
        QWidget* city = desk.field(u"City"_s);
        city->setFocus();
        QTest::keyClick(city, Qt::Key_Escape);
        QVERIFY(!desk.cards->list().card(0)->isOpen());
        QVERIFY(desk.line(0)->hasFocus());
        QCOMPARE(taken.size(), 0);
        QTest::keyClick(desk.line(0), Qt::Key_Escape);
        QCOMPARE(taken.size(), 1);
    }

    void picturesForTheEye()
    {
        if (!qEnvironmentVariableIsSet("QUORBEL_TEST_PICTURES"))
            QSKIP("QUORBEL_TEST_PICTURES names no folder");
        const QString region =
            json("{'Name':'Ada','RCtype':[{'Name':'human','Identifier':['http://a.b/c,d']}],'Mood':'x',"
                 "'RegionBoundary':{'RbShape':'polygon','RbUnit':'relative',"
                 "'RbVertices':[{'RbX':'0.1','RbY':'0.2'},{'RbX':'abc','RbY':'0.5'}]}}");
        for (const bool dark : { false, true })
            for (const int width : { 460, 520, 800 }) {
                const QString tail = u"-%1-%2"_s.arg(width).arg(dark ? u"dark"_s : u"light"_s);
                const Theme& theme = dark ? Theme::dark() : Theme::light();
                Desk places(u"iptc.locationsShown"_s, { jona, horn }, theme, width);
                places.cards->open(0);
                places.picture(u"places"_s + tail);
                Desk regions(u"iptc.regions"_s, { region }, theme, width);
                auto* outline = regions.fields()->findChildren<StructureList*>().constLast();
                outline->open(0);
                regions.picture(u"region"_s + tail);
                Desk contact(u"iptc.contact"_s, {}, theme, width);
                contact.picture(u"contact"_s + tail);
                Desk licensor(u"iptc.licensors"_s, {}, theme, width);
                licensor.cards->add();
                licensor.picture(u"licensor"_s + tail);
                Desk art(u"iptc.artworks"_s,
                    { json("{'AOTitle':'Night','AOTitle-de':'Nacht','AOCreator':['V','W, X']}") }, theme, width);
                art.picture(u"art"_s + tail);
            }
    }
};

QTEST_MAIN(tst_StructureCards)
#include "tst_StructureCards.moc"
