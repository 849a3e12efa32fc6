// Metadata that moves over: what sidecars hold into the photos' own files, and what files hold into their sidecars.
#include "app/model/sidecars/MovingOver.h"
#include "core/schema/FieldSchema.h"
#include "tests/app/model/ModelFixture.h"

#include <QFile>
#include <QJsonObject>
#include <QTest>

#include <sys/stat.h>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

using Row = MovePreview::Row;

struct Desk : ModelFixture {
    Desk()
        : ModelFixture(MetadataService{ realTool() })
    {
        services.journalPath = journal.filePath(u"undo"_s);
        model->preferences().backupOriginals.set(false);
        model->preferences().saveDontAsk.set(true);
        relaunch();
    }

    QString add(const QString& name, const QStringList& assignments = {})
    {
        const QString path = folder.path(name);
        if (name.endsWith(u".xmp"_s, Qt::CaseInsensitive)) {
            exiftool(QStringList{ u"-q"_s } + assignments << path);
            return path;
        }
        // A camera's file is a TIFF under another name.
        const QString made =
            name.endsWith(u".jpg"_s) ? folder.add(name).toLocalFile() : folder.add(name + u".tif"_s).toLocalFile();
        QFile::rename(made, path);
        if (!assignments.isEmpty())
            exiftool(QStringList{ u"-q"_s, u"-overwrite_original"_s } + assignments << path);
        return path;
    }

    MovingOver& moving() const { return model->movingOver(); }
    bool ask(MoveWay way)
    {
        model->setErrorMessage(std::nullopt);
        moving().request(way);
        return QTest::qWaitFor([this] { return moving().isOpen() && moving().looked() == moving().photos(); }, 120000);
    }
    bool move(MoveWay way)
    {
        if (!ask(way) || !moving().canMove())
            return false;
        moving().move();
        return waitUntilIdle();
    }
    bool undo()
    {
        model->setErrorMessage(std::nullopt);
        model->undoSave();
        return waitUntilIdle();
    }
    // Nothing more to do.
    bool agrees(MoveWay way)
    {
        const bool agrees = ask(way) && moving().preview().plans.isEmpty() && !moving().canMove();
        moving().close();
        return agrees;
    }
    Row row(const QString& label) const
    {
        for (const Row& row : moving().preview().rows())
            if (row.label == label)
                return row;
        return {};
    }
    QByteArray bytes(const QString& name) const { return readFile(folder.path(name)); }
    // Bytes, inode and times.
    QByteArray state(const QString& name) const
    {
        struct stat status { };
        stat(QFile::encodeName(folder.path(name)).constData(), &status);
        return bytes(name) + QByteArray::number(qint64(status.st_ino)) + '/'
            + QByteArray::number(qint64(status.st_ctim.tv_nsec));
    }
    // All that the tool reads of the file itself, but for its times and sizes.
    QString tags(const QString& name) const
    {
        return QString::fromUtf8(exiftool({ u"-a"_s, u"-G1"_s, u"-s"_s, u"-XMP:all"_s, u"-IPTC:all"_s, u"-EXIF:all"_s,
            u"--StripOffsets"_s, u"--XMPToolkit"_s, folder.path(name) }));
    }
    QString stored(const QString& name, const QString& tag) const
    {
        return QString::fromUtf8(exiftool({ u"-s3"_s, u"-sep"_s, u"; "_s, u'-' + tag, folder.path(name) })).trimmed();
    }
    // The same of several tags, in one run: those that are not as expected, "TAG=what is there".
    QStringList otherThan(const QMap<QString, QString>& expected, const QString& name) const
    {
        QStringList arguments{ u"-f"_s, u"-s3"_s, u"-sep"_s, u"; "_s };
        for (const QString& tag : expected.keys())
            arguments.append(u'-' + tag);
        const QStringList lines = QString::fromUtf8(exiftool(arguments << folder.path(name))).split(u'\n');
        QStringList other;
        for (qsizetype i = 0; i < expected.size(); ++i)
            if (lines.value(i) != expected.values().at(i))
                other.append(expected.keys().at(i) + u'=' + lines.value(i));
        return other;
    }
    QString banner() const { return model->errorMessage().value_or(QString()); }

