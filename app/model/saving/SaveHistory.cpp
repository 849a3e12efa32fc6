#include "app/model/saving/SaveHistory.h"

#include "app/model/saving/ReplacedFilesPoll.h"
#include "core/language/Texts.h"
#include "core/save/SaveGuard.h"
#include "core/text/Text.h"

#include <QFileInfo>
#include <QScopeGuard>
#include <QSet>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Those of the photos that are, or link to, one of the files.
QList<QUrl> photosAmong(const QList<QUrl>& files, const QList<QUrl>& photos)
{
    const QSet<QUrl> wanted(files.cbegin(), files.cend());
    const QList<QUrl> behind = SaveGuard::filesBehindLinks(photos);
    QList<QUrl> found;
    for (qsizetype i = 0; i < photos.size(); ++i)
        if (wanted.contains(behind.at(i)) || wanted.contains(photos.at(i)))
            found.append(photos.at(i));
    return found;
}

}  // namespace

SaveHistory::SaveHistory(const QString& folder)
    : m_journal(folder)
    , m_oldJournal(folder + u".json"_s)
    , m_undoing(folder + u".lock"_s)
{
    // As long as it takes: what a program that is gone has left is told by its process.
    m_undoing.setStaleLockTime(0);
}

SaveHistory::Undoable SaveHistory::latest()
{
    const std::scoped_lock lock(m_mutex);
    return newest();
}

// The mutex is held. One that is damaged, or that another program is still writing, is passed over.
SaveHistory::Undoable SaveHistory::newest()
{
    QList<qint64> saves = m_journal.saves();
    m_newest = std::max(m_newest, saves.value(saves.size() - 1));
    while (!saves.isEmpty() && saves.constLast() > m_unreachable) {
        const qint64 number = saves.takeLast();
        if (const auto entry = m_journal.load(number); entry && !entry->files.isEmpty())
            return undoable(number, *entry);
    }
    return {};
}

SaveHistory::Undoable SaveHistory::undoable(qint64 number, const JournalEntry& entry)
{
    return { number, entry.files.size(), QFileInfo(entry.files.constFirst().photo()).fileName(), entry.isTimeShift };
}

SaveHistory::Undoable SaveHistory::open()
{
    const std::scoped_lock lock(m_mutex);
    m_journal.tidy();
    // Another program that starts may be at it; then its saves are there when it is done.
    if (QFileInfo::exists(m_oldJournal) && m_undoing.tryLock(5000)) {
        m_journal.takeOver(m_oldJournal);
        m_undoing.unlock();
    }
    return newest();
}

SaveHistory::Undoable SaveHistory::add(JournalEntry entry)
{
    for (JournalFile& file : entry.files) {
        file.after = FileStamp::of(file.path).value_or(file.before);
        file.sidecar.after = FileStamp::of(file.sidecar.path);
    }
    entry.files.removeIf([](const JournalFile& file) { return file.after == file.before; });
    if (entry.files.isEmpty())
        return latest();
    storeRenames();
    const std::scoped_lock lock(m_mutex);
    const auto number = m_journal.add(entry);
    if (number) {
        m_newest = *number;
        return undoable(*number, entry);
    }
    passOver();
    return {};
}

SaveHistory::Undoable SaveHistory::addUnknown()
{
    const std::scoped_lock lock(m_mutex);
    passOver();
    return {};
}

// The mutex is held. Whoever takes the last save back must not take back the one before it.
void SaveHistory::passOver()
{
    const QList<qint64> saves = m_journal.saves();
    m_unreachable = std::max(m_newest, saves.isEmpty() ? 0 : saves.constLast());
}

void SaveHistory::noteRename(const QString& from, const QString& to)
{
    const std::scoped_lock lock(m_renames);
    m_pending.append({ from, to });
}

void SaveHistory::storeRenames()
{
    const std::scoped_lock lock(m_mutex);
    QList<std::pair<QString, QString>> pending;
    {
        const std::scoped_lock renames(m_renames);
        pending = m_pending;
    }
    if (pending.isEmpty() || !m_journal.noteRenames(pending))
        return;
    const std::scoped_lock renames(m_renames);
    m_pending.remove(0, pending.size());
}

void SaveHistory::noteRenamesTogether(const QString& id, const QList<std::pair<QString, QString>>& renames)
{
    storeRenames();
    const std::scoped_lock lock(m_mutex);
    m_journal.noteRenamesTogether(id, renames);
}

QList<QUrl> SaveHistory::photosOf(qint64 number)
{
    storeRenames();
    const std::scoped_lock lock(m_mutex);
    QList<QUrl> photos;
    const JournalEntry entry = m_journal.load(number).value_or(JournalEntry());
    for (const JournalFile& file : entry.files) {
        photos.append(QUrl::fromLocalFile(file.path));
        if (!file.link.isEmpty())
            photos.append(QUrl::fromLocalFile(file.link));
    }
    return photos;
}

