// What a save proves to the user: values that read back differently, photos of a batch that failed, edits that go back
// to them, and files that stall a read.
#include "tests/app/model/ModelFixture.h"

#include <QRegularExpression>
#include <QTest>
#include <QThreadPool>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

// Photos "a", "b" and "c" before a tool that claims to have written and reads nothing back.
struct ForgetfulPhotos : FakeTool, ModelFixture {
    ForgetfulPhotos()
        : ModelFixture(MetadataService{ runner() })
    {
        for (const QString& name : { u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s })
            folder.add(name);
        model->preferences().saveDontAsk.set(true);
        model->preferences().confirmMassEdit.set(false);
    }
};

// Photos "a" and "c", and texts with the names of photos; all are open and selected.
struct MixedPhotos : ModelFixture {
    explicit MixedPhotos(const QStringList& texts)
    {
        for (const QString& name : { u"a.jpg"_s, u"c.jpg"_s })
            folder.add(name);
        for (const QString& name : texts)
            folder.add(name, "a text\n");
        model->preferences().confirmMassEdit.set(false);
        model->preferences().saveDontAsk.set(true);
        model->preferences().backupOriginals.set(false);
    }
};

// The real tool; while it stalls, for ever busy with reading a photo "b.jpg".
class StallingTool {
public:
    StallingTool()
    {
        QByteArray script = R"perl(#!/usr/bin/perl
my ($dir) = $0 =~ m{^(.*)/};
my ($photo) = grep { m{/b\.jpg$} } @ARGV;
if ($photo and -e "$dir/stall" and not grep { $_ eq '-m' } @ARGV) {
    open my $open, '<', $photo;
    open my $mark, '>', "$dir/stalling";
    sleep 600;
}
exec TOOL, @ARGV;
)perl";
        script.replace("TOOL", toolForPerl());
        m_folder.add(u"exiftool"_s, script);
    }
    MetadataService service() const { return { { m_folder.url(u"exiftool"_s), realTool().perlURL } }; }
    void stall(bool on) const
    {
        if (on)
            m_folder.add(u"stall"_s, {});
        else
            QFile::remove(m_folder.path(u"stall"_s));
    }
    bool isStalling() const { return QFile::exists(m_folder.path(u"stalling"_s)); }

private:
    PhotoFolder m_folder;
};

// Photos "a", "b" and "c" before a tool that may stall at "b".
struct StallingPhotos : StallingTool, ModelFixture {
    StallingPhotos()
        : ModelFixture(service())
    {
        for (const QString& name : { u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s })
            folder.add(name);
        services.stallInterval = std::chrono::milliseconds(200);
        relaunch();
        model->preferences().confirmMassEdit.set(false);
        model->preferences().saveDontAsk.set(true);
        model->preferences().backupOriginals.set(false);
    }
    // Waits for the offer to skip "b", and takes it.
    bool skipStalled() const
    {
        const bool isOffered = QTest::qWaitFor([this] { return model->stalledFile() == u"b.jpg"_s; }, 30000);
        model->skipStalledFile();
        return isOffered;
    }
};

}  // namespace

class tst_AppModelSafety : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void valueThatCannotBeHeld();
    void differencesOfOnePhoto();
    void differencesOfABatch();
    void differencesAfterAnotherSelection();
    void partialBatch_data();
    void partialBatch();
    void partialBatchIsTriedAgain();
    void refusedBatchGoesBack_data();
    void refusedBatchGoesBack();
    void partialBatchUnderADraft_data();
    void partialBatchUnderADraft();
    void stalledFileIsSkipped();
    void stalledReReadOfASaveIsSkipped();
    void stalledRefreshIsSkipped();
    void quitEndsARead();
};

void tst_AppModelSafety::valueThatCannotBeHeld()
{
    ModelFixture f;
    f.folder.add(u"a.jpg"_s);
    QVERIFY(f.open());
    f->preferences().saveDontAsk.set(true);
    f->setSingle(u"title"_s, u"X"_s);
    f->setSingle(u"coords"_s, u"behind the church"_s);
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->errorMessage(), u"Saved, but 1 field reads back differently: Coordinates"_s);
    QCOMPARE(f->editedSingle(), QSet<QString>{ u"coords"_s });
    QCOMPARE(f->draftValues().value(u"coords"_s), u"behind the church"_s);
    QCOMPARE(f.onDisk(u"a.jpg"_s, u"XMP:Title"_s), QJsonValue(u"X"_s));
}

