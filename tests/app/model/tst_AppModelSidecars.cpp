// Photos whose edits go beside them, from the model's side: read over the file, saved, emptied, taken back; the photo's
// own file stays what it was, to the byte and to its times.
#include "core/schema/FieldSchema.h"
#include "core/sidecar/SidecarSchema.h"
#include "tests/app/model/RawPhotos.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(Quorbel::SidecarNaming)
using Values = QMap<QString, QString>;

namespace {

const QMap<QString, QString>& texts()
{
    static const QMap<QString, QString> texts{ { u"date"_s, u"2024-05-06 07:08"_s },
        { u"dateDigitized"_s, u"2024-06-07 08:09"_s }, { u"rating"_s, u"4"_s }, { u"offsetOriginal"_s, u"+05:45"_s },
        { u"offsetDigitized"_s, u"-03:30"_s }, { u"urgency"_s, u"3"_s }, { u"label"_s, u"Red"_s } };
    return texts;
}

QStringList ownTags()
{
    return { u"-IPTC:ObjectName=Own"_s, u"-IPTC:Keywords=a"_s, u"-IPTC:Keywords=1.10"_s, u"-EXIF:Artist=Own"_s,
        u"-EXIF:DateTimeOriginal=2001:02:03 04:05:06"_s, u"-EXIF:OffsetTimeOriginal=+01:00"_s, u"-XMP:Rating=5"_s,
        u"-GPSLatitude=10.5"_s, u"-GPSLatitudeRef=S"_s, u"-GPSLongitude=20.25"_s, u"-GPSLongitudeRef=W"_s,
        u"-IPTC:Category=OWN"_s, u"-XMP-photoshop:Urgency=2"_s, u"-XMP-iptcExt:PersonInImage=Ann"_s };
}

}  // namespace

class tst_AppModelSidecars : public QObject {
    Q_OBJECT

private slots:
    void everyFieldGoesBeside_data();
    void everyFieldGoesBeside();
    void emptiedFieldsHideTheFiles();
    void listsGainAndLose();
    void undoGivesTheSidecarBack();
    void customFields();
    void namesOfSidecars_data();
    void namesOfSidecars();
    void linkedAndReadOnly();
    void othersSidecars_data();
    void othersSidecars();
    void brokenSidecars_data();
    void brokenSidecars();
    void folderOfTheName();
    void folderBesideTheSidecar();
    void emptySidecar();
    void sharedSidecarLosesNothing();
    void renamedPhotoKeepsItsOwn();
    void othersAreWrittenAsEver();
};

void tst_AppModelSidecars::everyFieldGoesBeside_data()
{
    QTest::addColumn<QString>("position");
    QTest::newRow("north east") << u"12.345678, 98.765432"_s;
    QTest::newRow("north west") << u"12.345678, -98.765432"_s;
    QTest::newRow("south east") << u"-12.345678, 98.765432"_s;
    QTest::newRow("south west") << u"-12.345678, -98.765432"_s;
}

void tst_AppModelSidecars::everyFieldGoesBeside()
{
    QFETCH(QString, position);
    RawPhotos raws;
    raws.addRaw(u"a.NEF"_s, ownTags());
    QVERIFY(raws.open());
    raws.click(u"a.NEF"_s);
    QMap<QString, QString> typed;
    for (const FieldSpec& field : FieldSchema::all()) {
        if (field.isList()) {
            for (const QString& item : { u"x & y"_s, u"é東"_s })
                raws->addSingleListItem(field.id, item);
            continue;
        }
        const QString text =
            field.kind == FieldKind::coordinates ? position : texts().value(field.id, field.label + u" ünïcode"_s);
        typed.insert(field.id, text);
        raws->setSingle(field.id, text);
    }
    QVERIFY(raws.save());
    QCOMPARE(raws.banner(), QString());
    QCOMPARE(raws->unsavedCount(), 0);
    QVERIFY(raws.isUntouched());
    QCOMPARE(raws.folder.names(), (QStringList{ u"a.NEF"_s, u"a.xmp"_s }));

    QVERIFY(raws.reopen());
    for (auto text = typed.cbegin(); text != typed.cend(); ++text)
        QVERIFY2(raws.shown(u"a.NEF"_s, text.key()).startsWith(*text),
            qPrintable(text.key() + u": "_s + raws.shown(u"a.NEF"_s, text.key())));
    QCOMPARE(raws.items(u"a.NEF"_s, u"keywords"_s), (QStringList{ u"a"_s, u"1.1"_s, u"x & y"_s, u"é東"_s }));
    QCOMPARE(raws.items(u"a.NEF"_s, u"people"_s), (QStringList{ u"Ann"_s, u"x & y"_s, u"é東"_s }));
    QCOMPARE(raws->record(raws.url(u"a.NEF"_s))->sidecarName, u"a.xmp"_s);
    QCOMPARE(raws.stored(u"a.xmp"_s, u"XMP-photoshop:SidecarForExtension"_s), u"NEF"_s);
    QVERIFY(raws.sidecar(u"a.xmp"_s).contains("1.10"));
    // In the form that the other programs read.
    for (const QString& tag : { u"XMP-exif:DateTimeOriginal"_s, u"XMP-photoshop:DateCreated"_s })
        QCOMPARE(raws.stored(u"a.xmp"_s, tag).left(16), u"2024:05:06 07:08"_s);
    QVERIFY(!raws.stored(u"a.xmp"_s, u"XMP-xmp:MetadataDate"_s).isEmpty());
}

