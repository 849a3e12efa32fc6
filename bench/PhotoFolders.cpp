#include "bench/PhotoFolders.h"

#include "core/MetadataService.h"
#include "core/tool/MetadataReader.h"

#include <QColorSpace>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QPainterPath>
#include <QProcess>

#include <cstdio>
#include <random>

namespace Quorbel::Bench {

using namespace Qt::StringLiterals;

namespace {

constexpr int patternCount = 300;
constexpr int checkedCount = 40;  // photos of a folder that ExifTool reads too
constexpr QSize pictureSize(960, 640);
// What stands in the patterns where each photo has something of its own, of the same length.
constexpr auto numberMark = "#000000";
constexpr auto dateMark = "2001:01:01 01:01:01";
constexpr auto xmpDateMark = "2001-01-01T01:01:01";

void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

QByteArray contents(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

QByteArray toolOutput(const QStringList& arguments)
{
    const auto tool = ExifToolRunner::locate();
    if (!tool)
        qFatal("ExifTool was not found");
    QProcess process;
    process.start(tool->perlURL.toLocalFile(), QStringList{ tool->exiftoolURL.toLocalFile() } + arguments);
    process.waitForFinished(-1);
    if (process.exitCode() != 0)
        qFatal("ExifTool: %s", process.readAllStandardError().constData());
    return process.readAllStandardOutput();
}

// A sky, some hills and a little grain.
QImage picture(int number)
{
    std::mt19937 random(number);
    const auto upTo = [&random](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    QImage image(pictureSize, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, upTo(960), 640);
    sky.setColorAt(0, QColor::fromHsv(upTo(360), 80 + upTo(150), 200 + upTo(50)));
    sky.setColorAt(1, QColor::fromHsv(upTo(360), 40 + upTo(100), 220));
    painter.fillRect(image.rect(), sky);
    painter.setPen(Qt::NoPen);
    for (int hill = 0; hill < 5; ++hill) {
        QPainterPath path(QPointF(0, 640));
        for (int x = 0; x <= 960; x += 60)
            path.lineTo(x, 220 + hill * 75 + upTo(100));
        path.lineTo(960, 640);
        painter.setBrush(QColor::fromHsv(upTo(360), 90 + upTo(120), 230 - hill * 35));
        painter.drawPath(path);
    }
    for (int grain = 0; grain < 3000; ++grain)
        painter.fillRect(upTo(960), upTo(640), 2, 2, QColor(upTo(256), upTo(256), upTo(256), 60));
    return image;
}

QJsonObject cameraTags(int number)
{
    static const QStringList makes{ u"Canon"_s, u"NIKON CORPORATION"_s, u"SONY"_s, u"FUJIFILM"_s, u"Google"_s };
    static const QStringList models{ u"EOS R6"_s, u"Z 6_2"_s, u"ILCE-7M4"_s, u"X-T4"_s, u"Pixel 7"_s };
    const qsizetype camera = number % makes.size();
    QJsonObject tags{ { u"IFD0:Make"_s, makes[camera] }, { u"IFD0:Model"_s, models[camera] },
        { u"IFD0:Software"_s, u"Firmware 1.%1"_s.arg(number % 7) }, { u"IFD0:Orientation#"_s, number % 9 == 0 ? 6 : 1 },
        { u"IFD0:ModifyDate"_s, QLatin1String(dateMark) }, { u"ExifIFD:DateTimeOriginal"_s, QLatin1String(dateMark) },
        { u"ExifIFD:CreateDate"_s, QLatin1String(dateMark) }, { u"ExifIFD:SubSecTimeOriginal"_s, u"42"_s },
        { u"ExifIFD:OffsetTimeOriginal"_s, u"+02:00"_s },
        { u"ExifIFD:ExposureTime"_s, u"1/%1"_s.arg(30 << number % 6) }, { u"ExifIFD:FNumber"_s, 1.8 + number % 12 },
        { u"ExifIFD:ISO"_s, 100 << number % 5 }, { u"ExifIFD:ExposureProgram#"_s, 2 },
        { u"ExifIFD:MeteringMode#"_s, 5 }, { u"ExifIFD:Flash#"_s, 16 }, { u"ExifIFD:FocalLength"_s, 24 + number % 80 },
        { u"ExifIFD:FocalLengthIn35mmFormat"_s, 24 + number % 80 },
        { u"ExifIFD:ExposureCompensation"_s, 0.3 * (number % 4) }, { u"ExifIFD:WhiteBalance#"_s, number % 2 },
        { u"ExifIFD:LensMake"_s, makes[camera] }, { u"ExifIFD:LensModel"_s, u"24-105mm F4 no. %1"_s.arg(number % 9) },
        { u"ExifIFD:SerialNumber"_s, u"0420%1"_s.arg(number % 3) }, { u"ExifIFD:ColorSpace#"_s, 1 },
        { u"ExifIFD:SceneCaptureType#"_s, 0 }, { u"ExifIFD:ImageUniqueID"_s, QLatin1String(numberMark) } };
    if (number % 2 == 0) {
        tags.insert(u"GPS:GPSLatitude"_s, 46.2 + number * 0.003);
        tags.insert(u"GPS:GPSLatitudeRef"_s, u"N"_s);
        tags.insert(u"GPS:GPSLongitude"_s, 7.1 + number * 0.004);
        tags.insert(u"GPS:GPSLongitudeRef"_s, u"E"_s);
        tags.insert(u"GPS:GPSAltitude"_s, 400 + number);
    }
    return tags;
}

QJsonObject captionTags(int number)
{
    static const QStringList words{ u"lake"_s, u"summer"_s, u"mountain"_s, u"family"_s, u"harbor"_s, u"concert"_s,
        u"Zürich"_s, u"street"_s, u"portrait"_s, u"winter"_s, u"bridge"_s, u"market"_s };
    QJsonArray keywords{ QStringLiteral("frame %1").arg(QLatin1String(numberMark)) };
    for (int i = 0; i < 4 + number % 6; ++i)
        keywords.append(
            words[(number * 5 + i * 7) % words.size()] + (i > 2 ? QString::number(number % 40) : QString()));
    const QString title = u"%1 in the morning %2"_s.arg(words[number % words.size()], QLatin1String(numberMark));
    const QString caption = title
        + u". Seen from the northern shore, with people on the pier and the first boats of "
          "the day going out; the light was gone ten minutes later."_s;
    const QString town = words[number % 5] + u"ville"_s;
    QJsonObject tags{ { u"XMP-dc:Title"_s, title }, { u"XMP-dc:Description"_s, caption },
        { u"XMP-dc:Subject"_s, keywords }, { u"XMP-dc:Creator"_s, u"Ana Keller"_s },
        { u"XMP-dc:Rights"_s, u"© 2026 Ana Keller"_s }, { u"XMP-photoshop:City"_s, town },
        { u"XMP-photoshop:State"_s, u"Bern"_s }, { u"XMP-photoshop:Country"_s, u"Switzerland"_s },
        { u"XMP-iptcCore:CountryCode"_s, u"CHE"_s }, { u"XMP-photoshop:Headline"_s, title },
        { u"XMP-photoshop:Credit"_s, u"Keller Photo"_s }, { u"XMP-xmp:Rating"_s, number % 6 },
        { u"XMP-photoshop:DateCreated"_s, QLatin1String(dateMark) }, { u"XMP-xmp:CreatorTool"_s, u"Developer 9.1"_s },
        { u"XMP-iptcExt:PersonInImage"_s, QJsonArray{ u"Ben Moser"_s, u"Person %1"_s.arg(number % 50) } },
        { u"IPTC:ObjectName"_s, title }, { u"IPTC:Caption-Abstract"_s, caption }, { u"IPTC:Keywords"_s, keywords },
        { u"IPTC:By-line"_s, u"Ana Keller"_s }, { u"IPTC:City"_s, town }, { u"IPTC:Headline"_s, title },
        { u"IPTC:Country-PrimaryLocationName"_s, u"Switzerland"_s }, { u"IPTC:CodedCharacterSet"_s, u"UTF8"_s } };
    // What a raw developer leaves.
    for (int i = 0; i < 60; ++i) {
        static const QStringList settings{ u"Exposure2012"_s, u"Contrast2012"_s, u"Highlights2012"_s, u"Shadows2012"_s,
            u"Whites2012"_s, u"Blacks2012"_s, u"Clarity2012"_s, u"Saturation"_s, u"Vibrance"_s, u"Sharpness"_s,
            u"HueAdjustmentRed"_s, u"HueAdjustmentBlue"_s, u"SaturationAdjustmentRed"_s, u"LuminanceAdjustmentBlue"_s,
            u"SplitToningShadowHue"_s, u"GrainAmount"_s, u"LensProfileEnable"_s, u"PerspectiveVertical"_s };
        if (i < settings.size())
            tags.insert(u"XMP-crs:"_s + settings[i], (number + i) % 50);
    }
    return tags;
}

QJsonObject tagsOf(int number, const QString& path)
{
    QJsonObject tags{ { u"SourceFile"_s, path } };
    const auto add = [&tags](const QJsonObject& more) {
        for (auto tag = more.begin(); tag != more.end(); ++tag)
            tags.insert(tag.key(), tag.value());
    };
    if (number % 33 != 0)
        add(cameraTags(number));
    if (number % 3 == 0)
        add(captionTags(number));
    return tags;
}

QByteArray number(int photo)
{
    return '#' + QByteArray::number(photo).rightJustified(6, '0');
}

QByteArray date(int photo, QChar between, QChar before)
{
    const QDateTime at(QDate(2014, 1, 1), QTime(6, 0), Qt::UTC);
    const QString format = QStringLiteral("yyyy%1MM%1dd'%2'HH:mm:ss").arg(between).arg(before);
    return at.addSecs(qint64(photo) * 4021).toString(format).toLatin1();
}

// Prints what ExifTool printed for the pattern of each file, with the file's own number and date. Notes the files of
// each run in the file that QUORBEL_BENCH_CALLS names.
const char* const standInScript = R"perl(#!/usr/bin/perl
use strict;
use POSIX qw(strftime);
my ($dir) = $0 =~ m{^(.*)/};
if (my $calls = $ENV{QUORBEL_BENCH_CALLS}) {
    open my $log, '>>', $calls;
    print $log join(' ', grep { m{^/} } @ARGV), "\n";
}
if (grep { $_ eq '-ver' } @ARGV) { print "12.57\n"; exit; }
my $answers = (grep { $_ eq '-XMP-Quorbel:all' } @ARGV) ? "$dir/custom" : "$dir/main";
my @patterns = do { local (@ARGV, $/) = $answers; split /\x00/, <> };
my $separator = '[';
for my $path (grep { m{^/} } @ARGV) {
    my ($photo) = $path =~ /(\d+)\.jpg$/;
    my $text = $patterns[$photo % @patterns];
    my $number = sprintf '#%06d', $photo;
    my $date = strftime('%Y:%m:%d %H:%M:%S', gmtime(1388556000 + $photo * 4021));
    $text =~ s/#000000/$number/g;
    $text =~ s/2001:01:01 01:01:01/$date/g;
    $text =~ s/"SourceFile": "[^"]*"/"SourceFile": "$path"/;
    print $separator, $text;
    $separator = ",\n";
}
print "]\n";
)perl";

}  // namespace

PhotoFolders::PhotoFolders()
    : m_base(qEnvironmentVariable("QUORBEL_BENCH_PHOTOS", QDir::homePath() + u"/.cache/quorbel/bench-photos-1"_s))
{
    makePatterns();
    makeStandIn();
}

QString PhotoFolders::name(int number)
{
    return u"IMG_%1.jpg"_s.arg(number, 5, 10, QLatin1Char('0'));
}

QStringList PhotoFolders::paths(const QString& folder, int count)
{
    QStringList list;
    for (int i = 0; i < count; ++i)
        list.append(folder + u'/' + name(i));
    return list;
}

QString PhotoFolders::patternPath(int number) const
{
    return m_base + u"/patterns/"_s + name(number);
}

void PhotoFolders::makePatterns() const
{
    const QString done = m_base + u"/patterns/done"_s;
    if (QFile::exists(done))
        return;
    std::printf("making %d patterns below %s\n", patternCount, qPrintable(m_base));
    QDir().mkpath(m_base + u"/patterns"_s);
    QJsonArray tags;
    QStringList all;
    QStringList withThumbnail;
    for (int i = 0; i < patternCount; ++i) {
        const QString path = patternPath(i);
        QImage image = picture(i);
        if (i % 4 != 1)
            image.setColorSpace(QColorSpace::SRgb);
        image.save(path, "JPG", 78);
        image.scaled(160, 107, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).save(path + u".thm"_s, "JPG", 70);
        tags.append(tagsOf(i, path));
        all.append(path);
        if (i % 33 != 0 && i % 5 != 1)
            withThumbnail.append(path);
    }
    const QString values = m_base + u"/patterns/values.json"_s;
    write(values, QJsonDocument(tags).toJson());
    toolOutput(QStringList{ u"-q"_s, u"-m"_s, u"-overwrite_original"_s, u"-json="_s + values } + all);
    toolOutput(
        QStringList{ u"-q"_s, u"-m"_s, u"-overwrite_original"_s, u"-ThumbnailImage<=%d%f.%e.thm"_s } + withThumbnail);
    write(done, "");
}

QString PhotoFolders::folder(int count) const
{
    const QString path = m_base + u'/' + QString::number(count);
    if (QFile::exists(path))
        return path;
    std::printf("making %d photos in %s\n", count, qPrintable(path));
    QList<QByteArray> patterns;
    for (int i = 0; i < patternCount; ++i)
        patterns.append(contents(patternPath(i)));
    const QString unfinished = path + u".part"_s;
    QDir(unfinished).removeRecursively();
    QDir().mkpath(unfinished);
    for (int i = 0; i < count; ++i)
        write(unfinished + u'/' + name(i),
            QByteArray(patterns[i % patternCount])
                .replace(numberMark, number(i))
                .replace(dateMark, date(i, u':', u' '))
                .replace(xmpDateMark, date(i, u'-', u'T')));
    if (!QDir().rename(unfinished, path))
        qFatal("cannot make %s", qPrintable(path));
    checkStandIn(path, std::min(count, checkedCount));
    return path;
}

// Figures that come about with it would mean nothing if it answered otherwise than the tool.
void PhotoFolders::checkStandIn(const QString& folder, int count) const
{
    QList<QUrl> photos;
    for (const QString& path : paths(folder, count))
        photos.append(QUrl::fromLocalFile(path));
    const auto tool = MetadataService::locate();
    if (!tool || tool->read(photos) != MetadataService{ standIn() }.read(photos))
        qFatal("the stand-in for ExifTool answers otherwise than ExifTool");
}

void PhotoFolders::makeStandIn() const
{
    const QString folder = m_base + u"/stand-in"_s;
    const QString script = folder + u"/exiftool"_s;
    if (QFile::exists(script) && contents(script) == standInScript)
        return;
    QDir().mkpath(folder);
    QStringList all;
    for (int i = 0; i < patternCount; ++i)
        all.append(patternPath(i));
    QStringList mainRead{ u"-json"_s, u"-G0"_s, u"-struct"_s, u"-c"_s, u"%.6f"_s };
    for (const QString& tag : MetadataReader::readTags())
        mainRead.append(u'-' + tag);
    // Objects as they stand between the brackets, separated by zeros.
    const auto keep = [&](const QString& name, const QStringList& arguments) {
        const QByteArray printed = toolOutput(arguments + all).trimmed();
        write(folder + u'/' + name, printed.sliced(1, printed.size() - 2).replace("},\n{", QByteArray("}\0{", 3)));
    };
    keep(u"main"_s, mainRead);
    keep(u"custom"_s, { u"-json"_s, u"-G1"_s, u"-struct"_s, u"-XMP-Quorbel:all"_s });
    write(script, standInScript);
}

ExifToolRunner PhotoFolders::standIn() const
{
    return { QUrl::fromLocalFile(m_base + u"/stand-in/exiftool"_s), QUrl::fromLocalFile(u"/usr/bin/perl"_s) };
}

}  // namespace Quorbel::Bench