void tst_AppModelSafety::differencesOfOnePhoto()
{
    ForgetfulPhotos f;
    QVERIFY(f.open());
    f->setSingle(u"title"_s, u"X"_s);
    f->addSingleListItem(u"keywords"_s, u"sky"_s);
    f->addCustomField(u"Mood"_s, u"calm"_s);
    f.click(u"b.jpg"_s);
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->errorMessage(), u"Nothing was written: Title, Keywords, Mood"_s);
    // The click that waited for the save does not leave the edits behind.
    QCOMPARE(f.primary(), u"a.jpg"_s);
    QCOMPARE(f->unsavedCount(), 3);
    QCOMPARE(f->draftLists().value(u"keywords"_s), QStringList{ u"sky"_s });
    QCOMPARE(f->draftCustoms(), (QList<CustomValue>{ { u"Mood"_s, u"calm"_s } }));
    // The next attempt to leave asks, though saves go without asking: there must be a way to discard.
    f.click(u"b.jpg"_s);
    QVERIFY(f->saveOpen() && !f->isSaving());
    f->discardSaveDialog();
    QCOMPARE(f.primary(), u"b.jpg"_s);
}

void tst_AppModelSafety::differencesOfABatch()
{
    ForgetfulPhotos f;
    QVERIFY(f.open());
    f->selectAllPhotos();
    f->setBatch(u"title"_s, u"X"_s);
    f->setBatch(u"headline"_s, u"Y"_s);
    f->addBatchListItem(u"keywords"_s, u"sky"_s);
    // All photos hold the headline afterwards, and one of them does not hold the title.
    QList<QJsonObject> objects;
    for (const QString& name : { u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s })
        objects.append({ { u"SourceFile"_s, f.folder.path(name) }, { u"XMP:Headline"_s, u"Y"_s },
            { u"XMP:Subject"_s, u"sky"_s }, { u"XMP:Title"_s, name == u"b.jpg" ? u"x"_s : u"X"_s } });
    // The look at all homes runs beside the two reads, and makes nothing of such an answer.
    for (const int run : { 3, 4, 5 })
        f.answer(run, { .standardOutput = toolJson(objects) });
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->errorMessage(), u"Nothing was written: Title"_s);
    QCOMPARE(f->batchInclude(), QSet<QString>{ u"title"_s });
    QCOMPARE(f->batchValues(), (QMap<QString, QString>{ { u"title"_s, u"X"_s } }));
    QVERIFY(f->nonEmptyBatchLists().isEmpty());
    QCOMPARE(f->record(f.url(u"b.jpg"_s))->values.value(u"title"_s), u"x"_s);
}

void tst_AppModelSafety::differencesAfterAnotherSelection()
{
    ForgetfulPhotos f;
    QVERIFY(f.open());
    f.click(u"a.jpg"_s);
    f.click(u"b.jpg"_s, false, true);
    f->setBatch(u"title"_s, u"X"_s);
    f.answer(1, { .holds = true });
    f->requestSave();
    QTRY_COMPARE(f.calls().size(), 3);
    f.click(u"c.jpg"_s);
    QCOMPARE(f.selected(), QStringList{ u"c.jpg"_s });
    f.release();
    QVERIFY(f.waitUntilIdle());
    // Nothing is being edited there, so the photos whose edits are unsaved come back, with them.
    QCOMPARE(f.selected(), QStringList({ u"a.jpg"_s, u"b.jpg"_s }));
    QCOMPARE(f->batchValues(), (QMap<QString, QString>{ { u"title"_s, u"X"_s } }));
    QCOMPARE(f->unsavedCount(), 1);
}

void tst_AppModelSafety::partialBatch_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QString>("banner");
    const QString reason = u" (Not a valid JPG (looks more like a TXT))"_s;
    QTest::addRow("one fails") << QStringList{ u"b.jpg"_s } << u"Could not save 1 of 3 photos: b.jpg"_s + reason;
    QTest::addRow("six fail") << QStringList{
        u"1.jpg"_s, u"2.jpg"_s, u"3.jpg"_s, u"4.jpg"_s, u"5.jpg"_s, u"6.jpg"_s
    } << u"Could not save 6 of 8 photos: 1.jpg%1, 2.jpg%1, 3.jpg%1, 4.jpg%1, 5.jpg%1 and 1 more"_s.arg(reason);
}

void tst_AppModelSafety::partialBatch()
{
    QFETCH(QStringList, texts);
    QFETCH(QString, banner);
    MixedPhotos f(texts);
    QVERIFY(f.open());
    f->selectAllPhotos();
    f->setBatch(u"title"_s, u"X"_s);
    f->addBatchListItem(u"keywords"_s, u"sky"_s);
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->errorMessage(), banner);
    QCOMPARE(f.selected(), texts);
    QCOMPARE(f->unsavedCount(), 2);
    for (const QString& name : { u"a.jpg"_s, u"c.jpg"_s }) {
        QCOMPARE(f.onDisk(name, u"XMP:Title"_s), QJsonValue(u"X"_s));
        QCOMPARE(f->record(f.url(name))->values.value(u"title"_s), u"X"_s);
    }
    for (const QString& name : texts)
        QCOMPARE(readFile(f.folder.path(name)), QByteArray("a text\n"));
}

