// Times that are shifted and zones that are set: photos of all formats with every kind of date, all their tags compared
// before and after; and Undo Save gives every one of them back.
#include "app/model/TaskProgress.h"
#include "app/model/timeshift/ShiftJob.h"
#include "core/text/StoredTime.h"
#include "core/text/ZoneOffset.h"
#include "platform/places/zones/TimeZones.h"
#include "tests/app/model/Dumps.h"
#include "tests/app/model/timeshift/DatedPhotos.h"
#include "tests/support/RealService.h"
#include "tests/support/RecordedTool.h"
#include "tests/support/RefusedExif.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

// As cameras, phones and captioners leave them.
const Texts& everyDate()
{
    static const Texts tags{ { "IFD0:ModifyDate", "2020:02:28 23:30:10" },
        { "ExifIFD:DateTimeOriginal", "2020:02:28 23:30:10" }, { "ExifIFD:CreateDate", "2020:02:28 23:30:12" },
        { "ExifIFD:SubSecTimeOriginal", "050" }, { "ExifIFD:OffsetTimeOriginal", "+05:30" },
        { "IPTC:DateCreated", "2020:02:28" }, { "IPTC:TimeCreated", "23:30:10+05:30" },
        { "IPTC:DigitalCreationDate", "2020:02:28" }, { "IPTC:DigitalCreationTime", "23:30:12+05:30" },
        { "XMP-exif:DateTimeOriginal", "2020:02:28 23:30:10.050+05:30" },
        { "XMP-exif:DateTimeDigitized", "2020:02:28 18:00:12Z" },
        { "XMP-photoshop:DateCreated", "2020:02:28 23:30:10" }, { "XMP-xmp:CreateDate", "2020:02:28 23:30" },
        { "XMP-xmp:ModifyDate", "2021:01:01 00:00:00" }, { "GPS:GPSDateStamp", "2020:02:28" },
        { "GPS:GPSTimeStamp", "18:00:10" } };
    return tags;
}

// Dates that cannot be moved beside some that can.
const Texts oddDates{ { "ExifIFD:DateTimeOriginal", "0000:00:00 00:00:00" },
    { "ExifIFD:CreateDate", "2020:02:28 23:30:12" }, { "IFD0:ModifyDate", "2021:03:04 05:06:07" },
    { "IPTC:DateCreated", "2019:01:01" }, { "XMP-photoshop:DateCreated", "2020" },
    { "XMP-xmp:CreateDate", "2020:02" } };
// A day without a time, times without zones, and old ones.
const Texts bareDates{ { "ExifIFD:DateTimeOriginal", "1903:12:31 23:30:00" }, { "IPTC:DateCreated", "1903:12:31" },
    { "IPTC:DigitalCreationDate", "2020:12:31" }, { "IPTC:DigitalCreationTime", "23:59:59+00:00" },
    { "XMP-photoshop:DateCreated", "1903:12:31" } };
const Texts xmpDates{ { "XMP-photoshop:DateCreated", "2020:03:29 02:15:00" } };

const bool isSlow = qEnvironmentVariableIsSet("QUORBEL_SLOW_TESTS");

struct Made {
    QString name;
    Texts tags;
};

const QList<Made>& photos()
{
    static const QList<Made> all{ { u"all.jpg"_s, everyDate() }, { u"all.tif"_s, everyDate() },
        { u"all.png"_s, everyDate() }, { u"all.webp"_s, everyDate() }, { u"odd.jpg"_s, oddDates },
        { u"bare.jpg"_s, bareDates }, { u"xmp.jpg"_s, xmpDates }, { u"nothing.jpg"_s, {} } };
    return all;
}

