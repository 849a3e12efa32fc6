// Photos whose edits go beside them: what follows from the settings, and from what others do to sidecars.
#include "app/model/selection/SelectedSidecars.h"
#include "tests/app/model/ModelFixture.h"
#include "tests/support/RecordedTool.h"

#include <QRegularExpression>
#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

using NewSetting = std::function<void(Preferences&)>;

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
                if (argument.startsWith(folder.path()))
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
    QVERIFY(f.open());
    QCOMPARE(f.asked(), QStringList({ u"a.cr2"_s, u"b.dng"_s, u"c.jpg"_s }));
    f->setSingle(u"title"_s, u"typed"_s);
    change(f->preferences());
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f.asked(), asked);
    QCOMPARE(f->draftValues().value(u"title"_s), u"typed"_s);
    QCOMPARE(f->unsavedCount(), 1);
    const SidecarPolicy policy = f->sidecarPolicy();
    QVERIFY(policy != SidecarPolicy());
    f.relaunch();
    QCOMPARE(f->sidecarPolicy(), policy);
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

QTEST_GUILESS_MAIN(tst_WatchedSidecars)
#include "tst_WatchedSidecars.moc"
