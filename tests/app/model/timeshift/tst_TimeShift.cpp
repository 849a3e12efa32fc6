// Times that are shifted and zones that are set: photos of all formats with every kind of date, all their tags compared
// before and after; and Undo Save gives every one of them back.
#include "app/model/TaskProgress.h"
#include "app/model/timeshift/TimeShifting.h"
#include "core/text/StoredTime.h"
#include "core/text/ZoneOffset.h"
#include "platform/places/zones/TimeZones.h"
#include "tests/app/model/JournaledPhotos.h"
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

using Texts = QMap<QString, QString>;  // by tag, as it is read

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

QStringList argumentsFor(const Texts& tags, const QString& path)
{
    QStringList arguments{ u"-q"_s, u"-q"_s, u"-m"_s, u"-overwrite_original"_s };
    for (auto tag = tags.cbegin(); tag != tags.cend(); ++tag)
        arguments << u'-' + tag.key() + (tag->startsWith(u"0000") ? u"#="_s : u"="_s) + *tag;
    return arguments << path << u"-execute"_s;
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
    QList<QUrl> copyTo(const PhotoFolder& folder) const
    {
        QList<QUrl> urls;
        for (const QString& name : m_folder.names()) {
            QFile::copy(m_folder.path(name), folder.path(name));
            urls.append(folder.url(name));
        }
        return urls;
    }

private:
    PhotoFolder m_folder;
};

const Master& master()
{
    static const Master made;
    return made;
}

using Dump = QMap<QString, FileTags>;  // by file name

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

