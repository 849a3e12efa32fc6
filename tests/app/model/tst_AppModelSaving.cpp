// Saving, and leaving with unsaved edits: what lands in the files, and that nothing typed is lost on the way.
#include "tests/app/model/ModelFixture.h"

#include <QRegularExpression>
#include <QScopeGuard>
#include <QTest>
#include <QThreadPool>

#include <sys/mount.h>
#include <unistd.h>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

// Photos "a", "b" and "c" behind a gated tool, open; "a" is selected.
struct GatedPhotos : GatedTool, ModelFixture {
    GatedPhotos()
        : ModelFixture(service())
    {
        for (const QString& name : { u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s })
            folder.add(name);
    }
    void selectAB()
    {
        click(u"a.jpg"_s);
        click(u"b.jpg"_s, false, true);
    }
};

}  // namespace

class tst_AppModelSaving : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void singleSaveReplaces();
    void batchSaveAppends();
    void recordsOfManyAreToldOfTogether();
    void eachGetsItsOwn();
    void savedPhotosKeepTheirPlaceInOrderOfCreation();
    void companions_data();
    void companions();
    void whenToAsk_data();
    void whenToAsk();
    void secondSaveIsIgnored();
    void editsDuringASaveAreKept();
    void batchEditsDuringASaveAreKept();
    void editsOfAnotherPhotoSurviveASave();
    void clickDuringASaveWaits();
    void goesOnWhileItSaves();
    void goesOnAsAnswered_data();
    void goesOnAsAnswered();
    void failuresKeepEdits_data();
    void failuresKeepEdits();
    void failedReReadKeepsEdits();
    void fullDisk();
    void modelDestroyedDuringWrite();
    void progressCountsReplacedFiles();
    void leaving_data();
    void leaving();
    void quitWaitsForASave();
    void failedSaveCancelsLeaving();
};

void tst_AppModelSaving::singleSaveReplaces()
{
    GatedPhotos f;
    exiftool({ u"-overwrite_original"_s, u"-XMP-dc:Title=old"_s, u"-XMP-photoshop:Headline=old"_s,
        u"-XMP-dc:Subject=one"_s, u"-XMP-dc:Subject=two"_s, f.folder.path(u"a.jpg"_s) });
    QVERIFY(f.open());
    f->setSingle(u"title"_s, u"東京"_s);
    f->setSingle(u"headline"_s, {});
    f->setSingle(u"date"_s, u"2026-07-14 14:30"_s);
    f->removeSingleListItem(u"keywords"_s, u"one"_s);
    f->addCustomField(u"Mood"_s, u"calm"_s);
    QCOMPARE(f->unsavedCount(), 5);
    f->requestSave();
    f->confirmSaveDialog();
    QVERIFY(f->isSaving() && f->isWorking() && !f->saveOpen());
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->errorMessage(), std::nullopt);
    QVERIFY(!f->isSaving());
    QCOMPARE(f->unsavedCount(), 0);
    QCOMPARE(f->draftValues().value(u"title"_s), u"東京"_s);
    QVERIFY(!f->draftValues().contains(u"headline"_s));
    QCOMPARE(f->draftCustoms(), (QList<CustomValue>{ { u"Mood"_s, u"calm"_s } }));
    const auto found = exiv2Values(f.url(u"a.jpg"_s));
    QCOMPARE(found.value(u"Xmp.dc.subject"_s), QStringList{ u"two"_s });
    QVERIFY(found.value(u"Xmp.dc.title"_s).join(u' ').contains(u"東京"_s));
    QVERIFY(!found.contains(u"Xmp.photoshop.Headline"_s));
    QCOMPARE(found.value(u"Exif.Photo.DateTimeOriginal"_s), QStringList{ u"2026:07:14 14:30:00"_s });
}

