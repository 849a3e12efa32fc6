// The saves that can be taken back, kept in a journal so that this works after a restart too.
// Thread: any. Calls that read or write the journal wait for one another, so they belong in the background; noteRename
// does neither.
#pragma once

#include "app/model/library/PhotoReader.h"
#include "core/MetadataService.h"
#include "core/save/journal/SaveJournal.h"

#include <QLockFile>

#include <mutex>

namespace Quorbel {

class RecordCache;

class SaveHistory final {
public:
    /// The journal's folder. Beside it lie its lock (".lock") and the one file that earlier versions kept (".json").
    explicit SaveHistory(const QString& folder);
    Q_DISABLE_COPY_MOVE(SaveHistory)

    /// A save that can be taken back.
    struct Undoable {
        qint64 number = 0;
        qsizetype photos = 0;  ///< none: there is no such save
        QString fileName{};  ///< of the first photo
        bool isTimeShift = false;
        bool operator==(const Undoable&) const = default;
    };

    /// The last save, perhaps of an earlier run of the program or of another one. Not one that came before a save of
    /// this program that the journal does not know.
    Undoable latest();
    /// The same, at the start of the program.
    Undoable open();
    /// Keeps those files of the entry that the write has changed, as they are now. What can be taken back afterwards:
    /// nothing when the journal did not take it.
    Undoable add(JournalEntry entry);
    /// There was a save, and nobody knows what it replaced.
    Undoable addUnknown();
    /// A photo got another name. Takes effect before the next look at the journal.
    void noteRename(const QString& from, const QString& to);
    /// Photos got other names, all at once (SaveJournal::noteRenamesTogether). Waits for the journal.
    void noteRenamesTogether(const QString& id, const QList<std::pair<QString, QString>>& renames);
    /// Brings the journal itself up to date with the renames.
    void storeRenames();

    /// The photos of a save under their names of today, and links through which they were saved. None when it is gone.
    QList<QUrl> photosOf(qint64 number);

    struct Undone {
        UndoOutcome outcome{};
        QList<ImageRecord> records{};  ///< of the given photos that were restored, as they are now
        bool isTimeShift = false;
        std::optional<QString> error{};  ///< nothing was restored: why
        Undoable next{};  ///< what can be taken back now
    };
    /// Takes this save back and reads those of these photos again that it concerns. Files that fail stay in
    /// the journal. Never throws; blocks on ExifTool.
    Undone undo(const MetadataService& service, qint64 number, const QList<QUrl>& photos, TaskProgress& progress,
        const std::shared_ptr<RecordCache>& cache = {});

    /// "Undo Save of 12 photos"; of one photo its name. "Undo Shift Time of 12 photos" where that was the save.
    static QString name(const Undoable& save);

    /// The banner's text; nothing when all went well.
    static std::optional<QString> text(const Undone& undone);

private:
    Undoable newest();
    static Undoable undoable(qint64 number, const JournalEntry& entry);
    void passOver();
    void forgetUndone(qint64 number, const JournalEntry& entry, const UndoOutcome& outcome);

    SaveJournal m_journal;
    QString m_oldJournal;
    QLockFile m_undoing;  ///< two programs must not take back one save
    qint64 m_newest = 0;  ///< the greatest number that was seen
    qint64 m_unreachable = 0;  ///< saves up to this number are older than one that the journal does not know
    std::mutex m_mutex;
    std::mutex m_renames;
    QList<std::pair<QString, QString>> m_pending;  ///< renames that the journal does not know yet, oldest first
};

}  // namespace Quorbel
