#include "app/model/saving/SaveHistory.h"

#include "core/save/SaveGuard.h"
#include "core/text/Text.h"

#include <QSet>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

QString counted(qsizetype count)
{
    return count == 1 ? u"1 photo"_s : u"%1 photos"_s.arg(count);
}

// Those of the photos that are, or link to, one of the files.
QList<QUrl> photosOf(const QList<QUrl>& files, const QList<QUrl>& photos)
{
    const QSet<QUrl> wanted(files.cbegin(), files.cend());
    const QList<QUrl> behind = SaveGuard::filesBehindLinks(photos);
    QList<QUrl> found;
    for (qsizetype i = 0; i < photos.size(); ++i)
        if (wanted.contains(behind.at(i)))
            found.append(photos.at(i));
    return found;
}

}  // namespace

// The journal's mutex is held. Renames stay pending until they are stored: the journal on disk is the truth.
QList<JournalEntry> SaveHistory::load()
{
    QList<JournalEntry> entries = SaveJournal::load(m_path);
    const std::scoped_lock lock(m_renames);
    for (const auto& [from, to] : std::as_const(m_pending))
        SaveJournal::rename(entries, from, to);
    return entries;
}

bool SaveHistory::isEmpty()
{
    const std::scoped_lock lock(m_journal);
    return load().isEmpty();
}

bool SaveHistory::add(JournalEntry entry)
{
    for (JournalFile& file : entry.files) {
        file.after = FileStamp::of(file.path).value_or(file.before);
        file.sidecar.after = FileStamp::of(file.sidecar.path);
    }
    entry.files.removeIf([](const JournalFile& file) { return file.after == file.before; });
    if (entry.files.isEmpty())
        return false;
    storeRenames();
    const std::scoped_lock lock(m_journal);
    QList<JournalEntry> entries = load();
    entries.append(entry);
    return SaveJournal::store(m_path, entries);
}

void SaveHistory::noteRename(const QString& from, const QString& to)
{
    const std::scoped_lock lock(m_renames);
    m_pending.append({ from, to });
}

void SaveHistory::storeRenames()
{
    const std::scoped_lock lock(m_journal);
    qsizetype known = 0;
    {
        const std::scoped_lock renames(m_renames);
        known = m_pending.size();
    }
    if (known == 0)
        return;
    const QList<JournalEntry> entries = load();
    if (!entries.isEmpty() && !SaveJournal::store(m_path, entries))
        return;
    // A rename that came between would be applied once more, to a name that is gone: without effect.
    const std::scoped_lock renames(m_renames);
    m_pending.remove(0, known);
}

SaveHistory::Undone SaveHistory::undo(const MetadataService& service, const QList<QUrl>& photos, TaskProgress& progress)
{
    storeRenames();
    const std::scoped_lock lock(m_journal);
    Undone undone;
    QList<JournalEntry> entries = load();
    if (entries.isEmpty())
        return undone;
    undone.hasMore = true;
    progress.total = entries.constLast().files.size();
    try {
        undone.outcome = service.undo(entries.constLast());
    } catch (const std::exception& error) {
        undone.error = QString::fromUtf8(error.what());
        return undone;
    }
    forgetUndone(entries, undone.outcome);
    SaveJournal::store(m_path, entries);
    undone.hasMore = !entries.isEmpty();
    QList<QUrl> touched = undone.outcome.restored;
    for (const FileFailure& failure : undone.outcome.failed)
        touched.append(failure.file);
    const QList<QUrl> stale = photosOf(touched, photos);
    undone.records = PhotoReader::read(service, stale, progress, {}).records;
    return undone;
}

// Only what failed can be tried again, from where the failed attempt left it: a file that somebody else changed never
// becomes ours again.
void SaveHistory::forgetUndone(QList<JournalEntry>& entries, const UndoOutcome& outcome)
{
    JournalEntry rest = entries.constLast();
    QSet<QString> failed;
    for (const FileFailure& failure : outcome.failed)
        failed.insert(failure.file.toLocalFile());
    rest.files.removeIf([&failed](const JournalFile& file) { return !failed.contains(file.path); });
    for (JournalFile& file : rest.files)
        file.after = FileStamp::of(file.path).value_or(file.after);
    QStringList restored;
    for (const QUrl& file : outcome.restored)
        restored.append(file.toLocalFile());
    SaveJournal::removeUndone(entries, restored);
    if (!rest.files.isEmpty())
        entries.append(rest);
}

std::optional<QString> SaveHistory::text(const Undone& undone)
{
    if (undone.error)
        return u"Could not undo the save: "_s + *undone.error;
    QStringList texts;
    QStringList names;
    for (const FileFailure& failure : undone.outcome.failed)
        names.append(u"%1 (%2)"_s.arg(failure.file.fileName(), failure.reason));
    if (!names.isEmpty())
        texts.append(u"Could not undo the save of %1: "_s.arg(counted(names.size())) + Text::listed(names));
    names.clear();
    for (const QUrl& file : undone.outcome.changedSince)
        names.append(file.fileName());
    if (!names.isEmpty())
        texts.append(u"%1%2 changed since and %3 left alone: "_s.arg(
                         undone.outcome.restored.isEmpty() ? u"Not undone: "_s : u"Undone, but "_s,
                         counted(names.size()), names.size() == 1 ? u"was"_s : u"were"_s)
            + Text::listed(names));
    names.clear();
    for (const QUrl& file : undone.outcome.inexact)
        names.append(file.fileName());
    if (!names.isEmpty())
        texts.append(u"Undone, but not every value of %1 could be put back as it was: "_s.arg(counted(names.size()))
            + Text::listed(names));
    return texts.isEmpty() ? std::nullopt : std::optional(texts.join(u". "_s));
}

}  // namespace Quorbel
