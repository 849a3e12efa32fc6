// Edits that somebody leaves behind: under a load that arrives, by a click, by the end of the program. Nothing of them
// is lost, and all of them can be brought back.
#include "tests/app/model/ModelFixture.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

const QString keptIn = u"state/unsaved.json"_s;

// Photos a, b and c, titled with their names; what is left unsaved goes to a file soon after the last key.
struct Photos : ModelFixture {
    explicit Photos(const MetadataService& service = { realTool() })
        : ModelFixture(service)
    {
        services.leftEditsPath = settings.filePath(keptIn);
        services.keepInterval = std::chrono::milliseconds(20);
        services.quit = [this] { ++quits; };
        restart();
        addTitled(jpgs(u"abc"_s));
    }

    void restart()
    {
        relaunch();
        model->preferences().backupOriginals.set(false);
        model->preferences().confirmMassEdit.set(false);
    }

    // "a.jpg: Title | a.jpg and b.jpg: Keywords", the newest first.
    QString left() const
    {
        QStringList texts;
        for (const LeftEdits& one : model->leftEdits())
            texts.append(one.names() + u": "_s + one.fields());
        return texts.join(u" | "_s);
    }

    QString notice() const
    {
        const auto& notice = model->leftNotice();
        return notice ? u"%1 of %2"_s.arg(notice->edits).arg(notice->photos) : QString();
    }

    // What a program that is killed now would leave in the file, once it is as described.
    bool waitForFile(const QString& expected) const
    {
        const auto text = [this] {
            const auto list = LeftEditsList::fromJson(readFile(services.leftEditsPath));
            QStringList texts;
            for (const LeftEdits& one : list.value_or(QList<LeftEdits>()))
                texts.append(one.names() + u": "_s + one.fields());
            return texts.join(u" | "_s);
        };
        return QTest::qWaitFor([&] { return QFile::exists(services.leftEditsPath) && text() == expected; }, 30000);
    }

    // The program is killed and started again.
    void killAndStart()
    {
        const QByteArray text = readFile(services.leftEditsPath);
        model.reset();
        writeFile(services.leftEditsPath, text);
        restart();
    }

    int quits = 0;
};

// The same, and a second folder with a photo "other", behind a gate.
struct TwoFolders : GatedTool, Photos {
    TwoFolders()
        : Photos(service())
    {
        other.add(u"other.jpg"_s);
    }
    // The second folder is being read: its photos arrive at release().
    bool openOther()
    {
        shut(other.path().toUtf8());
        model->load({ QUrl::fromLocalFile(other.path()) });
        return waitForRun();
    }
    PhotoFolder other;
};

}  // namespace

class tst_AppModelLeaving : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void typedWhileAnotherFolderLoads_data();
    void typedWhileAnotherFolderLoads();
    void openDialogStays();
    void loadWaitsForTheSave();
    void endingGoesBeforeALoad();
    void leftAndBroughtBack_data();
    void leftAndBroughtBack();
    void vanishedPhoto();
    void someOfABatchVanish();
    void refusedWhileAnotherFolderIsOpen();
    void bringingBackLeavesOthers();
    void bringingBackTheSameField();
    void bringingBackOntoNewKeywords();
    void bringingBackShowsAddedFields();
    void renamedPhotoIsFollowed();
    void killedProgram();
    void killedDuringASave();
    void keptWhileTyping();
    void endOfTheProgram();
    void endOfTheProgramDuringASave();
    void secondProgram();
};

void tst_AppModelLeaving::typedWhileAnotherFolderLoads_data()
{
    QTest::addColumn<bool>("isBatch");
    QTest::addColumn<QString>("answer");
    for (const bool isBatch : { false, true })
        for (const QString& answer : { u"save"_s, u"discard"_s, u"cancel"_s })
            if (isSlowRun() || isBatch != (answer == u"discard"))
                QTest::addRow("%s, %s", isBatch ? "many" : "one", qPrintable(answer)) << isBatch << answer;
}

