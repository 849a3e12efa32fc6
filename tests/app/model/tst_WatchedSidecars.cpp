// Photos whose edits go beside them: what follows from the settings, and from what others do to sidecars.
#include "app/model/selection/SelectedSidecars.h"
#include "tests/app/model/ModelFixture.h"
#include "tests/support/RecordedTool.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

using NewSetting = std::function<void(Preferences&)>;

void writeSidecar(const QString& path, const QByteArray& headline)
{
    writeFile(path,
        "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
        "<rdf:Description rdf:about='' xmlns:photoshop='http://ns.adobe.com/photoshop/1.0/' photoshop:Headline='"
            + headline + "'/></rdf:RDF></x:xmpmeta>");
}

// A raw photo, a DNG and a JPEG behind a tool that notes what it is asked; the first one is selected.
struct MixedFolder : RecordedTool, ModelFixture {
    MixedFolder()
        : ModelFixture(service())
    {
        for (const QString& name : { u"a.cr2"_s, u"b.dng"_s, u"c.jpg"_s })
            folder.add(name, jpegBytes());
    }
    // The photos that the tool was asked for since the last call, in any order.
    QStringList asked()
    {
        QSet<QString> names;
        const QList<QStringList> all = runs();
        for (const QStringList& arguments : all.sliced(m_seen))
            for (const QString& argument : arguments)
                if (argument.startsWith(folder.path()) && !argument.endsWith(u"xmp"_s, Qt::CaseInsensitive))
                    names.insert(QUrl::fromLocalFile(argument).fileName());
        m_seen = all.size();
        QStringList sorted = names.values();
        sorted.sort();
        return sorted;
    }

private:
    qsizetype m_seen = 0;
};

}  // namespace

class tst_WatchedSidecars : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void settingsReadAgain_data();
    void settingsReadAgain();
    void readsOfBeforeAreDropped();
    void savesEndAsTheyBegan();
    void toldOfSelection();
    void othersWriteSidecars_data();
    void othersWriteSidecars();
    void nothingIsReadWhereEditsGoIntoTheFile();
    void changesBetweenRunsAreSeen();
};

void tst_WatchedSidecars::settingsReadAgain_data()
{
    QTest::addColumn<NewSetting>("change");
    QTest::addColumn<QStringList>("asked");
    QTest::addRow("raw") << NewSetting([](Preferences& to) { to.rawBeside.set(true); }) << QStringList{ u"a.cr2"_s };
    QTest::addRow("DNG") << NewSetting([](Preferences& to) { to.dngBeside.set(true); }) << QStringList{ u"b.dng"_s };
    QTest::addRow("name") << NewSetting([](Preferences& to) { to.sidecarNaming.set(SidecarNaming::full); })
                          << QStringList();
}

void tst_WatchedSidecars::settingsReadAgain()
{
    QFETCH(NewSetting, change);
    QFETCH(QStringList, asked);
    MixedFolder f;
    writeSidecar(f.folder.path(u"a.xmp"_s), "beside");
    QVERIFY(f.open());
    QCOMPARE(f.asked(), QStringList({ u"a.cr2"_s, u"b.dng"_s, u"c.jpg"_s }));
    QCOMPARE(f->draftValues().value(u"headline"_s), QString());
    f->setSingle(u"title"_s, u"typed"_s);
    change(f->preferences());
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f.asked(), asked);
    QCOMPARE(f->draftValues().value(u"title"_s), u"typed"_s);
    QCOMPARE(f->unsavedCount(), 1);
    const SidecarPolicy policy = f->sidecarPolicy();
    QCOMPARE(f->draftValues().value(u"headline"_s), policy.isRawBeside ? u"beside"_s : QString());
    QVERIFY(policy != SidecarPolicy());
    f->preferences().rawBeside.set(false);
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->draftValues().value(u"headline"_s), QString());
}

// What was read before a change of the settings is not shown after it, and read once more.
void tst_WatchedSidecars::readsOfBeforeAreDropped()
{
    FakeTool tool;
    ModelFixture f(MetadataService{ tool.runner() });
    const QByteArray photo = toolJson({ { { u"SourceFile"_s, f.folder.add(u"a.cr2"_s, jpegBytes()).toLocalFile() } } });
    tool.answerAlways({ .standardOutput = photo });
    tool.answer(1, { .standardOutput = photo, .holds = true });
    f->load({ f.folderURL() });
    QTRY_COMPARE(tool.calls().size(), 1);
    f->preferences().rawBeside.set(true);
    tool.release();
    QVERIFY(f.waitUntilIdle());
    QVERIFY(!f->primaryRecord()->isUnread);
    QCOMPARE(tool.calls().size(), 4);
}

