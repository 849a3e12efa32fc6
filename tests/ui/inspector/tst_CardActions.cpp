// What the menus of place cards and of contacts do to the model, and what comes back into the cards.
#include "app/model/iptc/RememberedCards.h"
#include "core/iptc/IptcSchema.h"
#include "core/iptc/StructureText.h"
#include "tests/ui/UiSupport.h"
#include "tests/ui/inspector/InspectorFixture.h"
#include "ui/controls/attached/MenuRow.h"
#include "ui/controls/cards/ItemCard.h"
#include "ui/controls/pickers/CodePopover.h"
#include "ui/inspector/iptc/CardActions.h"
#include "ui/inspector/iptc/PlacePopover.h"
#include "ui/inspector/iptc/RememberedPopover.h"
#include "ui/inspector/iptc/StructureCard.h"
#include "ui/inspector/iptc/StructureFields.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QListWidget>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

// The cards of one field of one photo, which follow the model.
struct Desk {
    explicit Desk(const QString& id)
        : field(*IptcSchema::spec(id))
    {
        photos.addTitled(jpgs(u"a"_s));
        photos.lookAtDetails([](const QList<ImageRecord>& asked, const ReadControl&) {
            QHash<QUrl, PhotoDetails> found;
            for (const ImageRecord& photo : asked)
                found.insert(photo.url, { .url = photo.url });
            return found;
        });
        cards = new StructureCards(field, {}, &window);
        new CardActions(*photos.model, &places, field, *cards);
        QObject::connect(photos.model.get(), &AppModel::editsChanged, cards, [this] { show(); });
        window.resize(520, 600);
        cards->resize(500, 580);
        window.show();
        window.activateWindow();
    }
    bool open()
    {
        const bool isOpen = QTest::qWaitForWindowActive(&window) && photos.open();
        photos.select(u"a"_s);
        return isOpen && QTest::qWaitFor([this] { return photos->knowsDetails(); }, 20000);
    }
    void show()
    {
        const QString one = photos->draftValues().value(field.id);
        state.items = field.isSeveral ? photos->draftLists().value(field.id)
            : one.isEmpty()           ? QStringList()
                                      : QStringList(one);
        cards->setState(state, false);
    }
    // What the menu of a card offers; a cross in front of what cannot be chosen.
    QStringList offers(int item) const
    {
        emit cards->list().card(item)->widget()->menuAsked();
        QStringList texts;
        for (const QAction* action : cards->list().card(item)->widget()->actions())
            texts.append((action->isEnabled() ? QString() : u"×"_s) + action->text());
        return texts;
    }
    // From a card's menu; whether it is there.
    bool choose(int item, const QString& text) const
    {
        const qsizetype at = offers(item).indexOf(text);
        if (at >= 0)
            cards->list().card(item)->widget()->actions().at(at)->trigger();
        return at >= 0;
    }
    template <typename Kind>
    static const Kind* opened()
    {
        for (const QWidget* top : QApplication::topLevelWidgets())
            if (const auto* found = qobject_cast<const Kind*>(top); found && found->isVisible())
                return found;
        return nullptr;
    }

    const FieldSpec& field;
    ModelFixture photos;
    OnePlace places;
    QWidget window;
    StructureCards* cards = nullptr;
    StructureCardsState state{};
};

}  // namespace

