// Opening, searching and selecting, driven as the window drives them.
#include "tests/app/model/ModelFixture.h"

#include <QRegularExpression>
#include <QTest>
#include <QThreadPool>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

// Six photos, "a.jpg" to "f.jpg", open; the first is selected.
struct SixPhotos : ModelFixture {
    SixPhotos()
    {
        for (const char name : { 'a', 'b', 'c', 'd', 'e', 'f' })
            folder.add(QChar::fromLatin1(name) + u".jpg"_s);
    }
};

// "a.jpg" is open, and the load of another folder waits for the tool.
struct HalfLoaded : GatedTool, ModelFixture {
    HalfLoaded()
        : ModelFixture(service())
    {
        folder.add(u"a.jpg"_s);
        isWaiting = open() && QDir(folder.path()).mkpath(u"other"_s);
        folder.add(u"other/b.jpg"_s);
        shut();
        model->load({ url(u"other"_s) });
        isWaiting = isWaiting && waitForRun();
    }
    bool isWaiting = false;
};

}  // namespace

class tst_AppModelLibrary : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void whatIsOpened_data();
    void whatIsOpened();
    void nothingToOpenKeepsWhatIsOpen();
    void unreadableFilesAreLeftOutAndNamed();
    void permissionDeniedIsNamed();
    void manyLeftOutFilesAreCounted();
    void nothingReadable();
    void failedReadKeepsWhatIsOpen();
    void photoDeletedDuringTheRead_data();
    void photoDeletedDuringTheRead();
    void cancelledReadIsSilent();
    void endOfAReadCanBeCancelled_data();
    void endOfAReadCanBeCancelled();
    void progressFollowsTheRead();
    void laterLoadCancelsAnEarlierOne();
    void closing();
    void search_data();
    void search();
    void clicks_data();
    void clicks();
    void clickEndsTextEditing();
    void selectAll();
    void hiddenAnchor();
    void guardAsksBeforeEditsAreLost_data();
    void guardAsksBeforeEditsAreLost();
    void observersSeeWholeChanges();
    void modelDestroyedDuringRead();
    void otherThreadsAreRefused();
    void missingTool();
};

void tst_AppModelLibrary::whatIsOpened_data()
{
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QStringList>("visible");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("watched");
    const QStringList one{ u"10.jpg"_s, u"2.JPG"_s, u".hidden.png"_s };
    QTest::addRow("one folder is watched")
        << QStringList{ u"one"_s } << QStringList{ u".hidden.png"_s, u"2.JPG"_s, u"10.jpg"_s } << u"one"_s << u"one"_s;
    QTest::addRow("a trailing slash changes nothing")
        << QStringList{ u"one/"_s } << QStringList{ u".hidden.png"_s, u"2.JPG"_s, u"10.jpg"_s } << u"one"_s
        << u"one/"_s;
    QTest::addRow("a file is not watched")
        << QStringList{ u"one/2.JPG"_s } << QStringList{ u"2.JPG"_s } << u"one"_s << QString();
    QTest::addRow("several folders: the last one's name")
        << QStringList{ u"one"_s, u"two"_s } << QStringList{ u".hidden.png"_s, u"2.JPG"_s, u"3.jpg"_s, u"10.jpg"_s }
        << u"two"_s << QString();
    QTest::addRow("folder and file") << QStringList{ u"two"_s, u"one/2.JPG"_s } << QStringList{ u"2.JPG"_s, u"3.jpg"_s }
                                     << u"two"_s << QString();
    QTest::addRow("the same photo twice is one")
        << QStringList{ u"two"_s, u"two/3.jpg"_s } << QStringList{ u"3.jpg"_s } << u"two"_s << QString();
    QTest::addRow("what does not exist is skipped")
        << QStringList{ u"nowhere.jpg"_s, u"two/3.jpg"_s } << QStringList{ u"3.jpg"_s } << u"two"_s << QString();
}