    QTemporaryDir journal;
};

QStringList fileTags()
{
    return { u"-IPTC:ObjectName=Own"_s, u"-XMP-dc:Title=Own"_s, u"-XMP-dc:Title-de=Eigen"_s, u"-IPTC:Keywords=own"_s,
        u"-XMP-dc:Subject=own"_s, u"-EXIF:Artist=Own"_s, u"-EXIF:DateTimeOriginal=2001:02:03 04:05:06"_s,
        u"-EXIF:OffsetTimeOriginal=+01:00"_s, u"-XMP-xmp:Rating=5"_s, u"-GPSLatitude=10.5"_s, u"-GPSLatitudeRef=S"_s,
        u"-GPSLongitude=20.25"_s, u"-GPSLongitudeRef=W"_s };
}

QStringList sidecarTags()
{
    return { u"-XMP-dc:Title=1.10"_s, u"-XMP-dc:Title-de=Beiseite"_s, u"-XMP-dc:Title-fr=Côté"_s,
        u"-XMP-dc:Description=Beside"_s, u"-XMP-dc:Subject=1.10"_s, u"-XMP-dc:Subject=Paris"_s,
        u"-XMP-lr:HierarchicalSubject=Places|Paris"_s, u"-XMP-dc:Creator="_s,
        u"-XMP-exif:DateTimeOriginal=2024:05:06 07:08:09.000"_s, u"-XMP-xmp:Rating=3"_s, u"-XMP-xmp:Label=Red"_s,
        u"-XMP-photoshop:Category=CAT"_s, u"-XMP-photoshop:Urgency=5"_s, u"-XMP-exif:GPSLatitude=-33.5"_s,
        u"-XMP-exif:GPSLongitude=151.25"_s, u"-XMP-iptcExt:PersonInImage=Ann"_s,
        u"-XMP-iptcCore:AltTextAccessibility=A dog"_s, u"-XMP-iptcExt:LocationCreated={City=Kyoto,CountryName=Japan}"_s,
        u"-XMP-iptcExt:DigitalSourceType=http://cv.iptc.org/newscodes/digitalsourcetype/digitalCapture"_s };
}

}  // namespace

class tst_MovingOver : public QObject {
    Q_OBJECT

private slots:
    void intoThePhoto_data();
    void intoThePhoto();
    void emptiedFieldsEmptyThePhotos();
    void whatIsLeftAlone();
    void onlyThatPhotoFails();
    void intoSidecars_data();
    void intoSidecars();
    void sidecarsKeepTheirOwn();
    void changedSinceItWasLookedAt();
    void manyPhotos();
};

void tst_MovingOver::intoThePhoto_data()
{
    QTest::addColumn<QString>("photo");
    QTest::addColumn<QString>("sidecar");
    QTest::addColumn<bool>("isBeside");
    QTest::newRow("raw") << u"a.NEF"_s << u"a.xmp"_s << false;
    QTest::newRow("raw, edits go beside it") << u"a.NEF"_s << u"a.NEF.xmp"_s << true;
    QTest::newRow("JPEG, capitals") << u"a.jpg"_s << u"a.XMP"_s << true;
}