// Made once, in one run, and copied for each row; other formats than JPEG for the slow tests alone.
class Master {
public:
    Master()
    {
        QStringList arguments;
        for (const Made& made : photos())
            if (isSlow || made.name.endsWith(u".jpg"))
                arguments += argumentsFor(made.tags, m_folder.add(made.name).toLocalFile());
        const QString real = qEnvironmentVariable("QUORBEL_TEST_PHOTOS") + u"/valid/"_s;
        for (const QString& name : { u"testHEIF.heic"_s, u"1x1_exif_xmp.jxl"_s, u"testDNG.dng"_s })
            if (isSlow && QFile::exists(real + name))
                arguments += argumentsFor(everyDate(), m_folder.add(name, readFile(real + name)).toLocalFile());
        exiftool(arguments);
    }
    QList<QUrl> copyTo(const PhotoFolder& folder) const { return copied(m_folder, folder); }

private:
    PhotoFolder m_folder;
};

const Master& master()
{
    static const Master made;
    return made;
}

// Without what tells of the file itself, and of where things lie in it.
Dump dump(const PhotoFolder& folder)
{
    static const QRegularExpression frame(
        uR"(^(System|File|ExifTool|XMP-x|Quicktime|RIFF):|:(IPTCDigest|Warning)$|Offsets?$|ImageStart$)"_s,
        QRegularExpression::CaseInsensitiveOption);
    Dump files;
    const auto read = TagDump::parse(realTool().readDump(
        TagDump::options() << u"-x"_s << u"Composite:all"_s, { QUrl::fromLocalFile(folder.path()) }));
    for (auto it = read.cbegin(); it != read.cend(); ++it) {
        FileTags tags = *it;
        tags.removeIf([](const auto& tag) { return frame.match(tag.key()).hasMatch(); });
        files.insert(QString::fromUtf8(it.key()).section(u'/', -1), tags);
    }
    return files;
}

// By the tags that a photo was made with: what they are to hold. All else stays.
struct Wanted {
    Texts every{};
    Texts odd{};
    Texts bare{};
    Texts xmp{};
};

void put(FileTags& tags, const Texts& wanted)
{
    // What the format has no place for was not there before either; the zones are new.
    for (auto tag = wanted.cbegin(); tag != wanted.cend(); ++tag)
        if (tags.contains(tag.key()) || tag.key().contains(u":OffsetTime"))
            tags[tag.key()] = { tag->toUtf8() };
}

}  // namespace

Q_DECLARE_METATYPE(TimeShift)
Q_DECLARE_METATYPE(Wanted)

class tst_TimeShift : public QObject {
    Q_OBJECT

private slots:
    void readsTimesToTheLetter_data();
    void readsTimesToTheLetter();
    void allDatesMoveAndNothingElse_data();
    void allDatesMoveAndNothingElse();
    void keepsNobodyFromTheirs();
    void knowsTheZoneOfAPosition_data();
    void knowsTheZoneOfAPosition();
    void readsNoDamagedZones();
    void knowsTheOffsetOfAClock_data();
    void knowsTheOffsetOfAClock();
};

void tst_TimeShift::readsTimesToTheLetter_data()
{
    QTest::addColumn<bool>("isTime");
    for (const char* text : { "2024:02:29 23:59:59", "2024:05:06 14:30", "2024:05:06 14:30:15.050+02:00",
             "0001:01:01 00:00:00Z", "9999:12:31 23:59:59.9-12:45" })
        QTest::newRow(text) << true;
    for (const char* text : { "0000:00:00 00:00:00", "2023:02:29 10:00:00", "2024:05:06", "2024", "2024:05:06 24:00:00",
             "2024-05-06 14:30:15", "2024:05:06 14:30:15 ", "2024:05:06 14:30:15+2", "2024:05:06 14:30.5",
             "    :  :     :  :  ", "2024:05:06T14:30:15", "", "2024:05:06 14:30:15+99:00 " })
        QTest::newRow(text) << false;
}

void tst_TimeShift::readsTimesToTheLetter()
{
    QFETCH(bool, isTime);
    const QString text = QString::fromLatin1(QTest::currentDataTag());
    const auto time = StoredTime::from(text);
    QCOMPARE(time.has_value(), isTime);
    if (time)
        QCOMPARE(time->text(), text);
}

