// What one look at the open folders costs in the background, against one plain stat() of each of their files in the
// same run; and what it costs the main thread. Medians of several.
#include "app/model/library/FolderLook.h"
#include "app/model/library/PhotoFile.h"
#include "platform/files/FolderWatches.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <sys/stat.h>

using namespace Quorbel;
using namespace Qt::StringLiterals;

namespace {

// Of this thread.
double milliseconds(clockid_t clock)
{
    timespec now{};
    clock_gettime(clock, &now);
    return double(now.tv_sec) * 1000 + double(now.tv_nsec) / 1'000'000;
}

struct Cost {
    double wall = 0;
    double processor = 0;
};

template <typename Act>
Cost median(Act act)
{
    std::vector<double> wall;
    std::vector<double> processor;
    for (int i = 0; i < 7; ++i) {
        const Cost begin{ milliseconds(CLOCK_MONOTONIC), milliseconds(CLOCK_THREAD_CPUTIME_ID) };
        act();
        wall.push_back(milliseconds(CLOCK_MONOTONIC) - begin.wall);
        processor.push_back(milliseconds(CLOCK_THREAD_CPUTIME_ID) - begin.processor);
    }
    std::sort(wall.begin(), wall.end());
    std::sort(processor.begin(), processor.end());
    return { wall.at(3), processor.at(3) };
}

class Photos {
public:
    Photos(int count, int folders)
    {
        for (int i = 0; i < count; ++i) {
            const QString folder = folders == 1 ? u"."_s : QString::number(i % folders);
            if (i < folders)
                QDir(m_top.path()).mkdir(folder);
            const QString path =
                QDir::cleanPath(m_top.filePath(folder + u"/IMG_%1.jpg"_s.arg(i, 6, 10, QLatin1Char('0'))));
            QFile file(path);
            if (!file.open(QIODevice::WriteOnly) || file.write("photo") != 5)
                qFatal("cannot write");
            file.close();
            m_paths.append(QFile::encodeName(path));
            m_records.append(PhotoFile::at(QUrl::fromLocalFile(path)).file->unreadRecord());
        }
    }
    QUrl top() const { return QUrl::fromLocalFile(m_top.path()); }
    const QList<ImageRecord>& records() const { return m_records; }
    void stat() const
    {
        for (const QByteArray& path : m_paths) {
            struct stat status { };
            if (::stat(path.constData(), &status) != 0)
                qFatal("gone");
        }
    }

private:
    QTemporaryDir m_top{ u"/var/tmp/looks"_s };
    QList<QByteArray> m_paths;
    QList<ImageRecord> m_records;
};

void report(int count, int folders)
{
    const Photos photos(count, folders);
    const Cost bare = median([&] { photos.stat(); });
    const FolderLook::Question question{ { photos.top() }, folders > 1, false,
        std::make_shared<KnownFiles>(photos.records()), std::make_shared<FolderWatches>(1000) };
    FolderLook found;
    const Cost look = median([&] { found = FolderLook::at(question, {}); });
    if (!found.news.gone.isEmpty() || !found.news.changed.isEmpty() || !found.news.further.isEmpty())
        qFatal("news where there are none");
    // As the times of looks are chosen.
    const double pause = std::max(3000.0, double(found.taken.count()) * 9);
    std::printf("%6d photos in %4d folders: bare stats %6.1f ms, a look %6.1f ms (%6.1f of a processor), %5.2f x bare; "
                "every few seconds %4.1f %% of the time\n",
        count, folders, bare.wall, look.wall, look.processor, look.wall / bare.wall,
        100 * look.wall / (look.wall + pause));
}

}  // namespace

int main()
{
    setvbuf(stdout, nullptr, _IOLBF, 0);
    report(10'000, 1);
    report(50'000, 1);
    report(50'000, 2'000);
    return 0;
}