void tst_MovingOver::intoThePhoto()
{
    QFETCH(QString, photo);
    QFETCH(QString, sidecar);
    QFETCH(bool, isBeside);
    Desk desk;
    desk->preferences().rawBeside.set(isBeside);
    // The mirror of other saves has no part in this one.
    desk->preferences().writeSidecar.set(true);
    desk.add(photo, fileTags());
    desk.add(sidecar, sidecarTags());
    const QString before = desk.tags(photo);
    const QByteArray beside = desk.state(sidecar);
    QVERIFY(desk.open());
    desk.click(photo);
    QVERIFY(desk.ask(MoveWay::intoPhotos));
    QCOMPARE(desk.row(u"Title"_s), (Row{ u"Title"_s, 0, 1, 0 }));
    QCOMPARE(desk.row(u"Title (French)"_s), (Row{ u"Title (French)"_s, 1, 0, 0 }));
    QCOMPARE(desk.row(u"Creator"_s), Row());
    QCOMPARE(desk.tags(photo), before);
    desk.moving().move();
    QVERIFY(desk.waitUntilIdle());
    QCOMPARE(desk.banner(), QString());
    QCOMPARE(desk.state(sidecar), beside);

    const QMap<QString, QString> expected{ { u"IPTC:ObjectName"_s, u"1.10"_s }, { u"XMP-dc:Title"_s, u"1.10"_s },
        { u"XMP-dc:Title-de"_s, u"Beiseite"_s }, { u"XMP-dc:Title-fr"_s, u"Côté"_s },
        { u"EXIF:ImageDescription"_s, u"Beside"_s }, { u"XMP-dc:Subject"_s, u"1.10; Paris"_s },
        { u"IPTC:Keywords"_s, u"1.10; Paris"_s }, { u"XMP-lr:HierarchicalSubject"_s, u"Places|Paris"_s },
        { u"EXIF:Artist"_s, u"Own"_s }, { u"EXIF:DateTimeOriginal"_s, u"2024:05:06 07:08:09"_s },
        { u"EXIF:OffsetTimeOriginal"_s, u"+01:00"_s }, { u"XMP-xmp:Rating"_s, u"3"_s },
        { u"XMP-xmp:Label"_s, u"Red"_s }, { u"IPTC:Category"_s, u"CAT"_s },
        { u"IPTC:Urgency"_s, u"5 (normal urgency)"_s }, { u"Composite:GPSLatitude#"_s, u"-33.5"_s },
        { u"Composite:GPSLongitude#"_s, u"151.25"_s }, { u"XMP-iptcExt:PersonInImage"_s, u"Ann"_s },
        { u"XMP-iptcCore:AltTextAccessibility"_s, u"A dog"_s }, { u"XMP-iptcExt:LocationCreatedCity"_s, u"Kyoto"_s },
        { u"XMP-iptcExt:DigitalSourceType#"_s, u"http://cv.iptc.org/newscodes/digitalsourcetype/digitalCapture"_s } };
    QCOMPARE(desk.otherThan(expected, photo), QStringList());
    QVERIFY(desk.agrees(MoveWay::intoPhotos));
    QVERIFY(desk->undoSaveText().contains(photo));
    QVERIFY(desk.undo());
    QCOMPARE(desk.banner(), QString());
    QCOMPARE(desk.tags(photo), before);
    QCOMPARE(desk.state(sidecar), beside);
}

// What was emptied beside a raw photo, by a save of ours, is gone from the photo, too.
void tst_MovingOver::emptiedFieldsEmptyThePhotos()
{
    Desk desk;
    desk->preferences().rawBeside.set(true);
    desk.add(u"a.NEF"_s, fileTags() << u"-XMP-iptcCore:AltTextAccessibility=Own"_s << u"-XMP-Quorbel:Mood=x"_s);
    QVERIFY(desk.open());
    desk.click(u"a.NEF"_s);
    for (const QString& id : { u"title"_s, u"date"_s, u"coords"_s, u"rating"_s })
        desk->setSingle(id, QString());
    desk->removeSingleListItem(u"keywords"_s, u"own"_s);
    desk->requestSave();
    QVERIFY(desk.waitUntilIdle());
    QCOMPARE(desk.banner(), QString());
    exiftool(
        { u"-q"_s, u"-overwrite_original"_s, u"-XMP-iptcCore:AltTextAccessibility^="_s, desk.folder.path(u"a.xmp"_s) });
    QVERIFY(desk.ask(MoveWay::intoPhotos));
    for (const QString& label : { u"Title"_s, u"Date taken"_s, u"Coordinates"_s, u"Rating"_s, u"Keywords"_s })
        QCOMPARE(desk.row(label), (Row{ label, 0, 0, 1 }));
    desk.moving().move();
    QVERIFY(desk.waitUntilIdle());
    QCOMPARE(desk.banner(), QString());
    QMap<QString, QString> gone{ { u"EXIF:Artist"_s, u"Own"_s } };
    for (const QString& tag : { u"IPTC:ObjectName"_s, u"XMP-dc:Title"_s, u"EXIF:DateTimeOriginal"_s,
             u"EXIF:GPSLatitude"_s, u"XMP-xmp:Rating"_s, u"IPTC:Keywords"_s, u"XMP-iptcCore:AltTextAccessibility"_s })
        gone.insert(tag, u"-"_s);
    QCOMPARE(desk.otherThan(gone, u"a.NEF"_s), QStringList());
    QVERIFY(desk.agrees(MoveWay::intoPhotos));
}

