// Shifting times as one sees it: what the question shows before anything is written, and the selected photos in a
// model.
#include "app/model/timeshift/TimeShifting.h"
#include "platform/places/zones/TimeZones.h"
#include "tests/app/model/JournaledPhotos.h"
#include "tests/app/model/timeshift/DatedPhotos.h"

#include <QRegularExpression>
#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

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

class tst_TimeShifting : public QObject {
    Q_OBJECT

private slots:
    void cleanupTestCase();
    void tellsWhatWillBe();
    void tellsWhatZonesWillBe();
    void tellsAmounts_data();
    void tellsAmounts();
    void asksAboutEditsFirst();
    void knowsAPhotosTime();
    void shiftsTheSelectedPhotos();
};

void tst_TimeShifting::cleanupTestCase()
{
    theWrongClock.reset();
}

void tst_TimeShifting::tellsWhatWillBe()
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

void tst_TimeShifting::tellsWhatZonesWillBe()
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

void tst_TimeShifting::tellsAmounts_data()
{
    QTest::addColumn<qint64>("seconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("all") << 93750LL << u"1 d 2 h 02 min 30 s later"_s;
    QTest::newRow("hours") << 3750LL << u"1 h 02 min 30 s later"_s;
    QTest::newRow("a minute") << -60LL << u"1 min earlier"_s;
    QTest::newRow("an hour and a second") << 3601LL << u"1 h 01 s later"_s;
    QTest::newRow("nothing") << 0LL << u"0 s later"_s;
}

void tst_TimeShifting::tellsAmounts()
{
    QFETCH(qint64, seconds);
    QTEST(ShiftPreview::amountText(seconds), "text");
}

void tst_TimeShifting::shiftsTheSelectedPhotos()
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

void tst_TimeShifting::asksAboutEditsFirst()
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

void tst_TimeShifting::knowsAPhotosTime()
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

QTEST_GUILESS_MAIN(tst_TimeShifting)
#include "tst_TimeShifting.moc"
