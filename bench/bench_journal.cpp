// What one photo's save costs the journal when the other saves in it are large: 19 saves of 10,000 photos each, against
// the same save with an empty journal. Processor time of this process; rounds alternate; medians are compared.
#include "app/model/saving/SaveHistory.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>

using namespace Quorbel;
using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 21;
constexpr int photos = 10'000;
constexpr double bound = 3;

JournalEntry saveOf(int count, const QString& folder)
{
    JournalEntry entry{ .savedAt = QDateTime::currentDateTimeUtc(), .writtenTags = { u"XMP-dc:Title"_s } };
    for (int i = 0; i < count; ++i)
        entry.files.append({ .path = folder + u"/IMG_%1.jpg"_s.arg(i),
            .tags = { { "XMP-dc:Title", { "A title of the usual length, number " + QByteArray::number(i) } } } });
    return entry;
}

double cpuMilliseconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

}  // namespace

int main()
{
    const QTemporaryDir directory;
    const QString photo = directory.filePath(u"IMG_0.jpg"_s);
    if (QFile file(photo); !file.open(QIODevice::WriteOnly) || file.write("photo") < 0)
        return 1;
    const QString full = directory.filePath(u"full"_s);
    const QString empty = directory.filePath(u"empty"_s);
    const SaveJournal journal(full);
    for (qsizetype i = 1; i < SaveJournal::limit; ++i)
        if (!journal.add(saveOf(photos, u"/photos"_s)))
            return 1;
    std::vector<double> inFull;
    std::vector<double> inEmpty;
    for (int round = 0; round < rounds; ++round) {
        for (const bool isFull : { round % 2 == 0, round % 2 != 0 }) {
            // A journal forgets its oldest save, so that of one photo goes again.
            SaveHistory history(isFull ? full : empty);
            const JournalEntry entry = saveOf(1, directory.path());
            const double before = cpuMilliseconds();
            const SaveHistory::Undoable added = history.add(entry);
            (isFull ? inFull : inEmpty).push_back(cpuMilliseconds() - before);
            if (added.photos != 1 || !SaveJournal(isFull ? full : empty).removeUndone(added.number, {}, {}))
                return 1;
        }
    }
    const double ratio = median(inFull) / median(inEmpty);
    std::printf(
        "one photo's save with 19 saves of 10,000 photos in the journal: %.2f ms, with none: %.2f ms, ratio %.2f "
        "(bound %.0f)\n",
        median(inFull), median(inEmpty), ratio, bound);
    return ratio <= bound ? 0 : 1;
}
