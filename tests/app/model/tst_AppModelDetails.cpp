// The list of photos whose homes disagree, from the model's side: saves, other programs, another folder, and a tool
// that fails.
#include "app/model/Background.h"
#include "tests/app/model/ModelFixture.h"

#include <QRegularExpression>
#include <QTest>
#include <QThread>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int patience = 30000;  // ms

// "b" disagrees unless its title says that it agrees.
QHash<QUrl, PhotoDetails> byTitle(const QList<ImageRecord>& photos, const ReadControl&)
{
    QHash<QUrl, PhotoDetails> answer;
    for (const ImageRecord& photo : photos) {
        PhotoDetails& details = answer[photo.url];
        details.url = photo.url;
        if (photo.fileName == u"b.jpg" && photo.values.value(u"title"_s) != u"agrees"_s)
            details.disagreements.insert(u"title"_s, { { .tag = u"XMP-dc:Title"_s } });
    }
    return answer;
}

}  // namespace

class tst_AppModelDetails : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void savedAndUndone();
    void openedAndClosed();
    void throughTheTool();
};

// A save leaves the list as it should be, and so does taking it back.
void tst_AppModelDetails::savedAndUndone()
{
    ModelFixture f;
    f.services.journalPath = f.settings.filePath(u"journal"_s);
    f.addTitled(jpgs(u"abc"_s));
    f.lookAtDetails(byTitle);
    QVERIFY(f.open());
    QTRY_VERIFY_WITH_TIMEOUT(f->details(f.url(u"a.jpg"_s)), patience);
    QCOMPARE(f->details(f.url(u"b.jpg"_s)), nullptr);
    f->setShowDisagreements(true);
    QTRY_COMPARE_WITH_TIMEOUT(f->disagreements(), (AppModel::Disagreements{ 1, 0, false }), patience);
    QCOMPARE(f.visible(), jpgs(u"b"_s));
    QCOMPARE(f->folderCountText(), u"3 photos · 1 shown"_s);
    f->selectAllPhotos();
    QCOMPARE(f.selected(), jpgs(u"b"_s));
    f->preferences().saveDontAsk.set(true);
    f->setSingle(u"title"_s, u"agrees"_s);
    f->requestSave();
    QTRY_COMPARE_WITH_TIMEOUT(f.visible(), QStringList(), patience);
    QCOMPARE(f->disagreements(), AppModel::Disagreements());
    // What is listed no more is selected no more.
    QTRY_COMPARE(f.primary(), QString());
    QTRY_VERIFY_WITH_TIMEOUT(f->canUndoSave(), patience);
    f->undoSave();
    QTRY_COMPARE_WITH_TIMEOUT(f.visible(), jpgs(u"b"_s), patience);
    QTRY_COMPARE(f.primary(), u"b.jpg"_s);
    // Another program's change.
    exiftool({ u"-overwrite_original"_s, u"-XMP-dc:Title=agrees"_s, f.folder.path(u"b.jpg"_s) });
    QTRY_COMPARE_WITH_TIMEOUT(f.visible(), QStringList(), patience);
    f->setShowDisagreements(false);
    QCOMPARE(f.visible(), jpgs(u"abc"_s));
    QVERIFY(QFile::remove(f.folder.path(u"a.jpg"_s)));
    QTRY_COMPARE_WITH_TIMEOUT(f.visible(), jpgs(u"bc"_s), patience);
    QCOMPARE(f->details(f.url(u"a.jpg"_s)), nullptr);
}

void tst_AppModelDetails::openedAndClosed()
{
    ModelFixture f;
    f.addTitled(jpgs(u"ab"_s));
    QTemporaryDir other;
    for (const QString& name : jpgs(u"xyz"_s))
        writeFile(other.filePath(name), jpegBytes());
    std::atomic<bool> isShut = false;
    f.lookAtDetails([&isShut](const QList<ImageRecord>& photos, const ReadControl& control) {
        while (isShut && !control.stop.stop_requested())
            QThread::msleep(1);
        if (control.stop.stop_requested())
            throw CancelledError();  // as the tool's run does: what is ended tells nothing
        return byTitle(photos, control);
    });
    QVERIFY(f.open());
    f->setShowDisagreements(true);
    QTRY_COMPARE_WITH_TIMEOUT(f.visible(), jpgs(u"b"_s), patience);
    f->readAgain();
    QVERIFY(f->showsDisagreements());
    QVERIFY(f.waitUntilIdle());
    QTRY_COMPARE_WITH_TIMEOUT(f->disagreements(), (AppModel::Disagreements{ 1, 0, false }), patience);
    isShut = true;
    f->load({ QUrl::fromLocalFile(other.path()) });
    QTRY_COMPARE_WITH_TIMEOUT(f.visible(), jpgs(u"xyz"_s), patience);
    QVERIFY(!f->showsDisagreements());
    QVERIFY(f.waitUntilIdle());
    QTRY_COMPARE_WITH_TIMEOUT(f->unreadSelected(), 0, patience);
    QCOMPARE(f->disagreements(), (AppModel::Disagreements{ 0, 3, false }));
    f->setShowDisagreements(true);
    QVERIFY(f->disagreements().isLooking);
    QTRY_VERIFY_WITH_TIMEOUT(f->isWorking(), patience);
    f->cancelRead();
    QVERIFY(!f->disagreements().isLooking && !f->isWorking() && f->showsDisagreements());
    f->refresh();
    QTRY_VERIFY_WITH_TIMEOUT(f->disagreements().isLooking && f->isWorking(), patience);
    f->closeFolder();
    QVERIFY(!f->showsDisagreements() && !f->isWorking());
    QCOMPARE(f->disagreements(), AppModel::Disagreements());
    isShut = false;
    QVERIFY(QTest::qWaitFor([] { return patientThreads().activeThreadCount() == 0; }, patience));
}