void tst_AppModelSaving::batchSaveAppends()
{
    GatedPhotos f;
    exiftool({ u"-overwrite_original"_s, u"-XMP-dc:Subject=own"_s, u"-IPTC:Keywords=own"_s, u"-XMP-dc:Creator=old"_s,
        f.folder.path(u"a.jpg"_s) });
    QVERIFY(f.open());
    f.selectAB();
    f->setBatch(u"title"_s, u"X"_s);
    f->toggleBatchInclude(u"creator"_s);
    f->addBatchListItem(u"keywords"_s, u"sky"_s);
    f->addBatchListItem(u"people"_s, u"Eva"_s);
    f->removeBatchListItem(u"people"_s, u"Eva"_s);
    f->addCustomField(u"Mood"_s, u"calm"_s);
    f->requestSave();
    QVERIFY(f->saveOpen());
    f->confirmSaveDialog();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->errorMessage(), std::nullopt);
    QCOMPARE(f->unsavedCount(), 0);
    QCOMPARE(f.selected(), QStringList({ u"a.jpg"_s, u"b.jpg"_s }));
    QCOMPARE(exiv2Values(f.url(u"a.jpg"_s)).value(u"Xmp.dc.subject"_s), QStringList({ u"own, sky"_s }));
    QCOMPARE(f->record(f.url(u"a.jpg"_s))->lists.value(u"keywords"_s), QStringList({ u"own"_s, u"sky"_s }));
    QCOMPARE(f->record(f.url(u"b.jpg"_s))->lists.value(u"keywords"_s), QStringList{ u"sky"_s });
    QVERIFY(!f->record(f.url(u"a.jpg"_s))->values.contains(u"creator"_s));
    QCOMPARE(f->sharedValue(u"title"_s), u"X"_s);
    QCOMPARE(f->record(f.url(u"b.jpg"_s))->custom, (QList<CustomValue>{ { u"Mood"_s, u"calm"_s } }));
    QVERIFY(f->record(f.url(u"c.jpg"_s))->values.isEmpty());
}

// They come in pieces, but nobody is told of half of them.
void tst_AppModelSaving::recordsOfManyAreToldOfTogether()
{
    FakeTool tool;
    PhotoFolder folder;
    QList<QUrl> photos;
    for (int i = 0; i < 600; ++i)
        photos.append(folder.add(u"%1.jpg"_s.arg(i, 3, 10, QChar(u'0'))));
    const auto holdAll = [&](const QString& title) {
        QList<QJsonObject> answers;
        for (const QUrl& photo : std::as_const(photos))
            answers.append({ { u"SourceFile"_s, photo.toLocalFile() }, { u"XMP:Title"_s, title } });
        tool.answerAlways({ .standardOutput = toolJson(answers) });
    };
    holdAll(u"Old"_s);
    ModelFixture f(MetadataService{ tool.runner() });
    QVERIFY(f.load({ QUrl::fromLocalFile(folder.path()) }));
    f->selectAllPhotos();
    f->preferences().confirmMassEdit.set(false);
    f->setBatch(u"title"_s, u"New"_s);
    holdAll(u"New"_s);
    QStringList seen;
    connect(f.model.get(), &AppModel::recordsChanged, this, [&] {
        for (const ImageRecord& record : f->records())
            seen.append(record.values.value(u"title"_s));
        QVERIFY(f->isSaving());
    });
    f->requestSave();
    QTRY_VERIFY_WITH_TIMEOUT(!f->isSaving(), 30000);
    QCOMPARE(seen, QStringList(600, u"New"_s));
}

// Texts that differ, items that all gain and lose; one photo is read-only, and waits for its own text alone.
void tst_AppModelSaving::eachGetsItsOwn()
{
    ModelFixture f;
    f.services.journalPath = f.settings.filePath(u"undo"_s);
    f.relaunch();
    for (const QString& name : { u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s })
        f.folder.add(name);
    exiftool({ u"-overwrite_original"_s, u"-XMP-dc:Subject=old"_s, u"-XMP-dc:Subject=own"_s, u"-IPTC:Keywords=old"_s,
        u"-IPTC:Keywords=own"_s, f.folder.path(u"a.jpg"_s) });
    QVERIFY(QFile::setPermissions(f.folder.path(u"b.jpg"_s), QFile::ReadOwner));
    f->preferences().confirmMassEdit.set(false);
    f->preferences().saveDontAsk.set(true);
    QVERIFY(f.open());
    f->selectAllPhotos();
    const auto own = [](const QString& title) { return OwnEdits{ .scalars = { { u"title"_s, title } } }; };
    f->layEdits({ .added = { { u"keywords"_s, { u"all"_s } } },
        .removed = { { u"keywords"_s, { u"old"_s } } },
        .own = { { f.url(u"a.jpg"_s), own(u"A\nof $two lines"_s) }, { f.url(u"b.jpg"_s), own(u"B"_s) } } });
    QCOMPARE(f->unsavedCount(), 2);
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->errorMessage(), u"Could not save 1 of 3 photos: b.jpg (b.jpg is read-only.)"_s);
    const auto held = [&f](const QString& name) {
        const auto values = exiv2Values(f.url(name));
        return values.value(u"Xmp.dc.title"_s) + values.value(u"Xmp.dc.subject"_s)
            + values.value(u"Iptc.Application2.Keywords"_s);
    };
    const QStringList a{ u"lang=\"x-default\" A\nof $two lines"_s, u"all, own"_s, u"all"_s, u"own"_s };
    QCOMPARE(held(u"a.jpg"_s), a);
    QCOMPARE(held(u"c.jpg"_s), QStringList({ u"all"_s, u"all"_s }));
    QCOMPARE(held(u"b.jpg"_s), QStringList());

    QCOMPARE(f.selected(), QStringList{ u"b.jpg"_s });
    QCOMPARE(f->draftValues().value(u"title"_s), u"B"_s);
    QCOMPARE(f->unsavedCount(), 2);
    QVERIFY(QFile::setPermissions(f.folder.path(u"b.jpg"_s), QFile::ReadOwner | QFile::WriteOwner));
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->unsavedCount(), 0);
    QCOMPARE(held(u"b.jpg"_s), QStringList({ u"lang=\"x-default\" B"_s, u"all"_s, u"all"_s }));
    QCOMPARE(held(u"a.jpg"_s), a);

    for (int saves = 2; saves > 0; --saves) {
        f->undoSave();
        QVERIFY(f.waitUntilIdle());
    }
    QCOMPARE(held(u"a.jpg"_s), QStringList({ u"old, own"_s, u"old"_s, u"own"_s }));
    QCOMPARE(held(u"b.jpg"_s) + held(u"c.jpg"_s), QStringList());
}

