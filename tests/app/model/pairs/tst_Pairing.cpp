// A raw file and the picture of its shot as one photo.
#include "app/model/library/filter/Filtering.h"
#include "app/model/pairs/Pairing.h"
#include "app/model/renaming/PhotosRenaming.h"
#include "app/model/selection/SelectedSidecars.h"
#include "app/model/timeshift/TimeShifting.h"
#include "tests/app/model/ModelFixture.h"

#include <QJsonArray>
#include <QRegularExpression>
#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

// "a.NEF", "a.jpg" and "b.jpg" are open, paired unless it is said otherwise. Each is titled with its name; both files
// of the shot hold the keyword "reed", the picture "own" as well.
struct PairedFolder : ModelFixture {
    explicit PairedFolder(bool isOn = true)
    {
        services.journalPath = settings.filePath(u"undo"_s);
        services.leftEditsPath = settings.filePath(u"unsaved.json"_s);
        relaunch();
        folder.add(u"a.NEF"_s, tiffBytes());
        folder.add(u"a.jpg"_s);
        folder.add(u"b.jpg"_s);
        exiftool({ u"-overwrite_original"_s, u"-XMP-dc:Title<$FileName"_s, u"-XMP-dc:Subject=reed"_s,
            u"-IPTC:Keywords=reed"_s, folder.path(u"a.NEF"_s), folder.path(u"a.jpg"_s), folder.path(u"b.jpg"_s) });
        exiftool(
            { u"-overwrite_original"_s, u"-XMP-dc:Subject+=own"_s, u"-IPTC:Keywords+=own"_s, folder.path(u"a.jpg"_s) });
        model->preferences().saveDontAsk.set(true);
        model->preferences().confirmMassEdit.set(false);
        model->pairing().setOn(isOn);
        isRead = open();
    }
    // Twice: what follows from a change follows in a turn of its own.
    bool save()
    {
        model->requestSave();
        const bool isIdle = waitUntilIdle();
        QTest::qWait(0);
        return isIdle && !model->isSaving();
    }
    QStringList keywords(const QString& name) const
    {
        QStringList items;
        const QJsonValue held = onDisk(name, u"XMP:Subject"_s);
        for (const QJsonValue& item : held.isArray() ? held.toArray() : QJsonArray{ held })
            items.append(item.toString());
        items.sort();
        return items;
    }
    QString title(const QString& name) const { return onDisk(name, u"XMP:Title"_s).toString(); }
    // Opens the photos with texts in the place of these, which can be read and not written. What was there.
    QMap<QString, QByteArray> spoil(const QStringList& names)
    {
        QMap<QString, QByteArray> spoilt;
        for (const QString& name : names) {
            spoilt.insert(name, readFile(folder.path(name)));
            writeFile(folder.path(name), "a text\n");
        }
        isRead = open() && isRead;
        return spoilt;
    }
    bool isRead = false;
};

const QStringList both{ u"a.NEF"_s, u"b.jpg"_s };
const QStringList all{ u"a.jpg"_s, u"a.NEF"_s, u"b.jpg"_s };

}  // namespace

class tst_Pairing : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void isShownAsOne();
    void saves_data();
    void saves();
    void savesListsOfTwoKinds();
    void refusals_data();
    void refusals();
    void sidecarIsTheRawFiles_data();
    void sidecarIsTheRawFiles();
    void timesAndNamesGoTogether();
    void isPartedOnlyWithoutEdits_data();
    void isPartedOnlyWithoutEdits();
    void pictureInHandJoinsLater();
    void othersTakeOneAway_data();
    void othersTakeOneAway();
};