class tst_CardActions : public QObject {
    Q_OBJECT

private slots:
    void termsOfVocabularies()
    {
        Desk genres(u"iptc.genreTerms"_s);
        QVERIFY(genres.open());
        genres.cards->add();
        QVERIFY(genres.choose(0, u"Choose Genre…"_s));
        const auto* popover = Desk::opened<CodePopover>();
        QVERIFY(popover);
        QTest::keyClicks(popover->field(), u"profile"_s);
        QTest::keyClick(popover->field(), Qt::Key_Return);
        const QJsonObject term = StructureText::members(genres.state.items.value(0));
        QVERIFY2(term.value(u"CvTermName"_s).toString().contains(u"rofile"), qPrintable(genres.state.items.join(u' ')));
        QCOMPARE(term.value(u"CvId"_s).toString(), u"http://cv.iptc.org/newscodes/genre/"_s);
        QVERIFY(term.value(u"CvTermId"_s).toString().startsWith(u"http://cv.iptc.org/newscodes/genre/"));

        Desk regions(u"iptc.regions"_s);
        QVERIFY(regions.open());
        const QString named = StructureText::of({ { u"Name"_s, u"Left"_s } });
        regions.photos->setItems(u"iptc.regions"_s, { named });
        regions.cards->open(0);
        QVERIFY(regions.choose(0, u"Choose Role…"_s));
        popover = Desk::opened<CodePopover>();
        QVERIFY(popover);
        QTest::keyClicks(popover->field(), u"square"_s);
        QTest::keyClick(popover->field(), Qt::Key_Return);
        const QJsonObject region =
            StructureText::members(regions.photos->draftLists().value(u"iptc.regions"_s).value(0));
        QCOMPARE(region.value(u"Name"_s).toString(), u"Left"_s);
        QCOMPARE(region.value(u"RRole"_s).toArray().size(), 1);
    }
    void placesAndLocation()
    {
        Desk desk(u"iptc.locationCreated"_s);
        QVERIFY(desk.open());
        desk.cards->add();
        const QString search = u"Search Place…"_s;
        QCOMPARE(desk.offers(0),
            (QStringList{ u"×Copy from Location (nothing there)"_s, u"×Copy to Location (nothing here)"_s, search }));
        desk.photos->setSingle(u"place"_s, u"Lima"_s);
        desk.photos->setSingle(u"country"_s, u"Peru"_s);
        QVERIFY(desk.choose(0, u"Copy from Location"_s));
        const QString lima = StructureText::of({ { u"City"_s, u"Lima"_s }, { u"CountryName"_s, u"Peru"_s } });
        QCOMPARE(desk.state.items, QStringList{ lima });
        QCOMPARE(desk.offers(0),
            (QStringList{
                u"×Copy from Location (the same already)"_s, u"×Copy to Location (the same already)"_s, search }));

        QVERIFY(desk.choose(0, u"Search Place…"_s));
        const auto* popover = Desk::opened<PlacePopover>();
        QVERIFY(popover);
        QTest::keyClicks(popover->field(), u"Z"_s);
        QTRY_COMPARE(popover->list()->count(), 1);
        QTest::keyClick(popover->field(), Qt::Key_Return);
        const QString zurich = StructureText::of({ { u"LocationName"_s, u"Paradeplatz"_s },
            { u"Sublocation"_s, u"Paradeplatz"_s }, { u"City"_s, u"Zürich"_s }, { u"ProvinceState"_s, u"Zurich"_s },
            { u"CountryName"_s, u"Switzerland"_s }, { u"CountryCode"_s, u"CH"_s }, { u"WorldRegion"_s, u"Europe"_s },
            { u"GPSLatitude"_s, u"47.37"_s }, { u"GPSLongitude"_s, u"8.54"_s } });
        QCOMPARE(desk.photos->draftLists().value(desk.field.id), QStringList{ zurich });

        QVERIFY(desk.choose(0, u"Copy to Location"_s));
        const QMap<QString, QString>& values = desk.photos->draftValues();
        QCOMPARE(values.value(u"place"_s) + values.value(u"country"_s) + values.value(u"iptc.countryCode"_s),
            u"ZürichSwitzerlandCH"_s);
        QCOMPARE(values.value(u"coords"_s), u"47.370000, 8.540000"_s);
    }

    // By keyboard from the menu on.
    void contactsArePickedAgain()
    {
        Desk desk(u"iptc.contact"_s);
        QVERIFY(desk.open());
        desk.show();
        RememberedCards& remembered = desk.photos->rememberedCards();
        const ImageRecord photo = *desk.photos->primaryRecord();
        const auto card = [](const QString& city) { return StructureText::of({ { u"CiAdrCity"_s, city } }); };
        QVERIFY(!desk.choose(0, u"Use Remembered Contact…"_s));
        for (const QString& city : { u"Zürich"_s, u"Bern"_s }) {
            remembered.noteSaving({ .scalars = { { desk.field.id, card(city) } }, .subjects = { photo.url } });
            remembered.noteSaved({ photo }, {}, {});
        }
        QTRY_VERIFY(desk.choose(0, u"Use Remembered Contact…"_s));
        const auto* popover = Desk::opened<RememberedPopover>();
        QVERIFY(popover);
        QCOMPARE(popover->rows().size(), 2);
        QTest::keyClick(popover->rows().constFirst(), Qt::Key_Delete);
        QCOMPARE(popover->rows().size(), 1);
        QTest::keyClick(popover->rows().constFirst(), Qt::Key_Space);
        QCOMPARE(desk.state.items, QStringList{ card(u"Zürich"_s) });
        // In the card too, for as long as nothing is in it.
        const QString start = u"Use a remembered contact…"_s;
        QVERIFY(!button(desk.cards, start));
        desk.photos->setSingle(desk.field.id, {});
        QAbstractButton* offered = button(desk.cards, start);
        QVERIFY(offered);
        QCOMPARE(desk.cards->tabStops().indexOf(offered) + 1,
            desk.cards->tabStops().indexOf(desk.cards->list().card(0)->fields()->firstInput()));
        offered->setFocus();
        QTest::keyClick(offered, Qt::Key_Space);
        popover = Desk::opened<RememberedPopover>();
        QVERIFY(popover);
        QTest::keyClick(popover->rows().constFirst(), Qt::Key_Return);
        QCOMPARE(desk.state.items, QStringList{ card(u"Zürich"_s) });
        QTRY_VERIFY(desk.cards->list().card(0)->fields()->firstInput()->hasFocus());
        QVERIFY(desk.choose(0, u"Forget Remembered Contacts"_s));
        QVERIFY(remembered.of(desk.field.id).isEmpty());
        QTRY_VERIFY(!desk.choose(0, u"Use Remembered Contact…"_s));
        desk.photos->setSingle(desk.field.id, {});
        QVERIFY(!button(desk.cards, start));
    }
};

QTEST_MAIN(tst_CardActions)
#include "tst_CardActions.moc"
