// Opening a folder that takes its time: what one can do while its photos are still being read.
#include "tests/app/model/ModelFixture.h"

#include <QRegularExpression>
#include <QTest>
#include <QThreadPool>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

QStringList manyNames()
{
    QStringList names;
    for (int i = 0; i < 70; ++i)
        names.append(u"a%1%2.jpg"_s.arg(i / 10).arg(i % 10));
    return names << u"z.jpg"_s;
}

// The bytes of these photos, each with its name as its title.
QList<QByteArray> titledPhotos(const QStringList& names)
{
    ModelFixture f;
    f.addTitled(names);
    QList<QByteArray> photos;
    for (const QString& name : names)
        photos.append(readFile(f.folder.path(name)));
    return photos;
}

// "a00.jpg" to "a69.jpg", each with its name as its title: more than one read. And "z.jpg".
struct ManyPhotos : GatedTool, ModelFixture {
    ManyPhotos()
        : ModelFixture(GatedTool::service())
        , names(manyNames())
    {
        static const QList<QByteArray> photos = titledPhotos(names);
        for (qsizetype i = 0; i < names.size(); ++i)
            folder.add(names.at(i), photos.at(i));
    }

    // Opens the folder; whatever reads a photo with an "a" waits.
    bool openHalf()
    {
        shut("/a");
        model->load({ folderURL() });
        return QTest::qWaitFor([this] { return model->records().size() == 71; }, 30000) && waitForRun();
    }
    bool isRead(const QString& name) const { return !model->record(url(name))->isUnread; }
    // Selects it, and waits until it is read.
    bool reach(const QString& name)
    {
        click(name);
        return QTest::qWaitFor([this, name] { return isRead(name); }, 30000);
    }
    // Many are read at low priority, which takes its time beside other programs.
    bool finish()
    {
        release();
        return QTest::qWaitFor([this] { return !model->isWorking(); }, 120'000);
    }
    int unread() const
    {
        return int(std::count_if(model->records().cbegin(), model->records().cend(),
            [](const ImageRecord& record) { return record.isUnread; }));
    }

    QStringList names;
};

// The real tool, killed when it is given a file of this name.
class FragileTool {
public:
    explicit FragileTool(const QByteArray& name)
    {
        QByteArray script = "#!/usr/bin/perl\nkill 9, $$ if grep { /NAME/ } @ARGV;\nexec TOOL, @ARGV;\n";
        script.replace("NAME", name).replace("TOOL", toolForPerl());
        writeFile(m_directory.filePath(u"exiftool"_s), script);
    }
    MetadataService service() const
    {
        return { { QUrl::fromLocalFile(m_directory.filePath(u"exiftool"_s)), realTool().perlURL } };
    }

private:
    QTemporaryDir m_directory;
};

}  // namespace

class tst_AppModelReading : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void listedAtOnce();
    void readAsOneReadWould();
    void whatIsOpenStaysUntilThereIsMore();
    void selectedPhotoWaitsForNobody();
    void editedAndSavedWhileOthersAreRead();
    void batchWaitsForTheRest();
    void waitingSaveIsGivenUp_data();
    void waitingSaveIsGivenUp();
    void cancelAndGoOn();
    void leftAtAnyMoment_data();
    void leftAtAnyMoment();
    void photosThatCannotBeRead();
    void photoAtWhichTheToolDies();
    void toolThatAlwaysDies();
    void editsReturnToAnUnreadPhoto();
    void batchShrinksToAnUnreadPhoto();
    void changedDuringItsRead();
    void readAgain();
    void halfOfThemReadAgain();
};