void tst_AppModelLibrary::whatIsOpened()
{
    QFETCH(QStringList, given);
    QFETCH(QStringList, visible);
    QFETCH(QString, label);
    QFETCH(QString, watched);
    ModelFixture f;
    QDir(f.folder.path()).mkpath(u"one/sub"_s);
    QDir(f.folder.path()).mkpath(u"two"_s);
    for (const QString& name :
        { u"one/10.jpg"_s, u"one/2.JPG"_s, u"one/.hidden.png"_s, u"one/sub/deep.jpg"_s, u"two/3.jpg"_s })
        f.folder.add(name);
    f.folder.add(u"one/notes.txt"_s, "text");
    QList<QUrl> urls;
    for (const QString& name : given)
        urls.append(f.url(name));
    QVERIFY(f.load(urls));
    QCOMPARE(f.visible(), visible);
    QCOMPARE(f->folderName(), label);
    QCOMPARE(f->folderURL(), watched.isEmpty() ? std::nullopt : std::optional(f.url(watched)));
    QCOMPARE(f.selected(), visible.first(1));
    QCOMPARE(f->errorMessage(), std::nullopt);
}

void tst_AppModelLibrary::nothingToOpenKeepsWhatIsOpen()
{
    SixPhotos f;
    QVERIFY(f.open());
    f.click(u"c.jpg"_s);
    const QUrl text = f.folder.add(u"notes.txt"_s, "text");
    f->load({ text });
    QVERIFY(!f->isWorking());
    QCOMPARE(f->errorMessage(), u"No supported images were found."_s);
    QCOMPARE(f.primary(), u"c.jpg"_s);
    QCOMPARE(f->folderURL(), f.folderURL());
    QCOMPARE(f->preferences().recentPaths(), QStringList{ f.folder.path() });
}

void tst_AppModelLibrary::unreadableFilesAreLeftOutAndNamed()
{
    SixPhotos f;
    f.folder.add(u"empty.jpg"_s, {});
    QVERIFY(QFile::link(f.folder.path(u"gone"_s), f.folder.path(u"link.jpg"_s)));
    QVERIFY(QDir(f.folder.path()).mkpath(u"directory.jpg"_s));
    f.folder.add(u"directory.jpg/inside.jpg"_s);
    QCOMPARE(mkfifo(f.folder.path(u"pipe.jpg"_s).toLocal8Bit().constData(), 0600), 0);
    const std::string otherEncoding = f.folder.path().toStdString() + "/d\xff.jpg";
    const auto removed = qScopeGuard([&] { std::filesystem::remove(otherEncoding); });  // Qt cannot
    std::ofstream(otherEncoding) << "a photo";
    QVERIFY(f.open());
    QCOMPARE(f->errorMessage(),
        u"3 files could not be read and were left out: d\ufffd.jpg (its name is not UTF-8), empty.jpg (empty), "
        "link.jpg (broken link)"_s);
    QCOMPARE(f.visible(), jpgs(u"abcdef"_s));
    f.folder.add(u"broken.gif"_s, "GIF\x04");
    QVERIFY(f.open());
    QCOMPARE(f->errorMessage(),
        u"4 files could not be read and were left out: d\ufffd.jpg (its name is not UTF-8), empty.jpg (empty), "
        "link.jpg (broken link), broken.gif (file format error)"_s);
    QCOMPARE(f.visible(), jpgs(u"abcdef"_s));
}

void tst_AppModelLibrary::permissionDeniedIsNamed()
{
    GatedTool tool;
    ModelFixture f(tool.service());
    f.folder.add(u"a.jpg"_s);
    const QUrl secret = f.folder.add(u"secret.jpg"_s);
    QCOMPARE(chmod(secret.toLocalFile().toLocal8Bit().constData(), 0), 0);
    if (geteuid() == 0) {
        // Nothing is denied to root: read as somebody else, who may enter the folders of this test.
        for (const QString& path : { f.folder.path(), QFileInfo(tool.service().toolURL().toLocalFile()).path() })
            std::filesystem::permissions(path.toStdString(), std::filesystem::perms(0755));
        if (setresuid(65534, 65534, 0) != 0)
            QSKIP("cannot become another user here");
    }
    const bool isRead = f.open();
    if (getuid() != 0)
        (void)!setresuid(0, 0, 0);
    QVERIFY(isRead);
    QCOMPARE(f->errorMessage(), u"1 file could not be read and was left out: secret.jpg (permission denied)"_s);
    QCOMPARE(f.visible(), QStringList{ u"a.jpg"_s });
}

void tst_AppModelLibrary::manyLeftOutFilesAreCounted()
{
    SixPhotos f;
    for (int i = 1; i <= 7; ++i)
        f.folder.add(u"x%1.jpg"_s.arg(i), {});
    QVERIFY(f.open());
    QCOMPARE(f->errorMessage(),
        u"7 files could not be read and were left out: x1.jpg (empty), x2.jpg (empty), x3.jpg (empty), "
        "x4.jpg (empty), x5.jpg (empty) and 2 more"_s);
}