void tst_Pairing::isShownAsOne()
{
    PairedFolder f(false);
    QVERIFY(f.isRead);
    QCOMPARE(f.visible(), all);
    f.click(u"a.jpg"_s);
    f.click(u"b.jpg"_s, false, true);
    f->pairing().setOn(true);
    QCOMPARE(f.visible(), both);
    QCOMPARE(f.selected(), both);
    QCOMPARE(f.primary(), u"b.jpg"_s);
    QCOMPARE(f->folderCountText(), u"2 photos \u00B7 2 selected"_s);
    QCOMPARE(f->filtering().count(PhotoTrait::unrated), 2);
    const ImageRecord& raw = *f->record(f.url(u"a.NEF"_s));
    const Pairing& pairing = f->pairing();
    QCOMPARE(pairing.seenFile(raw.url), f.url(u"a.jpg"_s));
    QCOMPARE(pairing.names(raw), u"a.NEF and a.jpg"_s);
    QVERIFY2(pairing.sidebarLine(raw).endsWith(u" KB"_s), qPrintable(pairing.sidebarLine(raw)));
    QVERIFY2(pairing.sidebarLine(raw).startsWith(u"NEF + JPEG · 8×8 · "_s), qPrintable(pairing.sidebarLine(raw)));
    QCOMPARE(pairing.detailLine(raw), pairing.sidebarLine(raw));
    const ImageRecord& single = *f->record(f.url(u"b.jpg"_s));
    QCOMPARE(pairing.sidebarLine(single), single.sidebarLine());
    QCOMPARE(pairing.names(single), u"b.jpg"_s);

    f.relaunch();
    QVERIFY(f.open());
    QCOMPARE(f.visible(), both);
    QCOMPARE(f.primary(), u"a.NEF"_s);
    f->pairing().setOn(false);
    QCOMPARE(f.visible(), all);
    QCOMPARE(f.primary(), u"a.NEF"_s);
}

void tst_Pairing::saves_data()
{
    QTest::addColumn<bool>("isBatch");
    QTest::newRow("one") << false;
    QTest::newRow("many") << true;
}

void tst_Pairing::saves()
{
    QFETCH(bool, isBatch);
    PairedFolder f;
    QVERIFY(f.isRead);
    if (isBatch) {
        f->selectAllPhotos();
        f->setBatch(u"title"_s, u"New"_s);
        f->addBatchListItem(u"keywords"_s, u"sky"_s);
        f->takeBatchItemAway(u"keywords"_s, u"reed"_s);
        Edits own;
        own.own.insert(f.url(u"a.NEF"_s), { .scalars = { { u"headline"_s, u"of a"_s } } });
        own.subjects = { f.url(u"a.NEF"_s) };
        f->layEdits(own);
    } else {
        f->setSingle(u"title"_s, u"New"_s);
        f->setSingle(u"headline"_s, u"of a"_s);
        f->addSingleListItem(u"keywords"_s, u"sky"_s);
        f->removeSingleListItem(u"keywords"_s, u"reed"_s);
    }
    QVERIFY(f.save());
    QCOMPARE(f->errorMessage().value_or(QString()), QString());
    QCOMPARE(f->unsavedCount(), 0);
    for (const QString& name : { u"a.NEF"_s, u"a.jpg"_s }) {
        QCOMPARE(f.title(name), u"New"_s);
        QCOMPARE(f.onDisk(name, u"XMP:Headline"_s).toString(), u"of a"_s);
    }
    QCOMPARE(f.keywords(u"a.NEF"_s), QStringList{ u"sky"_s });
    // Nobody has seen it.
    QCOMPARE(f.keywords(u"a.jpg"_s), (QStringList{ u"own"_s, u"sky"_s }));
    QCOMPARE(f.title(u"b.jpg"_s), isBatch ? u"New"_s : u"b.jpg"_s);
    // One save, whatever is paired by then.
    f->pairing().setOn(false);
    QVERIFY(f->canUndoSave());
    f->undoSave();
    QTRY_VERIFY_WITH_TIMEOUT(!f->isSaving(), 30000);
    for (const QString& name : all)
        QCOMPARE(f.title(name), name);
    QCOMPARE(f.keywords(u"a.jpg"_s), (QStringList{ u"own"_s, u"reed"_s }));
    QVERIFY(!f->canUndoSave());
}

// Where one list can only be written as it stands, the others are not left out.
void tst_Pairing::savesListsOfTwoKinds()
{
    PairedFolder f;
    exiftool({ u"-overwrite_original"_s, u"-XMP-iptcExt:PersonInImage=Ann"_s, u"-XMP-iptcExt:PersonInImage=Bo"_s,
        f.folder.path(u"a.NEF"_s), f.folder.path(u"a.jpg"_s) });
    QVERIFY(f.open());
    f.click(u"a.NEF"_s);
    f->addSingleListItem(u"keywords"_s, u"sky"_s);
    f->removeSingleListItem(u"people"_s, u"Ann"_s);
    f->addSingleListItem(u"people"_s, u"Ann"_s);
    QVERIFY(f.save());
    QCOMPARE(f->unsavedCount(), 0);
    for (const QString& name : { u"a.NEF"_s, u"a.jpg"_s })
        QCOMPARE(f.onDisk(name, u"XMP:PersonInImage"_s).toArray(), (QJsonArray{ u"Bo"_s, u"Ann"_s }));
    QCOMPARE(f.keywords(u"a.NEF"_s), (QStringList{ u"reed"_s, u"sky"_s }));
    QCOMPARE(f.keywords(u"a.jpg"_s), (QStringList{ u"own"_s, u"reed"_s, u"sky"_s }));
}