void tst_MovingOver::whatIsLeftAlone()
{
    Desk desk;
    desk.add(u"none.NEF"_s);
    desk.add(u"pair.NEF"_s);
    desk.add(u"pair.jpg"_s);
    desk.add(u"pair.xmp"_s, { u"-XMP-dc:Title=Raw"_s });
    desk.add(u"broken.jpg"_s);
    desk.folder.add(u"broken.xmp"_s, "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF");
    desk.add(u"locked.jpg"_s);
    desk.add(u"locked.xmp"_s, { u"-XMP-dc:Title=T"_s });
    QFile::setPermissions(desk.folder.path(u"locked.jpg"_s), QFile::ReadOwner);
    desk.add(u"odd.jpg"_s);
    desk.add(u"odd.xmp"_s,
        { u"-XMP-xmp:Rating=-1"_s, u"-XMP-dc:Creator=A"_s, u"-XMP-dc:Creator=B"_s, u"-XMP-photoshop:DateCreated=2024"_s,
            u"-XMP-xmp:CreateDate=2024:05:06 07:08:09+05:00"_s, u"-XMP-dc:Title=Even"_s });
    const QByteArray locked = desk.state(u"locked.jpg"_s);
    QVERIFY(desk.open());
    desk->selectAllPhotos();
    QVERIFY(desk.ask(MoveWay::intoPhotos));
    const MovePreview preview = desk.moving().preview();
    QCOMPARE(preview.withoutSidecar, QStringList(u"none.NEF"_s));
    QCOMPARE(preview.withOthersSidecar, QStringList(u"pair.jpg"_s));
    QVERIFY2(preview.unreadable.value(0).startsWith(u"broken.xmp ("_s), qPrintable(preview.unreadable.join(u';')));
    QCOMPARE(preview.readOnly, QStringList(u"locked.jpg"_s));
    QCOMPARE(preview.odd, QStringList(u"odd.jpg (Date taken, Creator, Rating, Date digitized)"_s));
    QCOMPARE(preview.plans.size(), 2);
    desk.moving().move();
    QVERIFY(desk.waitUntilIdle());
    QCOMPARE(desk.banner(), QString());
    QCOMPARE(desk.stored(u"odd.jpg"_s, u"XMP-dc:Title"_s), u"Even"_s);
    QCOMPARE(desk.stored(u"odd.jpg"_s, u"XMP-xmp:Rating"_s), QString());
    QCOMPARE(desk.stored(u"pair.NEF"_s, u"XMP-dc:Title"_s), u"Raw"_s);
    QCOMPARE(desk.stored(u"pair.jpg"_s, u"XMP-dc:Title"_s), QString());
    QCOMPARE(desk.state(u"locked.jpg"_s), locked);
}

void tst_MovingOver::onlyThatPhotoFails()
{
    Desk desk;
    for (const QString& name : { u"a"_s, u"b"_s }) {
        desk.add(name + u".jpg"_s);
        desk.add(name + u".xmp"_s, { u"-XMP-dc:Title="_s + name });
    }
    QVERIFY(desk.open());
    desk->selectAllPhotos();
    QVERIFY(desk.ask(MoveWay::intoPhotos));
    QCOMPARE(desk.moving().preview().plans.size(), 2);
    desk.folder.add(u"a.jpg"_s, jpegBytes().first(40));
    desk.moving().move();
    QVERIFY(desk.waitUntilIdle());
    QVERIFY2(desk.banner().contains(u"a.jpg"_s), qPrintable(desk.banner()));
    QCOMPARE(desk.stored(u"b.jpg"_s, u"XMP-dc:Title"_s), u"b"_s);
    QCOMPARE(desk->unsavedCount(), 0);
}

