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
    void shiftedUnderOtherSettings();
    void homesOfBothFiles();
    void oneHomeIsTaken();
    void theSidecarAgrees();
    void languagesAndIptcFields();
    void severalPhotos();
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

// What was asked is another thing by then: the times on screen were those of other files.
void tst_SidecarDetails::shiftedUnderOtherSettings()
{
    RawPhotos raws;
    addDated(raws);
    const QByteArray before = raws.sidecar(u"b.xmp"_s);
    QVERIFY(raws.open());
    raws.click(u"b.NEF"_s);
    TimeShifting& shifting = raws->timeShifting();
    shifting.request();
    shifting.setAmount({ .hours = u"1"_s });
    QTRY_VERIFY(shifting.canShift());
    shifting.shift();
    raws->preferences().rawBeside.set(false);
    QVERIFY(raws.waitUntilIdle());
    QCOMPARE(raws.banner(),
        u"Could not shift the time: where edits of raw files go was changed in the settings meanwhile"_s);
    QVERIFY(raws.isUntouched());
    QCOMPARE(raws.sidecar(u"b.xmp"_s), before);
}

// What is told of a photo: "*" stands before homes that hold what is shown.
void tst_SidecarDetails::homesOfBothFiles()
{
    RawPhotos raws;
    raws.addRaw(u"a.NEF"_s,
        { u"-XMP-dc:Title=File"_s, u"-XMP-dc:Title-de=Datei"_s, u"-XMP-dc:Title-fr=Fichier"_s,
            u"-EXIF:ImageDescription=Own"_s, u"-IPTC:City=Rome"_s, u"-XMP-photoshop:City=Paris"_s,
            u"-EXIF:DateTimeOriginal=2024:05:06 07:08:09"_s, u"-EXIF:Copyright=Ann"_s, u"-XMP:Rating=4"_s,
            u"-IPTC:Keywords=one"_s, u"-XMP-lr:HierarchicalSubject=N|one"_s, u"-GPSLatitude=10.5"_s,
            u"-GPSLatitudeRef=S"_s, u"-GPSLongitude=20.25"_s, u"-GPSLongitudeRef=W"_s, u"-XMP-iptcExt:Event=Feast"_s,
            u"-XMP-iptcCore:AltTextAccessibility=Own"_s, u"-XMP-iptcExt:LocationShown={City=Rome}"_s,
            u"-XMP-plus:ImageSupplierImageID=7"_s });
    raws.addRaw(u"b.NEF"_s, { u"-XMP-dc:Title=File"_s, u"-XMP-dc:Title-de=Datei"_s });
    raws.addRaw(
        u"c.NEF"_s, { u"-XMP-dc:Title=File"_s, u"-IPTC:ObjectName=Other"_s, u"-XMP-lr:HierarchicalSubject=N|one"_s });
    exiftool({ u"-q"_s, u"-XMP-dc:Title=File"_s, u"-XMP-dc:Title-de=Daneben"_s, u"-XMP-dc:Title-fr^="_s,
        u"-XMP-dc:Description=Beside"_s, u"-XMP-photoshop:City=Paris"_s,
        u"-XMP-exif:DateTimeOriginal=2024:05:06 07:08:00"_s, u"-XMP-photoshop:DateCreated=2020:01:01 01:01:01"_s,
        u"-XMP-dc:Rights^="_s, u"-XMP-dc:Subject=two"_s, u"-XMP-exif:GPSLatitude=-10.5"_s,
        u"-XMP-exif:GPSLongitude=-20.25"_s, u"-XMP-iptcCore:AltTextAccessibility=Beside"_s,
        u"-XMP-iptcExt:LocationShown={City=Paris}"_s, u"-XMP-plus:ImageSupplierImageID^="_s,
        raws.folder.path(u"a.NEF.xmp"_s) });
    raws.lookAtDetails();
    QVERIFY(raws.open());
    raws->selectAllPhotos();
    QTRY_VERIFY(raws->details(raws.url(u"a.NEF"_s)) && raws->details(raws.url(u"b.NEF"_s))
        && raws->details(raws.url(u"c.NEF"_s)));
    const PhotoDetails held = *raws->details(raws.url(u"a.NEF"_s));
    QCOMPARE(
        held.texts, (QMap<QString, QString>{ { u"title@de"_s, u"Daneben"_s }, { u"iptc.altText"_s, u"Beside"_s } }));
    QVERIFY(held.lists.value(u"iptc.locationsShown"_s).join(QString()).contains(u"Paris"_s));
    QCOMPARE(held.paths, QStringList());
    QCOMPARE(raws->details(raws.url(u"b.NEF"_s))->texts, (QMap<QString, QString>{ { u"title@de"_s, u"Datei"_s } }));
    QVERIFY(raws->details(raws.url(u"b.NEF"_s))->disagreements.isEmpty());
    QCOMPARE(raws->details(raws.url(u"c.NEF"_s))->paths, QStringList(u"N|one"_s));

    raws.click(u"a.NEF"_s);
    QStringList told;
    for (auto found = held.disagreements.cbegin(); found != held.disagreements.cend(); ++found)
        for (const FieldHome& home : raws->differingHomes(found.key()))
            told.append(found.key() + u' ' + (home.isShown ? u"*"_s : QString()) + home.tag + u'='
                + home.values.join(u'|') + (home.isForeign ? u" F"_s : QString()));
    QCOMPARE(told,
        QStringList({ u"copyright *XMP-dc:Rights="_s, u"copyright a.NEF: EXIF:Copyright=Ann F"_s,
            u"date *XMP-exif:DateTimeOriginal=2024-05-06 07:08"_s, u"date XMP-photoshop:DateCreated=2020-01-01 01:01"_s,
            u"date *a.NEF: EXIF:DateTimeOriginal=2024-05-06 07:08 F"_s, u"description *XMP-dc:Description=Beside"_s,
            u"description a.NEF: EXIF:ImageDescription=Own F"_s, u"keywords *XMP-dc:Subject=two"_s,
            u"keywords a.NEF: IPTC:Keywords=one F"_s, u"place *XMP-photoshop:City=Paris"_s,
            u"place *a.NEF: XMP-photoshop:City=Paris F"_s, u"place a.NEF: IPTC:City=Rome F"_s }));
    raws.click(u"c.NEF"_s);
    QCOMPARE(raws->differingHomes(u"title"_s).value(0).tag, u"c.NEF: XMP-dc:Title"_s);
    QCOMPARE(raws->disagreements().photos, 2);
    QVERIFY(!raws->canMakeAgree());
}