// A save puts a new file in the old one's place, which the system takes for a birth.
void tst_AppModelSaving::savedPhotosKeepTheirPlaceInOrderOfCreation()
{
    ModelFixture f;
    for (const QString& name : { u"c.jpg"_s, u"a.jpg"_s, u"b.jpg"_s }) {
        f.addTitled({ name });
        QTest::qWait(20);
    }
    if (!QFileInfo(f.folder.path(u"a.jpg"_s)).birthTime().isValid())
        QSKIP("files have no creation date here");
    f->preferences().saveDontAsk.set(true);
    f->setSortOrder(RecordSortOrder::dateOldest);
    QVERIFY(f.open());
    const QStringList order{ u"c.jpg"_s, u"a.jpg"_s, u"b.jpg"_s };
    QCOMPARE(f.visible(), order);
    for (const QString& name : { u"c.jpg"_s, u"c.jpg"_s, u"a.jpg"_s }) {
        f.click(name);
        f->setSingle(u"title"_s, f->draftValues().value(u"title"_s) + u"+"_s);
        f->requestSave();
        QVERIFY(f.waitUntilIdle());
        QCOMPARE(f.visible(), order);
    }
    QVERIFY(QFileInfo(f.folder.path(u"c.jpg"_s)).birthTime() > QFileInfo(f.folder.path(u"b.jpg"_s)).birthTime());
    // Nor do they jump when they are read again, under another name or with the whole folder.
    exiftool({ u"-overwrite_original_in_place"_s, u"-XMP-dc:Title=elsewhere"_s, f.folder.path(u"c.jpg"_s) });
    QTRY_COMPARE_WITH_TIMEOUT(f->record(f.url(u"c.jpg"_s))->values.value(u"title"_s), u"elsewhere"_s, 30'000);
    QCOMPARE(f.visible(), order);
    f.click(u"c.jpg"_s);
    f->preferences().renamePattern.set(u"z"_s);
    f->performRename();
    QVERIFY(f.open());
    QCOMPARE(f.visible(), QStringList({ u"z.jpg"_s, u"a.jpg"_s, u"b.jpg"_s }));
    // Another photo that another program puts there is a new one.
    QVERIFY(QFile::remove(f.folder.path(u"z.jpg"_s)));
    f.addTitled({ u"z.jpg"_s });
    QTRY_COMPARE_WITH_TIMEOUT(f.visible(), QStringList({ u"a.jpg"_s, u"b.jpg"_s, u"z.jpg"_s }), 30'000);
}

void tst_AppModelSaving::companions_data()
{
    QTest::addColumn<bool>("backup");
    QTest::addColumn<bool>("sidecar");
    QTest::addColumn<QStringList>("files");
    const QStringList photos{ u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s };
    QTest::addRow("none") << false << false << photos;
    QTest::addRow("backup") << true << false << QStringList({ photos[0], u"a.jpg_original"_s, photos[1], photos[2] });
    QTest::addRow("sidecar") << false << true << QStringList({ photos[0], u"a.xmp"_s, photos[1], photos[2] });
}

void tst_AppModelSaving::companions()
{
    QFETCH(bool, backup);
    QFETCH(bool, sidecar);
    QFETCH(QStringList, files);
    GatedPhotos f;
    QVERIFY(f.open());
    f->preferences().backupOriginals.set(backup);
    f->preferences().writeSidecar.set(sidecar);
    f->preferences().saveDontAsk.set(true);
    f->setSingle(u"title"_s, u"X"_s);
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f.folder.names(), files);
}

void tst_AppModelSaving::whenToAsk_data()
{
    QTest::addColumn<bool>("several");
    QTest::addColumn<bool>("saveDontAsk");
    QTest::addColumn<bool>("confirmMassEdit");
    QTest::addColumn<bool>("dontAskSession");
    QTest::addColumn<bool>("asks");
    QTest::addRow("one photo") << false << false << true << false << true;
    QTest::addRow("one photo, do not ask") << false << true << true << false << false;
    QTest::addRow("several") << true << true << true << false << true;
    QTest::addRow("several, no confirmation") << true << false << false << false << false;
    QTest::addRow("several, not this session") << true << false << true << true << false;
}

void tst_AppModelSaving::whenToAsk()
{
    QFETCH(bool, several);
    QFETCH(bool, saveDontAsk);
    QFETCH(bool, confirmMassEdit);
    QFETCH(bool, dontAskSession);
    QFETCH(bool, asks);
    GatedPhotos f;
    f->preferences().saveDontAsk.set(saveDontAsk);
    f->preferences().confirmMassEdit.set(confirmMassEdit);
    f->setBatchDontAskSession(dontAskSession);
    QVERIFY(f.open());
    if (several)
        f.selectAB();
    f->requestSave();
    QVERIFY(!f->saveOpen() && !f->isSaving());
    several ? f->setBatch(u"title"_s, u"X"_s) : f->setSingle(u"title"_s, u"X"_s);
    f->requestSave();
    QCOMPARE(f->saveOpen(), asks);
    QCOMPARE(f->isSaving(), !asks);
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->unsavedCount(), asks ? 1 : 0);
}