void tst_AppModelLeaving::typedWhileAnotherFolderLoads()
{
    QFETCH(bool, isBatch);
    QFETCH(QString, answer);
    TwoFolders f;
    QVERIFY(f.open());
    if (isBatch)
        f.select(u"ab"_s);
    QVERIFY(f.openOther());
    if (isBatch)
        f->setBatch(u"title"_s, u"Mine"_s);
    else
        f->setSingle(u"title"_s, u"Mine"_s);
    f.release();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f.visible(), jpgs(u"abc"_s));
    QVERIFY(f->saveOpen());
    QCOMPARE(f->unsavedCount(), 1);
    f.answerSave(answer);
    QVERIFY(f.waitUntilIdle());
    QVERIFY(!f->saveOpen());
    QCOMPARE(f->unsavedCount(), answer == u"cancel"_s ? 1 : 0);
    QCOMPARE(f.visible(), answer == u"cancel"_s ? jpgs(u"abc"_s) : QStringList{ u"other.jpg"_s });
    QCOMPARE(f.onDisk(u"a.jpg"_s, u"XMP:Title"_s).toString(), answer == u"save"_s ? u"Mine"_s : u"a.jpg"_s);
    QCOMPARE(f->leftEdits().size(), answer == u"discard"_s ? 1 : 0);
}

// The question was asked for the click on b; the answer is for the photos that arrived, too.
void tst_AppModelLeaving::openDialogStays()
{
    TwoFolders f;
    QVERIFY(f.open());
    QVERIFY(f.openOther());
    f->setSingle(u"title"_s, u"Mine"_s);
    f.click(u"b.jpg"_s);
    QVERIFY(f->saveOpen());
    const QSignalSpy dialog(f.model.get(), &AppModel::saveOpenChanged);
    f.release();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(dialog.count(), 0);
    QVERIFY(f->saveOpen());
    f->confirmSaveDialog();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f.visible(), QStringList{ u"other.jpg"_s });
    QCOMPARE(f.onDisk(u"a.jpg"_s, u"XMP:Title"_s).toString(), u"Mine"_s);
}

// A click while the arrived photos wait for the save takes nothing back: they were asked for before.
void tst_AppModelLeaving::loadWaitsForTheSave()
{
    TwoFolders f;
    f->preferences().saveDontAsk.set(true);
    QVERIFY(f.open());
    QVERIFY(f.openOther());
    f->setSingle(u"title"_s, u"Mine"_s);
    f.release();
    QVERIFY(QTest::qWaitFor([&f] { return f->isSaving(); }, 30000));
    f.click(u"b.jpg"_s);
    f.click(u"a.jpg"_s);
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f.visible(), QStringList{ u"other.jpg"_s });
    QVERIFY(!f->saveOpen());
    QCOMPARE(f.onDisk(u"a.jpg"_s, u"XMP:Title"_s).toString(), u"Mine"_s);
}

void tst_AppModelLeaving::endingGoesBeforeALoad()
{
    TwoFolders f;
    QVERIFY(f.open());
    QVERIFY(f.openOther());
    f->setSingle(u"title"_s, u"Mine"_s);
    f->requestQuit();
    f.release();
    QVERIFY(f.waitUntilIdle());
    f->discardSaveDialog();
    QCOMPARE(f.quits, 1);
    QCOMPARE(f.visible(), jpgs(u"abc"_s));
}

void tst_AppModelLeaving::leftAndBroughtBack_data()
{
    QTest::addColumn<QString>("selected");
    QTest::addColumn<std::function<void(Photos&)>>("leave");
    using Leave = std::function<void(Photos&)>;
    QTest::newRow("a click") << u"ab"_s << Leave([](Photos& f) { f.click(u"c.jpg"_s); });
    QTest::newRow("a click on the primary") << u"ab"_s << Leave([](Photos& f) { f.click(u"b.jpg"_s); });
    QTest::newRow("select all") << u"ab"_s << Leave([](Photos& f) { f->selectAllPhotos(); });
    QTest::newRow("select all, of one") << u"a"_s << Leave([](Photos& f) { f->selectAllPhotos(); });
    QTest::newRow("the only one again") << u"a"_s << Leave([](Photos& f) { f.click(u"a.jpg"_s, false, true); });
    QTest::newRow("Don't Save") << u"a"_s << Leave([](Photos& f) {
        f.click(u"b.jpg"_s);
        f->discardSaveDialog();
    });
    QTest::newRow("closed") << u"ab"_s << Leave([](Photos& f) { f->closeFolder(); });
    QTest::newRow("a search hides them") << u"ab"_s << Leave([](Photos& f) {
        f.click(u"c.jpg"_s);
        f->setSearch(u"c.jpg"_s);
    });
}