void tst_AppModelSidecars::emptiedFieldsHideTheFiles()
{
    RawPhotos raws;
    raws.addRaw(u"a.NEF"_s, ownTags());
    QVERIFY(raws.open());
    raws.click(u"a.NEF"_s);
    const ImageRecord before = *raws->record(raws.url(u"a.NEF"_s));
    QVERIFY(before.values.size() >= 8);
    for (const QString& id : before.values.keys())
        raws->setSingle(id, QString());
    for (const QString& id : before.lists.keys())
        for (const QString& item : before.lists.value(id))
            raws->removeSingleListItem(id, item);
    raws->setSingle(u"headline"_s, u"New"_s);
    QVERIFY(raws.save());
    QCOMPARE(raws.banner(), QString());
    QVERIFY(raws.reopen());
    const ImageRecord after = *raws->record(raws.url(u"a.NEF"_s));
    QCOMPARE(after.values, (QMap<QString, QString>{ { u"headline"_s, u"New"_s } }));
    QVERIFY(after.lists.isEmpty());
    // What the file never held is not hidden, it is just not there.
    raws.click(u"a.NEF"_s);
    raws->setSingle(u"headline"_s, QString());
    raws->setSingle(u"title"_s, u"Again"_s);
    raws->setSingle(u"coords"_s, u"1.500000, 2.500000"_s);
    raws->addSingleListItem(u"keywords"_s, u"again"_s);
    QVERIFY(raws.save());
    QCOMPARE(raws.banner(), QString());
    QVERIFY(!raws.sidecar(u"a.xmp"_s).contains("Headline"));
    QVERIFY(raws.reopen());
    QCOMPARE(raws.shown(u"a.NEF"_s, u"title"_s), u"Again"_s);
    QCOMPARE(raws.shown(u"a.NEF"_s, u"coords"_s), u"1.500000, 2.500000"_s);
    QCOMPARE(raws.items(u"a.NEF"_s, u"keywords"_s), QStringList(u"again"_s));
    QVERIFY(raws.isUntouched());
}

// Two raw files of one base name with one sidecar, each with a keyword of its own in its file.
void tst_AppModelSidecars::sharedSidecarLosesNothing()
{
    RawPhotos raws;
    raws.addRaw(u"a.CR2"_s, { u"-XMP-dc:Subject=first"_s, u"-XMP-lr:HierarchicalSubject=N|first"_s });
    raws.addRaw(u"a.NEF"_s, { u"-XMP-dc:Subject=second"_s, u"-XMP-lr:HierarchicalSubject=N|second"_s });
    exiftool({ u"-q"_s, u"-XMP-dc:Title=both"_s, raws.folder.path(u"a.xmp"_s) });
    QVERIFY(raws.open());
    raws->selectAllPhotos();
    raws->addBatchListItem(u"keywords"_s, u"sky"_s);
    QVERIFY(raws.save());
    QCOMPARE(raws.banner(), QString());
    QVERIFY(raws.reopen());
    for (const QString& name : { u"a.CR2"_s, u"a.NEF"_s }) {
        QStringList items = raws.items(name, u"keywords"_s);
        items.sort();
        QCOMPARE(items, (QStringList{ u"first"_s, u"second"_s, u"sky"_s }));
    }
    QVERIFY(raws.isUntouched());
}

// A name whose sidecar is another photo's would bring that one's texts, and leave the photo's own behind.
void tst_AppModelSidecars::renamedPhotoKeepsItsOwn()
{
    RawPhotos raws;
    raws.addRaw(u"a.NEF"_s);
    exiftool({ u"-q"_s, u"-XMP-dc:Title=mine"_s, raws.folder.path(u"a.xmp"_s) });
    exiftool({ u"-q"_s, u"-XMP-dc:Title=other"_s, raws.folder.path(u"Sea.xmp"_s) });
    QVERIFY(raws.open());
    raws.click(u"a.NEF"_s);
    raws->preferences().renamePattern.set(u"Sea"_s);
    QTRY_COMPARE(raws->renamePreview(), u"Sea-2.NEF"_s);
    raws->performRename();
    QCOMPARE(raws.folder.names(), (QStringList{ u"Sea-2.NEF"_s, u"Sea-2.xmp"_s, u"Sea.xmp"_s }));
    QVERIFY(raws.reopen());
    QCOMPARE(raws.shown(u"Sea-2.NEF"_s, u"title"_s), u"mine"_s);
}