void tst_AppModelReading::listedAtOnce()
{
    ManyPhotos f;
    QVERIFY(f.openHalf());
    QCOMPARE(f.visible(), f.names);
    QCOMPARE(f.primary(), u"a00.jpg"_s);
    QCOMPARE(f->folderCountText(), u"71 photos"_s);
    QCOMPARE(f->unreadSelected(), 1);
    const ImageRecord& first = *f->primaryRecord();
    QVERIFY(first.isUnread && first.fileSize && first.creationDate && first.values.isEmpty());
    QCOMPARE(first.detailLine().section(u' ', 0, 0), u"JPEG"_s);
    // Nothing can be typed into what is not there.
    f->setSingle(u"title"_s, u"typed"_s);
    f->addSingleListItem(u"keywords"_s, u"typed"_s);
    f->setCustom(u"Mood"_s, u"typed"_s);
    QCOMPARE(f->unsavedCount(), 0);
    f->setSearch(u"a1"_s);
    QCOMPARE(f.visible().size(), 10);
    f->setSearch({});
    QVERIFY(f->isWorking());
    QTRY_COMPARE(f->progress()->total, 71);
    QVERIFY(f.finish());
    QCOMPARE(f->draftValues().value(u"title"_s), u"a00.jpg"_s);
    QCOMPARE(f->unreadSelected(), 0);
    QCOMPARE(f.primary(), u"a00.jpg"_s);
}

void tst_AppModelReading::readAsOneReadWould()
{
    ManyPhotos f;
    QVERIFY(f.open());
    QList<QUrl> urls;
    for (const QString& name : f.names)
        urls.append(f.url(name));
    QCOMPARE(f->records(), MetadataService{ realTool() }.read(urls));
    QCOMPARE(f->keywordCompletions(u"x"_s, 5), QStringList());
    QCOMPARE(f->errorMessage(), std::nullopt);
}

void tst_AppModelReading::whatIsOpenStaysUntilThereIsMore()
{
    ManyPhotos f;
    QTemporaryDir other;
    f.names = { u"other.jpg"_s };
    writeFile(other.filePath(u"other.jpg"_s), jpegBytes());
    QVERIFY(f.load({ QUrl::fromLocalFile(other.path()) }));
    f.shut("a00.jpg");
    f->load({ f.folderURL() });
    QVERIFY(f.waitForRun());
    QCOMPARE(f.visible(), QStringList{ u"other.jpg"_s });
    f->setSingle(u"title"_s, u"typed"_s);
    QCOMPARE(f->unsavedCount(), 1);
    // The rest of the new folder waits; the first one is enough to ask what becomes of the edit.
    f.shut("a50.jpg");
    QVERIFY(QTest::qWaitFor(
        [&f] {
            f.release();
            f.shut("a50.jpg");
            return f->saveOpen();
        },
        30000));
    f->discardSaveDialog();
    QCOMPARE(f.primary(), u"a00.jpg"_s);
    QCOMPARE(f->draftValues().value(u"title"_s), u"a00.jpg"_s);
    QCOMPARE(f->records().size(), 71);
    QVERIFY(f.unread() > 0);
    QVERIFY(f.finish());
    QCOMPARE(f.unread(), 0);
}

void tst_AppModelReading::selectedPhotoWaitsForNobody()
{
    ManyPhotos f;
    QVERIFY(f.openHalf());
    QVERIFY(f.reach(u"z.jpg"_s));
    QCOMPARE(f->draftValues().value(u"title"_s), u"z.jpg"_s);
    QCOMPARE(f->unreadSelected(), 0);
    QCOMPARE(f.unread(), 70);
    QVERIFY(f.finish());
}

void tst_AppModelReading::editedAndSavedWhileOthersAreRead()
{
    ManyPhotos f;
    QVERIFY(f.openHalf());
    QVERIFY(f.reach(u"z.jpg"_s));
    f->setSingle(u"title"_s, u"New"_s);
    f->preferences().saveDontAsk.set(true);
    f->requestSave();
    QVERIFY(QTest::qWaitFor([&f] { return !f->isSaving() && f->unsavedCount() == 0; }, 30000));
    QCOMPARE(f.onDisk(u"z.jpg"_s, u"XMP:Title"_s).toString(), u"New"_s);
    QVERIFY(f->canUndoSave() || f.services.journalPath.isEmpty());
    f->insertRenameToken(u"%Title%"_s);
    f->preferences().renamePattern.set(u"%Title%"_s);
    f->performRename();
    QCOMPARE(f.primary(), u"New.jpg"_s);
    QCOMPARE(f.unread(), 70);
    QVERIFY(f.finish());
    QCOMPARE(f.unread(), 0);
    QCOMPARE(f->draftValues().value(u"title"_s), u"New"_s);
    QCOMPARE(f->errorMessage(), std::nullopt);
}