void tst_AppModelSaving::secondSaveIsIgnored()
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

void tst_AppModelSaving::editsDuringASaveAreKept()
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

void tst_AppModelSaving::batchEditsDuringASaveAreKept()
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

void tst_AppModelSaving::editsOfAnotherPhotoSurviveASave()
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

void tst_AppModelSaving::clickDuringASaveWaits()
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
void tst_AppModelSaving::goesOnWhileItSaves()
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

void tst_AppModelSaving::goesOnAsAnswered_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("primary");
    QTest::addColumn<QString>("title");
    QTest::addRow("save") << u"save"_s << u"b.jpg"_s << u"X"_s;
    QTest::addRow("discard") << u"discard"_s << u"b.jpg"_s << QString();
    QTest::addRow("cancel") << u"cancel"_s << u"a.jpg"_s << QString();
}

void tst_AppModelSaving::goesOnAsAnswered()
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
    if (answer == u"save"_s)
        f->confirmSaveDialog();
    else if (answer == u"discard"_s)
        f->discardSaveDialog();
    else
        f->cancelSaveDialog();
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

void tst_AppModelSaving::failuresKeepEdits_data()
{
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<int>("signal");
    QTest::addRow("the tool refuses") << 1 << 0;
    QTest::addRow("the tool dies half-way") << 0 << 9;
}

void tst_AppModelSaving::failuresKeepEdits()
{
    QFETCH(int, exitCode);
    QFETCH(int, signal);
    FakeTool tool;
    ModelFixture f(MetadataService{ tool.runner() });
    const QUrl url = f.folder.add(u"a.jpg"_s);
    const QByteArray before = readFile(url.toLocalFile());
    QVERIFY(f.open());
    tool.answer(1, { .standardError = "half a file", .exitCode = exitCode, .signal = signal });
    f->preferences().saveDontAsk.set(true);
    f->setSingle(u"headline"_s, u"X"_s);
    const QList<CustomValue> typed{ { u"Mood"_s, u"calm"_s }, { u"Hue"_s, u"red"_s } };
    for (const CustomValue& custom : typed)
        f->addCustomField(custom.name, custom.value);
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    QVERIFY(f->errorMessage().value_or(QString()).startsWith(u"Could not save: "_s));
    QVERIFY(!f->isSaving());
    QCOMPARE(f->progress(), std::nullopt);
    QCOMPARE(f->unsavedCount(), 3);
    // Nor do rows change places under the hands of who tries again.
    QCOMPARE(f->draftCustoms(), typed);
    QCOMPARE(f->draftValues().value(u"headline"_s), u"X"_s);
    QCOMPARE(readFile(url.toLocalFile()), before);
    // Saving is possible again, and what waited for the failed save is forgotten.
    tool.answerAlways(
        { .standardOutput = toolJson({ { { u"SourceFile"_s, url.toLocalFile() }, { u"XMP:Headline"_s, u"X"_s },
              { u"XMP-Quorbel:Mood"_s, u"calm"_s }, { u"XMP-Quorbel:Hue"_s, u"red"_s } } }) });
    f->requestSave();
    QVERIFY(f->isSaving());
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->unsavedCount(), 0);
}