// One whose list only the file holds, one whose sidecar has its own, one without any, and one that is no raw file.
void tst_AppModelSidecars::listsGainAndLose()
{
    RawPhotos raws;
    raws.addRaw(u"a.NEF"_s,
        { u"-IPTC:Keywords=one"_s, u"-IPTC:Keywords=two"_s, u"-IPTC:Keywords=plain"_s,
            u"-XMP-lr:HierarchicalSubject=N|one"_s, u"-XMP-lr:HierarchicalSubject=N|two"_s });
    raws.addRaw(u"b.NEF"_s, { u"-IPTC:Keywords=file"_s });
    raws.addRaw(u"c.NEF"_s);
    raws.folder.add(u"d.jpg"_s);
    exiftool({ u"-q"_s, u"-XMP-dc:Subject=one"_s, u"-XMP-dc:Subject=beside"_s, raws.folder.path(u"b.xmp"_s) });
    exiftool({ u"-q"_s, u"-overwrite_original"_s, u"-IPTC:Keywords=one"_s, u"-XMP-dc:Subject=one"_s,
        raws.folder.path(u"d.jpg"_s) });
    QVERIFY(raws.open());
    QCOMPARE(raws.items(u"b.NEF"_s, u"keywords"_s), (QStringList{ u"one"_s, u"beside"_s }));
    raws->selectAllPhotos();
    raws->addBatchListItem(u"keywords"_s, u"new"_s);
    raws->takeBatchItemAway(u"keywords"_s, u"one"_s);
    QVERIFY(raws.save());
    QCOMPARE(raws.banner(), QString());
    QVERIFY(raws.isUntouched());
    QVERIFY(raws.reopen());
    QCOMPARE(raws.items(u"a.NEF"_s, u"keywords"_s).join(u','), u"two,plain,new"_s);
    QCOMPARE(raws.items(u"b.NEF"_s, u"keywords"_s), (QStringList{ u"beside"_s, u"new"_s }));
    QCOMPARE(raws.items(u"c.NEF"_s, u"keywords"_s), QStringList(u"new"_s));
    QCOMPARE(raws.items(u"d.jpg"_s, u"keywords"_s), QStringList(u"new"_s));
    // Who finds paths there looks for no keyword anywhere else.
    QCOMPARE(raws.stored(u"a.xmp"_s, u"XMP-lr:HierarchicalSubject"_s), u"N|two; plain; new"_s);
    QCOMPARE(raws.stored(u"a.xmp"_s, u"XMP-digiKam:TagsList"_s), u"N/two; plain; new"_s);
    QVERIFY(!raws.folder.names().contains(u"d.xmp"_s));
    QVERIFY(raws.undo());
    QCOMPARE(raws.banner(), QString());
    QCOMPARE(raws.items(u"a.NEF"_s, u"keywords"_s), (QStringList{ u"one"_s, u"two"_s, u"plain"_s }));
    QCOMPARE(raws.items(u"b.NEF"_s, u"keywords"_s), (QStringList{ u"one"_s, u"beside"_s }));
    QCOMPARE(raws.items(u"d.jpg"_s, u"keywords"_s), QStringList(u"one"_s));
    QCOMPARE(raws.folder.names(), (QStringList{ u"a.NEF"_s, u"b.NEF"_s, u"b.xmp"_s, u"c.NEF"_s, u"d.jpg"_s }));
    // The first path of a sidecar that holds plain keywords.
    raws.click(u"b.NEF"_s);
    raws->addSingleListItem(u"keywords"_s, u"P > quay"_s);
    QVERIFY(raws.save());
    QCOMPARE(raws.stored(u"b.xmp"_s, u"XMP-lr:HierarchicalSubject"_s), u"P|quay; one; beside"_s);
}