void tst_MovingOver::intoSidecars_data()
{
    QTest::addColumn<QString>("photo");
    QTest::addColumn<bool>("isBeside");
    QTest::newRow("raw") << u"a.NEF"_s << false;
    QTest::newRow("raw, edits go beside it") << u"a.NEF"_s << true;
    QTest::newRow("DNG") << u"a.dng"_s << false;
}

void tst_MovingOver::intoSidecars()
{
    QFETCH(QString, photo);
    QFETCH(bool, isBeside);
    Desk desk;
    desk->preferences().rawBeside.set(isBeside);
    // Of these two a photo shows the homes in EXIF and IPTC alone.
    desk.add(photo,
        sidecarTags() << u"-EXIF:DateTimeOriginal=2024:05:06 07:08:09"_s << u"-IPTC:Category=CAT"_s
                      << u"-EXIF:OffsetTimeOriginal=+09:00"_s << u"-EXIF:Copyright=Mine"_s);
    desk.add(u"b.jpg"_s, { u"-XMP-dc:Title=No raw"_s });
    const QByteArray untouched = desk.state(photo);
    QVERIFY(desk.open());
    desk->selectAllPhotos();
    QVERIFY(desk.ask(MoveWay::intoSidecars));
    QCOMPARE(desk.moving().preview().notRaw, QStringList(u"b.jpg"_s));
    desk.moving().move();
    QVERIFY(desk.waitUntilIdle());
    QCOMPARE(desk.banner(), QString());
    QCOMPARE(desk.state(photo), untouched);
    const QMap<QString, QString> expected{ { u"XMP-dc:Title"_s, u"1.10"_s }, { u"XMP-dc:Title-fr"_s, u"Côté"_s },
        { u"XMP-dc:Subject"_s, u"1.10; Paris"_s }, { u"XMP-lr:HierarchicalSubject"_s, u"Places|Paris; 1.10"_s },
        { u"XMP-exif:DateTimeOriginal"_s, u"2024:05:06 07:08:09"_s }, { u"XMP-xmp:Rating"_s, u"3"_s },
        { u"XMP-dc:Rights"_s, u"Mine"_s }, { u"XMP:OffsetTimeOriginal"_s, u"+09:00"_s },
        { u"XMP-exif:GPSLatitude#"_s, u"-33.5"_s }, { u"XMP-photoshop:Category"_s, u"CAT"_s },
        { u"XMP-iptcExt:LocationCreatedCity"_s, u"Kyoto"_s }, { u"XMP-iptcCore:AltTextAccessibility"_s, u"A dog"_s } };
    QCOMPARE(desk.otherThan(expected, u"a.xmp"_s), QStringList());
    QVERIFY(desk.agrees(MoveWay::intoSidecars));
    QVERIFY(desk.undo());
    QCOMPARE(desk.banner(), QString());
    QVERIFY(!desk.folder.names().contains(u"a.xmp"_s));
    QCOMPARE(desk.state(photo), untouched);
}

// Newer words are never replaced by older ones, nor is what was emptied filled again.
void tst_MovingOver::sidecarsKeepTheirOwn()
{
    Desk desk;
    desk.add(u"a.NEF"_s, fileTags() << u"-XMP-photoshop:Headline=Own"_s);
    desk.add(u"a.xmp"_s,
        { u"-XMP-dc:Title=Newer"_s, u"-XMP-dc:Subject=newer"_s, u"-XMP-photoshop:Headline^="_s,
            u"-XMP-crs:Exposure2012=+1.50"_s });
    const QByteArray before = desk.bytes(u"a.xmp"_s);
    QVERIFY(desk.open());
    desk.click(u"a.NEF"_s);
    QVERIFY(desk.ask(MoveWay::intoSidecars));
    QCOMPARE(desk.moving().preview().keeping, 1);
    for (const QString& label : { u"Title"_s, u"Keywords"_s, u"Headline"_s })
        QCOMPARE(desk.row(label), Row());
    QCOMPARE(desk.row(u"Creator"_s), (Row{ u"Creator"_s, 1, 0, 0 }));
    desk.moving().move();
    QVERIFY(desk.waitUntilIdle());
    QCOMPARE(desk.banner(), QString());
    QCOMPARE(desk.stored(u"a.xmp"_s, u"XMP-dc:Title"_s), u"Newer"_s);
    QCOMPARE(desk.stored(u"a.xmp"_s, u"XMP-dc:Title-de"_s), u"Eigen"_s);
    QCOMPARE(desk.stored(u"a.xmp"_s, u"XMP-dc:Subject"_s), u"newer"_s);
    QCOMPARE(desk.stored(u"a.xmp"_s, u"XMP-photoshop:Headline"_s), QString());
    QCOMPARE(desk.stored(u"a.xmp"_s, u"XMP-crs:Exposure2012"_s), u"+1.50"_s);
    QCOMPARE(desk.stored(u"a.xmp"_s, u"XMP-dc:Creator"_s), u"Own"_s);
    // With edits in the files, the list goes on showing what the file holds.
    QCOMPARE(desk->record(desk.url(u"a.NEF"_s))->values.value(u"title"_s), u"Own"_s);
    QVERIFY(desk.undo());
    QCOMPARE(desk.bytes(u"a.xmp"_s), before);
}

