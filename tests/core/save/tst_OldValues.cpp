// What a save replaces, picked out of all that was read before anybody knew what it would be: the same as a look at
// just that.
#include "core/MetadataService.h"
#include "core/save/journal/JournalTags.h"
#include "core/save/together/PhotoPlans.h"
#include "core/schema/FieldSchema.h"
#include "core/tool/IptcEncoding.h"
#include "tests/support/Support.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

// Photos with what is hard to tell apart: namesakes in other groups and blocks, languages, bytes that are no text.
QList<QUrl> oddPhotos(const PhotoFolder& folder)
{
    const QUrl texts = folder.add(u"odd texts.jpg"_s);
    exiftool({ "-q", "-overwrite_original", "-ec", "-XMP-dc:Title=One", "-XMP-dc:Title-de=Eins",
        "-XMP-dc:Title-fr-CA=Un", "-XMP-dc:Description-de=Zwei", "-XMP-iptcExt:Event=Party",
        "-XMP-iptcExt:Event-de=Feier", "-IPTC:ObjectName=Z\\xfcrich", "-IPTC:Caption-Abstract=one\\rtwo ",
        "-IPTC:Keywords=1.10", "-IPTC:Keywords=S\\xfcd", "-XMP-dc:Subject=a\\rb",
        "-XMP-dc:Subject^=", "-EXIF:Artist=J\\xfcrg", "-EXIF:Copyright=photographer\\x00editor",
        "-EXIF:Software^=", "-XMP-xmp:Rating=2", "-XMP-acdsee:Rating=5", "-XMP-xmp:Label=Red", texts.toLocalFile() });
    const QUrl places = folder.add(u"places.jpg"_s);
    exiftool({ "-q", "-overwrite_original", "-GPSLatitude=33.5", "-GPSLatitudeRef=S", "-GPSLongitude=70.25",
        "-GPSLongitudeRef=W", "-XMP-drone-dji:GPSLatitude=10.5", "-XMP-photoshop:City=Here",
        "-XMP-iptcCore:Location=There", "-XMP-iptcExt:LocationShownCity=Elsewhere", "-XMP-photoshop:Source=A",
        "-IPTC:Source=B", "-XMP-xmp:CreateDate=2020:01:02 03:04:05", "-EXIF:CreateDate=2021:01:02 03:04:05",
        "-XMP-photoshop:DateCreated=2022:01:02 03:04:05", "-IPTC:DateCreated=2023:01:02", "-IFD1:Software=thumbnail",
        places.toLocalFile() });
    const QUrl empty = folder.add(u"empty.png"_s);
    const QUrl tiff = folder.add(u"a.tif"_s);
    exiftool({ "-q", "-overwrite_original", "-IPTC:City=Bern", "-EXIF:ImageDescription=tiff", tiff.toLocalFile() });
    return { texts, places, empty, tiff };
}

// Namesakes of the schema's fields among the custom ones, in another case than they are written in.
void addCustomFields(const MetadataService& service, const QUrl& photo)
{
    service.write({ .customs = { { "mood", "calm" }, { "Rating", "mine" }, { "Source", "own" } } }, { photo }, {});
}

EditPlan planOf(const FieldSpec& field, const QString& text)
{
    EditPlan plan;
    if (field.isList())
        plan.lists = { { field.id, { text } } };
    else
        plan.scalars = { { field.id, field.kind == FieldKind::coordinates ? u"1, 2"_s : text } };
    return plan;
}

QList<EditPlan> plans()
{
    QList<EditPlan> plans;
    for (const FieldSpec& field : FieldSchema::all())
        plans += planOf(field, u"plain"_s);
    EditPlan all = plans.constFirst();
    for (const EditPlan& one : std::as_const(plans)) {
        all.scalars.insert(one.scalars);
        all.lists.insert(one.lists);
    }
    plans += all;
    // Bound for IPTC, such a text has its whole block read.
    plans += planOf(*FieldSchema::spec(u"place"_s), u"東京"_s);
    plans += EditPlan{ .customs = { { "Mood", "wild" } } };
    plans += EditPlan{ .scalars = { { "rating", "3" } }, .customs = { { "unheard", "of" } } };
    plans += EditPlan{};
    return plans;
}

QList<QUrl> linksTo(const QList<QUrl>& photos, const PhotoFolder& folder)
{
    QList<QUrl> links;
    for (const QUrl& photo : photos) {
        links.append(folder.url(u"link to "_s + photo.fileName()));
        if (!QFile::link(photo.toLocalFile(), links.constLast().toLocalFile()))
            qFatal("No link");
    }
    return links;
}

}  // namespace