void tst_SidecarDetails::oneHomeIsTaken()
{
    RawPhotos raws;
    raws.addRaw(u"a.NEF"_s, { u"-EXIF:ImageDescription=Own"_s });
    exiftool({ u"-q"_s, u"-XMP-dc:Description=Beside"_s, raws.folder.path(u"a.xmp"_s) });
    raws.lookAtDetails();
    QVERIFY(raws.open());
    raws.click(u"a.NEF"_s);
    QTRY_COMPARE(raws->differingHomes(u"description"_s).size(), 2);
    raws->useHome(u"description"_s, raws->differingHomes(u"description"_s).constLast());
    QCOMPARE(raws->unsavedCount(), 1);
    QVERIFY(raws.save());
    QCOMPARE(raws.banner(), QString());
    QCOMPARE(raws.stored(u"a.xmp"_s, u"XMP-dc:Description"_s), u"Own"_s);
    QTRY_VERIFY(raws->details(raws.url(u"a.NEF"_s)));
    QVERIFY(raws->differingHomes(u"description"_s).isEmpty());
    QVERIFY(raws.isUntouched());
}

// Its own homes come together, to the second; the file's are left out, and nothing is promised of them.
void tst_SidecarDetails::theSidecarAgrees()
{
    RawPhotos raws;
    raws.addRaw(u"a.NEF"_s, { u"-EXIF:ImageDescription=Own"_s, u"-EXIF:DateTimeOriginal=2024:05:06 07:08:09"_s });
    raws.addRaw(u"b.NEF"_s, { u"-XMP-dc:Title=A"_s, u"-IPTC:ObjectName=B"_s });
    exiftool({ u"-q"_s, u"-XMP-dc:Description=Beside"_s, u"-XMP-exif:DateTimeOriginal=2022:02:02 02:02:02.250+05:00"_s,
        u"-XMP-photoshop:DateCreated=2020:01:01 01:01:01"_s, raws.folder.path(u"a.xmp"_s) });
    const QByteArray before = raws.sidecar(u"a.xmp"_s);
    raws.lookAtDetails();
    QVERIFY(raws.open());
    raws->selectAllPhotos();
    QTRY_COMPARE(raws->selectedDisagreements(), 2);
    QVERIFY(raws->canMakeAgree());
    raws->requestMakeAgree();
    QTRY_VERIFY(!raws->isWorking() && !raws->isSaving());
    QVERIFY(raws.waitUntilIdle());
    QCOMPARE(raws.banner(), QString());
    QCOMPARE(raws.stored(u"a.xmp"_s, u"XMP-photoshop:DateCreated"_s), u"2022:02:02 02:02:02.250+05:00"_s);
    QCOMPARE(raws.stored(u"a.xmp"_s, u"XMP-exif:DateTimeOriginal"_s), u"2022:02:02 02:02:02.250+05:00"_s);
    QCOMPARE(raws.shown(u"a.NEF"_s, u"date"_s), u"2022-02-02 02:02"_s);
    QCOMPARE(raws.stored(u"a.xmp"_s, u"XMP-dc:Description"_s), u"Beside"_s);
    QVERIFY(!raws.folder.names().contains(u"b.xmp"_s));
    QVERIFY(raws.undo());
    QCOMPARE(raws.sidecar(u"a.xmp"_s), before);
    QVERIFY(raws.isUntouched());
}