void tst_AppModelSidecars::undoGivesTheSidecarBack()
{
    RawPhotos raws;
    raws.addRaw(u"a.NEF"_s, ownTags());
    QVERIFY(raws.open());
    raws.click(u"a.NEF"_s);
    raws->setSingle(u"title"_s, u"First"_s);
    QVERIFY(raws.save());
    const QByteArray first = raws.sidecar(u"a.xmp"_s);
    raws->setSingle(u"title"_s, u"Second"_s);
    raws->setSingle(u"rating"_s, QString());
    QVERIFY(raws.save());
    QVERIFY(raws.sidecar(u"a.xmp"_s) != first);
    QVERIFY(raws->undoSaveText().contains(u"a.NEF"_s));
    QVERIFY(raws.undo());
    QCOMPARE(raws.banner(), QString());
    QCOMPARE(raws.sidecar(u"a.xmp"_s), first);
    QCOMPARE(raws.shown(u"a.NEF"_s, u"title"_s), u"First"_s);
    QVERIFY(raws.undo());
    QCOMPARE(raws.folder.names(), QStringList(u"a.NEF"_s));
    QCOMPARE(raws.shown(u"a.NEF"_s, u"title"_s), u"Own"_s);
    // Somebody else's since then stays.
    raws->setSingle(u"title"_s, u"Third"_s);
    QVERIFY(raws.save());
    exiftool(
        { u"-q"_s, u"-overwrite_original"_s, u"-XMP-dc:Title=Theirs, and longer"_s, raws.folder.path(u"a.xmp"_s) });
    QVERIFY(raws.undo());
    QVERIFY2(
        raws.banner().contains(u"a.NEF"_s) && raws.banner().contains(u"changed since"_s), qPrintable(raws.banner()));
    QVERIFY(raws.sidecar(u"a.xmp"_s).contains("Theirs"));
    QVERIFY(raws.isUntouched());
}

void tst_AppModelSidecars::customFields()
{
    RawPhotos raws;
    raws.addRaw(u"a.NEF"_s);
    QVERIFY(raws.open());
    raws.click(u"a.NEF"_s);
    raws->addCustomField(u"Mood"_s, u"calm"_s);
    raws->setSingle(u"offsetOriginal"_s, u"+02:00"_s);
    QVERIFY(raws.save());
    QCOMPARE(raws.banner(), QString());
    QVERIFY(raws.reopen());
    QCOMPARE(raws->record(raws.url(u"a.NEF"_s))->custom, (QList<CustomValue>{ { u"Mood"_s, u"calm"_s } }));
    QVERIFY(raws.isUntouched());
}

void tst_AppModelSidecars::namesOfSidecars_data()
{
    QTest::addColumn<QString>("photo");
    QTest::addColumn<QStringList>("others");  // other photos, and sidecars, each with its own name as its title
    QTest::addColumn<SidecarNaming>("naming");
    QTest::addColumn<QString>("sidecar");  // that is written
    const auto row = [](const char* name, const QString& photo, const QStringList& others, const QString& sidecar,
                         SidecarNaming naming = SidecarNaming::base) {
        QTest::newRow(name) << photo << others << naming << sidecar;
    };
    row("none yet", u"a.NEF"_s, {}, u"a.xmp"_s);
    row("none yet, full names", u"a.NEF"_s, {}, u"a.NEF.xmp"_s, SidecarNaming::full);
    row("both", u"a.NEF"_s, { u"a.xmp"_s, u"a.NEF.xmp"_s }, u"a.NEF.xmp"_s);
    row("the short one, full names", u"a.NEF"_s, { u"a.xmp"_s }, u"a.xmp"_s, SidecarNaming::full);
    row("capitals", u"a.NEF"_s, { u"a.XMP"_s }, u"a.XMP"_s);
    row("full in capitals before short", u"a.nef"_s, { u"a.nef.XMP"_s, u"a.xmp"_s }, u"a.nef.XMP"_s);
    row("another raw of the name", u"a.NEF"_s, { u"a.CR2"_s }, u"a.NEF.xmp"_s);
    row("a JPEG of the name", u"a.NEF"_s, { u"a.jpg"_s, u"a.xmp"_s }, u"a.xmp"_s);
    row("a JPEG's full name", u"a.NEF"_s, { u"a.jpg"_s, u"a.jpg.xmp"_s }, u"a.xmp"_s);
    row("odd", u"Žluť 東京 %f 100%.v2.CR3"_s, {}, u"Žluť 東京 %f 100%.v2.xmp"_s);
}

