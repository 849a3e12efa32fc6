// Photos whose edits go beside them: what the two files hold together of times, languages and IPTC fields, where they
// differ, and what a save, a shift of time and an undo make of that. The photo's own file stays what it was.
#include "app/model/timeshift/TimeShifting.h"
#include "tests/app/model/RawPhotos.h"

#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

class tst_SidecarDetails : public QObject {
    Q_OBJECT

private slots:
    void shiftsGoBeside_data();
    void shiftsGoBeside();
};

namespace {

// The first is dated by its camera alone, the second by its sidecar too; of the third the sidecar hides it.
void addDated(RawPhotos& raws)
{
    const QStringList camera{ u"-EXIF:DateTimeOriginal=2024:05:06 23:30:15"_s, u"-EXIF:SubSecTimeOriginal=050"_s,
        u"-EXIF:OffsetTimeOriginal=+02:00"_s, u"-EXIF:CreateDate=2024:05:06 23:30:16"_s };
    for (const QString& name : { u"a.NEF"_s, u"b.NEF"_s, u"c.NEF"_s })
        raws.addRaw(name, camera);
    raws.folder.add(u"d.jpg"_s);
    exiftool({ u"-q"_s, u"-overwrite_original"_s, u"-EXIF:DateTimeOriginal=2024:05:06 23:30:20"_s,
        raws.folder.path(u"d.jpg"_s) });
    exiftool({ u"-q"_s, u"-XMP-photoshop:DateCreated=2010:01:02 03:04:05"_s, u"-XMP-dc:Title=Beside"_s,
        u"-XMP-xmp:ModifyDate=2010:01:02 03:04:05"_s, raws.folder.path(u"b.xmp"_s) });
    exiftool({ u"-q"_s, u"-XMP-dc:Title=Beside"_s, raws.folder.path(u"c.xmp"_s) });
}

}  // namespace

void tst_SidecarDetails::shiftsGoBeside_data()
{
    QTest::addColumn<bool>("isZone");
    QTest::addColumn<QStringList>("first");
    QTest::addColumn<QStringList>("second");
    QTest::addColumn<QString>("jpeg");
    QTest::newRow("later") << false
                           << QStringList{ u"2024:05:07 00:32:45"_s, u"2024:05:07 00:32:45"_s, u"+02:00"_s,
                                  u"2024:05:07 00:32:46"_s }
                           << QStringList{ QString(), u"2010:01:02 04:06:35"_s, QString(), u"2024:05:07 00:32:46"_s }
                           << u"2024:05:07 00:32:50"_s;
    QTest::newRow("another zone, the moment stays")
        << true
        << QStringList{ u"2024:05:07 06:30:15"_s, u"2024:05:07 06:30:15"_s, u"+09:00"_s, u"2024:05:07 06:30:16"_s }
        << QStringList{ QString(), u"2010:01:02 10:04:05"_s, u"+09:00"_s, u"2024:05:07 06:30:16"_s }
        << u"2024:05:06 23:30:20"_s;
}

void tst_SidecarDetails::shiftsGoBeside()
{
    QFETCH(bool, isZone);
    RawPhotos raws;
    addDated(raws);
    QVERIFY(raws.open());
    raws.click(u"c.NEF"_s);
    raws->setSingle(u"date"_s, QString());
    QVERIFY(raws.save());
    QCOMPARE(raws.shown(u"c.NEF"_s, u"date"_s), QString());
    const QByteArray before = raws.sidecar(u"b.xmp"_s);

    raws->selectAllPhotos();
    TimeShifting& shifting = raws->timeShifting();
    shifting.request();
    shifting.setWay(TimeShifting::Way::knownPhoto);
    // To the second, of both files.
    for (const auto& [name, clock] :
        { std::pair(u"a.NEF"_s, u"2024-05-06 23:30:15"_s), std::pair(u"b.NEF"_s, u"2010-01-02 03:04:05"_s) }) {
        shifting.setKnownPhoto(raws.url(name));
        QTRY_COMPARE(shifting.knownClock(), clock);
    }
    if (isZone) {
        shifting.setWay(TimeShifting::Way::zone);
        shifting.setZone({ .minutes = 540 });
        shifting.setKeepsClock(false);
    } else {
        shifting.setKnownTime(u"2010-01-02 04:06:35"_s);
    }
    QTRY_VERIFY(shifting.canShift());
    shifting.shift();
    QVERIFY(raws.waitUntilIdle());
    QVERIFY(raws.isUntouched());
    const auto times = [&raws](const QString& name) {
        QStringList found;
        for (const QString& tag : { u"XMP-exif:DateTimeOriginal"_s, u"XMP-photoshop:DateCreated"_s,
                 u"XMP-exif:OffsetTimeOriginal"_s, u"XMP-xmp:CreateDate"_s })
            found.append(raws.stored(name, tag));
        return found;
    };
    QTEST(times(u"a.xmp"_s), "first");
    QTEST(times(u"b.xmp"_s), "second");
    // The day when the sidecar was saved first is its own, unless it is that of the photo.
    QCOMPARE(raws.stored(u"b.xmp"_s, u"XMP-xmp:ModifyDate"_s), raws.stored(u"b.xmp"_s, u"XMP-photoshop:DateCreated"_s));
    QCOMPARE(raws.stored(u"c.xmp"_s, u"XMP-photoshop:DateCreated"_s), QString());
    QTEST(raws.stored(u"d.jpg"_s, u"EXIF:DateTimeOriginal"_s), "jpeg");
    QCOMPARE(raws.stored(u"a.xmp"_s, u"XMP-photoshop:SidecarForExtension"_s), u"NEF"_s);
    QCOMPARE(raws.shown(u"a.NEF"_s, u"date"_s),
        raws.stored(u"a.xmp"_s, u"XMP-photoshop:DateCreated"_s).left(16).replace(4, 1, u"-"_s).replace(7, 1, u"-"_s));
    QCOMPARE(raws.shown(u"c.NEF"_s, u"date"_s), QString());

    QVERIFY(raws.undo());
    QCOMPARE(raws.banner(), QString());
    QCOMPARE(raws.sidecar(u"b.xmp"_s), before);
    QVERIFY(!raws.folder.names().contains(u"a.xmp"_s));
    QCOMPARE(raws.shown(u"a.NEF"_s, u"date"_s), u"2024-05-06 23:30"_s);
    QVERIFY(raws.isUntouched());
}

QTEST_GUILESS_MAIN(tst_SidecarDetails)
#include "tst_SidecarDetails.moc"