void tst_AppModelLeaving::leftAndBroughtBack()
{
    QFETCH(QString, selected);
    QFETCH(std::function<void(Photos&)>, leave);
    Photos f;
    QVERIFY(f.open());
    f.select(selected);
    QCOMPARE(f.left(), QString());
    const bool isBatch = selected.size() > 1;
    if (isBatch) {
        f->setBatch(u"title"_s, u"Mine"_s);
        f->addBatchListItem(u"keywords"_s, u"k"_s);
    } else {
        f->setSingle(u"title"_s, u"Mine"_s);
        f->addSingleListItem(u"keywords"_s, u"k"_s);
    }
    leave(f);
    QCOMPARE(f->unsavedCount(), 0);
    QVERIFY(!f->saveOpen());
    QCOMPARE(f.left(), (isBatch ? u"a.jpg and b.jpg"_s : u"a.jpg"_s) + u": Title and Keywords"_s);
    QCOMPARE(f.notice(), u"2 of %1"_s.arg(selected.size()));

    f->bringBack(0);
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f.selected(), jpgs(selected));
    QCOMPARE(f.primary(), u"a.jpg"_s);
    QCOMPARE(f.visible(), jpgs(u"abc"_s));
    QCOMPARE(f->unsavedCount(), 2);
    QCOMPARE(isBatch ? f->batchValues().value(u"title"_s) : f->draftValues().value(u"title"_s), u"Mine"_s);
    QCOMPARE(isBatch ? f->batchLists().value(u"keywords"_s) : f->draftLists().value(u"keywords"_s), { u"k"_s });
    QCOMPARE(f.left(), QString());
    QCOMPARE(f.notice(), QString());
}

void tst_AppModelLeaving::vanishedPhoto()
{
    Photos f;
    QVERIFY(f.open());
    f->setSingle(u"title"_s, u"Mine"_s);
    QVERIFY(QFile::rename(f.folder.path(u"a.jpg"_s), f.settings.filePath(u"away.jpg"_s)));
    QVERIFY(QTest::qWaitFor([&f] { return f.visible() == jpgs(u"bc"_s); }, 30000));
    QCOMPARE(f->errorMessage(),
        u"“a.jpg” was removed by another program. Its unsaved changes are kept: Edit ▸ Bring Back Edits."_s);
    QCOMPARE(f.left(), u"a.jpg: Title"_s);
    // Of a photo that is gone nothing can be brought back, and nothing is lost by trying.
    f->bringBack(0);
    QCOMPARE(f->errorMessage(), u"a.jpg could no longer be found. The unsaved changes are kept."_s);
    QCOMPARE(f.left(), u"a.jpg: Title"_s);
    QVERIFY(QFile::rename(f.settings.filePath(u"away.jpg"_s), f.folder.path(u"a.jpg"_s)));
    QVERIFY(QTest::qWaitFor([&f] { return f.visible() == jpgs(u"abc"_s); }, 30000));
    QCOMPARE(f->unsavedCount(), 0);
    f->bringBack(0);
    QCOMPARE(f.primary(), u"a.jpg"_s);
    QCOMPARE(f->draftValues().value(u"title"_s), u"Mine"_s);
}

