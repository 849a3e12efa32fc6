#include "bench/ManyPhotos.h"

#include <QFile>

#include <random>
#include <unistd.h>

namespace Quorbel::Bench {

using namespace Qt::StringLiterals;

namespace {

// Stands in for ExifTool, which would take minutes: prints a dozen values for each file it is given.
const char* const tool = R"perl(#!/usr/bin/perl
use strict;
my ($dir) = $0 =~ m{^(.*)/};
my @files = grep { m{^/} } @ARGV;
if (-e "$dir/stall") {
    open my $photo, '<', $files[0];
    sleep 600;
}
my $custom = grep { $_ eq '-XMP-Quorbel:all' } @ARGV;
my $n = 0;
print "[";
for my $file (@files) {
    $n++;
    print $n > 1 ? ",\n" : '', "{\"SourceFile\":\"$file\"";
    print ",\"File:FileType\":\"JPEG\",\"File:ImageWidth\":4000,\"File:ImageHeight\":3000,\"XMP:Title\":\"Title $n\"",
        ",\"XMP:Description\":\"A view of the lake\",\"EXIF:DateTimeOriginal\":\"2026:07:14 12:00:00\"",
        ",\"IPTC:Keywords\":[\"lake\",\"summer\"],\"XMP:Creator\":\"Ana\",\"XMP:Rights\":\"Ana\",\"XMP:City\":\"Bern\"",
        ",\"XMP:Rating\":3,\"XMP:Country\":\"Switzerland\",\"XMP:State\":\"Bern\",\"XMP:Headline\":\"Lake\"" unless $custom;
    print "}";
}
print "]\n";
)perl";

void write(const QString& path, const char* bytes)
{
    QFile::remove(path);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) < 0)
        qFatal("cannot write %s", qPrintable(path));
}

}  // namespace

ManyPhotos::ManyPhotos()
{
    write(m_work.filePath(u"exiftool"_s), tool);
    std::mt19937 random(7);
    // Names of one file: the folder then takes no more memory than its names.
    add(u"first.jpg"_s);
    const QByteArray first = QFile::encodeName(path(u"first.jpg"_s));
    for (int i = 1; i < count; ++i) {
        const QByteArray name = QFile::encodeName(path(u"IMG_%1_%2.jpg"_s.arg(random() % 1000).arg(i)));
        if (link(first.constData(), name.constData()) != 0)
            qFatal("cannot make photos in %s", qPrintable(m_folder.path()));
    }
}

AppModelServices ManyPhotos::services() const
{
    AppModelServices services;
    services.service = MetadataService{ { QUrl::fromLocalFile(m_work.filePath(u"exiftool"_s)),
        QUrl::fromLocalFile(u"/usr/bin/perl"_s) } };
    services.preferences = std::make_shared<QSettings>(m_work.filePath(u"settings.ini"_s), QSettings::IniFormat);
    return services;
}

void ManyPhotos::add(const QString& name) const
{
    write(path(name), "x");
}

void ManyPhotos::stall(bool on) const
{
    if (on)
        write(m_work.filePath(u"stall"_s), "");
    else
        QFile::remove(m_work.filePath(u"stall"_s));
}

}  // namespace Quorbel::Bench
