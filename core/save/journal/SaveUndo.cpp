#include "core/save/journal/SaveUndo.h"

#include "core/save/Companions.h"
#include "core/save/EditPlan.h"
#include "core/save/journal/JournalTags.h"
#include "core/save/SafeWriter.h"
#include "core/save/SaveGuard.h"
#include "core/schema/CustomFields.h"
#include "core/tool/ExifToolRunner.h"

#include <QFile>
#include <QSet>

#include <algorithm>

namespace Quorbel::SaveUndo {

using namespace Qt::StringLiterals;

namespace {

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

JournalEntry journalEntry(const ExifToolRunner& runner, const EditPlan& plan, const QList<QUrl>& targets,
    const WriteOptions& options, QHash<QString, QString>* fileTypes)
{
    const QString typeTag = u"File:FileType"_s;
    JournalEntry entry{ .savedAt = QDateTime::currentDateTimeUtc(),
        .writtenTags = JournalTags::writtenTags(plan),
        .customNames = CustomFields::names(plan.customs) };
    if (entry.writtenTags.isEmpty() || targets.isEmpty())
        return entry;
    const auto files = SaveGuard::filesBehindLinks(targets);
    auto tags = TagDump::parse(runner.readDump(JournalTags::readArgs(entry.writtenTags) << u'-' + typeTag, files));
    for (qsizetype i = 0; i < files.size(); ++i) {
        const QString path = files[i].toLocalFile();
        const auto before = tags.find(QFile::encodeName(path));
        const auto stamp = FileStamp::of(path);
        if (!stamp || before == tags.end())
            continue;
        const QList<QByteArray> type = before->take(typeTag);
        if (fileTypes && !type.isEmpty())
            fileTypes->insert(path, QString::fromUtf8(type.constFirst()));
        entry.files.append({ .path = path, .before = *stamp, .after = *stamp, .tags = *before });
        if (options.writeSidecar)
            entry.files.last().sidecar = JournalSidecar::of(Companions::sidecarPath(targets[i].toLocalFile()));
    }
    return entry;
}

UndoOutcome undo(const ExifToolRunner& runner, const JournalEntry& entry)
{
    return Attempt(runner, entry).outcome();
}

}  // namespace Quorbel::SaveUndo