void tst_AppModelLeaving::someOfABatchVanish()
{
    Photos f;
    QVERIFY(f.open());
    f.select(u"abc"_s);
    f->setBatch(u"title"_s, u"Mine"_s);
    QVERIFY(QFile::remove(f.folder.path(u"b.jpg"_s)));
    QVERIFY(QTest::qWaitFor([&f] { return f.visible() == jpgs(u"ac"_s); }, 30000));
    QCOMPARE(f->batchValues().value(u"title"_s), u"Mine"_s);
    QCOMPARE(f.left(), u"b.jpg: Title"_s);
    // Both are left behind now; what cannot be found stays so.
    f.click(u"a.jpg"_s);
    QCOMPARE(f.left(), u"a.jpg and c.jpg: Title | b.jpg: Title"_s);
    QVERIFY(QFile::remove(f.folder.path(u"c.jpg"_s)));
    QVERIFY(QTest::qWaitFor([&f] { return f.visible() == jpgs(u"a"_s); }, 30000));
    f->bringBack(0);
    QCOMPARE(f.selected(), jpgs(u"a"_s));
    QCOMPARE(f->draftValues().value(u"title"_s), u"Mine"_s);
    QCOMPARE(f->errorMessage(), u"Not here any more: c.jpg. The unsaved changes are kept."_s);
    QCOMPARE(f.left(), u"c.jpg: Title | b.jpg: Title"_s);
}

void tst_AppModelLeaving::refusedWhileAnotherFolderIsOpen()
{
    TwoFolders f;
    f.folder.add(u"d.jpg"_s, "no photo\n");
    QVERIFY(f.open());
    f.select(u"ad"_s);
    f->setBatch(u"title"_s, u"Mine"_s);
    f.shut("Mine");
    f->requestSave();
    QVERIFY(f.waitForRun());
    f.click(u"b.jpg"_s);
    QCOMPARE(f.left(), QString());  // not left: being saved
    f->load({ QUrl::fromLocalFile(f.other.path()) });
    QVERIFY(QTest::qWaitFor([&f] { return f.visible() == QStringList{ u"other.jpg"_s }; }, 30000));
    f.release();
    QVERIFY(f.waitUntilIdle());
    QVERIFY(f->errorMessage());
    QCOMPARE(f.left(), u"d.jpg: Title"_s);
    f->bringBack(0);
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f.selected(), jpgs(u"d"_s));
    QCOMPARE(f->draftValues().value(u"title"_s), u"Mine"_s);
}

void tst_AppModelLeaving::bringingBackLeavesOthers()
{
    Photos f;
    QVERIFY(f.open());
    f.select(u"ab"_s);
    f->setBatch(u"title"_s, u"First"_s);
    f.click(u"c.jpg"_s);
    f->setSingle(u"creator"_s, u"Second"_s);
    QCOMPARE(f.notice(), QString());  // said once
    f->bringBack(0);
    QCOMPARE(f.selected(), jpgs(u"ab"_s));
    QVERIFY(!f->saveOpen());
    QCOMPARE(f.left(), u"c.jpg: Creator"_s);
    f->bringBack(0);
    QCOMPARE(f->draftValues().value(u"creator"_s), u"Second"_s);
    QCOMPARE(f.left(), u"a.jpg and b.jpg: Title"_s);
}

void tst_AppModelLeaving::bringingBackTheSameField()
{
    Photos f;
    QVERIFY(f.open());
    f->setSingle(u"title"_s, u"First"_s);
    f.click(u"b.jpg"_s);
    f->discardSaveDialog();
    f.click(u"a.jpg"_s);
    f->setSingle(u"creator"_s, u"Ana"_s);
    f->bringBack(0);
    QCOMPARE(f.left(), QString());
    QCOMPARE(f->draftValues().value(u"title"_s), u"First"_s);
    QCOMPARE(f->draftValues().value(u"creator"_s), u"Ana"_s);
    f.click(u"b.jpg"_s);
    f->discardSaveDialog();
    f.click(u"a.jpg"_s);
    f->setSingle(u"title"_s, u"Second"_s);
    f->bringBack(0);
    QCOMPARE(f->draftValues().value(u"title"_s), u"First"_s);
    QCOMPARE(f.left(), u"a.jpg: Title"_s);
    QCOMPARE(f->leftEdits().constFirst().edits.scalars.value(u"title"_s), u"Second"_s);
}

