// Hands that do not wait for a save: what is typed, clicked, closed and quit while one runs or is asked about, and that
// nothing typed is lost on the way.
#include "tests/app/model/GatedPhotos.h"

#include <QRegularExpression>
#include <QTest>
#include <QThreadPool>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

class tst_AppModelGoingOn : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void secondSaveIsIgnored();
    void editsDuringASaveAreKept();
    void batchEditsDuringASaveAreKept();
    void editsOfAnotherPhotoSurviveASave();
    void clickDuringASaveWaits();
    void goesOnWhileItSaves();
    void goesOnAsAnswered_data();
    void goesOnAsAnswered();
    void modelDestroyedDuringWrite();
    void leaving_data();
    void leaving();
    void quitWaitsForASave();
    void failedSaveCancelsLeaving();
};

void tst_AppModelGoingOn::secondSaveIsIgnored()
{
    FakeTool tool;
    ModelFixture f(MetadataService{ tool.runner() });
    f.folder.add(u"a.jpg"_s);
    QVERIFY(f.open());
    f->preferences().saveDontAsk.set(true);
    tool.answer(1, { .holds = true });
    f->setSingle(u"headline"_s, u"X"_s);
    f->requestSave();
    QTRY_COMPARE(tool.calls().size(), 3);
    f->setSingle(u"headline"_s, u"Y"_s);
    f->requestSave();
    f->preferences().saveDontAsk.set(false);
    f->requestSave();
    QVERIFY(!f->saveOpen());
    tool.release();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(tool.calls().size(), 6);
}

void tst_AppModelGoingOn::editsDuringASaveAreKept()
{
    GatedPhotos f;
    QVERIFY(f.open());
    f->preferences().saveDontAsk.set(true);
    f->setSingle(u"title"_s, u"first"_s);
    f->setSingle(u"creator"_s, u"Ana"_s);
    f->addCustomField(u"Mood"_s, u"calm"_s);
    f.shut();
    f->requestSave();
    QVERIFY(f.waitForRun());
    f->setSingle(u"title"_s, u"second"_s);
    f->setSingle(u"headline"_s, u"new"_s);
    f->addSingleListItem(u"keywords"_s, u"sky"_s);
    f->addKnownField(u"event"_s);
    f.release();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->editedSingle(), (QSet<QString>{ u"title"_s, u"headline"_s, u"keywords"_s }));
    QCOMPARE(f->draftValues().value(u"title"_s), u"second"_s);
    QCOMPARE(f->draftValues().value(u"headline"_s), u"new"_s);
    QCOMPARE(f->draftLists().value(u"keywords"_s), QStringList{ u"sky"_s });
    QVERIFY(f->visibleFieldIDs(FieldSection::additional).contains(u"event"_s));
    QCOMPARE(f.onDisk(u"a.jpg"_s, u"XMP:Title"_s), QJsonValue(u"first"_s));
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->unsavedCount(), 0);
    QCOMPARE(f.onDisk(u"a.jpg"_s, u"XMP:Title"_s), QJsonValue(u"second"_s));
}

void tst_AppModelGoingOn::batchEditsDuringASaveAreKept()
{
    GatedPhotos f;
    QVERIFY(f.open());
    f.selectAB();
    f->preferences().confirmMassEdit.set(false);
    f->setBatch(u"title"_s, u"first"_s);
    f->setBatch(u"creator"_s, u"Ana"_s);
    f->addBatchListItem(u"keywords"_s, u"sky"_s);
    f->addCustomField(u"Mood"_s, u"calm"_s);
    f.shut();
    f->requestSave();
    QVERIFY(f.waitForRun());
    f->setBatch(u"title"_s, u"second"_s);
    f->addBatchListItem(u"keywords"_s, u"sea"_s);
    f.release();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->batchInclude(), QSet<QString>{ u"title"_s });
    QCOMPARE(f->batchValues(), (QMap<QString, QString>{ { u"title"_s, u"second"_s } }));
    QCOMPARE(f->nonEmptyBatchLists(), (QMap<QString, QStringList>{ { u"keywords"_s, { u"sea"_s } } }));
    QVERIFY(f->batchCustoms().isEmpty());
}

void tst_AppModelGoingOn::editsOfAnotherPhotoSurviveASave()
{
    GatedPhotos f;
    QVERIFY(f.open());
    f.selectAB();
    f->preferences().confirmMassEdit.set(false);
    f->setBatch(u"title"_s, u"both"_s);
    f.shut();
    f->requestSave();
    QVERIFY(f.waitForRun());
    f.click(u"b.jpg"_s);
    QCOMPARE(f.primary(), u"b.jpg"_s);
    f->setSingle(u"headline"_s, u"typed"_s);
    f.release();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->editedSingle(), QSet<QString>{ u"headline"_s });
    QCOMPARE(f->draftValues(), (QMap<QString, QString>{ { u"title"_s, u"both"_s }, { u"headline"_s, u"typed"_s } }));
}

