#include "core/renaming/RenameHistory.h"

#include "core/language/Texts.h"
#include "core/renaming/FolderListing.h"

#include <QDir>
#include <QFileInfo>
#include <QScopeGuard>
#include <QSet>
#include <QUuid>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

QString newMark()
{
    return QUuid::createUuid().toString(QUuid::Id128).left(12);
}

QList<FileMark> marksOf(const FolderRenaming& renaming)
{
    QList<FileMark> marks;
    for (const FileRenaming& file : renaming.files)
        marks.append(FileMark::of(renaming.folder + u'/' + file.from));
    return marks;
}

bool isThere(const QString& path)
{
    return FileMark::of(path).size >= 0;
}

// Under which of its names a file is now; "" where it is gone.
QString whereIs(const QString& folder, const FileRenaming& file, const QString& between, const FileMark& mark)
{
    if (isThere(folder + u'/' + between))
        return between;
    const FileMark from = FileMark::of(folder + u'/' + file.from);
    const FileMark to = FileMark::of(folder + u'/' + file.to);
    for (const auto& [now, name] : { std::pair(from, file.from), std::pair(to, file.to) })
        if (now == mark)
            return name;
    // Some file systems number their files anew.
    for (const auto& [now, name] : { std::pair(from, file.from), std::pair(to, file.to) })
        if (now.size == mark.size && now.modified == mark.modified)
            return name;
    return from.size >= 0 ? file.from : QString();
}

// Whatever of the folder was moved has its old name again.
bool putBack(const RenameEntry::Folder& folder, const QString& mark)
{
    const FolderRenaming& renaming = folder.renaming;
    const FolderMover mover(renaming.folder, mark);
    QList<FileRenaming> back;
    for (qsizetype i = 0; i < renaming.files.size(); ++i) {
        const FileRenaming& file = renaming.files.at(i);
        const QString now = whereIs(renaming.folder, file, mover.between(i), folder.marks.value(i));
        back.append({ now.isEmpty() ? file.from : now, file.from, file.isPhoto });
    }
    return QFileInfo(renaming.folder).isDir() && mover.move(back, {}).end == FolderMover::End::done;
}

// Companions that came since. What has the base name of a raw file that was there by then is that one's.
QStringList cameSince(const FolderRenaming& done, const QString& photo, const CompanionNames& companions)
{
    const QStringList raws = companions.rawsBeside(photo);
    const bool areAllRenamed = std::all_of(raws.cbegin(), raws.cend(), [&done](const QString& raw) {
        return std::any_of(
            done.files.cbegin(), done.files.cend(), [&raw](const FileRenaming& file) { return file.to == raw; });
    });
    return areAllRenamed ? companions.of(photo) : companions.withWholeName(photo);
}

// Back to the old names, with companions that came since. `problem`: why not.
FolderRenaming reversed(const FolderRenaming& done, QString& problem)
{
    const QStringList listed = FolderListing::of(done.folder).names;
    const QSet<QString> names(listed.cbegin(), listed.cend());
    const CompanionNames companions(listed);
    FolderRenaming back{ .folder = done.folder };
    QSet<QString> taken;
    const auto add = [&](const QString& from, const QString& to, bool isPhoto) {
        if (taken.contains(from))
            return;
        taken.insert(from);
        back.files.append({ from, to, isPhoto });
    };
    for (const FileRenaming& file : done.files) {
        if (!names.contains(file.to) && file.isPhoto)
            problem = Texts::tr("“%1” is not there any more").arg(file.to);
        if (names.contains(file.to))
            add(file.to, file.from, file.isPhoto);
    }
    for (const FileRenaming& file : done.files) {
        const QString base = CompanionNames::baseOf(file.to);
        for (const QString& name : file.isPhoto ? cameSince(done, file.to, companions) : QStringList())
            add(name, CompanionNames::baseOf(file.from) + name.sliced(base.size()), false);
    }
    return back;
}

}  // namespace

