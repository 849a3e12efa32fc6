// The file in which edits that are not saved survive the program: a crash, a kill, the end of the desktop's session.
// Thread: any, also several at once. Each running program has a file of its own, under a lock that it holds as long as
// it lives; the files of programs that do not run any more are taken over at the next start.
#pragma once

#include "core/save/LeftEdits.h"

#include <QLockFile>

#include <memory>
#include <mutex>

namespace Quorbel {

class LeftEditsFile final {
public:
    /// `path`: absolute. A second program that runs at the same time uses "<name>-2.json" beside "<name>.json".
    explicit LeftEditsFile(const QString& path);
    ~LeftEditsFile();
    Q_DISABLE_COPY_MOVE(LeftEditsFile)

    /// What earlier programs left, the newest first. The first call looks at the disk, further ones repeat its answer.
    QList<LeftEdits> found();
    /// Replaces what the file holds; nothing to hold removes it. Of two calls the one with the higher serial counts,
    /// whichever comes last. False when the file system refuses: what the file held is then intact.
    bool store(const QList<LeftEdits>& list, int serial);
    /// Lets go of the lock; nothing is stored from then on. Waits for a call that runs.
    void close();

private:
    struct Slot {
        QString path{};
        std::unique_ptr<QLockFile> lock{};
    };

    QString pathOf(int slot) const;
    void takeOver();
    bool write(const QList<LeftEdits>& list) const;

    QString m_path;
    std::mutex m_mutex;
    std::optional<Slot> m_own;  ///< nothing where the folder cannot be written, or too many programs run
    QList<LeftEdits> m_found;
    bool m_hasLooked = false;
    bool m_isClosed = false;
    int m_serial = 0;
};

}  // namespace Quorbel
