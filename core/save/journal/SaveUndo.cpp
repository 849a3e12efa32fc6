#include "core/save/journal/SaveUndo.h"

#include "core/save/Companions.h"
#include "core/save/EditPlan.h"
#include "core/save/SafeWriter.h"
#include "core/save/SaveGuard.h"
#include "core/save/journal/JournalTags.h"
#include "core/schema/CustomFields.h"
#include "core/tool/ExifToolRunner.h"

#include <QFile>
#include <QSet>

#include <algorithm>

namespace Quorbel::SaveUndo {

using namespace Qt::StringLiterals;

namespace {

QString typeTag()
{
    return u"File:FileType"_s;
}

QSet<QUrl> setOf(const QList<QUrl>& urls)
{
    return QSet<QUrl>(urls.cbegin(), urls.cend());
}

// The files that may be written to now; why the others may not goes to the failures.
QList<QUrl> withoutBlocked(const QList<QUrl>& files, QList<FileFailure>& failures)
{
    QList<QUrl> writable;
    for (const auto& file : files) {
        if (SaveGuard::isReadOnly(file)) {
            failures.append({ file, u"read-only"_s });
            continue;
        }
        try {
            SaveGuard::clearLeftovers({ file });
            writable.append(file);
        } catch (const Error& error) {
            failures.append({ file, error.description() });
        }
    }
    return writable;
}

OldValues read(
    const ExifToolRunner& runner, const QStringList& tags, const QList<QUrl>& files, const ReadControl& control)
{
    return TagDump::parse(runner.readDump(JournalTags::readArgs(tags) << u'-' + typeTag(), files, control));
}

// `held`: the tags of the plan alone, and the types of the files.
JournalEntry entryOf(const OldValues& held, const EditPlan& plan, const QList<QUrl>& targets,
    const WriteOptions& options, QHash<QString, QString>* fileTypes)
{
    JournalEntry entry{ .savedAt = QDateTime::currentDateTimeUtc(),
        .writtenTags = JournalTags::writtenTags(plan),
        .customNames = CustomFields::names(plan.customs) };
    const auto files = SaveGuard::filesBehindLinks(targets);
    for (qsizetype i = 0; i < files.size() && !entry.writtenTags.isEmpty(); ++i) {
        const QString path = files[i].toLocalFile();
        const auto before = held.constFind(QFile::encodeName(path));
        const auto stamp = FileStamp::of(path);
        if (!stamp || before == held.cend())
            continue;
        JournalFile file{ .path = path, .before = *stamp, .after = *stamp, .tags = *before };
        const QList<QByteArray> type = file.tags.take(typeTag());
        if (fileTypes && !type.isEmpty())
            fileTypes->insert(path, QString::fromUtf8(type.constFirst()));
        if (targets[i] != files[i])
            file.link = targets[i].toLocalFile();
        if (options.writeSidecar)
            file.sidecar = JournalSidecar::of(Companions::sidecarPath(targets[i].toLocalFile()));
        entry.files.append(file);
    }
    return entry;
}

// One attempt to take a save back.
class Attempt {
public:
    Attempt(const ExifToolRunner& runner, const JournalEntry& entry)
        : m_runner(runner)
        , m_entry(entry)
    {
    }

    UndoOutcome outcome()
    {
        const auto runs = runsOverUnchangedFiles();
        for (const Run& run : runs)
            write(run.command, run.files);
        checkRestored();
        restoreSidecars();
        return m_outcome;
    }

private:
    // Files that held the same go into one run.
    struct Run {
        WriteCommand command{};
        QList<QUrl> files{};
    };

    // By their arguments.
    QMap<QStringList, Run> runsOverUnchangedFiles()
    {
        QMap<QStringList, Run> runs;
        for (const auto& file : m_entry.files) {
            const QUrl url = QUrl::fromLocalFile(file.path);
            if (FileStamp::of(file.path) != file.after) {
                m_outcome.changedSince.append(url);
                continue;
            }
            const WriteCommand command = JournalTags::restoreCommand(m_entry, file);
            Run& run = runs[arguments(command.assignments)];
            run.command = command;
            run.files.append(url);
        }
        return runs;
    }