void tst_AppModelLibrary::nothingReadable()
{
    SixPhotos f;
    QVERIFY(f.open());
    QVERIFY(QDir(f.folder.path()).mkpath(u"other"_s));
    const QUrl empty = f.folder.add(u"other/empty.jpg"_s, {});
    QVERIFY(f.load({ f.url(u"other"_s) }));
    QCOMPARE(f->errorMessage(), u"1 file could not be read and was left out: empty.jpg (empty)"_s);
    QCOMPARE(f->folderURL(), f.folderURL());
    QCOMPARE(f.visible(), jpgs(u"abcdef"_s));
}

void tst_AppModelLibrary::failedReadKeepsWhatIsOpen()
{
    FakeTool tool;
    tool.answerAlways({ .standardError = "no room left", .exitCode = 1 });
    SixPhotos f;
    QVERIFY(f.open());
    ModelFixture broken(MetadataService{ tool.runner() });
    broken.folder.add(u"z.jpg"_s);
    QVERIFY(broken.open());
    QVERIFY(broken->errorMessage().value_or(QString()).startsWith(u"Could not read metadata: "_s));
    QVERIFY(broken->errorMessage()->contains(u"no room left"_s));
    QVERIFY(broken->records().isEmpty());
    QCOMPARE(broken->folderURL(), std::nullopt);
}

void tst_AppModelLibrary::photoDeletedDuringTheRead_data()
{
    QTest::addColumn<QByteArray>("run");  // the one before which it goes
    QTest::addColumn<bool>("besideBroken");
    QTest::addRow("before the main run") << QByteArray("-XMP:Title") << false;
    QTest::addRow("before the run over custom fields") << QByteArray("-XMP-Quorbel:all") << false;
    QTest::addRow("while the culprit of a failed run is searched for") << QByteArray("-ExifTool:Error") << true;
    QTest::addRow("after that") << QByteArray("-XMP-Quorbel:all") << true;
}

void tst_AppModelLibrary::photoDeletedDuringTheRead()
{
    QFETCH(QByteArray, run);
    QFETCH(bool, besideBroken);
    GatedTool tool;
    ModelFixture f(tool.service());
    f.addTitled(jpgs(u"abc"_s));
    if (besideBroken)
        f.folder.add(u"broken.gif"_s, "GIF\x04");
    tool.shut(run);
    f->load({ f.folderURL() });
    QVERIFY(tool.waitForRun());
    QVERIFY(QFile::remove(f.folder.path(u"a.jpg"_s)));
    tool.release();
    QVERIFY(f.waitUntilIdle());
    // What is gone is no news; the others keep their own values.
    QCOMPARE(f->errorMessage(),
        besideBroken ? std::optional(u"1 file could not be read and was left out: broken.gif (file format error)"_s)
                     : std::nullopt);
    QCOMPARE(f.visible(), jpgs(u"bc"_s));
    for (const QString& name : jpgs(u"bc"_s))
        QCOMPARE(f->record(f.url(name))->values.value(u"title"_s), name);
}

void tst_AppModelLibrary::cancelledReadIsSilent()
{
    HalfLoaded f;
    QVERIFY(f.isWaiting);
    QCOMPARE(f->progress(), (std::optional(Progress{ 0, 1 })));
    f->cancelRead();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->errorMessage(), std::nullopt);
    QCOMPARE(f->progress(), std::nullopt);
    QCOMPARE(f.visible(), QStringList{ u"a.jpg"_s });
    QCOMPARE(f->folderURL(), f.folderURL());
}

void tst_AppModelLibrary::endOfAReadCanBeCancelled_data()
{
    QTest::addColumn<bool>("closes");
    QTest::addColumn<QStringList>("visible");
    QTest::addRow("cancel") << false << QStringList{ u"a.jpg"_s };
    QTest::addRow("close") << true << QStringList();
}

// The photos are read, and only wait to be shown.
void tst_AppModelLibrary::endOfAReadCanBeCancelled()
{
    QFETCH(bool, closes);
    HalfLoaded f;
    QVERIFY(f.isWaiting);
    f.release();
    QVERIFY(QThreadPool::globalInstance()->waitForDone(30000));
    if (closes)
        f->closeFolder();
    else
        f->cancelRead();
    QVERIFY(f.waitUntilIdle());
    QTEST(f.visible(), "visible");
    QCOMPARE(f->errorMessage(), std::nullopt);
}