// A keyword that was saved meanwhile is not taken away by a draft from before.
void tst_AppModelLeaving::bringingBackOntoNewKeywords()
{
    Photos f;
    QVERIFY(f.open());
    f->addSingleListItem(u"keywords"_s, u"mine"_s);
    f.click(u"b.jpg"_s);
    f->discardSaveDialog();
    f.select(u"ab"_s);
    f->addBatchListItem(u"keywords"_s, u"batch"_s);
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    f->bringBack(0);
    QCOMPARE(f->draftLists().value(u"keywords"_s), (QStringList{ u"batch"_s, u"mine"_s }));
    f->preferences().saveDontAsk.set(true);
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f.onDisk(u"a.jpg"_s, u"XMP:Subject"_s).toVariant().toStringList(), (QStringList{ u"batch"_s, u"mine"_s }));
}

void tst_AppModelLeaving::bringingBackShowsAddedFields()
{
    Photos f;
    QVERIFY(f.open());
    f.select(u"ab"_s);
    f->addKnownField(u"headline"_s);
    f->setBatch(u"headline"_s, u"H"_s);
    f->addCustomField(u"Film"_s, u"HP5"_s);
    f.click(u"c.jpg"_s);
    QVERIFY(!f->visibleFieldIDs(FieldSchema::spec(u"headline"_s)->section).contains(u"headline"_s));
    f->bringBack(0);
    QVERIFY(f->visibleFieldIDs(FieldSchema::spec(u"headline"_s)->section).contains(u"headline"_s));
    QCOMPARE(f->visibleCustomFields(), (QList<CustomValue>{ { u"Film"_s, u"HP5"_s } }));
}

void tst_AppModelLeaving::renamedPhotoIsFollowed()
{
    Photos f;
    QVERIFY(f.open());
    f.select(u"ab"_s);
    f->setBatch(u"title"_s, u"Mine"_s);
    f.click(u"a.jpg"_s);
    f->preferences().renamePattern.set(u"new"_s);
    f->performRename();
    QCOMPARE(f.left(), u"new.jpg and b.jpg: Title"_s);
    f->bringBack(0);
    QCOMPARE(f.selected(), (QStringList{ u"b.jpg"_s, u"new.jpg"_s }));
}

// What stood and what had been left: all is offered at the next start, and opens its folder.
void tst_AppModelLeaving::killedProgram()
{
    Photos f;
    QVERIFY(f.open());
    f.select(u"ab"_s);
    f->setBatch(u"title"_s, u"Mine"_s);
    f.click(u"c.jpg"_s);
    f->setSingle(u"creator"_s, u"Ana"_s);
    QVERIFY(f.waitForFile(u"c.jpg: Creator | a.jpg and b.jpg: Title"_s));
    f.killAndStart();
    QVERIFY(QTest::qWaitFor([&f] { return !f->leftEdits().isEmpty(); }, 30000));
    QCOMPARE(f.left(), u"c.jpg: Creator | a.jpg and b.jpg: Title"_s);
    QCOMPARE(f.notice(), u"1 of 1"_s);
    f->bringBack(1);
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f.selected(), jpgs(u"ab"_s));
    QCOMPARE(f->folderURL(), f.folderURL());
    QCOMPARE(f->batchValues().value(u"title"_s), u"Mine"_s);
    QCOMPARE(f.left(), u"c.jpg: Creator"_s);
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    QVERIFY(f.waitForFile(u"c.jpg: Creator"_s));
}

void tst_AppModelLeaving::killedDuringASave()
{
    TwoFolders f;
    QVERIFY(f.open());
    f.select(u"ab"_s);
    f->setBatch(u"title"_s, u"Mine"_s);
    f.shut("Mine");
    f->requestSave();
    QVERIFY(f.waitForRun());
    f.click(u"c.jpg"_s);
    f->setSingle(u"creator"_s, u"Ana"_s);
    QVERIFY(f.waitForFile(u"c.jpg: Creator | a.jpg and b.jpg: Title"_s));
    f.release();
    QVERIFY(f.waitUntilIdle());
    QVERIFY(f.waitForFile(u"c.jpg: Creator"_s));
}