void tst_AppModelSafety::partialBatchIsTriedAgain()
{
    MixedPhotos f({ u"b.jpg"_s, u"d.jpg"_s });
    QVERIFY(f.open());
    f->selectAllPhotos();
    f->setBatch(u"title"_s, u"X"_s);
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f.selected(), QStringList({ u"b.jpg"_s, u"d.jpg"_s }));
    QVERIFY(f->errorMessage().value_or(QString()).contains(u"2 of 4 photos: b.jpg (Not a valid JPG"_s));
    const QByteArray saved = readFile(f.folder.path(u"a.jpg"_s));
    f.folder.add(u"b.jpg"_s, jpegBytes());
    f.folder.add(u"d.jpg"_s, jpegBytes());
    f->setErrorMessage({});
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->errorMessage(), std::nullopt);
    QCOMPARE(f->unsavedCount(), 0);
    QCOMPARE(f.onDisk(u"d.jpg"_s, u"XMP:Title"_s), QJsonValue(u"X"_s));
    QCOMPARE(readFile(f.folder.path(u"a.jpg"_s)), saved);
}

void tst_AppModelSafety::refusedBatchGoesBack_data()
{
    QTest::addColumn<bool>("typesMeanwhile");
    QTest::addRow("nothing else is edited: at once") << false;
    QTest::addRow("something else is edited: when they are selected again") << true;
}

// The whole save is refused, because one of two photos is read-only, when the user is at a third one already.
void tst_AppModelSafety::refusedBatchGoesBack()
{
    QFETCH(bool, typesMeanwhile);
    ModelFixture f;
    for (const QString& name : { u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s })
        f.folder.add(name);
    QVERIFY(QFile::setPermissions(f.folder.path(u"b.jpg"_s), QFile::ReadOwner));
    f->preferences().confirmMassEdit.set(false);
    QVERIFY(f.open());
    f.click(u"b.jpg"_s, false, true);
    f->setBatch(u"title"_s, u"X"_s);
    f->addBatchListItem(u"keywords"_s, u"sky"_s);
    f->requestSave();
    f.click(u"c.jpg"_s);
    if (typesMeanwhile)
        f->setSingle(u"headline"_s, u"typed"_s);
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->errorMessage(), u"Could not save: 1 of 2 photos is read-only: b.jpg; nothing was written."_s);
    if (typesMeanwhile) {
        QCOMPARE(f.selected(), QStringList{ u"c.jpg"_s });
        QCOMPARE(f->editedSingle(), QSet<QString>{ u"headline"_s });
        f->discardSaveDialog();
        f.click(u"b.jpg"_s);
        QCOMPARE(f->unsavedCount(), 0);
        f.click(u"a.jpg"_s, false, true);
    }
    QCOMPARE(f.selected(), QStringList({ u"a.jpg"_s, u"b.jpg"_s }));
    QCOMPARE(f->batchValues(), (QMap<QString, QString>{ { u"title"_s, u"X"_s } }));
    QCOMPARE(f->nonEmptyBatchLists(), (QMap<QString, QStringList>{ { u"keywords"_s, { u"sky"_s } } }));
    QVERIFY(QFile::setPermissions(f.folder.path(u"b.jpg"_s), QFile::ReadOwner | QFile::WriteOwner));
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->unsavedCount(), 0);
    QCOMPARE(f.onDisk(u"b.jpg"_s, u"XMP:Title"_s), QJsonValue(u"X"_s));
}

// One of three photos is refused while the user edits it, or one that was saved, on its own.
void tst_AppModelSafety::partialBatchUnderADraft_data()
{
    QTest::addColumn<QString>("clicked");
    QTest::addColumn<QStringList>("edited");
    QTest::addRow("of a saved photo") << u"a.jpg"_s << QStringList{ u"title"_s };
    QTest::addRow("of the refused photo") << u"b.jpg"_s << QStringList({ u"keywords"_s, u"title"_s });
}