// A tool that dies at one photo and does not get done with another: what the others hold is known all the same, and
// nothing is left behind in their folder.
void tst_AppModelDetails::throughTheTool()
{
    QByteArray script = R"perl(#!/usr/bin/perl
if (grep { $_ eq '-a' } @ARGV) {
    kill 9, $$ if !-e 'MENDED' && grep { m{/c\.jpg$} } @ARGV;
    my ($photo) = grep { m{/d\.jpg$} } @ARGV;
    if ($photo) { open my $open, '<', $photo; sleep 600 }
}
exec TOOL, @ARGV;
)perl";
    script.replace("TOOL", toolForPerl());
    const PhotoFolder beside;
    script.replace("MENDED", beside.path(u"mended"_s).toUtf8());
    ModelFixture f(MetadataService{ { beside.add(u"exiftool"_s, script), realTool().perlURL } });
    f.services.recordCachePath = beside.path(u"records"_s);
    f.services.stallInterval = 2s;
    f.addTitled(jpgs(u"abcde"_s));
    exiftool({ u"-overwrite_original"_s, u"-IPTC:ObjectName=Other"_s, u"-XMP-dc:Title-de=Titel"_s,
        u"-XMP-lr:HierarchicalSubject=A|B"_s, f.folder.path(u"a.jpg"_s) });
    const QStringList files = f.folder.names();
    f.lookAtDetails();
    QVERIFY(f.open());
    f->setShowDisagreements(true);
    QTRY_COMPARE_WITH_TIMEOUT(f->disagreements(), (AppModel::Disagreements{ 1, 2, false }), patience);
    QCOMPARE(f.visible(), jpgs(u"a"_s));
    const PhotoDetails a = *f->details(f.url(u"a.jpg"_s));
    QCOMPARE(a.texts, (QMap<QString, QString>{ { u"title@de"_s, u"Titel"_s } }));
    QCOMPARE(a.paths, QStringList{ u"A|B"_s });
    QCOMPARE(a.disagreements.keys(), QStringList{ u"title"_s });
    QCOMPARE(f->stalledFile(), std::nullopt);
    QCOMPARE(f->errorMessage(), std::nullopt);
    QCOMPARE(f.folder.names(), files);

    // What it holds beside its title cannot be replaced by what nobody compared with it.
    f->setShowDisagreements(false);
    f.select(u"d"_s);
    QCOMPARE(f->detailsFailure(), (DetailsFailure{ u"took too long"_s, false }));
    f.select(u"c"_s);
    QVERIFY(f->detailsFailure() && f->detailsFailure()->reason.startsWith(u"ExifTool exited with code 9"_s));
    f->addKnownField(u"iptc.countryCode"_s);
    f->applyLocation({ .country = u"Japan"_s, .countryCode = u"JP"_s });
    f->setSingle(u"iptc.altText"_s, u"A lake"_s);
    f->setItems(u"iptc.organisationNames"_s, { u"Boats"_s });
    f->addLanguage(u"title"_s, u"de"_s);
    QCOMPARE(f->editedSingle(), (QSet<QString>{ u"country"_s, u"coords"_s }));
    Edits pasted;
    pasted.scalars = { { u"iptc.altText"_s, u"A lake"_s }, { u"title@de"_s, u"Titel"_s }, { u"place"_s, u"Kyoto"_s } };
    f->layEdits(pasted);
    QCOMPARE(f->editedSingle(), (QSet<QString>{ u"country"_s, u"coords"_s, u"place"_s }));
    QCOMPARE(
        f->errorMessage(), u"Left as they are, because they could not be read: Alternative text, Title (German)"_s);

    beside.add(u"mended"_s, "");
    f->readDetailsAgain();
    QTRY_VERIFY_WITH_TIMEOUT(f->details(f.url(u"c.jpg"_s)), patience);
    QVERIFY(!f->detailsFailure());
    f->setSingle(u"iptc.altText"_s, u"A lake"_s);
    QVERIFY(f->editedSingle().contains(u"iptc.altText"_s));
}

QTEST_GUILESS_MAIN(tst_AppModelDetails)
#include "tst_AppModelDetails.moc"