SaveHistory::Undone SaveHistory::undo(const MetadataService& service, qint64 number, const QList<QUrl>& photos,
    TaskProgress& progress, const std::shared_ptr<RecordCache>& cache)
{
    storeRenames();
    const std::scoped_lock lock(m_mutex);
    Undone undone;
    if (!m_undoing.tryLock()) {
        undone.error = Texts::tr("another Quorbel is undoing one at this moment");
        undone.next = newest();
        return undone;
    }
    const auto unlock = qScopeGuard([this] { m_undoing.unlock(); });
    const auto entry = m_journal.load(number);
    if (!entry) {
        undone.error = Texts::tr("it was undone already");
        undone.next = newest();
        return undone;
    }
    undone.isTimeShift = entry->isTimeShift;
    progress.total = entry->files.size();
    QList<QUrl> files;
    for (const JournalFile& file : entry->files)
        files.append(QUrl::fromLocalFile(file.path));
    try {
        const ReplacedFilesPoll poll(files, progress.done);
        undone.outcome = service.undo(*entry);
    } catch (const std::exception& error) {
        undone.error = QString::fromUtf8(error.what());
        undone.next = undoable(number, *entry);
        return undone;
    }
    forgetUndone(number, *entry, undone.outcome);
    undone.next = newest();
    QList<QUrl> touched = undone.outcome.restored;
    for (const FileFailure& failure : undone.outcome.failed)
        touched.append(failure.file);
    const QList<QUrl> stale = photosAmong(touched, photos);
    progress.done = 0;
    undone.records = PhotoReader::read(service, stale, progress, {}, cache).records;
    return undone;
}

// Only what failed can be tried again, from where the failed attempt left it: a file that somebody else changed never
// becomes ours again.
void SaveHistory::forgetUndone(qint64 number, const JournalEntry& entry, const UndoOutcome& outcome)
{
    QSet<QString> failed;
    for (const FileFailure& failure : outcome.failed)
        failed.insert(failure.file.toLocalFile());
    QSet<QString> restored;
    for (const QUrl& file : outcome.restored)
        restored.insert(file.toLocalFile());
    JournalEntry rest = entry;
    rest.files.removeIf([&failed](const JournalFile& file) { return !failed.contains(file.photo()); });
    for (JournalFile& file : rest.files)
        file.after = FileStamp::of(file.path).value_or(file.after);
    JournalEntry undone = entry;
    undone.files.removeIf([&restored](const JournalFile& file) { return !restored.contains(file.photo()); });
    m_journal.removeUndone(number, undone, rest);
}

QString SaveHistory::name(const Undoable& save)
{
    if (save.photos == 0)
        return Texts::tr("Undo Save");
    if (save.isTimeShift)
        return save.photos == 1 ? Texts::tr("Undo Shift Time of “%1”").arg(save.fileName)
                                : Texts::tr("Undo Shift Time of %n photo(s)", nullptr, save.photos);
    return save.photos == 1 ? Texts::tr("Undo Save of “%1”").arg(save.fileName)
                            : Texts::tr("Undo Save of %n photo(s)", nullptr, save.photos);
}

std::optional<QString> SaveHistory::text(const Undone& undone)
{
    if (undone.error)
        //: %1 is the reason
        return (undone.isTimeShift ? Texts::tr("Could not undo the shift of time: %1")
                                   : Texts::tr("Could not undo the save: %1"))
            .arg(*undone.error);
    QStringList texts;
    QStringList names;
    for (const FileFailure& failure : undone.outcome.failed)
        names.append(u"%1 (%2)"_s.arg(failure.file.fileName(), failure.reason));
    if (!names.isEmpty())
        //: %1 names the photos, with the reasons
        texts.append((undone.isTimeShift
                ? Texts::tr("Could not undo the shift of time of %n photo(s): %1", nullptr, names.size())
                //: %1 names the photos, with the reasons
                : Texts::tr("Could not undo the save of %n photo(s): %1", nullptr, names.size()))
                         .arg(Text::listed(names)));
    names.clear();
    for (const QUrl& file : undone.outcome.changedSince)
        names.append(file.fileName());
    if (!names.isEmpty())
        //: %1 names the photos
        texts.append((undone.outcome.restored.isEmpty()
                ? Texts::tr(
                    "Not undone: %n photo(s) changed since and (was|were) left alone: %1", nullptr, names.size())
                //: %1 names the photos
                : Texts::tr(
                    "Undone, but %n photo(s) changed since and (was|were) left alone: %1", nullptr, names.size()))
                         .arg(Text::listed(names)));
    names.clear();
    for (const QUrl& file : undone.outcome.inexact)
        names.append(file.fileName());
    if (!names.isEmpty())
        //: %1 names the photos
        texts.append(Texts::tr(
            "Undone, but not every value of %n photo(s) could be put back as it was: %1", nullptr, names.size())
                         .arg(Text::listed(names)));
    return texts.isEmpty() ? std::nullopt : std::optional(texts.join(u". "_s));
}

}  // namespace Quorbel