void tst_AppModelGoingOn::clickDuringASaveWaits()
{
    GatedPhotos f;
    QVERIFY(f.open());
    f->setSingle(u"title"_s, u"X"_s);
    f->requestSave();
    f.shut();
    f->confirmSaveDialog();
    QVERIFY(f.waitForRun());
    f.click(u"b.jpg"_s);
    QVERIFY(!f->saveOpen());
    QCOMPARE(f.primary(), u"a.jpg"_s);
    f.release();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f.primary(), u"b.jpg"_s);
    QCOMPARE(f->unsavedCount(), 0);
    QCOMPARE(f.onDisk(u"a.jpg"_s, u"XMP:Title"_s), QJsonValue(u"X"_s));
}

// The hands do not wait for the tool: neither for the next photo, nor for what was typed into the last one.
void tst_AppModelGoingOn::goesOnWhileItSaves()
{
    GatedPhotos f;
    QVERIFY(f.open());
    f->preferences().saveDontAsk.set(true);
    f->setSingle(u"title"_s, u"X"_s);
    f->addSingleListItem(u"keywords"_s, u"sea"_s);
    f.shut();
    f->saveAndGoOn();
    QCOMPARE(f.primary(), u"b.jpg"_s);
    QVERIFY(f.waitForRun());
    QVERIFY(f->isSaving());
    QCOMPARE(f->unsavedCount(), 0);
    f->takeFromPhotoBefore(u"title"_s);
    f->takeFromPhotoBefore(u"keywords"_s);
    QCOMPARE(f->draftValues().value(u"title"_s), u"X"_s);
    QCOMPARE(f->draftLists().value(u"keywords"_s), QStringList{ u"sea"_s });
    // One save at a time: the second one waits for the first, and goes on as soon as it begins.
    f->saveAndGoOn();
    QCOMPARE(f.primary(), u"b.jpg"_s);
    f.release();
    QTRY_COMPARE_WITH_TIMEOUT(f.primary(), u"c.jpg"_s, 30'000);
    QVERIFY(f.waitUntilIdle());
    for (const QString& name : { u"a.jpg"_s, u"b.jpg"_s })
        QCOMPARE(f.onDisk(name, u"XMP:Title"_s), QJsonValue(u"X"_s));
    // Nothing follows the last one, and of nothing unsaved nothing is saved.
    f->setSingle(u"title"_s, u"last"_s);
    f->saveAndGoOn();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f.primary(), u"c.jpg"_s);
    QCOMPARE(f.onDisk(u"c.jpg"_s, u"XMP:Title"_s), QJsonValue(u"last"_s));
    f.selectAB();
    f->saveAndGoOn();
    QVERIFY(!f->isSaving());
    QCOMPARE(f.selected(), QStringList{ u"c.jpg"_s });
}

void tst_AppModelGoingOn::goesOnAsAnswered_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("primary");
    QTest::addColumn<QString>("title");
    QTest::addRow("save") << u"save"_s << u"b.jpg"_s << u"X"_s;
    QTest::addRow("discard") << u"discard"_s << u"b.jpg"_s << QString();
    QTest::addRow("cancel") << u"cancel"_s << u"a.jpg"_s << QString();
}

void tst_AppModelGoingOn::goesOnAsAnswered()
{
    QFETCH(QString, answer);
    QFETCH(QString, primary);
    QFETCH(QString, title);
    GatedPhotos f;
    QVERIFY(f.open());
    f->setSingle(u"title"_s, u"X"_s);
    f->saveAndGoOn();
    QVERIFY(f->saveOpen());
    QCOMPARE(f.primary(), u"a.jpg"_s);
    f.answerSave(answer);
    QCOMPARE(f.primary(), primary);
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f.onDisk(u"a.jpg"_s, u"XMP:Title"_s).toString(), title);
    // It was asked for once: a later save goes nowhere.
    const QString here = f.primary();
    f->setSingle(u"headline"_s, u"Y"_s);
    f->requestSave();
    f->confirmSaveDialog();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f.primary(), here);
}