/// One run over folders, noted as it goes on.
struct RenameHistory::Run {
    const RenameHistory& history;
    GoesOn goesOn{};
    qint64 undoes = 0;
    QString mark = newMark();
    std::optional<qint64> number{};
    qsizetype noted = 0;
    bool isStuck = false;
    Outcome outcome{};

    void begin()
    {
        if (!history.m_journal.folder().isEmpty())
            number = history.m_journal.begin(mark, undoes);
    }

    // Whether the folder has its new names.
    bool move(const FolderRenaming& folder)
    {
        const RenameJournal& journal = history.m_journal;
        const bool isNoted = number && journal.noteFolder(*number, { .renaming = folder, .marks = marksOf(folder) });
        const qsizetype before = outcome.photos.size();
        const FolderMover::Outcome moved = FolderMover(folder.folder, mark).move(folder.files, [&](qsizetype photos) {
            outcome.isGivenUp = goesOn && !goesOn(before + photos);
            return !outcome.isGivenUp;
        });
        isStuck = isStuck || moved.end == FolderMover::End::stuck;
        if (!moved.problem.isEmpty())
            outcome.problems.append(moved.problem);
        const qsizetype at = isNoted ? noted++ : noted;
        if (moved.end != FolderMover::End::done)
            return false;
        if (isNoted)
            journal.noteMoved(*number, at);
        history.tell(mark, at, folder);
        for (const FileRenaming& file : folder.files)
            if (file.isPhoto)
                outcome.photos.append({ folder.folder + u'/' + file.from, folder.folder + u'/' + file.to });
        return true;
    }

    // What is stuck stays noted: the next start, or rename, tries again.
    void end()
    {
        if (!number || isStuck)
            return;
        if (outcome.photos.isEmpty() || undoes > 0)
            history.m_journal.remove(*number);
        else
            history.m_journal.noteDone(*number);
    }
};

RenameHistory::RenameHistory(const QString& folder, Tell tell)
    : m_journal(folder)
    , m_tell(std::move(tell))
    , m_lock(folder + u"/lock"_s)
{
    // As long as it takes: what a program that is gone has left is told by its process.
    m_lock.setStaleLockTime(0);
}

// The mutex is held.
bool RenameHistory::lock()
{
    if (m_journal.folder().isEmpty() || !QDir().mkpath(m_journal.folder()))
        return true;
    return m_lock.tryLock() || m_lock.error() != QLockFile::LockFailedError;
}

RenameHistory::Undoable RenameHistory::open()
{
    const std::scoped_lock locked(m_mutex);
    // With nothing to deal with no folder is made.
    if (m_journal.folder().isEmpty() || m_journal.numbers().isEmpty())
        return {};
    if (lock()) {
        const auto unlock = qScopeGuard([this] { m_lock.unlock(); });
        recover();
    }
    return newest();
}

RenameHistory::Undoable RenameHistory::latest()
{
    const std::scoped_lock locked(m_mutex);
    return newest();
}

RenameHistory::Undoable RenameHistory::newest() const
{
    if (m_journal.folder().isEmpty())
        return {};
    QList<qint64> numbers = m_journal.numbers();
    while (!numbers.isEmpty()) {
        const qint64 number = numbers.takeLast();
        const auto entry = m_journal.load(number);
        if (!entry || !entry->isDone || entry->photos() == 0)
            continue;
        Undoable found{ .number = number };
        for (const RenameEntry::Folder& folder : entry->folders) {
            QString problem;
            const qsizetype photos = RenameEntry::photosIn(folder);
            if (photos == 0 || (reversed(folder.renaming, problem), !problem.isEmpty()))
                continue;
            if (found.photos == 0)
                found.fileName = folder.renaming.files.constFirst().to;
            found.photos += photos;
        }
        return found.photos > 0 ? found : Undoable();
    }
    return {};
}