void tst_AppModelSaving::failedReReadKeepsEdits()
{
    FakeTool tool;
    ModelFixture f(MetadataService{ tool.runner() });
    f.folder.add(u"a.jpg"_s);
    QVERIFY(f.open());
    tool.answerAlways({ .standardError = "gone", .exitCode = 1 });
    tool.answer(1, {});
    f->preferences().saveDontAsk.set(true);
    f->setSingle(u"headline"_s, u"X"_s);
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    QVERIFY(f->errorMessage().value_or(QString()).startsWith(u"Could not read metadata: "_s));
    QVERIFY(!f->isSaving());
    QCOMPARE(f->draftValues().value(u"headline"_s), u"X"_s);
}

void tst_AppModelSaving::fullDisk()
{
    const QTemporaryDir mountPoint;
    const QByteArray path = mountPoint.path().toLocal8Bit();
    if (geteuid() != 0 || mount("tmpfs", path.constData(), "tmpfs", 0, "size=512k") != 0)
        QSKIP("mounting a small disk needs root");
    const auto unmount = qScopeGuard([&path] { umount2(path.constData(), MNT_DETACH); });
    ModelFixture f;
    const QString photo = mountPoint.filePath(u"a.jpg"_s);
    writeFile(photo, jpegBytes());
    QVERIFY(f.load({ QUrl::fromLocalFile(mountPoint.path()) }));
    QFile filler(mountPoint.filePath(u"filler"_s));
    QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (filler.write(QByteArray(4096, 'x')) > 0) { }
    const QByteArray before = readFile(photo);
    f->preferences().saveDontAsk.set(true);
    f->setSingle(u"description"_s, QString(20000, u'x'));
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    QVERIFY(f->errorMessage().value_or(QString()).startsWith(u"Could not save: "_s));
    QCOMPARE(f->unsavedCount(), 1);
    QCOMPARE(readFile(photo), before);
    // Room again: the same edit is saved.
    filler.remove();
    f->setErrorMessage({});
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->errorMessage(), std::nullopt);
    QCOMPARE(f->unsavedCount(), 0);
}

void tst_AppModelSaving::modelDestroyedDuringWrite()
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

void tst_AppModelSaving::progressCountsReplacedFiles()
{
    FakeTool tool;
    ModelFixture f(MetadataService{ tool.runner() });
    for (const QString& name : { u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s })
        f.folder.add(name);
    QVERIFY(f.open());
    f->selectAllPhotos();
    f->preferences().confirmMassEdit.set(false);
    f->setBatch(u"headline"_s, u"X"_s);
    tool.answer(1, { .holds = true });
    f->requestSave();
    QCOMPARE(f->progress(), (std::optional(Progress{ 0, 3 })));
    QTRY_COMPARE(tool.calls().size(), 3);
    for (int done = 1; done <= 2; ++done) {
        const QString target = f.folder.path(QStringList{ {}, u"b.jpg"_s, u"a.jpg"_s }.at(done));
        writeFile(target + u"_new"_s, jpegBytes());
        QCOMPARE(std::rename(qPrintable(target + u"_new"_s), qPrintable(target)), 0);
        QTRY_COMPARE(f->progress(), (std::optional(Progress{ done, 3 })));
    }
    tool.release();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->progress(), std::nullopt);
}

void tst_AppModelSaving::leaving_data()
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

void tst_AppModelSaving::leaving()
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
    if (answer == u"save")
        f->confirmSaveDialog();
    else if (answer == u"discard")
        f->discardSaveDialog();
    else
        f->cancelSaveDialog();
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

void tst_AppModelSaving::quitWaitsForASave()
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

void tst_AppModelSaving::failedSaveCancelsLeaving()
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

QTEST_GUILESS_MAIN(tst_AppModelSaving)
#include "tst_AppModelSaving.moc"
