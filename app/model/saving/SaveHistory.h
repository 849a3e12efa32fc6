// The saves that can be taken back, kept in a journal file so that this works after a restart too.
// Thread: any. Calls that read or write the journal wait for one another, so they belong in the background; noteRename
// does neither.
#pragma once

#include "app/model/library/PhotoReader.h"
#include "core/MetadataService.h"
#include "core/save/SaveJournal.h"

#include <mutex>

namespace Quorbel {

class SaveHistory final {
public:
    explicit SaveHistory(const QString& journalPath)
        : m_path(journalPath)
    {
    }
    Q_DISABLE_COPY_MOVE(SaveHistory)

    bool isEmpty();
    /// Keeps those files of the entry that the write has changed, as they are now. Whether there were any, and the
    /// journal took them.
    bool add(JournalEntry entry);
    /// A photo got another name. Takes effect before the next look at the journal.
    void noteRename(const QString& from, const QString& to);
    /// Brings the journal file itself up to date with the renames.
    void storeRenames();

    struct Undone {
        UndoOutcome outcome{};
        QList<ImageRecord> records{};  ///< of the given photos that were restored, as they are now
        std::optional<QString> error{};  ///< nothing was restored: why
        bool hasMore = false;  ///< an earlier save can be taken back as well
    };
    /// Takes the newest save back and reads those of these photos again that it concerns. Files that fail stay in
    /// the journal. Never throws; blocks on ExifTool.
    Undone undo(const MetadataService& service, const QList<QUrl>& photos, TaskProgress& progress);

    /// The banner's text; nothing when all went well.
    static std::optional<QString> text(const Undone& undone);

private:
    QList<JournalEntry> load();
    static void forgetUndone(QList<JournalEntry>& entries, const UndoOutcome& outcome);

    QString m_path;
    std::mutex m_journal;
    std::mutex m_renames;
    QList<std::pair<QString, QString>> m_pending;  ///< renames that the journal file does not know yet, oldest first
};

}  // namespace Quorbel
