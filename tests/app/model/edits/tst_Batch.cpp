// The edits of several photos: ticks that keep their texts, and what a save leaves of them.
#include "app/model/edits/Batch.h"

#include <QTest>

using namespace Quorbel;
using namespace Qt::StringLiterals;

class tst_Batch : public QObject {
    Q_OBJECT

private slots:
    void ticksKeepTexts();
    void customTicksKeepTextsAndPlaces();
    void aSaveLeavesWhatCameAfter();
    void forgottenFieldsAreGone();
    void textsOfTheirOwn_data();
    void textsOfTheirOwn();
    void itemsTakenAway();
};

void tst_Batch::ticksKeepTexts()
{
    Batch batch;
    batch.setScalar(u"title"_s, u"X"_s);
    batch.toggle(u"title"_s);
    QVERIFY(batch.include().isEmpty() && batch.edits.isEmpty());
    QCOMPARE(batch.values().value(u"title"_s), u"X"_s);
    batch.toggle(u"title"_s);
    QCOMPARE(batch.edits.scalars, (QMap<QString, QString>{ { u"title"_s, u"X"_s } }));
    // A tick alone writes what one sees; where that is nothing, it clears the field in all photos.
    batch.toggle(u"creator"_s, u"Ana"_s);
    batch.toggle(u"event"_s);
    QCOMPARE(batch.edits.plan().scalars.value(u"creator"_s), u"Ana"_s);
    QCOMPARE(batch.edits.plan().scalars.value(u"event"_s, u"absent"_s), QString());
    batch.toggle(u"creator"_s, u"Ana"_s);
    batch.unticked.remove(u"creator"_s);
    // Typing ticks, and what was unticked does not come back later.
    batch.toggle(u"title"_s);
    batch.setScalar(u"title"_s, u"Y"_s);
    QCOMPARE(batch.include(), QSet<QString>({ u"title"_s, u"event"_s }));
    QVERIFY(batch.unticked.isEmpty());
}

void tst_Batch::customTicksKeepTextsAndPlaces()
{
    Batch batch;
    batch.setCustom(u"Mood"_s, u"calm"_s);
    batch.setCustom(u"Zone"_s, u"1"_s);
    batch.toggleCustom(u"Mood"_s, u"seen"_s);
    QCOMPARE(batch.edits.customs, (QList<CustomValue>{ { u"Zone"_s, u"1"_s } }));
    QCOMPARE(batch.customNames, QStringList({ u"Mood"_s, u"Zone"_s }));
    QVERIFY(batch.values().isEmpty());
    batch.toggleCustom(u"Mood"_s, u"seen"_s);
    QCOMPARE(batch.customText(u"Mood"_s), u"calm"_s);
    batch.toggleCustom(u"New"_s, u"seen"_s);
    QCOMPARE(batch.edits.customs.constLast(), (CustomValue{ u"New"_s, u"seen"_s }));
    // Unticked while the save ran: the text that was written waits for no tick.
    Batch now = batch;
    now.toggleCustom(u"Zone"_s);
    now.setCustom(u"Later"_s, u"2"_s);
    now.toggleCustom(u"Later"_s);
    const Batch rest = now.afterSave(batch, {});
    QCOMPARE(rest.customText(u"Zone"_s), std::nullopt);
    QCOMPARE(rest.customText(u"Later"_s), u"2"_s);
    QCOMPARE(rest.customNames, QStringList{ u"Later"_s });
}

void tst_Batch::aSaveLeavesWhatCameAfter()
{
    Batch sent;
    sent.setScalar(u"title"_s, u"X"_s);
    sent.setScalar(u"event"_s, u"E"_s);
    sent.setScalar(u"headline"_s, u"H"_s);
    sent.toggle(u"headline"_s);
    sent.addItem(u"keywords"_s, u"sky"_s);
    sent.setCustom(u"Mood"_s, u"gay"_s);
    QCOMPARE(sent.afterSave(sent, {}), Batch());
    Batch now = sent;
    now.setScalar(u"title"_s, u"Y"_s);
    now.toggle(u"event"_s);
    now.setScalar(u"place"_s, u"Bern"_s);
    now.toggle(u"place"_s);
    const Batch rest = now.afterSave(sent, {});
    QCOMPARE(rest.edits, (Edits{ .scalars = { { u"title"_s, u"Y"_s } } }));
    // Unticked while the save ran: "event" is written all the same, "place" was never sent.
    QCOMPARE(rest.unticked, (QMap<QString, QString>{ { u"place"_s, u"Bern"_s } }));
    QCOMPARE(sent.afterSave(sent, { u"title"_s }).edits, (Edits{ .scalars = { { u"title"_s, u"X"_s } } }));
}

