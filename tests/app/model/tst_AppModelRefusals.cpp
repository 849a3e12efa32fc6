// What the user is told of a save that the tool refused, in whole or in part, and what can be done about it.
#include "tests/app/model/ModelFixture.h"
#include "tests/support/RefusedExif.h"

#include <QRegularExpression>
#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

struct Photos : ModelFixture {
    Photos()
    {
        folder.add(u"a.jpg"_s);
        folder.add(u"b.jpg"_s, jpegWithBrokenExif());
        folder.add(u"c.jpg"_s, jpegWithBrokenExif());
        folder.add(u"d.jpg"_s, "a text\n");
        services.journalPath = settings.filePath(u"undo.json"_s);
        relaunch();
        model->preferences().confirmMassEdit.set(false);
        model->preferences().saveDontAsk.set(true);
        model->preferences().backupOriginals.set(false);
    }
    void edit(const QMap<QString, QString>& values) const
    {
        for (auto it = values.cbegin(); it != values.cend(); ++it)
            model->isBatch() ? model->setBatch(it.key(), *it) : model->setSingle(it.key(), *it);
    }
};

const QString badDate =
    u"Invalid date/time (use YYYY:mm:dd HH:MM:SS[.ss][+/-HH:MM|Z]) in ExifIFD:DateTimeOriginal, XMP-photoshop:DateCreated"_s;

}  // namespace

class tst_AppModelRefusals : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void savesWithoutTheRefusedHome_data();
    void savesWithoutTheRefusedHome();
    void saysWhy_data();
    void saysWhy();
};

void tst_AppModelRefusals::savesWithoutTheRefusedHome_data()
{
    QTest::addColumn<QString>("letters");
    QTest::addColumn<QString>("banner");
    const QString reason = u"EXIF refused: Bad format (0) for IFD0 entry 0"_s;
    QTest::addRow("one") << u"b"_s << u"Could not save: "_s + reason;
    QTest::addRow("two of three") << u"abc"_s << u"Could not save 2 of 3 photos: b.jpg (%1), c.jpg (%1)"_s.arg(reason);
}

void tst_AppModelRefusals::savesWithoutTheRefusedHome()
{
    QFETCH(QString, letters);
    QFETCH(QString, banner);
    Photos f;
    QVERIFY(f.open());
    f.select(letters);
    const QByteArray before = readFile(f.folder.path(u"b.jpg"_s));
    f.edit({ { u"title"_s, u"東京"_s }, { u"description"_s, u"塔"_s } });
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->errorMessage(), banner);
    QCOMPARE(readFile(f.folder.path(u"b.jpg"_s)), before);
    QCOMPARE(f->canUndoSave(), letters == u"abc");
    QCOMPARE(f->partialSaveText(), u"Save without EXIF"_s);
    f->savePartially();
    QCOMPARE(f->partialSaveText(), QString());
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->errorMessage(), std::nullopt);
    QCOMPARE(f->unsavedCount(), 0);
    QCOMPARE(f.onDisk(u"b.jpg"_s, u"IPTC:Caption-Abstract"_s), QJsonValue(u"塔"_s));
    QCOMPARE(f->record(f.url(u"b.jpg"_s))->values.value(u"title"_s), u"東京"_s);
    f->undoSave();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->errorMessage(), std::nullopt);
    QCOMPARE(f.onDisk(u"b.jpg"_s, u"XMP:Title"_s), QJsonValue(QJsonValue::Undefined));
}

void tst_AppModelRefusals::saysWhy_data()
{
    using Values = QMap<QString, QString>;
    QTest::addColumn<QString>("letters");
    QTest::addColumn<Values>("values");
    QTest::addColumn<QString>("banner");
    const Values date{ { u"date"_s, u"Harbour at dawn"_s } };
    QTest::addRow("no photo") << u"d"_s << Values{ { u"title"_s, u"X"_s } }
                              << u"Could not save: Not a valid JPG (looks more like a TXT)"_s;
    QTest::addRow("no date, one photo") << u"a"_s << date << u"Could not save: "_s + badDate;
    QTest::addRow("no date, two photos") << u"ab"_s << date
                                         << u"Could not save 2 of 2 photos: a.jpg (not written: %1), "
                                            "b.jpg (not written: %1)"_s.arg(badDate);
    QTest::addRow("no date beside a title")
        << u"a"_s << Values{ { u"date"_s, u"Harbour at dawn"_s }, { u"title"_s, u"X"_s } }
        << u"Saved, but 1 field reads back differently: Date taken (%1)"_s.arg(badDate);
    QTest::addRow("no position") << u"a"_s << Values{ { u"coords"_s, u"behind the church"_s } }
                                 << u"Nothing was written: Coordinates"_s;
}

void tst_AppModelRefusals::saysWhy()
{
    using Values = QMap<QString, QString>;
    QFETCH(QString, letters);
    QFETCH(Values, values);
    QFETCH(QString, banner);
    Photos f;
    QVERIFY(f.open());
    f.select(letters);
    f.edit(values);
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->errorMessage(), banner);
    QCOMPARE(f->partialSaveText(), QString());
    QVERIFY(f->unsavedCount() > 0);
}

QTEST_GUILESS_MAIN(tst_AppModelRefusals)
#include "tst_AppModelRefusals.moc"