void tst_AppModelSidecars::namesOfSidecars()
{
    QFETCH(QString, photo);
    QFETCH(QStringList, others);
    QFETCH(SidecarNaming, naming);
    QFETCH(QString, sidecar);
    RawPhotos raws;
    raws->preferences().sidecarNaming.set(naming);
    raws->preferences().writeSidecar.set(true);
    raws.addRaw(photo, { u"-XMP-dc:Title=own"_s });
    for (const QString& other : std::as_const(others)) {
        if (other.endsWith(u".xmp"_s, Qt::CaseInsensitive))
            exiftool({ u"-q"_s, u"-XMP-dc:Title="_s + other, raws.folder.path(other) });
        else if (other.endsWith(u"jpg"_s))
            raws.folder.add(other);
        else
            raws.addRaw(other);
    }
    // The age of a sidecar says nothing.
    if (QFile file(raws.folder.path(sidecar)); file.open(QIODevice::ReadWrite))
        file.setFileTime(QDateTime::fromSecsSinceEpoch(1000000000), QFileDevice::FileModificationTime);
    QVERIFY(raws.open());
    QCOMPARE(raws.shown(photo, u"title"_s), others.contains(sidecar) ? sidecar : u"own"_s);
    QMap<QString, QByteArray> before;
    for (const QString& other : std::as_const(others))
        if (other != sidecar)
            before.insert(other, raws.sidecar(other));
    raws.click(photo);
    raws->setSingle(u"headline"_s, u"new"_s);
    QVERIFY(raws.save());
    QCOMPARE(raws.banner(), QString());
    QCOMPARE(raws.stored(sidecar, u"XMP-photoshop:Headline"_s), u"new"_s);
    for (auto other = before.cbegin(); other != before.cend(); ++other)
        QVERIFY2(raws.sidecar(other.key()) == *other, qPrintable(other.key()));
    // The mirror of a JPEG beside it is no way into the raw photo's sidecar either.
    if (others.contains(u"a.jpg"_s)) {
        const QByteArray now = raws.sidecar(sidecar);
        raws.click(u"a.jpg"_s);
        raws->setSingle(u"headline"_s, u"of the JPEG"_s);
        QVERIFY(raws.save());
        QCOMPARE(raws.sidecar(sidecar), now);
        const QDateTime written = QFileInfo(raws.folder.path(sidecar)).lastModified();
        QVERIFY(raws.undo());
        QCOMPARE(raws.banner(), QString());
        QCOMPARE(raws.sidecar(sidecar), now);
        QCOMPARE(QFileInfo(raws.folder.path(sidecar)).lastModified(), written);
    }
    QVERIFY(raws.isUntouched());
}

void tst_AppModelSidecars::linkedAndReadOnly()
{
    RawPhotos raws;
    const PhotoFolder elsewhere;
    const QString behind = elsewhere.path(u"kept.xmp"_s);
    exiftool({ u"-q"_s, u"-XMP-dc:Title=kept"_s, behind });
    raws.addRaw(u"a.NEF"_s);
    raws.addRaw(u"b.NEF"_s);
    QVERIFY(QFile::link(behind, raws.folder.path(u"a.xmp"_s)));
    exiftool({ u"-q"_s, u"-XMP-dc:Title=shut"_s, raws.folder.path(u"b.xmp"_s) });
    QVERIFY(QFile::setPermissions(raws.folder.path(u"b.xmp"_s), QFile::ReadOwner));
    const QByteArray shut = raws.sidecar(u"b.xmp"_s);
    const QByteArray kept = contentOf(behind);
    QVERIFY(raws.open());
    QCOMPARE(raws.shown(u"a.NEF"_s, u"title"_s), u"kept"_s);
    raws.click(u"a.NEF"_s);
    raws->setSingle(u"title"_s, u"through the link"_s);
    QVERIFY(raws.save());
    QCOMPARE(raws.banner(), QString());
    QVERIFY(QFileInfo(raws.folder.path(u"a.xmp"_s)).isSymLink());
    QVERIFY(contentOf(behind).contains("through the link"));
    QVERIFY(raws.undo());
    QCOMPARE(raws.banner(), QString());
    QCOMPARE(contentOf(behind), kept);
    QVERIFY(QFileInfo(raws.folder.path(u"a.xmp"_s)).isSymLink());
    raws.click(u"b.NEF"_s);
    raws->setSingle(u"title"_s, u"not written"_s);
    QVERIFY(raws.save());
    QVERIFY2(raws.banner().contains(u"read-only"_s), qPrintable(raws.banner()));
    QCOMPARE(raws->unsavedCount(), 1);
    QCOMPARE(raws.sidecar(u"b.xmp"_s), shut);
    QVERIFY(raws.isUntouched());
}