void tst_AppModelGoingOn::modelDestroyedDuringWrite()
{
    GatedPhotos f;
    QVERIFY(f.open());
    f->preferences().saveDontAsk.set(true);
    f->setSingle(u"title"_s, u"X"_s);
    f.shut();
    f->requestSave();
    QVERIFY(f.waitForRun());
    f.model.reset();
    f.release();
    QVERIFY(QThreadPool::globalInstance()->waitForDone(30000));
    QCoreApplication::processEvents();
    QCOMPARE(f.onDisk(u"a.jpg"_s, u"XMP:Title"_s), QJsonValue(u"X"_s));
}

void tst_AppModelGoingOn::leaving_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<bool>("several");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("leaves");
    QTest::addColumn<QString>("title");
    for (const QString& way : { u"load"_s, u"close"_s, u"quit"_s }) {
        for (const bool several : { false, true }) {
            // What is unsaved makes no difference to the way, and the way little to the answer.
            if (!isSlowRun() && several != (way == u"quit"))
                continue;
            const auto row = [&](const char* answer, bool leaves, const QString& title) {
                QTest::addRow("%s, %s, %s", qPrintable(way), several ? "several" : "one", answer)
                    << way << several << QString::fromLatin1(answer) << leaves << title;
            };
            row("save", true, u"X"_s);
            row("discard", true, {});
            row("cancel", false, {});
        }
    }
}

void tst_AppModelGoingOn::leaving()
{
    QFETCH(QString, way);
    QFETCH(bool, several);
    QFETCH(QString, answer);
    QFETCH(bool, leaves);
    QFETCH(QString, title);
    GatedPhotos f;
    int quits = 0;
    f.services.quit = [&quits] { ++quits; };
    f.relaunch();
    QVERIFY(QDir(f.folder.path()).mkpath(u"other"_s));
    f.folder.add(u"other/z.jpg"_s);
    QVERIFY(f.open());
    if (several)
        f.selectAB();
    several ? f->setBatch(u"title"_s, u"X"_s) : f->setSingle(u"title"_s, u"X"_s);
    if (way == u"load")
        f->requestLoad({ f.url(u"other"_s) });
    else if (way == u"close")
        f->requestClose();
    else
        f->requestQuit();
    QVERIFY(f->saveOpen());
    QCOMPARE(f->records().size(), 3);
    f.answerSave(answer);
    QVERIFY(f.waitUntilIdle());
    const auto hasLeft = [&] {
        return way == u"load" ? f->folderName() == u"other" : way == u"close" ? f->records().isEmpty() : quits == 1;
    };
    QCOMPARE(hasLeft(), leaves);
    QCOMPARE(f->unsavedCount(), leaves ? 0 : 1);
    QCOMPARE(f.onDisk(u"a.jpg"_s, u"XMP:Title"_s).toString(), title);
    QVERIFY(!f->saveOpen());
    if (leaves)
        return;
    // What was cancelled does not happen after a later save either.
    f->requestSave();
    f->confirmSaveDialog();
    QVERIFY(f.waitUntilIdle());
    QVERIFY(f->unsavedCount() == 0 && !hasLeft());
}

void tst_AppModelGoingOn::quitWaitsForASave()
{
    GatedPhotos f;
    int quits = 0;
    f.services.quit = [&quits] { ++quits; };
    f.relaunch();
    QVERIFY(f.open());
    f->preferences().saveDontAsk.set(true);
    f->setSingle(u"title"_s, u"X"_s);
    f.shut();
    f->requestSave();
    QVERIFY(f.waitForRun());
    f->setSingle(u"headline"_s, u"typed meanwhile"_s);
    f->requestQuit();
    QCOMPARE(quits, 0);
    f.release();
    QTRY_COMPARE_WITH_TIMEOUT(quits, 1, 30000);
    QCOMPARE(f.onDisk(u"a.jpg"_s, u"XMP:Headline"_s), QJsonValue(u"typed meanwhile"_s));
}

void tst_AppModelGoingOn::failedSaveCancelsLeaving()
{
    FakeTool tool;
    ModelFixture f(MetadataService{ tool.runner() });
    f.folder.add(u"a.jpg"_s);
    QVERIFY(f.open());
    f->setSingle(u"title"_s, u"X"_s);
    f->requestClose();
    tool.answer(1, { .exitCode = 1 });
    f->confirmSaveDialog();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->records().size(), 1);
    QCOMPARE(f->unsavedCount(), 1);
    f->requestSave();
    f->confirmSaveDialog();
    QVERIFY(f.waitUntilIdle());
    // The later save has nothing left to go on with.
    QCOMPARE(f->records().size(), 1);
}

QTEST_GUILESS_MAIN(tst_AppModelGoingOn)
#include "tst_AppModelGoingOn.moc"
