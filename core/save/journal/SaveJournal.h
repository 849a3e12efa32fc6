// What the last saves replaced, so that they can be taken back, also after a restart: a folder with one file for each
// save, so that a save costs what it adds, however much the others hold; and notes of what happened to the photos
// since. Thread: any, also several at once and several programs, but for removeUndone(): one undo at a time
// (SaveHistory). Knows nothing of processes: SaveUndo reads the old values and writes them back.
#pragma once

#include "core/save/journal/JournalEntry.h"

#include <optional>
#include <utility>

namespace Quorbel {

class SaveJournal final {
public:
    /// Saves that are kept.
    static constexpr qsizetype limit = 20;

    /// The folder comes with the first save.
    explicit SaveJournal(const QString& folder)
        : m_folder(folder)
    {
    }

    /// The numbers of the saves, oldest first.
    QList<qint64> saves() const;
    /// A save, with its photos under their names of today. Nothing when it is gone or damaged.
    std::optional<JournalEntry> load(qint64 number) const;
    /// Adds a save and forgets the oldest beyond `limit`; its number, or nothing when the file system refuses.
    std::optional<qint64> add(const JournalEntry& entry) const;
    /// Photos got other names (from, to), one after the other. False when the file system refuses.
    bool noteRenames(const QList<std::pair<QString, QString>>& renames) const;
    /// The same all at once, so that photos may have swapped their names. What is noted twice under one id counts once.
    bool noteRenamesTogether(const QString& id, const QList<std::pair<QString, QString>>& renames) const;
    /// After a save was undone in the files of `undone`; those of `rest` wait for another attempt. Files that it had
    /// found as an earlier save left them are, as they now stand, again what that earlier save left.
    bool removeUndone(qint64 number, const JournalEntry& undone, const JournalEntry& rest) const;

    /// Takes the saves out of the one file that earlier versions kept, and removes it.
    void takeOver(const QString& oldJournal) const;
    /// Removes what a killed program left half written, more than an hour ago.
    void tidy() const;

private:
    void forgetOldNotes() const;

    QString m_folder;
};

}  // namespace Quorbel