void tst_AppModelSidecars::othersSidecars_data()
{
    QTest::addColumn<QByteArray>("sidecar");
    QTest::addColumn<Values>("shown");
    QTest::addColumn<QStringList>("keywords");
    const QString title = u"Harbour at dusk – Žluť 東京"_s;
    const QString date = u"2026-03-14 15:09"_s;
    const QString description = u"Two boats & a <pier>"_s;
    QTest::newRow("of darktable") << contentOf(QStringLiteral(QUORBEL_SIDECARS) + u"/darktable.xmp"_s)
                                  << Values{ { u"title"_s, title }, { u"description"_s, description },
                                         { u"date"_s, date }, { u"rating"_s, u"4"_s },
                                         { u"coords"_s, u"-33.856800, -70.669300"_s } }
                                  << QStringList{ u"Chile"_s, u"Places"_s, u"Santiago"_s, u"harbour"_s };
    QTest::newRow("of digiKam") << contentOf(QStringLiteral(QUORBEL_SIDECARS) + u"/digikam.xmp"_s)
                                << Values{ { u"title"_s, title }, { u"description"_s, description },
                                       { u"date"_s, date }, { u"rating"_s, u"4"_s }, { u"label"_s, u"Red"_s } }
                                << QStringList{ u"Santiago"_s, u"harbour"_s };
    QTest::newRow("of exiv2") << contentOf(QStringLiteral(QUORBEL_SIDECARS) + u"/exiv2.xmp"_s)
                              << Values{ { u"title"_s, u"Hafen"_s }, { u"description"_s, u"Two boats"_s },
                                     { u"date"_s, date }, { u"rating"_s, u"3"_s } }
                              << QStringList{ u"harbour"_s };
    // The first and the last line stand there twice.
    QTest::newRow("extracted by exiv2") << contentOf(QStringLiteral(QUORBEL_SIDECARS) + u"/exiv2-extracted.xmp"_s)
                                        << Values{ { u"title"_s, u"Own"_s }, { u"description"_s, u"Two boats"_s },
                                               { u"date"_s, date }, { u"rating"_s, u"2"_s } }
                                        << QStringList{ u"a"_s, u"1.1"_s };
    // With attributes, a thumbnail's worth of padding, a tool's name of its own, and what nobody knows.
    QTest::newRow("of an editor") << QByteArray(
        "<?xpacket begin='\xEF\xBB\xBF' id='W5M0MpCehiHzreSzNTczkc9d'?>\n"
        "<x:xmpmeta xmlns:x='adobe:ns:meta/' x:xmptk='Some Core 7.1'>\n"
        " <rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>\n"
        "  <rdf:Description rdf:about='' xmlns:dc='http://purl.org/dc/elements/1.1/'\n"
        "    xmlns:xmp='http://ns.adobe.com/xap/1.0/' xmlns:crs='http://ns.adobe.com/camera-raw-settings/1.0/'\n"
        "    xmlns:own='http://example.org/own/' xmp:Rating='2' xmp:MetadataDate='2020-01-02T03:04:05+01:00'\n"
        "    crs:Exposure2012='+0.35' crs:HasSettings='True' own:Secret='42'>\n"
        "   <dc:title><rdf:Alt><rdf:li xml:lang='x-default'>Theirs</rdf:li><rdf:li xml:lang='de'>Ihrer</rdf:li>"
        "</rdf:Alt></dc:title>\n"
        "   <crs:ToneCurvePV2012><rdf:Seq><rdf:li>0, 0</rdf:li><rdf:li>255, 255</rdf:li></rdf:Seq>"
        "</crs:ToneCurvePV2012>\n"
        "   <own:Things><rdf:Bag><rdf:li rdf:parseType='Resource'><own:A>1</own:A></rdf:li></rdf:Bag></own:Things>\n"
        "  </rdf:Description>\n </rdf:RDF>\n</x:xmpmeta>\n                \n<?xpacket end='w'?>")
                                  << Values{ { u"title"_s, u"Theirs"_s }, { u"rating"_s, u"2"_s } }
                                  << QStringList{ u"a"_s, u"1.1"_s };
}