// "a.jpg: XMP-dc:Title should be [One], is [Two]", for whatever is not as expected.
QStringList differences(const Dump& expected, const Dump& found)
{
    QStringList texts;
    for (auto file = expected.cbegin(); file != expected.cend(); ++file) {
        const FileTags now = found.value(file.key());
        QStringList keys = file->keys() + now.keys();
        keys.removeDuplicates();
        for (const QString& key : std::as_const(keys))
            if (const auto wanted = file->value(key), is = now.value(key); wanted != is)
                texts.append(u"%1: %2 should be [%3], is [%4]"_s.arg(
                    file.key(), key, QString::fromUtf8(wanted.join("][")), QString::fromUtf8(is.join("]["))));
    }
    return texts;
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
    void cleanupTestCase();
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
    void tellsWhatWillBe();
    void tellsWhatZonesWillBe();
    void tellsAmounts_data();
    void tellsAmounts();
    void asksAboutEditsFirst();
    void knowsAPhotosTime();
    void shiftsTheSelectedPhotos();
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

namespace {

ShiftPhoto photo(const QString& name, const QMap<QString, QString>& values)
{
    return { QUrl::fromLocalFile(u"/p/"_s + name), values };
}

// A row a line: "First: 2024-10-12 12:04 > 2024-10-12 13:07".
QStringList rowsOf(const ShiftPreview& preview)
{
    QStringList rows;
    for (const ShiftPreview::Row& row : preview.rows)
        rows.append(u"%1: %2 > %3"_s.arg(row.title, row.before, row.after));
    return rows;
}

// A model over photos whose clock was wrong.
struct WrongClock : JournaledPhotos {
    WrongClock()
        : JournaledPhotos({ u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s })
    {
        QStringList arguments;
        for (const auto& [name, time] :
            { std::pair(u"a.jpg"_s, u"2024:10:12 12:04:59"_s), std::pair(u"b.jpg"_s, u"2024:10:12 23:10:01"_s) })
            arguments += argumentsFor(
                { { u"ExifIFD:DateTimeOriginal"_s, time }, { u"IPTC:DateCreated"_s, time.section(u' ', 0, 0) },
                    { u"IPTC:TimeCreated"_s, time.section(u' ', 1) + u"+00:00"_s } },
                url(name).toLocalFile());
        exiftool(arguments);
        isOpen = open();
        select(u"abc"_s);
    }
    bool isReady()
    {
        return QTest::qWaitFor([this] { return shifting().canShift(); }, 20000);
    }
    TimeShifting& shifting() { return model->timeShifting(); }
    QStringList dates() const
    {
        return QString::fromUtf8(exiftool({ u"-s3"_s, u"-f"_s, u"-EXIF:DateTimeOriginal"_s, u"-IPTC:TimeCreated"_s,
                                     url(u"a.jpg"_s).toLocalFile(), url(u"b.jpg"_s).toLocalFile() }))
            .split(u'\n', Qt::SkipEmptyParts)
            .filter(u":"_s)
            .filter(QRegularExpression(u"^[0-9]"_s));
    }

    bool isOpen = false;
};

// One for all: it is written to last.
std::unique_ptr<WrongClock> theWrongClock;

WrongClock& wrongClock()
{
    if (!theWrongClock)
        theWrongClock = std::make_unique<WrongClock>();
    theWrongClock->shifting().close();
    theWrongClock->shifting().setWay(TimeShifting::Way::amount);
    theWrongClock->select(u"abc"_s);
    return *theWrongClock;
}

}  // namespace

void tst_TimeShift::cleanupTestCase()
{
    theWrongClock.reset();
}

void tst_TimeShift::tellsWhatWillBe()
{
    const QList<ShiftPhoto> photos{ photo(u"last.jpg"_s, { { u"date"_s, u"2024-10-13 17:48"_s } }),
        photo(u"first.jpg"_s, { { u"date"_s, u"2024-10-12 12:04"_s } }),
        photo(u"late.jpg"_s, { { u"date"_s, u"2024-10-12 23:10"_s } }),
        photo(u"scan.jpg"_s, { { u"dateDigitized"_s, u"2024-10-12 23:50"_s } }),
        photo(u"none.jpg"_s, { { u"title"_s, u"T"_s } }), photo(u"year.jpg"_s, { { u"date"_s, u"2024"_s } }),
        photo(u"edge.jpg"_s, { { u"date"_s, u"9999-12-31 23:59"_s } }) };
    ShiftQuestion question{ .seconds = 3750 };
    question.exact.insert(photos.at(1).url, QDateTime({ 2024, 10, 12 }, { 12, 4, 40 }, Qt::UTC));

    const ShiftPreview later = ShiftPreview::of(photos, question);
    QCOMPARE(rowsOf(later),
        QStringList({ u"First: 2024-10-12 12:04 > 2024-10-12 13:07"_s, u"Last: 2024-10-13 17:48 > 2024-10-13 18:50"_s,
            u"2 on a new day: 2024-10-12 23:10 > 2024-10-13 00:12"_s }));
    QCOMPARE(later.targets.size(), 4);
    QCOMPARE(later.warning(),
        u"1 photo has no date and is left alone: none.jpg. 2 photos have odd dates and are left alone: "
        "year.jpg (2024), edge.jpg (9999-12-31 23:59)"_s);
    question.seconds = -3600;
    QCOMPARE(rowsOf(ShiftPreview::of(photos.mid(4, 1), question)), QStringList());
    QCOMPARE(rowsOf(ShiftPreview::of(photos.mid(0, 1), question)),
        QStringList(u"Taken: 2024-10-13 17:48 > 2024-10-13 16:48"_s));
}

void tst_TimeShift::tellsWhatZonesWillBe()
{
    const auto zones = TimeZones::open(qEnvironmentVariable("QUORBEL_TEST_SHARE") + u"/places"_s);
    if (!zones)
        QSKIP("The time zones were not built.");
    const QList<ShiftPhoto> photos{
        photo(u"winter.jpg"_s, { { u"date"_s, u"2024-01-31 12:00"_s }, { u"coords"_s, u"47.376900, 8.541700"_s } }),
        photo(u"summer.jpg"_s,
            { { u"date"_s, u"2024-07-31 12:00"_s }, { u"offsetOriginal"_s, u"-04:00"_s },
                { u"coords"_s, u"40.712800, -74.006000"_s } }),
        photo(u"xmp.png"_s, { { u"date"_s, u"2024:07:31 23:00:00+03:00"_s }, { u"coords"_s, u"46.2, 6.1"_s } }),
        photo(u"ship.jpg"_s, { { u"date"_s, u"2024-07-31 13:00"_s }, { u"coords"_s, u"40, -40"_s } })
    };
    ShiftQuestion question{ .zone = ShiftZone{ .id = "Europe/Zurich" }, .zones = zones };
    const ShiftPreview same = ShiftPreview::of(photos, question);
    QCOMPARE(rowsOf(same),
        QStringList({ u"First: 2024-01-31 12:00 > 2024-01-31 12:00+01:00"_s,
            u"Last: 2024-07-31 23:00+03:00 > 2024-07-31 23:00+02:00"_s,
            u"2 had no zone: 2024-01-31 12:00 > 2024-01-31 12:00+01:00"_s }));
    QCOMPARE(same.positionsText(), u"2 of 3 positions lie in this zone."_s);
    QCOMPARE(same.mostZone, QByteArray("Europe/Zurich"));

    question.keepsClock = false;
    const ShiftPreview moved = ShiftPreview::of(photos, question);
    QCOMPARE(rowsOf(moved),
        QStringList({ u"First: 2024-07-31 12:00-04:00 > 2024-07-31 18:00+02:00"_s,
            u"Last: 2024-07-31 23:00+03:00 > 2024-07-31 22:00+02:00"_s }));
    QCOMPARE(moved.warning(), u"2 photos have no time zone to come from and are left alone: winter.jpg, ship.jpg"_s);

    question.keepsClock = true;
    question.zone = ShiftZone{ .isOwn = true };
    const ShiftPreview own = ShiftPreview::of(photos, question);
    QCOMPARE(own.shifts.value(photos.at(0).url).zone, std::optional(60));
    QCOMPARE(own.shifts.value(photos.at(1).url).zone, std::optional(-240));
    QCOMPARE(own.shifts.value(photos.at(2).url).zone, std::optional(120));
    QCOMPARE(own.warning(), u"1 photo has no position in a time zone and is left alone: ship.jpg"_s);
}

void tst_TimeShift::tellsAmounts_data()
{
    QTest::addColumn<qint64>("seconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("all") << 93750LL << u"1 d 2 h 02 min 30 s later"_s;
    QTest::newRow("hours") << 3750LL << u"1 h 02 min 30 s later"_s;
    QTest::newRow("a minute") << -60LL << u"1 min earlier"_s;
    QTest::newRow("an hour and a second") << 3601LL << u"1 h 01 s later"_s;
    QTest::newRow("nothing") << 0LL << u"0 s later"_s;
}

void tst_TimeShift::tellsAmounts()
{
    QFETCH(qint64, seconds);
    QTEST(ShiftPreview::amountText(seconds), "text");
}

void tst_TimeShift::shiftsTheSelectedPhotos()
{
    WrongClock& photos = wrongClock();
    QVERIFY(photos.isOpen);
    const QStringList before = photos.dates();
    TimeShifting& shifting = photos.shifting();
    shifting.request();
    QVERIFY(shifting.isOpen());
    QVERIFY(!shifting.canShift());
    for (const QString& wrong : { u"x"_s, u"-1"_s, u"1.5"_s, u"99999999"_s }) {
        shifting.setAmount({ .hours = wrong });
        QVERIFY2(!shifting.problem().isEmpty() && !shifting.canShift(), qPrintable(wrong));
    }
    shifting.setAmount({ .hours = u"1"_s, .minutes = u"02"_s, .seconds = u"30"_s });
    QCOMPARE(shifting.problem(), QString());
    QVERIFY(photos.isReady());
    // The seconds, which records do not show, are read for the few rows.
    QTRY_COMPARE(rowsOf(shifting.preview()),
        QStringList({ u"First: 2024-10-12 12:04 > 2024-10-12 13:07"_s, u"Last: 2024-10-12 23:10 > 2024-10-13 00:12"_s,
            u"1 on a new day: 2024-10-12 23:10 > 2024-10-13 00:12"_s }));
    QCOMPARE(shifting.preview().warning(), u"1 photo has no date and is left alone: c.jpg"_s);
    QVERIFY(photos.isReady());
    // Nothing was written before it was read.
    shifting.shift();
    photos.model->cancelRead();
    QVERIFY(photos.waitUntilIdle());
    QCOMPARE(photos.dates(), before);
    shifting.request();
    QVERIFY(photos.isReady());
    shifting.shift();
    QVERIFY(!shifting.isOpen() && photos.model->isWorking() && !shifting.isPossible());
    QVERIFY(photos.waitUntilIdle());
    QCOMPARE(photos.model->errorMessage(), std::nullopt);
    QCOMPARE(photos.dates(),
        QStringList({ u"2024:10:12 13:07:29"_s, u"13:07:29+00:00"_s, u"2024:10:13 00:12:31"_s, u"00:12:31+00:00"_s }));
    QCOMPARE(photos.model->record(photos.url(u"b.jpg"_s))->values.value(u"date"_s), u"2024-10-13 00:12"_s);
    QCOMPARE(photos.model->unsavedCount(), 0);

    photos.beginJournal();
    QVERIFY(photos.open());
    QTRY_COMPARE(photos.model->undoSaveText(), u"Undo Shift Time of 2 photos"_s);
    QVERIFY(photos.undo());
    QCOMPARE(photos.model->errorMessage(), std::nullopt);
    QCOMPARE(photos.dates(), before);
}

void tst_TimeShift::asksAboutEditsFirst()
{
    WrongClock& photos = wrongClock();
    photos.model->preferences().confirmMassEdit.set(true);
    photos.model->setBatch(u"title"_s, u"T"_s);
    photos.shifting().request();
    QVERIFY(photos.model->saveOpen() && !photos.shifting().isOpen());
    photos.model->cancelSaveDialog();
    QVERIFY(!photos.shifting().isOpen());
    photos.shifting().request();
    photos.model->discardSaveDialog();
    QVERIFY(photos.shifting().isOpen());
    // Another selection is another question.
    photos.click(u"c.jpg"_s);
    QVERIFY(!photos.shifting().isOpen());
}

void tst_TimeShift::knowsAPhotosTime()
{
    WrongClock& photos = wrongClock();
    TimeShifting& shifting = photos.shifting();
    shifting.request();
    shifting.setWay(TimeShifting::Way::knownPhoto);
    QCOMPARE(shifting.knownPhoto().fileName(), u"a.jpg"_s);
    QTRY_COMPARE(shifting.knownClock(), u"2024-10-12 12:04:59"_s);
    shifting.setKnownTime(u"yesterday"_s);
    QVERIFY(!shifting.problem().isEmpty());
    shifting.setKnownTime(u"2024-10-12 13:07:29"_s);
    QCOMPARE(shifting.seconds(), std::optional<qint64>(3750));
    // Without seconds they stay.
    shifting.setKnownTime(u"2024-10-11 12:04"_s);
    QCOMPARE(shifting.seconds(), std::optional<qint64>(-86400));
    QVERIFY(photos.isReady());
    QCOMPARE(shifting.preview().targets.size(), 2);
    shifting.setKnownPhoto(photos.url(u"c.jpg"_s));
    QCOMPARE(shifting.problem(), u"This photo has no date: choose another one."_s);
    QVERIFY(!shifting.canShift());
}

QTEST_GUILESS_MAIN(tst_TimeShift)
#include "tst_TimeShift.moc"
