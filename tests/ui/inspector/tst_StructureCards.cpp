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
#include "ui/inspector/iptc/CardTexts.h"
#include "ui/inspector/iptc/StructureCard.h"
#include "ui/inspector/iptc/StructureCards.h"
#include "ui/inspector/iptc/StructureFields.h"

#include <QClipboard>
#include <QPointer>
#include <QScopeGuard>
#include <QShortcut>
#include <QSignalSpy>
#include <QWindow>

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

const QString region = json("{'Name':'Ada','RCtype':[{'Name':'human','Identifier':['http://a.b/c,d']}],'Mood':'x',"
                            "'RegionBoundary':{'RbShape':'polygon','RbUnit':'relative',"
                            "'RbVertices':[{'RbX':'0.1','RbY':'0.2'},{'RbX':'abc','RbY':'0.5'}]}}");

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
        QCOMPARE(desk.line(1)->accessibleDescription(), u"edited, Horn"_s);
        QCOMPARE(desk.line(0)->accessibleDescription(), u"Rapperswil-Jona · St. Gallen, Switzerland"_s);
        QVERIFY(labels(desk.window()).join(u' ').contains(u"“Mood”"_s));
    }

    // The texts stand whole, beside the word that they are made of: none is forgotten.
    void everyStructureHasItsTexts()
    {
        for (const StructureSpec& structure : IptcStructures::all()) {
            QCOMPARE(CardTexts::adding(structure), u"Add "_s + structure.item);
            QCOMPARE(CardTexts::untitled(structure), u"New "_s + structure.item);
            QCOMPARE(CardTexts::counted(structure, 1), u"1 "_s + structure.item);
            QVERIFY(CardTexts::counted(structure, 2).startsWith(u"2 "_s + structure.item.first(2)));
        }
    }

    // And no longer once they are what the photo holds; of several photos, all that will be written.
    void editedMembersLookSo()
    {
        const QString contact = json("{'CiAdrCity':'Horn','CiEmailWork':'m@l.ch'}");
        for (const QString& id : { u"iptc.contact"_s, u"iptc.locationsShown"_s }) {
            const bool isContact = id == "iptc.contact";
            Desk desk(id, isContact ? QStringList{ contact } : QStringList{ jona, horn });
            const int at = isContact ? 0 : 1;
            desk.cards->open(at);
            QBTextField* city = desk.field(isContact ? u"CiAdrCity"_s : u"City"_s, at);
            QBTextField* other = desk.field(isContact ? u"CiEmailWork"_s : u"CountryName"_s, at);
            const auto ground = [](QBTextField* field) { return colorAt(field, { field->width() - 12, 8 }); };
            const auto isEdited = [&] { return desk.line(at)->accessibleDescription().startsWith(u"edited"_s); };
            // Emptied, it still is the one that it was.
            for (const QString& typed : { u"Au"_s, QString() }) {
                city->setFocus();
                city->selectAll();
                QTest::keyClick(city, Qt::Key_Backspace);
                QTest::keyClicks(city, typed);
                QCOMPARE(ground(city), Theme::light().amberBg);
                QCOMPARE(city->accessibleDescription(), u"edited"_s);
                QCOMPARE(ground(other), Theme::light().field);
                QVERIFY(isEdited());
            }
            QTest::keyClicks(city, u"Horn"_s);
            QCOMPARE(ground(city), Theme::light().field);
            QCOMPARE(city->accessibleDescription(), QString());
            QVERIFY(!isEdited());
        }
        Desk batch(u"iptc.locationsShown"_s);
        batch.state.batch = true;
        batch.cards->add();
        type(QApplication::focusWidget(), u"x"_s);
        QCOMPARE(colorAt(batch.field(u"LocationName"_s), { 200, 8 }), Theme::light().amberBg);
        QCOMPARE(colorAt(batch.field(u"City"_s), { 200, 8 }), Theme::light().field);
        QCOMPARE(batch.line(0)->accessibleDescription(), u"x"_s);
    }

    // Folded they are told by their ground: within a card is no room for the dot.
    void editedStructuresWithinLookSo()
    {
        Desk desk(u"iptc.regions"_s, { region });
        auto* outline = qobject_cast<StructureList*>(desk.fields()->input(u"RegionBoundary"_s));
        outline->open(0);
        auto* points = qobject_cast<StructureList*>(outline->card(0)->fields()->input(u"RbVertices"_s));
        points->open(0);
        QBTextField* x = qobject_cast<QBTextField*>(points->card(0)->fields()->input(u"RbX"_s));
        type(x, u"0"_s);
        QCOMPARE(colorAt(x, { x->width() - 12, 8 }), Theme::light().amberBg);
        for (StructureList* list : { points, outline }) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
            const ItemCard* card = list->card(0)->widget();
            const QColor ground = colorAt(desk.window(), card->mapTo(desk.window(), QPoint(card->width() - 60, 5)));
            QVERIFY2(ground.red() - ground.blue() > 25, qPrintable(ground.name()));
            QVERIFY(card->input()->accessibleDescription().startsWith(u"edited"_s));
        }
        const ItemCard* second = points->card(1)->widget();
        QVERIFY(!second->input()->accessibleDescription().startsWith(u"edited"_s));
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

    // A form scrolls to what gets the keyboard, at once: it has to be where it stays.
    void theKeyboardGoesWhereFieldsStand()
    {
        Desk desk(u"iptc.locationsShown"_s, { jona, horn });
        desk.cards->open(0);
        QTest::qWait(50);
        QPoint place;
        const auto note = connect(qApp, &QApplication::focusChanged, desk.window(),
            [&](QWidget*, const QWidget* now) { place = now ? now->mapTo(desk.window(), QPoint()) : QPoint(); });
        desk.cards->add();
        const QPoint first = place;
        QTest::qWait(50);
        QCOMPARE(first, QApplication::focusWidget()->mapTo(desk.window(), QPoint()));
        disconnect(note);
    }

    // A list that was opened from an empty card is a part of it.
    void codesArePickedInAnEmptyCard()
    {
        Desk desk(u"iptc.locationsShown"_s);
        desk.cards->add();
        QWidget* picker = desk.fields()->input(u"WorldRegion"_s);
        picker->setFocus();
        QTest::keyClick(picker, 'e');
        QWidget* popup = QApplication::activePopupWidget();
        QVERIFY(popup && popup->findChild<QLineEdit*>()->hasFocus());
        QTest::keyClicks(popup->findChild<QLineEdit*>(), u"urope"_s);
        QTest::keyClick(popup->findChild<QLineEdit*>(), Qt::Key_Return);
        QCOMPARE(desk.state.items, QStringList(json("{'WorldRegion':'Europe'}")));
    }

    // What is below does not move away from under the pointer.
    void emptyCardsWaitForTheMouse()
    {
        Desk desk(u"iptc.locationsShown"_s);
        desk.cards->add();
        QWindow* window = desk.window()->windowHandle();
        const QPoint next = desk.next->mapTo(desk.window(), desk.next->rect().center());
        QTest::mousePress(window, Qt::LeftButton, {}, next);
        QVERIFY(desk.next->hasFocus());
        QVERIFY(desk.cards->list().card(0));
        QTest::mouseRelease(window, Qt::LeftButton, {}, next);
        QTRY_VERIFY(!desk.cards->list().card(0));
    }

    void cardsAreMovedAndRemoved()
    {
        Desk desk(u"iptc.locationsShown"_s, { jona, horn });
        desk.picture(u"folded"_s);
        QList<int> run;
        desk.cards->setActions({ { u"Copy from Location"_s, [&run](int item) { run.append(item); } } });
        desk.cards->open(1);
        QBTextField* city = desk.field(u"City"_s, 1);
        city->setFocus();
        QTest::keyClick(city, Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(desk.state.items, QStringList({ horn, jona }));
        QVERIFY(city->hasFocus());
        QVERIFY(desk.cards->tabStops().indexOf(city) < desk.cards->tabStops().indexOf(desk.line(1)));
        desk.state.items = { jona, jona };
        desk.cards->setState(desk.state, true);
        desk.cards->add();
        for (const int place : { 1, 2 })
            desk.cards->list().card(place)->widget()->actions().constFirst()->trigger();
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

    // Rarely used members come when they are asked for; what holds something is there, and stays while it is emptied.
    void rareMembersAreFolded()
    {
        Desk desk(u"iptc.locationsShown"_s, { json("{'City':'Horn','GPSAltitude':'4'}") });
        QVERIFY(!desk.field(u"GPSLatitude"_s));
        QBTextField* altitude = desk.field(u"GPSAltitude"_s);
        QVERIFY(altitude);
        altitude->setFocus();
        altitude->selectAll();
        QTest::keyClick(altitude, Qt::Key_Backspace);
        QCOMPARE(desk.state.items, QStringList(json("{'City':'Horn'}")));
        QVERIFY(altitude->isVisible() && altitude->hasFocus());
        QTest::keyClicks(altitude, u"low"_s);
        QVERIFY(labels(desk.window()).contains(u"Not a number"_s));
        QCOMPARE(altitude->accessibleDescription(), u"edited, Not a number"_s);
        click(button(desk.window(), u"More fields of this place"_s));
        QVERIFY(desk.fields()->input(u"LocationId"_s)->hasFocus());
        QVERIFY(desk.field(u"GPSLatitude"_s));
        QVERIFY(!button(desk.window(), u"More fields of this place"_s));
    }

    void anOutlineAsksForWhatItsShapeHas()
    {
        Desk desk(u"iptc.regions"_s, { json("{'RegionBoundary':{'RbShape':'circle','RbX':'0.5'}}") });
        auto* outline = qobject_cast<StructureList*>(desk.fields()->input(u"RegionBoundary"_s));
        QVERIFY(outline);
        outline->open(0);
        const StructureFields* inner = outline->card(0)->fields();
        QVERIFY(inner->input(u"RbRx"_s) && inner->input(u"RbX"_s));
        QVERIFY(!inner->input(u"RbW"_s) && !inner->input(u"RbVertices"_s));
        // There is one outline at most.
        QVERIFY(!outline->addButton()->isVisible());
        type(inner->input(u"RbRx"_s), u"0.2"_s);
        QCOMPARE(
            desk.state.items, QStringList(json("{'RegionBoundary':{'RbRx':'0.2','RbShape':'circle','RbX':'0.5'}}")));
    }

    // Through all floors, and what stands beside it stays.
    void structuresWithinAreEdited()
    {
        Desk desk(u"iptc.regions"_s,
            { json(
                "{'Name':'Ada','RegionBoundary':{'RbColor':'red','RbShape':'polygon','RbVertices':[{'RbX':'1'}]}}") });
        auto* outline = qobject_cast<StructureList*>(desk.fields()->input(u"RegionBoundary"_s));
        outline->open(0);
        auto* points = qobject_cast<StructureList*>(outline->card(0)->fields()->input(u"RbVertices"_s));
        points->add();
        type(QApplication::focusWidget(), u"7"_s);
        const QString expected = json("{'Name':'Ada','RegionBoundary':{'RbColor':'red','RbShape':'polygon',"
                                      "'RbVertices':[{'RbX':'1'},{'RbX':'7'}]}}");
        QCOMPARE(desk.state.items, QStringList(expected));
        QCOMPARE(points->card(1)->widget()->accessibleName(), u"Points, point 2 of 2: 7"_s);
        // Escape folds from within, one at a time.
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(points->card(1)->widget()->input()->hasFocus());
        QVERIFY(outline->card(0)->isOpen());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(!outline->card(0)->isOpen());
        QVERIFY(desk.cards->list().card(0)->isOpen());
    }

    void severalTextsAreChips()
    {
        Desk desk(u"iptc.locationsShown"_s, { json("{'LocationId':['a,b']}") });
        auto* entry = qobject_cast<QBTextField*>(desk.fields()->input(u"LocationId"_s));
        QVERIFY(entry);
        QCOMPARE(entry->accessibleName(), u"Identifiers"_s);
        QGuiApplication::clipboard()->setText(u"http://c.d/e,f"_s);
        entry->setFocus();
        QTest::keyClick(entry, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(entry->text(), u"http://c.d/e,f"_s);
        desk.next->setFocus();
        QCOMPARE(desk.state.items, QStringList(json("{'LocationId':['a,b','http://c.d/e,f']}")));
        type(entry, u"a,b"_s);
        QTest::keyClick(entry, Qt::Key_Return);
        QCOMPARE(desk.told.size(), 1);
        QTest::keyClick(entry, Qt::Key_Backspace);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
        QCOMPARE(desk.state.items, QStringList(json("{'LocationId':['a,b']}")));
    }

    void textsComeInLanguages()
    {
        Desk desk(u"iptc.artworks"_s, { json("{'AOTitle':'Night','AOTitle-de':'Nacht'}") });
        QBTextField* german = desk.field(u"AOTitle-de"_s);
        QCOMPARE(german->accessibleName(), u"Title (German)"_s);
        german->setFocus();
        german->selectAll();
        QTest::keyClick(german, Qt::Key_Backspace);
        QTest::keyClicks(german, u"N"_s);
        QCOMPARE(desk.state.items, QStringList(json("{'AOTitle':'Night','AOTitle-de':'N'}")));
        QBTextField* title = desk.field(u"AOTitle"_s);
        title->setFocus();
        QTest::keyClick(title, Qt::Key_Right, Qt::AltModifier);
        QWidget* menu = QApplication::activePopupWidget();
        QVERIFY(menu);
        QTest::keyClicks(menu->findChild<QLineEdit*>(), u"french"_s);
        QTest::keyClick(menu->findChild<QLineEdit*>(), Qt::Key_Return);
        QBTextField* french = desk.field(u"AOTitle-fr"_s);
        QVERIFY(french);
        QTRY_VERIFY(french->hasFocus());
        type(french, u"Nuit"_s);
        QCOMPARE(desk.state.items, QStringList(json("{'AOTitle':'Night','AOTitle-de':'N','AOTitle-fr':'Nuit'}")));
        desk.picture(u"languages"_s);
        const QList<QWidget*> stops = desk.cards->tabStops();
        QVERIFY(stops.indexOf(german) < stops.indexOf(french));
        QVERIFY(stops.indexOf(french) < stops.indexOf(desk.fields()->input(u"AOCreator"_s)));
    }

    void theContactIsOneCard()
    {
        Desk desk(u"iptc.contact"_s);
        QVERIFY(!button(desk.window(), u"Add contact"_s));
        QCOMPARE(desk.line(0)->accessibleName(), u"Contact"_s);
        QBTextField* mail = desk.field(u"CiEmailWork"_s);
        QCOMPARE(desk.cards->input(), mail);
        type(mail, u"m@l.ch"_s);
        QCOMPARE(desk.state.items, QStringList(json("{'CiEmailWork':'m@l.ch'}")));
        desk.picture(u"contact"_s);
        QTest::keyClick(mail, Qt::Key_Escape);
        QVERIFY(desk.cards->list().card(0)->isOpen());
        click(button(desk.window(), u"Actions for this contact"_s));
        QPointer<QMenu> menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu);
        QAction* last = menu->actions().constLast();
        QCOMPARE(last->text(), u"Clear"_s);
        last->trigger();
        menu->close();
        QCOMPARE(desk.state.items, QStringList());
        QCOMPARE(mail->text(), QString());
    }

    void whatCannotBeChangedIsShown()
    {
        Desk desk(u"iptc.locationsShown"_s, { jona });
        desk.state.readOnlyReason = u"This photo can’t be changed."_s;
        desk.cards->setState(desk.state, false);
        QVERIFY(labels(desk.window()).contains(desk.state.readOnlyReason));
        type(desk.field(u"City"_s), u"x"_s);
        QTest::keyClick(desk.field(u"City"_s), Qt::Key_Escape);
        QTest::keyClick(desk.line(0), Qt::Key_Delete);
        QVERIFY(!button(desk.window(), u"Add place"_s));
        QCOMPARE(desk.told, QList<QStringList>());
        QCOMPARE(desk.cards->list().items(), QStringList(jona));
        desk.state.unread = true;
        desk.cards->setState(desk.state, true);
        QVERIFY(!desk.line(0)->isVisible());
    }

    // At every size of text and width: nothing is cut off, and nothing lies over anything else.
    void allHasRoom_data()
    {
        QTest::addColumn<qreal>("points");
        QTest::addColumn<int>("width");
        for (const auto& [points, width] : { std::pair(9., 460), std::pair(10., 800), std::pair(20., 800) })
            QTest::addRow("%g pt, %d", points, width) << qreal(points) << width;
    }
    void allHasRoom()
    {
        QFETCH(qreal, points);
        QFETCH(int, width);
        const QFont usual = QApplication::font();
        QFont font = usual;
        font.setPointSizeF(points);
        QApplication::setFont(font);
        const auto back = qScopeGuard([&usual] { QApplication::setFont(usual); });
        const QString licensor = json("{'LicensorTelephone1':'1','LicensorTelephoneType1':'work'}");
        for (const auto& [id, item] : { std::pair(u"iptc.locationsShown"_s, jona), std::pair(u"iptc.regions"_s, region),
                 std::pair(u"iptc.licensors"_s, licensor) }) {
            Desk desk(id, { item, horn }, width == 460 ? Theme::dark() : Theme::light(), width);
            for (int floor = 0; floor < 3; ++floor)
                for (StructureList* list : desk.window()->findChildren<StructureList*>())
                    list->open(0);
            QTest::qWait(50);
            desk.picture(u"room-%1-%2-%3"_s.arg(id).arg(points).arg(width));
            const LayoutAudit seen = audit(desk.window());
            QVERIFY2(seen.faults.isEmpty(), qPrintable(id + u": "_s + seen.faults.join(u'\n')));
        }
    }
};

QTEST_MAIN(tst_StructureCards)
#include "tst_StructureCards.moc"