// Said, emptied so that the file's are hidden, and taken back.
void tst_SidecarDetails::languagesAndIptcFields()
{
    RawPhotos raws;
    raws.addRaw(u"a.NEF"_s,
        { u"-XMP-dc:Title=File"_s, u"-XMP-dc:Title-de=Datei"_s, u"-XMP-iptcCore:AltTextAccessibility=Own"_s,
            u"-XMP-iptcExt:LocationShown={City=Rome,LocationName=Forum}"_s,
            u"-XMP-iptcExt:LocationCreated={City=Rome}"_s, u"-XMP-plus:ModelReleaseID=7"_s,
            u"-XMP-iptcExt:MaxAvailWidth=400"_s });
    raws.lookAtDetails();
    QVERIFY(raws.open());
    raws.click(u"a.NEF"_s);
    const auto held = [&raws] { return *raws->details(raws.url(u"a.NEF"_s)); };
    QTRY_VERIFY(raws->knowsDetails());
    const PhotoDetails before = held();
    QCOMPARE(before.texts.size() + before.lists.size(), 6);
    raws->setSingle(u"title@de"_s, u"Neu"_s);
    raws->setSingle(u"iptc.altText"_s, u"New"_s);
    raws->setItems(
        u"iptc.locationsShown"_s, before.lists.value(u"iptc.locationsShown"_s) + QStringList(uR"({"City":"Paris"})"_s));
    QVERIFY(raws.save());
    QCOMPARE(raws.banner(), QString());
    const QByteArray first = raws.sidecar(u"a.xmp"_s);
    QTRY_VERIFY(raws->details(raws.url(u"a.NEF"_s)));
    QCOMPARE(held().texts.value(u"title@de"_s), u"Neu"_s);
    QCOMPARE(held().texts.value(u"iptc.altText"_s), u"New"_s);
    QCOMPARE(held().lists.value(u"iptc.locationsShown"_s).size(), 2);
    QCOMPARE(held().texts.value(u"iptc.maxWidth"_s), before.texts.value(u"iptc.maxWidth"_s));

    QTRY_VERIFY(raws->knowsDetails());
    for (const QString& key : held().texts.keys())
        raws->setSingle(key, QString());
    for (const QString& id : held().lists.keys())
        raws->setItems(id, {});
    QVERIFY(raws.save());
    QCOMPARE(raws.banner(), QString());
    QTRY_VERIFY(raws->details(raws.url(u"a.NEF"_s)));
    QCOMPARE(held().texts, (QMap<QString, QString>()));
    QCOMPARE(held().lists, (QMap<QString, QStringList>()));
    QCOMPARE(raws.shown(u"a.NEF"_s, u"title"_s), u"File"_s);

    QVERIFY(raws.undo());
    QCOMPARE(raws.sidecar(u"a.xmp"_s), first);
    QVERIFY(raws.undo());
    QCOMPARE(raws.folder.names(), QStringList(u"a.NEF"_s));
    QTRY_VERIFY(raws->details(raws.url(u"a.NEF"_s)));
    QCOMPARE(held(), before);
    QVERIFY(raws.isUntouched());
}

// Items are added to what only the file holds, and to what its sidecar does.
void tst_SidecarDetails::severalPhotos()
{
    RawPhotos raws;
    raws.addRaw(u"a.NEF"_s, { u"-XMP-iptcExt:LocationShown={City=Rome}"_s, u"-XMP-dc:Title-de=Datei"_s });
    raws.addRaw(u"b.NEF"_s, { u"-XMP-iptcExt:LocationShown={City=Rome}"_s });
    raws.addRaw(u"c.NEF"_s);
    exiftool({ u"-q"_s, u"-XMP-iptcExt:LocationShown={City=Bern}"_s, raws.folder.path(u"b.xmp"_s) });
    raws.lookAtDetails();
    QVERIFY(raws.open());
    raws->selectAllPhotos();
    QTRY_VERIFY(raws->knowsDetails() || raws->details(raws.url(u"c.NEF"_s)));
    raws->addBatchListItem(u"iptc.locationsShown"_s, uR"({"City":"Paris"})"_s);
    raws->setBatch(u"title@de"_s, u"Alle"_s);
    QVERIFY(raws.save());
    QCOMPARE(raws.banner(), QString());
    QCOMPARE(raws.stored(u"a.xmp"_s, u"XMP-iptcExt:LocationShownCity"_s), u"Rome; Paris"_s);
    QCOMPARE(raws.stored(u"b.xmp"_s, u"XMP-iptcExt:LocationShownCity"_s), u"Bern; Paris"_s);
    QCOMPARE(raws.stored(u"c.xmp"_s, u"XMP-iptcExt:LocationShownCity"_s), u"Paris"_s);
    QCOMPARE(raws.stored(u"a.xmp"_s, u"XMP-dc:Title-de"_s), u"Alle"_s);
    QVERIFY(raws.isUntouched());
}

QTEST_GUILESS_MAIN(tst_SidecarDetails)
#include "tst_SidecarDetails.moc"