void tst_TimeShift::allDatesMoveAndNothingElse_data()
{
    QTest::addColumn<TimeShift>("shift");
    QTest::addColumn<Wanted>("wanted");
    QTest::addColumn<QString>("message");
    QTest::addColumn<bool>("isUndone");
    const QString odd = u"Dates without a full day and time were left alone: odd.jpg (EXIF:DateTimeOriginal, "
                        "XMP-photoshop:DateCreated, IPTC:DateCreated, XMP-xmp:CreateDate)"_s;

    // One holds the most; the others come with the slow tests.
    if (isSlow)
        QTest::newRow("over a leap day, and the end of a year")
            << TimeShift{ .seconds = 3750 }
            << Wanted{ { { "IFD0:ModifyDate", "2020:02:29 00:32:40" },
                           { "ExifIFD:DateTimeOriginal", "2020:02:29 00:32:40" },
                           { "ExifIFD:CreateDate", "2020:02:29 00:32:42" }, { "IPTC:DateCreated", "2020:02:29" },
                           { "IPTC:TimeCreated", "00:32:40+05:30" }, { "IPTC:DigitalCreationDate", "2020:02:29" },
                           { "IPTC:DigitalCreationTime", "00:32:42+05:30" },
                           { "XMP-exif:DateTimeOriginal", "2020:02:29 00:32:40.050+05:30" },
                           { "XMP-exif:DateTimeDigitized", "2020:02:28 19:02:42Z" },
                           { "XMP-photoshop:DateCreated", "2020:02:29 00:32:40" },
                           { "XMP-xmp:CreateDate", "2020:02:29 00:32" } },
                   { { "ExifIFD:CreateDate", "2020:02:29 00:32:42" } },
                   { { "ExifIFD:DateTimeOriginal", "1904:01:01 00:32:30" }, { "IPTC:DateCreated", "1904:01:01" },
                       { "IPTC:DigitalCreationDate", "2021:01:01" }, { "IPTC:DigitalCreationTime", "01:02:29+00:00" },
                       { "XMP-photoshop:DateCreated", "1904:01:01" } },
                   { { "XMP-photoshop:DateCreated", "2020:03:29 03:17:30" } } }
            << odd << true;
    QTest::newRow("many days and half a minute earlier")
        << TimeShift{ .seconds = -(60 * 24 * 3600LL + 30) }
        << Wanted{ { { "IFD0:ModifyDate", "2019:12:30 23:29:40" },
                       { "ExifIFD:DateTimeOriginal", "2019:12:30 23:29:40" },
                       { "ExifIFD:CreateDate", "2019:12:30 23:29:42" }, { "IPTC:DateCreated", "2019:12:30" },
                       { "IPTC:TimeCreated", "23:29:40+05:30" }, { "IPTC:DigitalCreationDate", "2019:12:30" },
                       { "IPTC:DigitalCreationTime", "23:29:42+05:30" },
                       { "XMP-exif:DateTimeOriginal", "2019:12:30 23:29:40.050+05:30" },
                       { "XMP-exif:DateTimeDigitized", "2019:12:30 17:59:42Z" },
                       { "XMP-photoshop:DateCreated", "2019:12:30 23:29:40" },
                       { "XMP-xmp:CreateDate", "2019:12:30 23:29" } },
               { { "ExifIFD:CreateDate", "2019:12:30 23:29:42" } },
               { { "ExifIFD:DateTimeOriginal", "1903:11:01 23:29:30" }, { "IPTC:DateCreated", "1903:11:01" },
                   { "IPTC:DigitalCreationDate", "2020:11:01" }, { "IPTC:DigitalCreationTime", "23:59:29+00:00" },
                   { "XMP-photoshop:DateCreated", "1903:11:01" } },
               { { "XMP-photoshop:DateCreated", "2020:01:29 02:14:30" } } }
        << odd << isSlow;
    if (!isSlow)
        return;
    QTest::newRow("another zone, the clock stays")
        << TimeShift{ .zone = -210 }
        << Wanted{ { { "ExifIFD:OffsetTimeOriginal", "-03:30" }, { "ExifIFD:OffsetTimeDigitized", "-03:30" },
                       { "ExifIFD:OffsetTime", "-03:30" }, { "IPTC:TimeCreated", "23:30:10-03:30" },
                       { "IPTC:DigitalCreationTime", "23:30:12-03:30" },
                       { "XMP-exif:DateTimeOriginal", "2020:02:28 23:30:10.050-03:30" },
                       { "XMP-exif:DateTimeDigitized", "2020:02:28 23:30:12-03:30" } },
               { { "ExifIFD:OffsetTimeDigitized", "-03:30" } },
               { { "ExifIFD:OffsetTimeOriginal", "-03:30" }, { "IPTC:DigitalCreationTime", "23:59:59-03:30" } },
               { { "XMP-photoshop:DateCreated", "2020:03:29 02:15:00-03:30" } } }
        << odd << true;
    QTest::newRow("another zone, the moment stays")
        << TimeShift{ .zone = 480, .keepsClock = false }
        << Wanted{ { { "ExifIFD:OffsetTimeOriginal", "+08:00" }, { "ExifIFD:OffsetTimeDigitized", "+08:00" },
                       { "ExifIFD:OffsetTime", "+08:00" }, { "IFD0:ModifyDate", "2020:02:29 02:00:10" },
                       { "ExifIFD:DateTimeOriginal", "2020:02:29 02:00:10" },
                       { "ExifIFD:CreateDate", "2020:02:29 02:00:12" }, { "IPTC:DateCreated", "2020:02:29" },
                       { "IPTC:TimeCreated", "02:00:10+08:00" }, { "IPTC:DigitalCreationDate", "2020:02:29" },
                       { "IPTC:DigitalCreationTime", "02:00:12+08:00" },
                       { "XMP-exif:DateTimeOriginal", "2020:02:29 02:00:10.050+08:00" },
                       { "XMP-exif:DateTimeDigitized", "2020:02:29 02:00:12+08:00" },
                       { "XMP-photoshop:DateCreated", "2020:02:29 02:00:10" },
                       { "XMP-xmp:CreateDate", "2020:02:29 02:00" } },
               {}, {}, {} }
        << u"Left alone for want of a time zone: bare.jpg, nothing.jpg, odd.jpg, xmp.jpg"_s << true;
}