// Each of these edits leaves all else in the sidecar as it was, and undo gives back the very bytes.
void tst_AppModelSidecars::othersSidecars()
{
    QFETCH(QByteArray, sidecar);
    QFETCH(Values, shown);
    QFETCH(QStringList, keywords);
    RawPhotos raws;
    raws.addRaw(u"a.NEF"_s, ownTags());
    raws.folder.add(u"a.NEF.xmp"_s, sidecar);
    QVERIFY(raws.open());
    QCOMPARE(raws.banner(), QString());
    for (auto value = shown.cbegin(); value != shown.cend(); ++value)
        QVERIFY2(raws.shown(u"a.NEF"_s, value.key()).startsWith(*value),
            qPrintable(value.key() + u": "_s + raws.shown(u"a.NEF"_s, value.key())));
    QCOMPARE(raws.items(u"a.NEF"_s, u"keywords"_s), keywords);
    raws.click(u"a.NEF"_s);
    // Without what the edit is to change; the rest line by line.
    const auto rest = [&](const QString& changed) {
        QString text =
            QString::fromUtf8(exiftool({ u"-X"_s, u"-a"_s, u"-u"_s, u"-XMP:all"_s, raws.folder.path(u"a.NEF.xmp"_s) }));
        text.remove(QRegularExpression(
            u"^ <(XMP-\\w+:(MetadataDate|SidecarForExtension|XMPToolkit|%1))[ >].*?</\\1>\n"_s.arg(changed),
            QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption));
        QStringList lines = text.split(u'\n');
        // The tool writes no list without items; nobody misses it.
        static const QRegularExpression emptyList(u"^ *<([\\w:-]+)></\\1>$"_s);
        lines.removeIf([](const QString& line) { return line.contains(emptyList) || line.contains(u" xmlns:"_s); });
        // The tool puts properties in an order of its own.
        lines.sort();
        return lines;
    };
    const auto changes = [&](const QString& changed, const std::function<void()>& edit) {
        const QStringList before = rest(changed);
        QVERIFY(before.size() > 12);
        edit();
        QVERIFY(raws.save());
        QCOMPARE(raws.banner(), QString());
        QVERIFY(raws.sidecar(u"a.NEF.xmp"_s) != sidecar);
        // Where a program keeps paths, it finds a new keyword only there.
        for (const QString& tag : { u"XMP-lr:HierarchicalSubject"_s, u"XMP-digiKam:TagsList"_s })
            if (const QStringList paths = raws.stored(u"a.NEF.xmp"_s, tag).split(u"; "_s); paths.size() > 1)
                QCOMPARE(paths.contains(u"quay"_s), raws.items(u"a.NEF"_s, u"keywords"_s).contains(u"quay"_s));
        const QStringList after = rest(changed);
        const QSet<QString> lines(after.cbegin(), after.cend());
        for (const QString& line : before)
            QVERIFY2(lines.contains(line), qPrintable(changed + u": "_s + line));
        QCOMPARE(after.size(), before.size());
        QVERIFY(raws.undo());
        QCOMPARE(raws.banner(), QString());
        QCOMPARE(raws.sidecar(u"a.NEF.xmp"_s), sidecar);
    };
    changes(u"Title"_s, [&] { raws->setSingle(u"title"_s, u"New 題"_s); });
    const QString keywordHomes = u"Subject|HierarchicalSubject|TagsList|LastKeywordXMP|CatalogSets"_s;
    const QString others = u"Rating|DateTimeOriginal|DateCreated|GPSLatitude|GPSLongitude"_s;
    changes(u"(?:%1|%2)"_s.arg(keywordHomes, others), [&] {
        raws->addSingleListItem(u"keywords"_s, u"quay"_s);
        raws->setSingle(u"rating"_s, u"5"_s);
        raws->setSingle(u"date"_s, u"2020-02-03 04:05"_s);
        raws->setSingle(u"coords"_s, u"-1.500000, -2.500000"_s);
    });
    QVERIFY(raws.isUntouched());
}

void tst_AppModelSidecars::brokenSidecars_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no XML") << QByteArray("\x01\x02 this is nothing") << u"file format error"_s;
    const PhotoFolder folder;
    exiftool({ u"-q"_s, u"-XMP-dc:Title=half"_s, u"-XMP-photoshop:City=Rome"_s, folder.path(u"whole.xmp"_s) });
    const QByteArray whole = contentOf(folder.path(u"whole.xmp"_s));
    QTest::newRow("cut off") << whole.first(whole.size() * 2 / 3) << u"XMP format error"_s;
}

// Named; the photo opens without it, and nobody writes into it.
void tst_AppModelSidecars::brokenSidecars()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, reason);
    RawPhotos raws;
    raws.addRaw(u"a.NEF"_s, ownTags());
    raws.folder.add(u"a.xmp"_s, content);
    writeFile(raws.folder.path(u"b.jpg"_s), {});
    QVERIFY(raws.open());
    QVERIFY2(raws.banner().startsWith(u"1 file could not be read and was left out: b.jpg (empty). "_s)
            && raws.banner().contains(
                u"1 sidecar could not be read, and its photo is shown without it: a.xmp ("_s + reason),
        qPrintable(raws.banner()));
    QCOMPARE(raws.shown(u"a.NEF"_s, u"title"_s), u"Own"_s);
    raws.click(u"a.NEF"_s);
    raws->setSingle(u"title"_s, u"New"_s);
    QVERIFY(raws.save());
    QVERIFY2(raws.banner().startsWith(u"Could not save"_s), qPrintable(raws.banner()));
    QCOMPARE(raws->unsavedCount(), 1);
    QCOMPARE(raws.sidecar(u"a.xmp"_s), content);
    QVERIFY(raws.isUntouched());
}

// A folder in the sidecar's place is named, and the photos in it are none of the save's.
void tst_AppModelSidecars::folderOfTheName()
{
    RawPhotos raws;
    raws.addRaw(u"a.NEF"_s, ownTags());
    QVERIFY(QDir(raws.folder.path()).mkdir(u"a.xmp"_s));
    raws.folder.add(u"a.xmp/inside.jpg"_s);
    const QByteArray inside = raws.sidecar(u"a.xmp/inside.jpg"_s);
    QVERIFY(raws.load({ raws.url(u"a.NEF"_s) }));
    QVERIFY2(raws.banner().contains(u"a.xmp"_s), qPrintable(raws.banner()));
    QCOMPARE(raws.shown(u"a.NEF"_s, u"title"_s), u"Own"_s);
    raws.click(u"a.NEF"_s);
    raws->setSingle(u"title"_s, u"New"_s);
    QVERIFY(raws.save());
    QCOMPARE(raws.sidecar(u"a.xmp/inside.jpg"_s), inside);
    QVERIFY2(raws.banner().startsWith(u"Could not save"_s), qPrintable(raws.banner()));
    QCOMPARE(raws->unsavedCount(), 1);
    QVERIFY(raws.isUntouched());
}