void tst_AppModelReading::batchWaitsForTheRest()
{
    ManyPhotos f;
    QVERIFY(f.openHalf());
    QVERIFY(f.reach(u"z.jpg"_s));
    f->selectAllPhotos();
    QCOMPARE(f->unreadSelected(), 70);
    // What is known is one photo's title.
    QCOMPARE(f->sharedValue(u"title"_s), u"z.jpg"_s);
    f->setBatch(u"creator"_s, u"Everybody"_s);
    f->addBatchListItem(u"keywords"_s, u"new"_s);
    f->setBatchDontAskSession(true);
    f->requestSave();
    QVERIFY(f->isSaving() && f->isAwaitingRecords());
    // The save goes on with its own photos, wherever the selection is by then.
    f.click(u"z.jpg"_s);
    QVERIFY(f->isAwaitingRecords());
    QVERIFY(f.finish());
    QVERIFY(QTest::qWaitFor([&f] { return !f->isSaving(); }, 60000));
    QCOMPARE(f->errorMessage(), std::nullopt);
    QCOMPARE(f->leftEdits().size(), 0);
    for (const ImageRecord& photo : f->records()) {
        QCOMPARE(photo.values.value(u"creator"_s), u"Everybody"_s);
        QCOMPARE(photo.lists.value(u"keywords"_s), QStringList{ u"new"_s });
        QCOMPARE(photo.values.value(u"title"_s), photo.fileName);
    }
}

void tst_AppModelReading::waitingSaveIsGivenUp_data()
{
    QTest::addColumn<QString>("how");
    for (const char* how : { "cancel", "close", "quit" })
        QTest::addRow("%s", how) << QString::fromLatin1(how);
}

void tst_AppModelReading::waitingSaveIsGivenUp()
{
    QFETCH(QString, how);
    ManyPhotos f;
    bool hasQuit = false;
    f.services.quit = [&hasQuit] { hasQuit = true; };
    f.services.leftEditsPath = f.settings.filePath(u"unsaved.json"_s);
    f.relaunch();
    QVERIFY(f.openHalf());
    f->selectAllPhotos();
    f->setBatch(u"title"_s, u"Mine"_s);
    f->setBatchDontAskSession(true);
    f->requestSave();
    QVERIFY(f->isAwaitingRecords());
    if (how == u"cancel")
        f->cancelRead();
    else if (how == u"close")
        f->closeFolder();
    else
        f->quitKeepingEdits();
    QVERIFY(!f->isSaving() && !f->isAwaitingRecords());
    QCOMPARE(hasQuit, how == u"quit");
    if (how == u"close") {
        QCOMPARE(f->leftEdits().size(), 1);
        QCOMPARE(f->leftEdits().constFirst().edits.subjects.size(), 71);
    } else {
        QCOMPARE(f->unsavedCount(), 1);
        QCOMPARE(f->batchValues().value(u"title"_s), u"Mine"_s);
    }
    QCOMPARE(f.onDisk(u"z.jpg"_s, u"XMP:Title"_s).toString(), u"z.jpg"_s);
    f.release();
    f->keepEdits();
    f.relaunch();
    QVERIFY(QTest::qWaitFor([&f] { return f->leftEdits().size() == 1; }, 30000));
}

void tst_AppModelReading::cancelAndGoOn()
{
    ManyPhotos f;
    QVERIFY(f.openHalf());
    f->cancelRead();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->errorMessage(), std::nullopt);
    QCOMPARE(f->records().size(), 71);
    f.release();
    // Who is looked at is read all the same; the others are not.
    QVERIFY(f.reach(u"a05.jpg"_s));
    QVERIFY(f.unread() >= 68);
    f->setSingle(u"title"_s, u"typed"_s);
    QCOMPARE(f->unsavedCount(), 1);
    f->refresh();
    QVERIFY(QTest::qWaitFor([&f] { return f.unread() == 0; }, 30000));
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->unsavedCount(), 1);
}