void tst_WatchedSidecars::savesEndAsTheyBegan()
{
    GatedTool tool;
    ModelFixture f(tool.service());
    f.folder.add(u"a.dng"_s, tiffBytes());
    QVERIFY(f.open());
    f->preferences().saveDontAsk.set(true);
    f->setSingle(u"title"_s, u"typed"_s);
    tool.shut();
    f->requestSave();
    f->preferences().dngBeside.set(true);
    QVERIFY(!f->sidecarPolicy().isInUse());
    tool.release();
    QVERIFY(f.waitUntilIdle());
    QVERIFY(f->sidecarPolicy().isDngBeside);
    QCOMPARE(f->unsavedCount(), 0);
    QCOMPARE(f->errorMessage(), std::nullopt);
}

void tst_WatchedSidecars::toldOfSelection()
{
    ModelFixture f;
    for (const QString& name : { u"a.cr2"_s, u"b.cr2"_s, u"b.nef"_s, u"c.jpg"_s })
        f.folder.add(name, jpegBytes());
    QVERIFY(f.open());
    const SelectedSidecars& sidecars = f->selectedSidecars();
    QCOMPARE(sidecars.told(), SelectedSidecars::Told());
    f->preferences().rawBeside.set(true);
    QCOMPARE(sidecars.told(), (SelectedSidecars::Told{ 1, 1, f.folder.path(u"a.xmp"_s) }));
    f->preferences().sidecarNaming.set(SidecarNaming::full);
    QCOMPARE(sidecars.told(), (SelectedSidecars::Told{ 1, 1, f.folder.path(u"a.cr2.xmp"_s) }));
    f->preferences().sidecarNaming.set(SidecarNaming::base);
    // The other raw photo of this name is in the way of the short one.
    f.click(u"b.cr2"_s);
    QTRY_COMPARE(sidecars.told().path, f.folder.path(u"b.cr2.xmp"_s));
    f.click(u"c.jpg"_s);
    QCOMPARE(sidecars.told(), SelectedSidecars::Told());
    f->selectAllPhotos();
    QCOMPARE(sidecars.told(), (SelectedSidecars::Told{ 3, 3, {} }));
}

void tst_WatchedSidecars::othersWriteSidecars_data()
{
    QTest::addColumn<bool>("isTold");
    QTest::addColumn<bool>("withSubfolders");
    QTest::addRow("the system tells") << true << false;
    QTest::addRow("it does not, with subfolders") << false << true;
}