    void write(const WriteCommand& command, const QList<QUrl>& files)
    {
        QList<FileFailure> failures;
        const QList<QUrl> writable = withoutBlocked(files, failures);
        try {
            if (!writable.isEmpty())
                SafeWriter::write(m_runner, command, writable, false, m_entry.customNames);
        } catch (const ToolError& error) {
            failures += writeFailures(error, writable);
            m_doubtful.unite(setOf(writable));
        } catch (const Error& error) {
            for (const auto& file : writable)
                failures.append({ file, error.description() });
        }
        for (const auto& file : files)
            if (std::none_of(failures.cbegin(), failures.cend(), [&file](const auto& f) { return f.file == file; }))
                m_outcome.restored.append(file);
        m_outcome.failed += failures;
    }

    // Looks what the files really hold now: the tool refuses some values that it read, and of a run that failed it
    // need not name every file that was left out.
    void checkRestored()
    {
        QHash<QByteArray, FileTags> now;
        try {
            now = TagDump::parse(m_runner.readDump(JournalTags::readArgs(m_entry.writtenTags), m_outcome.restored));
        } catch (const Error&) {
            // Then what the tool said of its runs has to do.
        }
        const QSet<QUrl> restored = setOf(m_outcome.restored);
        for (const auto& file : m_entry.files) {
            const QUrl url = QUrl::fromLocalFile(file.path);
            const auto held = now.constFind(QFile::encodeName(file.path));
            const bool isKnown = restored.contains(url) && held != now.cend();
            if (!isKnown || JournalTags::isRestored(m_entry, file, *held))
                continue;
            if (m_doubtful.contains(url)) {
                m_outcome.restored.removeAll(url);
                m_outcome.failed.append({ url, u"not written"_s });
            } else {
                m_outcome.inexact.append(url);
            }
        }
    }

    void restoreSidecars()
    {
        const QSet<QUrl> restored = setOf(m_outcome.restored);
        for (const auto& file : m_entry.files)
            if (const QUrl url = QUrl::fromLocalFile(file.path);
                restored.contains(url) && !file.sidecar.restore() && !m_outcome.inexact.contains(url))
                m_outcome.inexact.append(url);
    }

    const ExifToolRunner& m_runner;
    const JournalEntry& m_entry;
    UndoOutcome m_outcome;
    QSet<QUrl> m_doubtful;  // of a run that failed
};

}  // namespace

OldValues oldValues(const ExifToolRunner& runner, const QList<QUrl>& targets, const ReadControl& control)
{
    return read(runner, JournalTags::allTags(), SaveGuard::filesBehindLinks(targets), control);
}

JournalEntry journalEntry(const ExifToolRunner& runner, const EditPlan& plan, const QList<QUrl>& targets,
    const WriteOptions& options, QHash<QString, QString>* fileTypes)
{
    const QStringList tags = JournalTags::writtenTags(plan);
    if (tags.isEmpty())
        return entryOf({}, plan, targets, options, fileTypes);
    return entryOf(read(runner, tags, SaveGuard::filesBehindLinks(targets), {}), plan, targets, options, fileTypes);
}

JournalEntry journalEntry(const OldValues& known, const EditPlan& plan, const QList<QUrl>& targets,
    const WriteOptions& options, QHash<QString, QString>* fileTypes)
{
    const QStringList tags = JournalTags::writtenTags(plan);
    OldValues concerned;
    for (auto file = known.cbegin(); file != known.cend(); ++file) {
        FileTags& held = concerned[file.key()] = JournalTags::among(*file, tags);
        if (const auto type = file->constFind(typeTag()); type != file->cend())
            held.insert(type.key(), *type);
    }
    return entryOf(concerned, plan, targets, options, fileTypes);
}

UndoOutcome undo(const ExifToolRunner& runner, const JournalEntry& entry)
{
    return Attempt(runner, entry).outcome();
}

}  // namespace Quorbel::SaveUndo
