// A folder of a hundred thousand photos and a tool that answers for them at once, for benchmarks of the model.
// Thread: the benchmark's. Failing to set something up ends the program.
#pragma once

#include "app/model/AppModelServices.h"

#include <QTemporaryDir>
#include <QUrl>

namespace Quorbel::Bench {

class ManyPhotos {
public:
    static constexpr int count = 100000;

    ManyPhotos();
    /// With preferences of their own.
    AppModelServices services() const;
    QUrl folder() const { return QUrl::fromLocalFile(m_folder.path()); }
    QString path(const QString& name) const { return m_folder.filePath(name); }
    /// Makes one more photo, or another one in the place of an old one.
    void add(const QString& name) const;
    /// While on, the tool opens its first photo and gets no further.
    void stall(bool on) const;

private:
    // Short paths: ExifTool takes them all in one command line.
    QTemporaryDir m_folder{ QStringLiteral("/dev/shm/q") };
    QTemporaryDir m_work;
};

}  // namespace Quorbel::Bench