void tst_AppModelLibrary::progressFollowsTheRead()
{
    FakeTool tool;
    ModelFixture f(MetadataService{ tool.runner() });
    QList<QJsonObject> objects;
    for (const QString& name : jpgs(u"abcd"_s))
        objects.append({ { u"SourceFile"_s, f.folder.add(name).toLocalFile() }, { u"File:FileType"_s, u"JPEG"_s } });
    tool.answer(1, { .standardOutput = toolJson(objects) });
    tool.answer(2, { .standardOutput = toolJson(objects.first(2)), .holds = true });
    f->load({ f.folderURL() });
    // The first of two runs is done, and half of the other.
    QTRY_COMPARE(f->progress(), (std::optional(Progress{ 3, 4 })));
    QVERIFY(f->isWorking());
    tool.release();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->progress(), std::nullopt);
}

void tst_AppModelLibrary::laterLoadCancelsAnEarlierOne()
{
    GatedTool tool;
    ModelFixture f(tool.service());
    for (const QString& name : { u"open"_s, u"slow"_s, u"fast"_s }) {
        QVERIFY(QDir(f.folder.path()).mkpath(name));
        f.folder.add(name + u"/"_s + name + u".jpg"_s);
    }
    QVERIFY(f.load({ f.url(u"open"_s) }));
    tool.shut("slow");
    f->load({ f.url(u"slow"_s) });
    QVERIFY(tool.waitForRun());
    f->load({ f.url(u"fast"_s) });
    QTRY_COMPARE(f->folderName(), u"fast"_s);
    QVERIFY(f.waitUntilIdle());
    tool.release();
    QVERIFY(QThreadPool::globalInstance()->waitForDone(30000));
    QCoreApplication::processEvents();
    QCOMPARE(f->folderName(), u"fast"_s);
    QCOMPARE(f.visible(), QStringList{ u"fast.jpg"_s });
    QCOMPARE(f->folderURL(), std::optional(f.url(u"fast"_s)));
}

void tst_AppModelLibrary::closing()
{
    SixPhotos f;
    QVERIFY(f.open());
    f->setSearch(u"c"_s);
    f->setSingle(u"title"_s, u"typed"_s);
    f->setAddOpen(true);
    f->setErrorMessage(u"kept"_s);
    f->closeFolder();
    QVERIFY(f->records().isEmpty() && f->visibleRows().isEmpty() && f->selection().isEmpty());
    QCOMPARE(f->primary(), std::nullopt);
    QCOMPARE(f->folderURL(), std::nullopt);
    QCOMPARE(f->folderName(), QString());
    QCOMPARE(f->search(), QString());
    QVERIFY(!f->addOpen() && f->draftValues().isEmpty());
    QCOMPARE(f->unsavedCount(), 0);
    QCOMPARE(f->errorMessage(), u"kept"_s);
    QCOMPARE(f->folderCountText(), u"0 photos"_s);
}

void tst_AppModelLibrary::search_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("visible");
    QTest::addRow("trimmed, any case") << u" \tBeach "_s << QStringList{ u"beach.jpg"_s, u"MyBEACH.png"_s };
    QTest::addRow("never a caption") << u"sunset"_s << QStringList();
    QTest::addRow("blanks find all") << u"  "_s << QStringList{ u"beach.jpg"_s, u"city.jpg"_s, u"MyBEACH.png"_s };
}

void tst_AppModelLibrary::search()
{
    QFETCH(QString, text);
    QFETCH(QStringList, visible);
    ModelFixture f;
    for (const QString& name : { u"beach.jpg"_s, u"MyBEACH.png"_s, u"city.jpg"_s })
        f.folder.add(name);
    exiftool({ u"-overwrite_original"_s, u"-XMP-dc:Description=sunset"_s, f.folder.path(u"city.jpg"_s) });
    QVERIFY(f.open());
    f->setSearch(text);
    QCOMPARE(f.visible(), visible);
    f->setSearch({});
    QCOMPARE(f.visible().size(), 3);
}

