// What reads of photos found, kept from one run of the program to the next: an unchanged photo is never read twice.
// A record counts for as long as its file is the same, inode and times, and the reader too; else it is as if it were
// not there. Whatever becomes of the file on disk, the worst is that photos are read again.
// Beside a record stand the photo's details, where they were read, under the same terms.
// Thread: any but the main one for find(), findDetails() and begin(), which wait for the disk, and once after an update
// of the tool for a run of it; put() returns at once. Writing has a thread of its own.
#pragma once

#include "app/model/library/PhotoFile.h"
#include "app/model/library/cache/ReaderIdentity.h"
#include "core/schema/PhotoDetails.h"

#include <QHash>
#include <QList>

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <stop_token>
#include <thread>

namespace Quorbel {

class RecordDatabase;

class RecordCache final {
public:
    struct Options {
        QString folder{};  ///< made, for its owner alone; empty: nothing is kept
        qint64 mostBytes = 1024LL * 1024 * 1024;
        qint64 mostPhotos = 2'000'000;
        /// The time of the last use is noted no finer than this, in milliseconds.
        qint64 useStep = 24LL * 3600 * 1000;
    };
    /// What a read began with.
    struct Beginning {
        qint64 now = 0;  ///< nanoseconds since 1970, by the clock that files are dated with
        QByteArray reader{};
    };
    /// A photo's file as it was looked at before the read, and what the read found.
    struct Read {
        PhotoFile before{};
        ImageRecord record{};
    };

    /// The same, and its details.
    struct DetailsRead {
        PhotoFile before{};
        PhotoDetails details{};
    };

    RecordCache(Options options, ExifToolRunner runner);
    /// Writes what is still to be written.
    ~RecordCache();
    Q_DISABLE_COPY_MOVE(RecordCache)

    /// The records of those that are as they were when they were read, equal to what a read would give. Time grows with
    /// the number of files asked for. Once stopped, it ends early.
    QHash<QUrl, ImageRecord> find(const QList<PhotoFile>& files, const std::stop_token& stop = {});

    /// The same for details.
    QHash<QUrl, PhotoDetails> findDetails(const QList<PhotoFile>& files, const std::stop_token& stop = {});

    /// To be called between the look at the files and the read. A file that was changed just now may change again
    /// without another date: where a tick of the clock is short, that tick is waited for.
    Beginning begin(const QList<PhotoFile>& files) const;
    /// Keeps what was read, for those files that did not change meanwhile and whose date can be trusted.
    void put(const Beginning& beginning, QList<Read> reads);
    /// The same for details. Those of a photo whose record is not kept are not kept either.
    void putDetails(const Beginning& beginning, QList<DetailsRead> reads);

    /// Returns when all of it is on disk, or could not be written.
    void waitUntilWritten();

private:
    struct Put {
        Beginning beginning{};
        QList<Read> reads{};
        QList<DetailsRead> details{};
        qsizetype size() const { return reads.size() + details.size(); }
    };
    struct Work {
        QList<Put> puts{};
        QList<qint64> used{};  ///< numbers of rows that were served
        bool hasAnswer = false;  ///< the tool was asked for its version
        std::optional<quint64> damaged{};  ///< which file is
        bool isEmpty() const { return puts.isEmpty() && used.isEmpty() && !hasAnswer && !damaged; }
    };
    struct Row {
        QString path{};
        QByteArray content{};
    };

    using Look = std::function<void(RecordDatabase&, const PhotoFile&, const QByteArray& reader, Work&)>;

    void lookFor(const QList<PhotoFile>& files, const std::stop_token& stop, const Look& look);
    void add(const std::function<void(Work&)>& change);
    void runWriter(const std::stop_token& stop);
    Work takeSome();
    void write(const Work& work, std::unique_ptr<RecordDatabase>& database);
    bool tryWrite(const Work& work, RecordDatabase& database);
    /// Of records and of details.
    struct Rows {
        QList<Row> records{};
        QList<Row> details{};
    };
    Rows rows(const Work& work, const QByteArray& reader) const;
    void prune(RecordDatabase& database, qsizetype written);
    /// Nothing when the tool cannot be asked; `hasRun`: it was.
    std::optional<QByteArray> reader(RecordDatabase& database, bool* hasRun = nullptr);
    void keepAnswer(RecordDatabase& database);

    const Options m_options;
    const ExifToolRunner m_runner;

    std::mutex m_asking;  ///< the tool is asked by one at a time
    QByteArray m_toolStamp;  ///< under m_asking, like m_answer
    ToolAnswer m_answer;

    std::mutex m_waiting;
    std::condition_variable_any m_changed;
    Work m_work;  ///< under m_waiting
    bool m_isWriting = false;  ///< the same
    qint64 m_untilPruned = 0;  ///< rows that may still be written before the next look; the writer's
    std::jthread m_writer;  ///< begins with the first work
};

}  // namespace Quorbel