void tst_AppModelReading::leftAtAnyMoment_data()
{
    QTest::addColumn<QString>("how");
    for (const char* how : { "close", "another folder", "destroyed", "all gone" })
        QTest::addRow("%s", how) << QString::fromLatin1(how);
}

void tst_AppModelReading::leftAtAnyMoment()
{
    QFETCH(QString, how);
    ManyPhotos f;
    QTemporaryDir other;
    writeFile(other.filePath(u"other.jpg"_s), jpegBytes());
    QVERIFY(f.openHalf());
    QVERIFY(f.reach(u"z.jpg"_s));
    if (how == u"close") {
        f->closeFolder();
        QVERIFY(f->records().isEmpty() && !f->isWorking());
    } else if (how == u"another folder") {
        f->load({ QUrl::fromLocalFile(other.path()) });
        QVERIFY(QTest::qWaitFor([&f] { return f.visible() == QStringList{ u"other.jpg"_s }; }, 30000));
    } else if (how == u"destroyed") {
        f.model.reset();
    } else {
        for (const QString& name : f.names)
            QVERIFY(QFile::remove(f.folder.path(name)));
        QVERIFY(QTest::qWaitFor([&f] { return f->records().isEmpty(); }, 30000));
    }
    if (f.model)
        QVERIFY(f.waitUntilIdle());
    // Nobody waits for what was given up.
    QVERIFY(QThreadPool::globalInstance()->waitForDone(30000));
    QCoreApplication::processEvents();
    if (f.model) {
        QCOMPARE(f->errorMessage(), std::nullopt);
        QCOMPARE(f->records().size(), how == u"another folder" ? 1 : 0);
    }
}

void tst_AppModelReading::photosThatCannotBeRead()
{
    ManyPhotos f;
    f.folder.add(u"empty.jpg"_s, {});
    f.folder.add(u"broken.gif"_s, "GIF\x04");
    f.folder.add(u"a40b.gif"_s, "GIF\x04");
    QVERIFY(f.open());
    QCOMPARE(f.visible(), f.names);
    QCOMPARE(f.unread(), 0);
    const QString text = f->errorMessage().value_or(QString());
    QVERIFY2(text.startsWith(u"3 files could not be read and were left out: empty.jpg (empty), "), qPrintable(text));
    QVERIFY(text.contains(u"broken.gif (file format error)"_s) && text.contains(u"a40b.gif (file format error)"_s));
}

void tst_AppModelReading::photoAtWhichTheToolDies()
{
    const FragileTool tool("a33");
    ManyPhotos f;
    f.services.service = tool.service();
    f.relaunch();
    QVERIFY(f.open());
    f.names.removeOne(u"a33.jpg"_s);
    QCOMPARE(f.visible(), f.names);
    QCOMPARE(f.unread(), 0);
    QVERIFY(
        f->errorMessage().value_or(QString()).startsWith(u"1 file could not be read and was left out: a33.jpg ("_s));
}

void tst_AppModelReading::toolThatAlwaysDies()
{
    const FragileTool tool("jpg");
    ManyPhotos f;
    f.services.service = tool.service();
    f.relaunch();
    f->load({ f.folderURL() });
    QVERIFY(f.waitUntilIdle());
    QVERIFY(f->records().isEmpty());
    QCOMPARE(f->folderURL(), std::nullopt);
    QCOMPARE(f->folderName(), QString());
    QVERIFY(f->errorMessage().value_or(QString()).startsWith(u"Could not read metadata: "_s));
}