void tst_Batch::forgottenFieldsAreGone()
{
    Batch batch;
    batch.setScalar(u"event"_s, u"E"_s);
    batch.toggle(u"event"_s);
    batch.addItem(u"people"_s, u"Ana"_s);
    for (const QString& id : { u"event"_s, u"people"_s, u"never"_s })
        batch.forget(id);
    QCOMPARE(batch, Batch());
}

void tst_Batch::textsOfTheirOwn_data()
{
    QTest::addColumn<bool>("isCustom");
    QTest::newRow("field") << false;
    QTest::newRow("custom field") << true;
}

void tst_Batch::textsOfTheirOwn()
{
    QFETCH(bool, isCustom);
    const QUrl a(u"file:///a.jpg"_s);
    const QUrl b(u"file:///b.jpg"_s);
    Edits both;
    for (const QUrl& photo : { a, b }) {
        if (isCustom)
            both.own[photo].customs.append({ u"Mood"_s, photo.fileName() });
        else
            both.own[photo].scalars.insert(u"title"_s, photo.fileName());
    }
    const auto type = [isCustom](Batch& batch, const QString& text) {
        isCustom ? batch.setCustom(u"Mood"_s, text) : batch.setScalar(u"title"_s, text);
    };
    const auto tick = [isCustom](Batch& batch) {
        isCustom ? batch.toggleCustom(u"Mood"_s, u"seen"_s) : batch.toggle(u"title"_s, u"seen"_s);
    };
    const QString key = isCustom ? u"custom:Mood"_s : u"title"_s;
    Batch batch;
    batch.take(both);
    const Batch laid = batch;
    QCOMPARE(batch.customNames, isCustom ? QStringList{ u"Mood"_s } : QStringList());
    QCOMPARE(batch.include().contains(key), !isCustom);
    // The tick takes all of them out, and brings all of them back.
    tick(batch);
    QVERIFY(batch.edits.isEmpty() && batch.include().isEmpty());
    tick(batch);
    QCOMPARE(batch, laid);
    // A common text goes over them, and its own tick remembers it.
    type(batch, u"X"_s);
    type(batch, u"XY"_s);
    QCOMPARE(batch.edits.own.size(), 0);
    QCOMPARE(batch.edits.keys(), QSet<QString>{ key });
    Batch back = batch;
    QVERIFY(back.bringBackOwn(key));
    QCOMPARE(back, laid);
    QVERIFY(!back.bringBackOwn(key));
    // Typed while they were unticked, a text leaves nothing to come back.
    Batch anew = laid;
    tick(anew);
    type(anew, u"X"_s);
    QVERIFY(!anew.bringBackOwn(key));
    // Of photos that are gone nothing comes back, and one with another name keeps its text.
    batch.keepOnly({ b });
    batch.rename({ b, a });
    QVERIFY(batch.bringBackOwn(key));
    QCOMPARE(batch.edits.own.keys(), QList<QUrl>{ a });
    // Unticked while a save ran, they were written.
    Batch now = laid;
    tick(now);
    QCOMPARE(now.afterSave(laid, {}), Batch());
    QCOMPARE(laid.afterSave(laid, {}), Batch());
    QVERIFY(!now.afterSave(Batch(), {}).setAside.isEmpty());
}

void tst_Batch::itemsTakenAway()
{
    const QUrl a(u"file:///a.jpg"_s);
    Batch batch;
    batch.addPath(u"Places|Zug"_s);
    batch.takeItemAway(u"keywords"_s, u"sky"_s);
    QCOMPARE(batch.edits.count(), 1);
    // What is taken away is not added, and the other way round, whichever came later.
    batch.takeItemAway(u"keywords"_s, u"Zug"_s);
    QVERIFY(batch.edits.paths.isEmpty() && batch.edits.added.isEmpty());
    batch.addItem(u"keywords"_s, u"sky"_s);
    QCOMPARE(batch.edits.removed.value(u"keywords"_s), QStringList{ u"Zug"_s });
    batch.keepItem(u"keywords"_s, u"Zug"_s);
    batch.removeItem(u"keywords"_s, u"sky"_s);
    QVERIFY(batch.edits.isEmpty());
    // Also over what one photo alone was to gain or to lose.
    batch.edits.own[a] = { .added = { { u"keywords"_s, { u"x"_s } } }, .removed = { { u"keywords"_s, { u"y"_s } } } };
    batch.takeItemAway(u"keywords"_s, u"x"_s);
    batch.addItem(u"keywords"_s, u"y"_s);
    QVERIFY(batch.edits.own.isEmpty());
    batch.clearList(u"keywords"_s);
    QVERIFY(batch.edits.isEmpty());
}

QTEST_GUILESS_MAIN(tst_Batch)
#include "tst_Batch.moc"