void tst_TimeShift::allDatesMoveAndNothingElse()
{
    QFETCH(TimeShift, shift);
    QFETCH(Wanted, wanted);
    QFETCH(QString, message);
    QFETCH(bool, isUndone);
    const PhotoFolder folder;
    const QList<QUrl> targets = master().copyTo(folder);
    const Dump before = dump(folder);
    ShiftJob::Order order{ .targets = targets };
    for (const QUrl& target : targets)
        order.shifts.insert(target, shift);
    const PhotoFolder state;
    const auto history = std::make_shared<SaveHistory>(state.path(u"undo"_s));
    TaskProgress progress;

    const ShiftJob::Looked looked = ShiftJob::look(realService(), order, progress, {});
    const RecordedTool tool;
    const ShiftJob::Written written = ShiftJob::run(tool.service(), order, looked, history, progress);
    QCOMPARE(written.error, std::nullopt);
    // However their times differ.
    QCOMPARE(tool.runs().size(), 1);
    const ShiftJob::Checked checked = ShiftJob::check(realService(), order, written, {}, progress, {});

    Dump expected = before;
    for (auto file = expected.begin(); file != expected.end(); ++file) {
        const bool isOneOfAll = file.key().startsWith(u"all.") || !file.key().endsWith(u".jpg");
        put(*file,
            isOneOfAll                      ? wanted.every
                : file.key() == u"odd.jpg"  ? wanted.odd
                : file.key() == u"bare.jpg" ? wanted.bare
                : file.key() == u"xmp.jpg"  ? wanted.xmp
                                            : Texts());
    }
    const QStringList differing = differences(expected, dump(folder));
    QVERIFY2(differing.isEmpty(), qPrintable(differing.join(u'\n')));
    QCOMPARE(ShiftJob::message(order, written, checked).value_or(QString()), message);
    QCOMPARE(checked.records.size(), targets.size());
    if (!isUndone)
        return;
    QVERIFY(written.undoable && written.undoable->photos > 0);
    const auto undone = history->undo(realService(), written.undoable->number, targets, progress);
    QCOMPARE(SaveHistory::text(undone).value_or(QString()), QString());
    QCOMPARE(differences(before, dump(folder)), QStringList());
}

