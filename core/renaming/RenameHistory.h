// Renames many photos, folder by folder, and takes that back; deals with what a killed program left half done.
// Thread: any; calls wait for one another and block on the file system. Knows no list of photos.
#pragma once

#include "core/renaming/FolderMover.h"
#include "core/renaming/RenameJournal.h"

#include <QLockFile>

#include <functional>
#include <mutex>
#include <utility>

namespace Quorbel {

class RenameHistory final {
public:
    /// Paths of photos, before and after: all at once, not one after the other.
    using Paths = QList<std::pair<QString, QString>>;
    /// Told of each folder that has new names, perhaps twice with one id.
    using Tell = std::function<void(const QString& id, const Paths& photos)>;
    /// Asked all the time, with the number of photos that have their new names: false gives up.
    using GoesOn = std::function<bool(qsizetype photos)>;

    /// `folder`: of the journal; empty: there is none, and no rename can be taken back.
    explicit RenameHistory(const QString& folder, Tell tell = {});
    Q_DISABLE_COPY_MOVE(RenameHistory)

    /// A rename that can be taken back.
    struct Undoable {
        qint64 number = 0;
        qsizetype photos = 0;  ///< none: there is no such rename
        QString fileName{};  ///< of the first photo, as it is now
        bool operator==(const Undoable&) const = default;
    };
    struct Outcome {
        Paths photos{};
        QStringList problems{};  ///< of folders that have their old names: why
        bool isGivenUp = false;
        Undoable next{};  ///< what can be taken back now
    };

    /// At the start of the program: what another run of it left half done gets its old names.
    Undoable open();
    /// The last one, where its photos are still where it left them; never an older one.
    Undoable latest();
    /// All or nothing in each folder. Never throws.
    Outcome rename(const QList<FolderRenaming>& folders, const GoesOn& goesOn = {});
    /// The same, back; with companions that came since. Folders whose photos are not where that rename left them stay
    /// as they are.
    Outcome undo(qint64 number, const GoesOn& goesOn = {});

    /// "Undo Rename of 40 Photos"; of one photo its name.
    static QString name(const Undoable& rename);

private:
    struct Run;

    bool lock();
    Undoable newest() const;
    void recover();
    void recover(qint64 number, const RenameEntry& entry);
    void forgetTakenBack(qint64 number) const;
    void tell(const QString& mark, qsizetype folder, const FolderRenaming& renaming) const;

    RenameJournal m_journal;
    Tell m_tell;
    QLockFile m_lock;
    std::mutex m_mutex;
};

}  // namespace Quorbel