void tst_Pairing::refusals_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<bool>("isBatch");
    QTest::addColumn<QStringList>("waiting");
    QTest::newRow("the picture") << QStringList{ u"a.jpg"_s } << false << QStringList{ u"a.jpg"_s };
    QTest::newRow("the raw file") << QStringList{ u"a.NEF"_s } << false << QStringList{ u"a.NEF"_s };
    QTest::newRow("both") << QStringList{ u"a.NEF"_s, u"a.jpg"_s } << false << QStringList{ u"a.NEF"_s };
    QTest::newRow("the picture, of many") << QStringList{ u"a.jpg"_s } << true << QStringList{ u"a.jpg"_s };
    QTest::newRow("the picture, and another photo")
        << QStringList{ u"a.jpg"_s, u"b.jpg"_s } << true << QStringList{ u"a.NEF"_s, u"b.jpg"_s };
}

// What a file refuses is named and stays an edit; the next save tries it again, and then it is one photo again.
void tst_Pairing::refusals()
{
    QFETCH(QStringList, texts);
    QFETCH(bool, isBatch);
    PairedFolder f;
    const auto spoilt = f.spoil(texts);
    QVERIFY(f.isRead);
    if (isBatch)
        f->selectAllPhotos();
    if (isBatch) {
        f->setBatch(u"title"_s, u"New"_s);
        f->addBatchListItem(u"keywords"_s, u"sky"_s);
    } else {
        f->setSingle(u"title"_s, u"New"_s);
        f->addSingleListItem(u"keywords"_s, u"sky"_s);
    }
    QVERIFY(f.save());
    QVERIFY(f->errorMessage());
    for (const QString& name : all) {
        const bool isAsked = isBatch || name != u"b.jpg";
        QCOMPARE(f.title(name), texts.contains(name) ? QString() : isAsked ? u"New"_s : name);
        QCOMPARE(f->errorMessage()->contains(name + u" ("_s), texts.contains(name));
    }
    QTEST(f.selected(), "waiting");
    QCOMPARE(f->unsavedCount(), 2);
    QCOMPARE(f.visible(), f.selected().contains(u"a.jpg"_s) ? all : both);

    for (auto file = spoilt.cbegin(); file != spoilt.cend(); ++file)
        writeFile(f.folder.path(file.key()), *file);
    QVERIFY(f.save());
    QCOMPARE(f->unsavedCount(), 0);
    for (const QString& name : { u"a.NEF"_s, u"a.jpg"_s })
        QCOMPARE(f.title(name), u"New"_s);
    QCOMPARE(f.keywords(u"a.jpg"_s), (QStringList{ u"own"_s, u"reed"_s, u"sky"_s }));
    QCOMPARE(f.visible(), both);
    QVERIFY(!f.selected().contains(u"a.jpg"_s));
}

void tst_Pairing::sidecarIsTheRawFiles_data()
{
    QTest::addColumn<bool>("isBeside");
    QTest::addColumn<bool>("isAlone");  // the picture is edited for itself
    QTest::addRow("mirror") << false << false;
    QTest::addRow("edits beside") << true << false;
    QTest::addRow("mirror, the picture alone") << false << true;
}

