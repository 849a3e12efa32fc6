// What the last saves replaced, so that they can be taken back, also after a restart.
// Thread: any, one at a time on one journal file. Knows nothing of processes: SaveUndo reads the old values and
// writes them back.
#pragma once

#include "core/save/JournalEntry.h"

namespace Quorbel::SaveJournal {

/// Saves that are kept.
constexpr qsizetype limit = 20;

/// The journal's saves, oldest first; none for a file that is missing or damaged.
QList<JournalEntry> load(const QString& journalPath);
/// Writes them, the newest `limit` of them. False when the file system refuses; the old journal is then intact.
bool store(const QString& journalPath, const QList<JournalEntry>& entries);
/// Follows a photo that got another name.
void rename(QList<JournalEntry>& entries, const QString& from, const QString& to);
/// Takes the newest save out after it was undone in these files (paths). Those that it had found as an earlier save
/// left them are, as they now stand, again what that earlier save left.
void removeUndone(QList<JournalEntry>& entries, const QStringList& restored);

}  // namespace Quorbel::SaveJournal
