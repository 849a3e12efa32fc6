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

QTEST_GUILESS_MAIN(tst_Batch)
#include "tst_Batch.moc"