void tst_AppModelLibrary::clicks_data()
{
    // Clicks: a letter, behind it "+" for Shift and "*" for Command; "|" and a search text hides photos.
    QTest::addColumn<QString>("clicks");
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QString>("primary");
    QTest::addRow("plain") << u"c"_s << u"c"_s << u"c"_s;
    QTest::addRow("shift extends from the anchor") << u"b d+"_s << u"bcd"_s << u"d"_s;
    QTest::addRow("shift again, other way") << u"c e+ a+"_s << u"abc"_s << u"a"_s;
    QTest::addRow("command adds and moves the anchor") << u"b e* f+"_s << u"ef"_s << u"f"_s;
    QTest::addRow("command removes") << u"a c+ b*"_s << u"ac"_s << u"c"_s;
    QTest::addRow("command removes the primary") << u"a b* b*"_s << u"a"_s << u"a"_s;
    QTest::addRow("command removes the last of several") << u"a b* f* f*"_s << u"ab"_s << u"b"_s;
    QTest::addRow("command never empties") << u"d d*"_s << u"d"_s << u"d"_s;
    QTest::addRow("command wins over shift") << u"a d+*"_s << u"ad"_s << u"d"_s;
    QTest::addRow("shift on the anchor") << u"c c+"_s << u"c"_s << u"c"_s;
}

void tst_AppModelLibrary::clicks()
{
    QFETCH(QString, clicks);
    QFETCH(QString, selected);
    QFETCH(QString, primary);
    SixPhotos f;
    QVERIFY(f.open());
    for (const QString& click : clicks.split(u' '))
        f.click(click.first(1) + u".jpg"_s, click.contains(u'+'), click.contains(u'*'));
    QCOMPARE(f.selected(), jpgs(selected));
    QCOMPARE(f.primary(), primary + u".jpg"_s);
    const int count = int(selected.size());
    QCOMPARE(f->folderCountText(), count < 2 ? u"6 photos"_s : u"6 photos · %1 selected"_s.arg(count));
}

void tst_AppModelLibrary::clickEndsTextEditing()
{
    SixPhotos f;
    f.services.endEditing = [&f] {
        if (f->primary())
            f->setSingle(u"title"_s, u"just typed"_s);
    };
    f.relaunch();
    QVERIFY(f.open());
    f.click(u"b.jpg"_s);
    QVERIFY(f->saveOpen());
    QCOMPARE(f.primary(), u"a.jpg"_s);
}

void tst_AppModelLibrary::selectAll()
{
    SixPhotos f;
    QVERIFY(f.open());
    f.click(u"c.jpg"_s);
    f->setSearch(u"jpg"_s);
    f->selectAllPhotos();
    QCOMPARE(f.selected(), jpgs(u"abcdef"_s));
    QCOMPARE(f.primary(), u"c.jpg"_s);
    f.click(u"e.jpg"_s, true);
    QCOMPARE(f.selected(), jpgs(u"cde"_s));
    // Nobody edits a photo that is not among the selected ones.
    f.click(u"c.jpg"_s);
    f->setSearch(u"d"_s);
    f->selectAllPhotos();
    QCOMPARE(f.selected(), jpgs(u"d"_s));
    QCOMPARE(f.primary(), u"d.jpg"_s);
    f->setSearch({});
    f.click(u"b.jpg"_s, false, true);
    f->setSearch(u"b"_s);
    f.click(u"b.jpg"_s, false, true);
    QCOMPARE(f.selected(), jpgs(u"d"_s));
    QCOMPARE(f.primary(), u"d.jpg"_s);
}

void tst_AppModelLibrary::hiddenAnchor()
{
    SixPhotos f;
    f.folder.add(u"x-only.jpg"_s);
    QVERIFY(f.open());
    f.click(u"b.jpg"_s);
    f->setSearch(u"x"_s);
    f.click(u"x-only.jpg"_s, true);
    QCOMPARE(f.selected(), QStringList{ u"x-only.jpg"_s });
    f->setSearch({});
    f.click(u"f.jpg"_s, true);
    QCOMPARE(f.selected(), QStringList({ u"f.jpg"_s, u"x-only.jpg"_s }));
}