// By another program, while the sheet was open: what is there by then is moved.
void tst_MovingOver::changedSinceItWasLookedAt()
{
    Desk desk;
    desk.add(u"a.jpg"_s);
    desk.add(u"a.xmp"_s, { u"-XMP-dc:Title=Old"_s });
    QVERIFY(desk.open());
    desk.click(u"a.jpg"_s);
    QVERIFY(desk.ask(MoveWay::intoPhotos));
    exiftool({ u"-q"_s, u"-overwrite_original"_s, u"-XMP-dc:Title=New, and longer"_s, desk.folder.path(u"a.xmp"_s) });
    desk.moving().move();
    QVERIFY(desk.waitUntilIdle());
    QCOMPARE(desk.stored(u"a.jpg"_s, u"XMP-dc:Title"_s), u"New, and longer"_s);
    // Given up, nothing is written; another selection closes the sheet.
    desk.add(u"b.jpg"_s);
    exiftool({ u"-q"_s, u"-overwrite_original"_s, u"-XMP-dc:Title=Third"_s, desk.folder.path(u"a.xmp"_s) });
    QVERIFY(desk.ask(MoveWay::intoPhotos));
    desk.moving().close();
    QVERIFY(!desk.moving().isOpen() && !desk->isWorking());
    QCOMPARE(desk.stored(u"a.jpg"_s, u"XMP-dc:Title"_s), u"New, and longer"_s);
}

// Each with words of its own: one save. Among the slow tests, more than are looked at in one go.
void tst_MovingOver::manyPhotos()
{
    Desk desk;
    const int count = isSlowRun() ? 260 : 8;
    desk.add(u"p000.jpg"_s);
    desk.add(u"p000.xmp"_s, { u"-XMP-dc:Title=Words of 000"_s });
    const QByteArray photo = desk.bytes(u"p000.jpg"_s);
    const QByteArray sidecar = desk.bytes(u"p000.xmp"_s);
    for (int i = 1; i < count; ++i) {
        const QString number = u"%1"_s.arg(i, 3, 10, QChar(u'0'));
        desk.folder.add(u"p"_s + number + u".jpg"_s, photo);
        desk.folder.add(u"p"_s + number + u".xmp"_s, QByteArray(sidecar).replace("of 000", "of " + number.toUtf8()));
    }
    QVERIFY(desk.open());
    desk->selectAllPhotos();
    QVERIFY(desk.ask(MoveWay::intoPhotos));
    QCOMPARE(desk.moving().preview().rows(), (QList<Row>{ { u"Title"_s, count, 0, 0 } }));
    desk.moving().move();
    QVERIFY(desk.waitUntilIdle());
    QCOMPARE(desk.banner(), QString());
    QCOMPARE(desk.stored(u"p007.jpg"_s, u"XMP-dc:Title"_s), u"Words of 007"_s);
    QCOMPARE(desk->undoSaveText(), u"Undo Save of %1 photos"_s.arg(count));
}

QTEST_GUILESS_MAIN(tst_MovingOver)
#include "tst_MovingOver.moc"