RenameHistory::Outcome RenameHistory::rename(const QList<FolderRenaming>& folders, const GoesOn& goesOn)
{
    const std::scoped_lock locked(m_mutex);
    if (!lock())
        return { .problems = { Texts::tr("another Quorbel is renaming at this moment") }, .next = newest() };
    const auto unlock = qScopeGuard([this] { m_lock.unlock(); });
    recover();
    Run run{ *this, goesOn };
    run.begin();
    for (const FolderRenaming& folder : folders) {
        if (run.outcome.isGivenUp)
            break;
        run.move(folder);
    }
    run.end();
    run.outcome.next = newest();
    return run.outcome;
}

RenameHistory::Outcome RenameHistory::undo(qint64 number, const GoesOn& goesOn)
{
    const std::scoped_lock locked(m_mutex);
    if (!lock())
        return { .problems = { Texts::tr("another Quorbel is renaming at this moment") }, .next = newest() };
    const auto unlock = qScopeGuard([this] { m_lock.unlock(); });
    recover();
    const auto entry = m_journal.load(number);
    if (!entry)
        return { .problems = { Texts::tr("it was undone already") }, .next = newest() };
    Run run{ *this, goesOn, number };
    run.begin();
    for (qsizetype i = 0; i < entry->folders.size(); ++i) {
        const RenameEntry::Folder& folder = entry->folders.at(i);
        if (RenameEntry::photosIn(folder) == 0 || run.outcome.isGivenUp)
            continue;
        QString problem;
        const FolderRenaming back = reversed(folder.renaming, problem);
        if (!problem.isEmpty())
            run.outcome.problems.append(problem);
        else if (run.move(back))
            m_journal.noteUndone(number, i);
    }
    forgetTakenBack(number);
    run.end();
    run.outcome.next = newest();
    return run.outcome;
}

// A rename of which nothing is left to take back.
void RenameHistory::forgetTakenBack(qint64 number) const
{
    if (const auto rest = m_journal.load(number); rest && rest->isDone && rest->photos() == 0)
        m_journal.remove(number);
}

void RenameHistory::tell(const QString& mark, qsizetype folder, const FolderRenaming& renaming) const
{
    Paths photos;
    for (const FileRenaming& file : renaming.files)
        if (file.isPhoto)
            photos.append({ renaming.folder + u'/' + file.from, renaming.folder + u'/' + file.to });
    if (m_tell && !photos.isEmpty())
        m_tell(mark + u'-' + QString::number(folder), photos);
}

// Both locks are held.
void RenameHistory::recover()
{
    if (m_journal.folder().isEmpty())
        return;
    for (const qint64 number : m_journal.numbers()) {
        const auto entry = m_journal.load(number);
        if (!entry)
            m_journal.remove(number);  // a kill left it before any file was touched
        else if (!entry->isDone)
            recover(number, *entry);
    }
}

void RenameHistory::recover(qint64 number, const RenameEntry& entry)
{
    bool isGood = true;
    QSet<QString> moved;
    for (qsizetype i = 0; i < entry.folders.size(); ++i) {
        const RenameEntry::Folder& folder = entry.folders.at(i);
        if (!folder.isMoved) {
            isGood = putBack(folder, entry.mark) && isGood;
            continue;
        }
        moved.insert(folder.renaming.folder);
        tell(entry.mark, i, folder.renaming);
    }
    if (const auto undone = entry.undoes > 0 ? m_journal.load(entry.undoes) : std::nullopt) {
        for (qsizetype i = 0; i < undone->folders.size(); ++i)
            if (moved.contains(undone->folders.at(i).renaming.folder))
                m_journal.noteUndone(entry.undoes, i);
        forgetTakenBack(entry.undoes);
    }
    if (!isGood)
        return;
    if (!moved.isEmpty() && entry.undoes == 0)
        m_journal.noteDone(number);
    else
        m_journal.remove(number);
}

QString RenameHistory::name(const Undoable& rename)
{
    if (rename.photos == 0)
        return Texts::tr("Undo Rename");
    return rename.photos == 1 ? Texts::tr("Undo Rename of “%1”").arg(rename.fileName)
                              : Texts::tr("Undo Rename of %n Photo(s)", nullptr, rename.photos);
}

}  // namespace Quorbel