// Made, written, renamed and removed while the folder is open: each leads to a read of that photo alone, under the
// edits.
void tst_WatchedSidecars::othersWriteSidecars()
{
    QFETCH(bool, isTold);
    QFETCH(bool, withSubfolders);
    MixedFolder f;
    f.services.lookInterval = std::chrono::milliseconds(50);
    f.services.fileSystemOf = [isTold](const QString&) { return FileSystem{ .tellsOfOthers = isTold }; };
    f.relaunch();
    f->preferences().rawBeside.set(true);
    f->load({ f.folderURL() }, withSubfolders);
    QVERIFY(f.waitUntilIdle());
    f->setSingle(u"title"_s, u"typed"_s);
    f.asked();
    QList<QUrl> drawnAnew;
    f->onImagesModified = [&drawnAnew](const QList<QUrl>& photos) { drawnAnew += photos; };
    const QStringList raw{ u"a.cr2"_s };
    const auto shows = [&f](const QString& name, const QString& headline) {
        const auto isThere = [&] {
            const ImageRecord& photo = *f->primaryRecord();
            const QFileInfo file(f.folder.path(name));
            return photo.sidecarName == name && f->draftValues().value(u"headline"_s) == headline
                && (name.isEmpty() || photo.sidecarModificationDate == file.lastModified());
        };
        return QTest::qWaitFor(isThere, 30000);
    };
    writeSidecar(f.folder.path(u"a.xmp"_s), "one");
    QVERIFY(shows(u"a.xmp"_s, u"one"_s));
    QCOMPARE(f.asked(), raw);
    QCOMPARE(f->selectedSidecars().told().path, f.folder.path(u"a.xmp"_s));
    writeSidecar(f.folder.path(u"a.xmp.new"_s), "two");
    QCOMPARE(::rename(qPrintable(f.folder.path(u"a.xmp.new"_s)), qPrintable(f.folder.path(u"a.xmp"_s))), 0);
    QVERIFY(shows(u"a.xmp"_s, u"two"_s));
    QCOMPARE(f.asked(), raw);
    QVERIFY(QFile::rename(f.folder.path(u"a.xmp"_s), f.folder.path(u"a.cr2.xmp"_s)));
    QVERIFY(shows(u"a.cr2.xmp"_s, u"two"_s));
    QCOMPARE(f.asked(), raw);
    // Another program takes its time between emptying the file and filling it.
    writeFile(f.folder.path(u"a.cr2.xmp"_s), {});
    QVERIFY(shows(u"a.cr2.xmp"_s, QString()));
    writeSidecar(f.folder.path(u"a.cr2.xmp"_s), "three");
    QVERIFY(shows(u"a.cr2.xmp"_s, u"three"_s));
    QCOMPARE(f.asked(), raw);
    // Those of photos whose edits go into the file, and of none at all, are no news.
    writeSidecar(f.folder.path(u"c.xmp"_s), "none");
    writeSidecar(f.folder.path(u"z.xmp"_s), "none");
    QVERIFY(QFile::remove(f.folder.path(u"a.cr2.xmp"_s)));
    QVERIFY(shows(QString(), QString()));
    QCOMPARE(f.asked(), raw);
    QCOMPARE(f->draftValues().value(u"title"_s), u"typed"_s);
    QCOMPARE(f->errorMessage(), std::nullopt);
    QCOMPARE(drawnAnew, QList<QUrl>());
}

void tst_WatchedSidecars::nothingIsReadWhereEditsGoIntoTheFile()
{
    MixedFolder f;
    QVERIFY(f.open());
    f.asked();
    writeSidecar(f.folder.path(u"a.xmp"_s), "beside");
    // A photo that others change is read: so the look has ended.
    exiftool({ u"-overwrite_original"_s, u"-XMP-dc:Title=outside"_s, f.folder.path(u"c.jpg"_s) });
    QTRY_COMPARE(f->records().at(2).values.value(u"title"_s), u"outside"_s);
    QCOMPARE(f.asked(), QStringList{ u"c.jpg"_s });
    QVERIFY(f->primaryRecord()->sidecarName.isEmpty());
}

void tst_WatchedSidecars::changesBetweenRunsAreSeen()
{
    MixedFolder f;
    const QTemporaryDir records;
    f.services.recordCachePath = records.path();
    f.relaunch();
    f->preferences().rawBeside.set(true);
    QVERIFY(f.open());
    const QString sidecar = f.folder.path(u"a.xmp"_s);
    const auto open = [&f] {
        f.relaunch();
        f.asked();
        return f.open() ? f->draftValues().value(u"headline"_s) : u"failed"_s;
    };
    const QStringList raw{ u"a.cr2"_s };
    writeSidecar(sidecar, "one");
    QCOMPARE(open(), u"one"_s);
    QCOMPARE(open(), u"one"_s);
    QCOMPARE(f.asked(), QStringList());
    writeSidecar(sidecar, "two");
    QCOMPARE(open(), u"two"_s);
    QCOMPARE(f.asked(), raw);
    // A broken one is named each time.
    writeFile(sidecar, {});
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(open(), QString());
        QCOMPARE(f.asked(), raw);
        QVERIFY2(f->errorMessage() && f->errorMessage()->contains(u"a.xmp"),
            qPrintable(f->errorMessage().value_or(QString())));
    }
    QVERIFY(QFile::remove(sidecar));
    QCOMPARE(open(), QString());
    f->preferences().rawBeside.set(false);
    QCOMPARE(open(), QString());
    QCOMPARE(f.asked(), QStringList());
}

QTEST_GUILESS_MAIN(tst_WatchedSidecars)
#include "tst_WatchedSidecars.moc"