// The picture's title would else be the sidecar's in the end. One undo puts back all three files.
void tst_Pairing::sidecarIsTheRawFiles()
{
    QFETCH(bool, isBeside);
    QFETCH(bool, isAlone);
    PairedFolder f(!isAlone);
    QVERIFY(f.isRead);
    f->preferences().writeSidecar.set(true);
    f->preferences().rawBeside.set(isBeside);
    QVERIFY(f.waitUntilIdle());
    const QByteArray before = readFile(f.folder.path(u"a.NEF"_s));
    if (isAlone) {
        f.click(u"a.jpg"_s);
        f->setSingle(u"title"_s, u"New"_s);
        f->pairing().setOn(true);
    } else {
        exiftool({ u"-overwrite_original"_s, u"-XMP-dc:Creator=Of the picture"_s, f.folder.path(u"a.jpg"_s) });
        f->setSingle(u"title"_s, u"New"_s);
        QCOMPARE(f->selectedSidecars().text(), isBeside ? u"Edits go to a.xmp and a.jpg"_s : QString());
    }
    QVERIFY(f.save());
    QCOMPARE(f->errorMessage().value_or(QString()), QString());
    QCOMPARE(f.title(u"a.jpg"_s), u"New"_s);
    QCOMPARE(QFile::exists(f.folder.path(u"a.xmp"_s)), !isAlone);
    if (isAlone)
        return;
    QCOMPARE(f.title(u"a.xmp"_s), u"New"_s);
    QVERIFY(f.onDisk(u"a.xmp"_s, u"XMP:Creator"_s).isUndefined());
    QCOMPARE(readFile(f.folder.path(u"a.NEF"_s)) == before, isBeside);
    f->undoSave();
    QTRY_VERIFY_WITH_TIMEOUT(!f->isSaving(), 30000);
    QCOMPARE(f->errorMessage().value_or(QString()), QString());
    QVERIFY(!QFile::exists(f.folder.path(u"a.xmp"_s)));
    QCOMPARE(f.title(u"a.jpg"_s), u"a.jpg"_s);
    QCOMPARE(f.title(u"a.NEF"_s), u"a.NEF"_s);
}

void tst_Pairing::timesAndNamesGoTogether()
{
    PairedFolder f;
    QVERIFY(f.isRead);
    exiftool({ u"-overwrite_original"_s, u"-EXIF:DateTimeOriginal=2024:10-12 10:00:07"_s, f.folder.path(u"a.NEF"_s),
        f.folder.path(u"a.jpg"_s) });
    for (const QString& name : { u"a.NEF.pp3"_s, u"a.xmp"_s, u"New.xmp"_s })
        writeFile(f.folder.path(name), "x");
    QVERIFY(f.open());
    TimeShifting& shifting = f->timeShifting();
    shifting.request();
    shifting.setAmount({ .hours = u"1"_s });
    QTRY_VERIFY_WITH_TIMEOUT(shifting.canShift(), 30000);
    shifting.shift();
    QTRY_VERIFY_WITH_TIMEOUT(f->canUndoSave(), 30000);
    for (const QString& name : { u"a.NEF"_s, u"a.jpg"_s })
        QCOMPARE(f.onDisk(name, u"EXIF:DateTimeOriginal"_s).toString(), u"2024:10:12 11:00:07"_s);

    f->setSingle(u"title"_s, u"New"_s);
    QVERIFY(f.save());
    f->preferences().renamePattern.set(u"%Title%"_s);
    // The name is taken for the sidecar.
    QCOMPARE(f->renamePreview(), u"New-2.NEF"_s);
    f->performRename();
    QTRY_VERIFY_WITH_TIMEOUT(!f->renaming().isRunning(), 30000);
    const QStringList files{ u"New-2.NEF"_s, u"New-2.NEF.pp3"_s, u"New-2.jpg"_s, u"New-2.xmp"_s };
    for (const QString& name : files)
        QVERIFY2(QFile::exists(f.folder.path(name)), qPrintable(name));
    QCOMPARE(f.visible(), (QStringList{ u"b.jpg"_s, u"New-2.NEF"_s }));
    QCOMPARE(f.primary(), u"New-2.NEF"_s);
    QCOMPARE(f->pairing().pictureOf(f.url(u"New-2.NEF"_s)), f.url(u"New-2.jpg"_s));
    f->undoSave();
    QTRY_COMPARE_WITH_TIMEOUT(f.title(u"New-2.jpg"_s), u"a.jpg"_s, 30000);
    QVERIFY(QTest::qWaitFor([&] { return f->renaming().canUndo(); }, 30000));
    f->renaming().undo();
    QTRY_COMPARE_WITH_TIMEOUT(f.visible(), both, 30000);
    QVERIFY(QFile::exists(f.folder.path(u"a.NEF.pp3"_s)) && QFile::exists(f.folder.path(u"a.jpg"_s)));
}

void tst_Pairing::isPartedOnlyWithoutEdits_data()
{
    QTest::addColumn<int>("answer");  // 0: saves without asking
    QTest::newRow("saved unasked") << 0;
    QTest::newRow("saved") << 1;
    QTest::newRow("discarded") << 2;
    QTest::newRow("cancelled") << 3;
}