// The file follows the keys, and is not there when there is nothing to keep.
void tst_AppModelLeaving::keptWhileTyping()
{
    Photos f;
    QVERIFY(f.open());
    f->setSingle(u"title"_s, u"Mi"_s);
    QVERIFY(f.waitForFile(u"a.jpg: Title"_s));
    f->setSingle(u"title"_s, u"Mine"_s);
    const auto storedTitle = [&f] {
        const auto list = LeftEditsList::fromJson(readFile(f.services.leftEditsPath));
        return list && !list->isEmpty() ? list->constFirst().edits.scalars.value(u"title"_s) : QString();
    };
    QVERIFY(QTest::qWaitFor([&] { return storedTitle() == u"Mine"_s; }, 30000));
    f->preferences().saveDontAsk.set(true);
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    QVERIFY(QTest::qWaitFor([&f] { return !QFile::exists(f.services.leftEditsPath); }, 30000));
}

void tst_AppModelLeaving::endOfTheProgram()
{
    Photos f;
    f.services.keepInterval = std::chrono::hours(1);
    f.restart();
    QVERIFY(f.open());
    f->setSingle(u"title"_s, u"Mine"_s);
    f->quitKeepingEdits();
    QCOMPARE(f.quits, 1);
    QVERIFY(!f->saveOpen());
    QVERIFY(f.waitForFile(u"a.jpg: Title"_s));
    QCOMPARE(f.onDisk(u"a.jpg"_s, u"XMP:Title"_s).toString(), u"a.jpg"_s);
    // What is discarded when quitting can be brought back after the next start, too.
    f.restart();
    QVERIFY(f.open());
    f.click(u"b.jpg"_s);
    f->setSingle(u"creator"_s, u"Ana"_s);
    f->requestQuit();
    f->discardSaveDialog();
    QCOMPARE(f.quits, 2);
    QVERIFY(f.waitForFile(u"b.jpg: Creator | a.jpg: Title"_s));
}

void tst_AppModelLeaving::endOfTheProgramDuringASave()
{
    TwoFolders f;
    f->preferences().saveDontAsk.set(true);
    QVERIFY(f.open());
    f->setSingle(u"title"_s, u"Mine"_s);
    f.shut("Mine");
    f->requestSave();
    QVERIFY(f.waitForRun());
    f->setSingle(u"creator"_s, u"Ana"_s);
    f->quitKeepingEdits();
    QCOMPARE(f.quits, 0);
    QVERIFY(f.waitForFile(u"a.jpg: Title and Creator"_s));
    f.release();
    QVERIFY(QTest::qWaitFor([&f] { return f.quits == 1; }, 30000));
    QVERIFY(f.waitForFile(u"a.jpg: Creator"_s));
    QCOMPARE(f.onDisk(u"a.jpg"_s, u"XMP:Title"_s).toString(), u"Mine"_s);
}

void tst_AppModelLeaving::secondProgram()
{
    Photos f;
    QVERIFY(f.open());
    f->setSingle(u"title"_s, u"First"_s);
    QVERIFY(f.waitForFile(u"a.jpg: Title"_s));
    {
        AppModel second(f.services);
        second.load({ f.folderURL() });
        QVERIFY(QTest::qWaitFor([&second] { return !second.isWorking(); }, 30000));
        second.tap(f.url(u"b.jpg"_s), false, false);
        second.setSingle(u"creator"_s, u"Second"_s);
        second.quitKeepingEdits();
    }
    QVERIFY(f.waitForFile(u"a.jpg: Title"_s));
    f->quitKeepingEdits();
    f.restart();
    QVERIFY(QTest::qWaitFor([&f] { return f->leftEdits().size() == 2; }, 30000));
    QCOMPARE(f.left(), u"a.jpg: Title | b.jpg: Creator"_s);
}

QTEST_GUILESS_MAIN(tst_AppModelLeaving)
#include "tst_AppModelLeaving.moc"