// One of the other name is in nobody's way, for looks neither.
void tst_AppModelSidecars::folderBesideTheSidecar()
{
    RawPhotos raws;
    raws.addRaw(u"a.NEF"_s, ownTags());
    QVERIFY(QDir(raws.folder.path()).mkdir(u"a.NEF.xmp"_s));
    exiftool({ u"-q"_s, u"-XMP-dc:Title=Beside"_s, raws.folder.path(u"a.xmp"_s) });
    QVERIFY(raws.open());
    QCOMPARE(raws.banner(), QString());
    QCOMPARE(raws.shown(u"a.NEF"_s, u"title"_s), u"Beside"_s);
    QCOMPARE(raws->record(raws.url(u"a.NEF"_s))->sidecarName, u"a.xmp"_s);
    raws.click(u"a.NEF"_s);
    raws->setSingle(u"title"_s, u"New"_s);
    QVERIFY(raws.save());
    QCOMPARE(raws.banner(), QString());
    QCOMPARE(raws.stored(u"a.xmp"_s, u"XMP-dc:Title"_s), u"New"_s);
}

// Named as well, but there is nothing in it that a save could break.
void tst_AppModelSidecars::emptySidecar()
{
    RawPhotos raws;
    raws.addRaw(u"a.NEF"_s, ownTags());
    writeFile(raws.folder.path(u"a.xmp"_s), {});
    QVERIFY(raws.open());
    QVERIFY2(raws.banner().contains(u"a.xmp"_s), qPrintable(raws.banner()));
    QCOMPARE(raws.shown(u"a.NEF"_s, u"title"_s), u"Own"_s);
    raws.click(u"a.NEF"_s);
    raws->setSingle(u"title"_s, u"New"_s);
    QVERIFY(raws.save());
    QCOMPARE(raws.banner(), QString());
    QCOMPARE(raws.stored(u"a.xmp"_s, u"XMP-dc:Title"_s), u"New"_s);
    QVERIFY(raws.undo());
    QCOMPARE(raws.banner(), QString());
    QCOMPARE(raws.folder.names(), (QStringList{ u"a.NEF"_s, u"a.xmp"_s }));
    QCOMPARE(raws.sidecar(u"a.xmp"_s), QByteArray());
    QVERIFY(raws.isUntouched());
}

// Only raw files go beside, and the mirror of a JPEG never takes a raw file's sidecar.
void tst_AppModelSidecars::othersAreWrittenAsEver()
{
    RawPhotos raws;
    raws->preferences().writeSidecar.set(true);
    raws->preferences().backupOriginals.set(true);
    exiftool({ u"-q"_s, u"-XMP-dc:Title=Theirs"_s, raws.folder.path(u"a.xmp"_s) });
    const QByteArray theirs = raws.sidecar(u"a.xmp"_s);
    raws.addRaw(u"a.NEF"_s);
    raws.folder.add(u"a.jpg"_s);
    raws.folder.add(u"b.tif"_s);
    QVERIFY(raws.open());
    raws->selectAllPhotos();
    raws->setBatch(u"headline"_s, u"All"_s);
    QVERIFY(raws.save());
    QCOMPARE(raws.banner(), QString());
    QVERIFY(raws.isUntouched());
    QCOMPARE(raws.stored(u"b.tif"_s, u"XMP-photoshop:Headline"_s), u"All"_s);
    QCOMPARE(raws.stored(u"a.jpg"_s, u"XMP-photoshop:Headline"_s), u"All"_s);
    QCOMPARE(raws.stored(u"a.xmp"_s, u"XMP-photoshop:SidecarForExtension"_s), u"NEF"_s);
    QCOMPARE(raws.folder.names(),
        (QStringList{
            u"a.NEF"_s, u"a.jpg"_s, u"a.jpg_original"_s, u"a.xmp"_s, u"b.tif"_s, u"b.tif_original"_s, u"b.xmp"_s }));
    QVERIFY(raws.undo());
    QCOMPARE(raws.banner(), QString());
    QCOMPARE(raws.sidecar(u"a.xmp"_s), theirs);
}

QTEST_GUILESS_MAIN(tst_AppModelSidecars)
#include "tst_AppModelSidecars.moc"