void tst_Pairing::isPartedOnlyWithoutEdits()
{
    QFETCH(int, answer);
    PairedFolder f;
    QVERIFY(f.isRead);
    f->preferences().saveDontAsk.set(answer == 0);
    f->setSingle(u"title"_s, u"New"_s);
    f->pairing().setOn(false);
    QCOMPARE(f->saveOpen(), answer > 0);
    QVERIFY(f->pairing().isOn());
    QCOMPARE(f.visible(), both);
    if (answer == 1)
        f->confirmSaveDialog();
    else if (answer == 2)
        f->discardSaveDialog();
    else if (answer == 3)
        f->cancelSaveDialog();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->pairing().isOn(), answer == 3);
    QCOMPARE(f->unsavedCount(), answer == 3 ? 1 : 0);
    QCOMPARE(f.title(u"a.jpg"_s), answer < 2 ? u"New"_s : u"a.jpg"_s);
    QCOMPARE(f->leftEdits().size(), answer == 2 ? 1 : 0);
}

// It was edited for itself when it was paired, or when its raw file came.
void tst_Pairing::pictureInHandJoinsLater()
{
    PairedFolder f(false);
    QVERIFY(f.isRead);
    f.click(u"a.jpg"_s);
    f->setSingle(u"title"_s, u"The picture's"_s);
    f->pairing().setOn(true);
    QCOMPARE(f.visible(), all);
    QCOMPARE(f.primary(), u"a.jpg"_s);
    QVERIFY(f.save());
    QCOMPARE(f.title(u"a.jpg"_s), u"The picture's"_s);
    QCOMPARE(f.title(u"a.NEF"_s), u"a.NEF"_s);
    QCOMPARE(f.visible(), both);
    QCOMPARE(f.primary(), u"a.NEF"_s);

    f.click(u"b.jpg"_s);
    f->setSingle(u"title"_s, u"Its own"_s);
    QTest::qWait(0);
    f.folder.add(u"b.NEF"_s, tiffBytes());
    f->refresh();
    QTRY_VERIFY_WITH_TIMEOUT(f->record(f.url(u"b.NEF"_s)), 30000);
    QTest::qWait(0);
    QCOMPARE(f.visible(), (QStringList{ u"a.NEF"_s, u"b.jpg"_s, u"b.NEF"_s }));
    QCOMPARE(f.primary(), u"b.jpg"_s);
    QCOMPARE(f->unsavedCount(), 1);
    QVERIFY(f.save());
    QCOMPARE(f.visible(), (QStringList{ u"a.NEF"_s, u"b.NEF"_s }));
    QCOMPARE(f.primary(), u"b.NEF"_s);
    QCOMPARE(f.title(u"b.NEF"_s), QString());
}

void tst_Pairing::othersTakeOneAway_data()
{
    QTest::addColumn<QString>("gone");
    QTest::addColumn<bool>("isBatch");
    QTest::addColumn<QStringList>("left");
    for (const bool isBatch : { false, true }) {
        const char* many = isBatch ? "of many" : "of one";
        QTest::addRow("the raw file, %s", many) << u"a.NEF"_s << isBatch << QStringList{ u"a.jpg"_s, u"b.jpg"_s };
        QTest::addRow("the picture, %s", many) << u"a.jpg"_s << isBatch << both;
    }
}

// The edits stay with the other file.
void tst_Pairing::othersTakeOneAway()
{
    QFETCH(QString, gone);
    QFETCH(bool, isBatch);
    QFETCH(QStringList, left);
    PairedFolder f;
    QVERIFY(f.isRead);
    if (isBatch) {
        f->selectAllPhotos();
        f->setBatch(u"title"_s, u"New"_s);
        f->addBatchListItem(u"keywords"_s, u"sky"_s);
    } else {
        f->setSingle(u"title"_s, u"New"_s);
        f->addSingleListItem(u"keywords"_s, u"sky"_s);
    }
    QFile::remove(f.folder.path(gone));
    f->refresh();
    QTRY_COMPARE_WITH_TIMEOUT(f->record(f.url(gone)), nullptr, 30000);
    QTest::qWait(0);
    QCOMPARE(f.visible(), left);
    QCOMPARE(f.selected(), isBatch ? left : QStringList{ left.constFirst() });
    QCOMPARE(f->unsavedCount(), 2);
    QCOMPARE(f->errorMessage(), std::nullopt);
    QVERIFY(f.save());
    QCOMPARE(f.title(left.constFirst()), u"New"_s);
    QVERIFY(f.keywords(left.constFirst()).contains(u"sky"_s));
    QCOMPARE(f.keywords(left.constFirst()).contains(u"own"_s), gone == u"a.NEF");
    QCOMPARE(f->unsavedCount(), 0);
}

QTEST_MAIN(tst_Pairing)
#include "tst_Pairing.moc"