// One that the tool refuses, and one that another save holds.
void tst_TimeShift::keepsNobodyFromTheirs()
{
    const PhotoFolder folder;
    ShiftJob::Order order{ .options = { .backupOriginals = true } };
    QStringList arguments;
    for (const QString& name : { u"a.jpg"_s, u"blocked.jpg"_s, u"broken.jpg"_s, u"c.jpg"_s, u"none.jpg"_s }) {
        const QUrl target = folder.add(name, name.startsWith(u"br") ? jpegWithBrokenExif() : jpegBytes());
        const QString time = u"10:00:%1"_s.arg(10 + order.targets.size());
        order.targets.append(target);
        order.shifts.insert(target, name == u"c.jpg" ? TimeShift{ .zone = 330 } : TimeShift{ .seconds = 3600 });
        if (name != u"none.jpg")
            arguments += argumentsFor(
                { { u"IPTC:DateCreated"_s, u"2024:10:12"_s }, { u"IPTC:TimeCreated"_s, time + u"+00:00"_s } },
                target.toLocalFile());
    }
    exiftool(arguments);
    folder.add(u"blocked.jpg_exiftool_tmp"_s, "half");
    TaskProgress progress;
    const ShiftJob::Looked looked = ShiftJob::look(realService(), order, progress, {});
    const auto reasons = [](const ShiftJob::Written& written) {
        QMap<QString, QString> reasons;
        for (const FileFailure& failure : written.failures)
            reasons.insert(failure.file.fileName(), failure.reason);
        return reasons;
    };

    const QString killed = folder.path(u"killed"_s);
    writeFile(killed, "kill 'KILL', $$;\n");
    const MetadataService dies{ { QUrl::fromLocalFile(killed), realTool().perlURL } };
    auto failed = reasons(ShiftJob::run(dies, order, looked, nullptr, progress));
    QCOMPARE(failed.keys(), QStringList({ u"a.jpg"_s, u"blocked.jpg"_s, u"broken.jpg"_s, u"c.jpg"_s, u"none.jpg"_s }));
    QVERIFY2(failed.value(u"a.jpg"_s).startsWith(u"ExifTool"), qPrintable(failed.value(u"a.jpg"_s)));

    const RecordedTool tool;
    failed = reasons(ShiftJob::run(tool.service(), order, looked, nullptr, progress));
    QCOMPARE(tool.runs().size(), 1);
    QCOMPARE(failed.keys(), QStringList({ u"blocked.jpg"_s, u"broken.jpg"_s }));
    QVERIFY2(failed.first().contains(u"blocked.jpg"), qPrintable(failed.first()));
    QCOMPARE(failed.last(), u"Bad format (0) for IFD0 entry 0"_s);
    QCOMPARE(folder.names().filter(u"_original"_s), QStringList({ u"a.jpg_original"_s, u"c.jpg_original"_s }));
    QCOMPARE(exiftool({ u"-q"_s, u"-s3"_s, u"-IPTC:TimeCreated"_s, u"-fileOrder"_s, u"FileName"_s, folder.path() }),
        "11:00:10+00:00\n10:00:11+00:00\n10:00:12+00:00\n10:00:13+05:30\n");
}