void tst_AppModelLibrary::guardAsksBeforeEditsAreLost_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("primary");
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("unsaved");
    QTest::addRow("save") << u"save"_s << u"d.jpg"_s << u"typed"_s << 0;
    QTest::addRow("discard") << u"discard"_s << u"d.jpg"_s << QString() << 0;
    QTest::addRow("cancel") << u"cancel"_s << u"a.jpg"_s << QString() << 1;
    QTest::addRow("sheet closed") << u"close"_s << u"a.jpg"_s << QString() << 1;
    QTest::addRow("never asked") << u"silent"_s << u"d.jpg"_s << u"typed"_s << 0;
}

void tst_AppModelLibrary::guardAsksBeforeEditsAreLost()
{
    QFETCH(QString, answer);
    QFETCH(QString, primary);
    QFETCH(QString, title);
    QFETCH(int, unsaved);
    SixPhotos f;
    QVERIFY(f.open());
    f->preferences().saveDontAsk.set(answer == u"silent");
    f->setSingle(u"title"_s, u"typed"_s);
    f.click(u"d.jpg"_s);
    QCOMPARE(f.primary(), u"a.jpg"_s);
    QCOMPARE(f->saveOpen(), answer != u"silent");
    f.answerSave(answer);
    // A sheet says that it closed, whatever closed it.
    f->setSaveOpen(false);
    QVERIFY(f.waitUntilIdle());
    QVERIFY(!f->saveOpen());
    QCOMPARE(f.primary(), primary);
    QCOMPARE(f.onDisk(u"a.jpg"_s, u"XMP:Title"_s).toString(), title);
    QCOMPARE(f->unsavedCount(), unsaved);
}

void tst_AppModelLibrary::observersSeeWholeChanges()
{
    SixPhotos f;
    QVERIFY(f.open());
    int looks = 0;
    const auto look = [&] {
        ++looks;
        QVERIFY(f->primary() && f->selection().contains(*f->primary()));
        QCOMPARE(f->draftValues(), f->primaryRecord()->values);
    };
    connect(f.model.get(), &AppModel::selectionChanged, this, look);
    connect(f.model.get(), &AppModel::primaryChanged, this, look);
    f->setSearch(u".jpg"_s);
    const Announcements announced(*f.model);
    f.click(u"b.jpg"_s);
    QCOMPARE(looks, 2);
    QCOMPARE(announced.counts(), (QMap<QString, int>{ { u"selectionChanged"_s, 1 }, { u"primaryChanged"_s, 1 } }));
    f.click(u"b.jpg"_s);
    f->setSearch(u".JPG"_s);
    f->setSortOrder(f->sortOrder());
    // The search text changed, what it finds did not.
    QCOMPARE(announced.counts(),
        (QMap<QString, int>{ { u"selectionChanged"_s, 1 }, { u"primaryChanged"_s, 1 }, { u"searchChanged"_s, 1 } }));
}

void tst_AppModelLibrary::modelDestroyedDuringRead()
{
    GatedTool tool;
    auto f = std::make_unique<ModelFixture>(tool.service());
    f->folder.add(u"a.jpg"_s);
    tool.shut();
    (*f)->load({ f->folderURL() });
    QVERIFY(tool.waitForRun());
    f->model.reset();
    // The read is given up, not waited for: the gate never opens for it.
    QVERIFY(QThreadPool::globalInstance()->waitForDone(30000));
    QCoreApplication::processEvents();
}

void tst_AppModelLibrary::otherThreadsAreRefused()
{
    ModelFixture f;
    const pid_t child = fork();
    QVERIFY(child >= 0);
    if (child == 0) {
        signal(SIGABRT, SIG_DFL);
        (void)!freopen("/dev/null", "w", stderr);
        (void)!freopen("/dev/null", "w", stdout);
        std::thread([&f] { f->setSearch(u"x"_s); }).join();
        _exit(0);
    }
    int status = 0;
    QCOMPARE(waitpid(child, &status, 0), child);
    QVERIFY(WIFSIGNALED(status));
    QCOMPARE(WTERMSIG(status), SIGABRT);
}

void tst_AppModelLibrary::missingTool()
{
    ModelFixture f{ std::optional<MetadataService>() };
    QCOMPARE(
        f->errorMessage(), u"ExifTool could not be found in the app bundle. Metadata cannot be read or written."_s);
    f.folder.add(u"a.jpg"_s);
    f->load({ f.folderURL() });
    QVERIFY(!f->isWorking() && !f->canRefresh());
    QVERIFY(f->records().isEmpty());
}

QTEST_GUILESS_MAIN(tst_AppModelLibrary)
#include "tst_AppModelLibrary.moc"