class tst_OldValues : public QObject {
    Q_OBJECT

private slots:
    void areWhatALookAtThePlanFinds_data()
    {
        QTest::addColumn<bool>("areReal");
        QTest::addColumn<bool>("areLinks");
        QTest::addColumn<bool>("writesSidecars");
        QTest::newRow("odd ones") << false << false << true;
        if (isSlowRun())
            QTest::newRow("real ones, through links") << true << true << false;
    }
    void areWhatALookAtThePlanFinds()
    {
        QFETCH(bool, areReal);
        QFETCH(bool, areLinks);
        QFETCH(bool, writesSidecars);
        const PhotoFolder folder;
        const PhotoFolder further;
        const MetadataService service{ realTool() };
        QList<QUrl> photos = areReal ? copied(realPhotos(u"valid"_s, 5), folder) : oddPhotos(folder);
        if (photos.isEmpty())
            QSKIP("QUORBEL_TEST_PHOTOS names no photos");
        if (!areReal)
            addCustomFields(service, photos.constFirst());
        writeFile(folder.path(u"odd texts.xmp"_s), "a sidecar");
        if (areLinks)
            photos = linksTo(photos, further);
        const OldValues known = service.oldValues(PhotoPlans::allTags(), photos);
        const WriteOptions options{ .writeSidecar = writesSidecars };
        for (const EditPlan& plan : plans()) {
            JournalEntry now = service.journalEntry(plan, photos, options);
            const JournalEntry then = SaveUndo::journalEntry(
                known, [&plan](const QUrl&) { return plan; }, photos, options);
            now.savedAt = then.savedAt;
            for (qsizetype i = 0; i < std::min(now.files.size(), then.files.size()); ++i) {
                const QString what = now.files[i].path + u": "_s + now.writtenTags.join(u' ');
                QVERIFY2(then.files[i] == now.files[i], qPrintable(what));
            }
            QVERIFY2(then == now, qPrintable(now.writtenTags.join(u' ')));
            QCOMPARE(then.files.size(), plan.isEmpty() ? 0 : photos.size());
        }
    }

    // One photo of many holds the same as one alone.
    void ofOnePhotoAndOfMany()
    {
        const PhotoFolder folder;
        const MetadataService service{ realTool() };
        QList<QUrl> photos = oddPhotos(folder) + copied(realPhotos(u"valid"_s, 5), folder);
        addCustomFields(service, photos.constFirst());
        const OldValues known =
            service.oldValues(PhotoPlans::allTags(), photos + QList<QUrl>{ folder.url(u"gone.jpg"_s) });
        QCOMPARE(known.size(), photos.size());
        for (const QUrl& photo : std::as_const(photos)) {
            const OldValues one = service.oldValues(PhotoPlans::allTags(), { photo });
            QCOMPARE(one.size(), 1);
            QCOMPARE(known.value(one.constBegin().key()), one.constBegin().value());
        }
    }

    void pickOutOfMore_data()
    {
        QTest::addColumn<QString>("written");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("languages") << u"XMP-dc:Title"_s << QStringList{ u"XMP-dc:Title"_s, u"XMP-dc:Title-de"_s };
        QTest::newRow("any XMP group") << u"XMP:Rating"_s
                                       << QStringList{ u"XMP-Quorbel:Rating"_s, u"XMP-acdsee:Rating"_s };
        QTest::newRow("any directory") << u"EXIF:Software"_s << QStringList{ u"IFD0:Software"_s, u"IFD1:Software"_s };
        QTest::newRow("any block") << u"IPTC:City"_s << QStringList{ u"IPTC2:City"_s, u"IPTC:City"_s };
        QTest::newRow("position") << u"GPSLatitude"_s << QStringList{ u"GPS:GPSLatitude"_s, u"XMP-exif:GPSLatitude"_s };
        QTest::newRow("custom fields") << u"XMP-Quorbel:mood"_s
                                       << QStringList{ u"XMP-Quorbel:Mood"_s, u"XMP-Quorbel:Rating"_s };
        QTest::newRow("the block") << IptcEncoding::blockTag()
                                   << QStringList{ u"IPTC:CodedCharacterSet"_s, u"IPTC:IPTC"_s };
    }
    void pickOutOfMore()
    {
        QFETCH(QString, written);
        FileTags tags;
        for (const char* tag : { "XMP-dc:Title", "XMP-dc:Title-de", "XMP-other:Title", "XMP-acdsee:Rating",
                 "XMP-Quorbel:Rating", "XMP-Quorbel:Mood", "IFD0:Software", "IFD1:Software", "XMP-xmp:Software",
                 "IPTC:City", "IPTC2:City", "XMP-photoshop:City", "GPS:GPSLatitude", "XMP-exif:GPSLatitude",
                 "IFD0:GPSLatitude", "IPTC:IPTC", "IPTC:CodedCharacterSet" })
            tags.insert(QString::fromLatin1(tag), { tag });
        QTEST(QStringList(JournalTags::among(tags, { written }).keys()), "expected");
    }
};

QTEST_GUILESS_MAIN(tst_OldValues)
#include "tst_OldValues.moc"
