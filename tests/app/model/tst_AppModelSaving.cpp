// Saving: what lands in the files, when the model asks before, and what becomes of the edits when a save fails.
#include "tests/app/model/GatedPhotos.h"

#include <QRegularExpression>
#include <QScopeGuard>
#include <QTest>

#include <sys/mount.h>
#include <unistd.h>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

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
    void failuresKeepEdits_data();
    void failuresKeepEdits();
    void failedReReadKeepsEdits();
    void fullDisk();
    void progressCountsReplacedFiles();
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

QTEST_GUILESS_MAIN(tst_AppModelSaving)
#include "tst_AppModelSaving.moc"