void tst_TimeShift::knowsTheZoneOfAPosition_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::addColumn<QByteArray>("zone");
    QTest::newRow("Zürich") << 47.3769 << 8.5417 << QByteArray("Europe/Zurich");
    QTest::newRow("three kilometers over the border") << 47.6157 << 7.6706 << QByteArray("Europe/Berlin");
    QTest::newRow("a village within another country") << 47.6963 << 8.6900 << QByteArray("Europe/Busingen");
    QTest::newRow("half an hour beside its neighbors") << -31.9505 << 141.4533 << QByteArray("Australia/Broken_Hill");
    QTest::newRow("east of the date line") << -13.8333 << -171.7667 << QByteArray("Pacific/Apia");
    QTest::newRow("the same, counted eastward") << -13.8333 << 188.2333 << QByteArray("Pacific/Apia");
    QTest::newRow("180° east") << -16.8 << 180.0 << QByteArray("Pacific/Fiji");
    QTest::newRow("the south pole") << -90.0 << 0.0 << QByteArray("Antarctica/McMurdo");
    QTest::newRow("the north pole") << 90.0 << 0.0 << QByteArray();
    QTest::newRow("the open sea") << 40.0 << -40.0 << QByteArray();
    QTest::newRow("nowhere") << 91.0 << 8.0 << QByteArray();
    QTest::newRow("no number") << qQNaN() << 8.0 << QByteArray();
}

void tst_TimeShift::knowsTheZoneOfAPosition()
{
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    static const auto zones = TimeZones::open(qEnvironmentVariable("QUORBEL_TEST_SHARE") + u"/places"_s);
    if (!zones)
        QSKIP("The time zones were not built.");
    const TimeZone* zone = zones->at(latitude, longitude);
    QTEST(zone ? zone->id : QByteArray(), "zone");
}

void tst_TimeShift::readsNoDamagedZones()
{
    const PhotoFolder folder;
    const QString copy = folder.path(TimeZones::fileName());
    QVERIFY(!TimeZones::open(folder.path()));
    if (!QFile::copy(qEnvironmentVariable("QUORBEL_TEST_SHARE") + u"/places/"_s + TimeZones::fileName(), copy))
        QSKIP("The time zones were not built.");
    QFile file(copy);
    QVERIFY(file.setPermissions(file.permissions() | QFile::WriteOwner) && file.resize(100'000));
    // All of its rows but the southernmost lie beyond its end.
    const auto zones = TimeZones::open(folder.path());
    QVERIFY(zones);
    QVERIFY(!zones->at(47.3769, 8.5417));
    QVERIFY(file.resize(1000));
    QVERIFY(!TimeZones::open(folder.path()));
}

void tst_TimeShift::knowsTheOffsetOfAClock_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QString>("clock");
    QTest::addColumn<std::optional<int>>("offset");
    const QByteArray zurich = "Europe/Zurich";
    QTest::newRow("winter") << zurich << u"2024-01-31T14:30:00"_s << std::optional(60);
    QTest::newRow("the last minute of winter") << zurich << u"2024-03-31T01:59:00"_s << std::optional(60);
    QTest::newRow("an hour that is skipped") << zurich << u"2024-03-31T02:30:00"_s << std::optional(60);
    QTest::newRow("the first of summer") << zurich << u"2024-03-31T03:00:00"_s << std::optional(120);
    QTest::newRow("an hour that comes twice") << zurich << u"2024-10-27T02:30:00"_s << std::optional(120);
    QTest::newRow("winter again") << zurich << u"2024-10-27T03:00:00"_s << std::optional(60);
    QTest::newRow("west, before it changes")
        << QByteArray("America/New_York") << u"2024-03-10T01:59:00"_s << std::optional(-300);
    QTest::newRow("west, after it") << QByteArray("America/New_York") << u"2024-03-10T03:00:00"_s
                                    << std::optional(-240);
    QTest::newRow("three quarters") << QByteArray("Asia/Kathmandu") << u"2024-01-31T14:30:00"_s << std::optional(345);
    QTest::newRow("no such zone") << QByteArray("Europe/Atlantis") << u"2024-01-31T14:30:00"_s << std::optional<int>();
    QTest::newRow("no such time") << zurich << u"2024-01-32T14:30:00"_s << std::optional<int>();
}

void tst_TimeShift::knowsTheOffsetOfAClock()
{
    QFETCH(QByteArray, zone);
    QFETCH(QString, clock);
    QTEST(TimeZones::offset(zone, QDateTime::fromString(clock + u'Z', Qt::ISODate)), "offset");
}

QTEST_GUILESS_MAIN(tst_TimeShift)
#include "tst_TimeShift.moc"