void tst_AppModelReading::editsReturnToAnUnreadPhoto()
{
    ManyPhotos f;
    f.services.leftEditsPath = f.settings.filePath(u"unsaved.json"_s);
    f.relaunch();
    QVERIFY(f.open());
    f.click(u"a05.jpg"_s);
    f->setSingle(u"title"_s, u"Mine"_s);
    f->addSingleListItem(u"keywords"_s, u"mine"_s);
    f->keepEdits();
    f.relaunch();
    QVERIFY(QTest::qWaitFor([&f] { return f->leftEdits().size() == 1; }, 30000));
    exiftool(
        { u"-overwrite_original"_s, u"-keywords=theirs"_s, u"-XMP-dc:Subject=theirs"_s, f.folder.path(u"a05.jpg"_s) });
    QVERIFY(f.openHalf());
    f->bringBack(0);
    QTRY_COMPARE(f->errorMessage(), u"The unsaved changes come back as soon as their photos are read."_s);
    f.release();
    QVERIFY(QTest::qWaitFor([&f] { return f->unsavedCount() == 2; }, 30000));
    QCOMPARE(f->errorMessage(), std::nullopt);
    QCOMPARE(f.primary(), u"a05.jpg"_s);
    QCOMPARE(f->draftLists().value(u"keywords"_s), (QStringList{ u"theirs"_s, u"mine"_s }));
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->unsavedCount(), 2);
}

void tst_AppModelReading::batchShrinksToAnUnreadPhoto()
{
    ManyPhotos f;
    exiftool({ u"-overwrite_original"_s, u"-keywords=old"_s, u"-XMP-dc:Subject=old"_s, f.folder.path(u"a05.jpg"_s) });
    QVERIFY(f.openHalf());
    f.click(u"z.jpg"_s);
    f.click(u"a05.jpg"_s, false, true);
    f->addBatchListItem(u"keywords"_s, u"new"_s);
    QVERIFY(QFile::remove(f.folder.path(u"z.jpg"_s)));
    QVERIFY(QTest::qWaitFor([&f] { return f.selected() == QStringList{ u"a05.jpg"_s }; }, 30000));
    QVERIFY(f.finish());
    // It is added to what the photo holds, which nobody knew when the batch shrank.
    QCOMPARE(f->draftLists().value(u"keywords"_s), (QStringList{ u"old"_s, u"new"_s }));
    QCOMPARE(f->unsavedCount(), 1);
}

void tst_AppModelReading::changedDuringItsRead()
{
    ManyPhotos f;
    // The second run of the read is held up: the main one has read the old title by then.
    f.shut("-XMP-Quorbel:all\n/a05.jpg");
    f->load({ f.folderURL() });
    QVERIFY(f.waitForRun());
    exiftool({ u"-overwrite_original"_s, u"-XMP-dc:Title=Theirs"_s, f.folder.path(u"a05.jpg"_s) });
    QVERIFY(f.finish());
    QCOMPARE(f->record(f.url(u"a05.jpg"_s))->values.value(u"title"_s), u"Theirs"_s);
}

void tst_AppModelReading::readAgain()
{
    ManyPhotos f;
    QVERIFY(f.open());
    f.click(u"a05.jpg"_s);
    f->setSingle(u"creator"_s, u"Mine"_s);
    f.shut();
    f->readAgain();
    QVERIFY(f.waitForRun());
    QCOMPARE(f.unread(), 0);
    QCOMPARE(f->unsavedCount(), 1);
    QVERIFY(f.finish());
    QCOMPARE(f->unreadSelected(), 0);
    QCOMPARE(f->unsavedCount(), 1);
    QCOMPARE(f.primary(), u"a05.jpg"_s);
}

// Those that were read before are not counted among those that come.
void tst_AppModelReading::halfOfThemReadAgain()
{
    ManyPhotos f;
    QVERIFY(f.openHalf());
    f->cancelRead();
    QVERIFY(f.waitUntilIdle());
    f.release();
    QVERIFY(f.reach(u"a05.jpg"_s));
    f->selectAllPhotos();
    QVERIFY(f->unreadSelected() > 60 && f->unreadSelected() == f.unread());
    f->readAgain();
    QVERIFY(QTest::qWaitFor([&f] { return f.unread() == 0; }, 30000) && f.waitUntilIdle());
    QCOMPARE(f->unreadSelected(), 0);
    QCOMPARE(f->sharedValue(u"title"_s), std::nullopt);
}

QTEST_GUILESS_MAIN(tst_AppModelReading)
#include "tst_AppModelReading.moc"