void tst_AppModelSafety::partialBatchUnderADraft()
{
    QFETCH(QString, clicked);
    QFETCH(QStringList, edited);
    MixedPhotos f({ u"b.jpg"_s });
    QVERIFY(f.open());
    f->selectAllPhotos();
    f->addBatchListItem(u"keywords"_s, u"batch"_s);
    f->requestSave();
    f.click(clicked);
    f->setSingle(u"title"_s, u"typed"_s);
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f.selected(), QStringList{ clicked });
    QCOMPARE(f->draftValues().value(u"title"_s), u"typed"_s);
    QCOMPARE(f->editedSingle(), QSet<QString>(edited.cbegin(), edited.cend()));
    // Saved or not: what one adds now joins the keyword and does not take its place.
    QCOMPARE(f->draftLists().value(u"keywords"_s), QStringList{ u"batch"_s });
}

void tst_AppModelSafety::stalledFileIsSkipped()
{
    StallingPhotos f;
    f.stall(true);
    f->load({ f.folderURL() });
    QCOMPARE(f->stalledFile(), std::nullopt);
    QVERIFY(f.skipStalled());
    QCOMPARE(f->stalledFile(), std::nullopt);
    QTRY_COMPARE_WITH_TIMEOUT(f->records().size(), 2, 30000);
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f.visible(), QStringList({ u"a.jpg"_s, u"c.jpg"_s }));
    QCOMPARE(f->errorMessage(), u"1 file could not be read and was left out: b.jpg (took too long)"_s);
    // A look at the folder does not fetch it again: that would hang where nobody sees it.
    f->refresh();
    QTest::qWait(200);
    f.folder.add(u"d.jpg"_s);
    f->refresh();
    QTRY_COMPARE_WITH_TIMEOUT(f->records().size(), 3, 30000);
    QCOMPARE(f.visible(), QStringList({ u"a.jpg"_s, u"c.jpg"_s, u"d.jpg"_s }));
}

void tst_AppModelSafety::stalledReReadOfASaveIsSkipped()
{
    StallingPhotos f;
    QVERIFY(f.open());
    f.stall(true);
    f->selectAllPhotos();
    f->setBatch(u"headline"_s, u"X"_s);
    f->requestSave();
    QVERIFY(f.skipStalled());
    QVERIFY(f->isSaving());
    QVERIFY(f.waitUntilIdle());
    QVERIFY(!f->isSaving());
    QCOMPARE(f->errorMessage(), u"Could not save 1 of 3 photos: b.jpg (reading it back took too long)"_s);
    QCOMPARE(f.selected(), QStringList{ u"b.jpg"_s });
    QCOMPARE(f->draftValues().value(u"headline"_s), u"X"_s);
    QCOMPARE(f->unsavedCount(), 1);
    QCOMPARE(f->record(f.url(u"c.jpg"_s))->values.value(u"headline"_s), u"X"_s);
    f.stall(false);
    f->setErrorMessage({});
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->errorMessage(), std::nullopt);
    QCOMPARE(f->unsavedCount(), 0);
}

// Nothing is shown of a refresh, until it does not get on.
void tst_AppModelSafety::stalledRefreshIsSkipped()
{
    StallingPhotos f;
    QVERIFY(f.open());
    f.click(u"b.jpg"_s);
    f->setSingle(u"title"_s, u"typed"_s);
    f.stall(true);
    f.folder.add(u"b.jpg"_s, jpegBytes(16, 16));
    f.folder.add(u"a.jpg"_s, jpegBytes(24, 16));
    f->refresh();
    QVERIFY(!f->isWorking());
    QVERIFY(f.skipStalled());
    QVERIFY(f->isWorking());
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->errorMessage(), u"1 file could not be read and was left out: b.jpg (took too long)"_s);
    QTRY_COMPARE_WITH_TIMEOUT(f->record(f.url(u"a.jpg"_s))->pixelWidth.value_or(0), 24, 30000);
    QCOMPARE(f->record(f.url(u"b.jpg"_s))->pixelWidth.value_or(0), 8);
    QCOMPARE(f->draftValues().value(u"title"_s), u"typed"_s);
    f.folder.add(u"d.jpg"_s);
    f->refresh();
    QTRY_COMPARE_WITH_TIMEOUT(f->records().size(), 4, 30000);
}

void tst_AppModelSafety::quitEndsARead()
{
    StallingPhotos f;
    int quits = 0;
    f.services.quit = [&] {
        ++quits;
        f.model.reset();
    };
    f.relaunch();
    f.stall(true);
    f->load({ f.folderURL() });
    QVERIFY(QTest::qWaitFor([&f] { return f.isStalling(); }, 30000));
    f->requestQuit();
    QCOMPARE(quits, 1);
    // The program ends when the read has, and that does not wait for the tool.
    QVERIFY(QThreadPool::globalInstance()->waitForDone(30000));
}

QTEST_GUILESS_MAIN(tst_AppModelSafety)
#include "tst_AppModelSafety.moc"
