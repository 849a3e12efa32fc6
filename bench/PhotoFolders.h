// Folders of many photos as cameras and captioners leave them, for benchmarks of opening: 300 different pictures, each
// photo with texts and a date of its own. 97 in 100 hold EXIF, a third hold IPTC and XMP as well, four in five a
// thumbnail. Made once, with ExifTool, below ~/.cache/quorbel (or the folder that QUORBEL_BENCH_PHOTOS names) and used
// again by later runs: nobody may change them there.
// Thread: the benchmark's. Failing to set something up ends the program.
#pragma once

#include "core/tool/ExifToolRunner.h"

#include <QString>
#include <QStringList>

namespace Quorbel::Bench {

class PhotoFolders {
public:
    PhotoFolders();

    /// A folder of so many photos.
    QString folder(int count) const;
    /// Its photos in natural order of their names.
    static QStringList paths(const QString& folder, int count);
    static QString name(int number);
    /// A stand-in for ExifTool, which prints for each of these photos what ExifTool would, fifty times as fast.
    ExifToolRunner standIn() const;

private:
    void makePatterns() const;
    void makeStandIn() const;
    void checkStandIn(const QString& folder, int count) const;
    QString patternPath(int number) const;

    QString m_base;
};

}  // namespace Quorbel::Bench
