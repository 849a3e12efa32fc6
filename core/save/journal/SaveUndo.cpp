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

// The tags of one plan after the other: those of neighbors are mostly the same.
class TagsOfPlans {
public:
    const QStringList& of(const EditPlan& plan)
    {
        if (!m_plan || *m_plan != plan) {
            m_plan = plan;
            m_tags = JournalTags::writtenTags(plan);
        }
        return m_tags;
    }

private:
    std::optional<EditPlan> m_plan;
    QStringList m_tags;
};

void addTo(QStringList& list, const QStringList& items)
{
    for (const QString& item : items)
        if (!list.contains(item))
            list.append(item);
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

QString typeTag()
{
    return u"File:FileType"_s;
}

OldValues oldValues(
    const ExifToolRunner& runner, const QStringList& tags, const QList<QUrl>& targets, const ReadControl& control)
{
    const QStringList selection = JournalTags::readArgs(tags) << u'-' + typeTag() << u"-Error"_s;
    return TagDump::parse(runner.readDump(selection, SaveGuard::filesBehindLinks(targets), control));
}

JournalEntry journalEntry(const OldValues& known, const std::function<EditPlan(const QUrl&)>& planOf,
    const QList<QUrl>& targets, const WriteOptions& options)
{
    JournalEntry entry{ .savedAt = QDateTime::currentDateTimeUtc() };
    TagsOfPlans tagsOf;
    const auto files = SaveGuard::filesBehindLinks(targets);
    for (qsizetype i = 0; i < files.size(); ++i) {
        const EditPlan plan = planOf(targets[i]);
        const QStringList& tags = tagsOf.of(plan);
        addTo(entry.writtenTags, tags);
        addTo(entry.customNames, CustomFields::names(plan.customs));
        const QString path = files[i].toLocalFile();
        const auto before = known.constFind(QFile::encodeName(path));
        const auto stamp = FileStamp::of(path);
        if (tags.isEmpty() || !stamp || before == known.cend())
            continue;
        JournalFile file{ .path = path, .before = *stamp, .after = *stamp, .tags = JournalTags::among(*before, tags) };
        file.writtenTags = tags;
        if (targets[i] != files[i])
            file.link = targets[i].toLocalFile();
        if (options.writeSidecar)
            file.sidecar = JournalSidecar::of(Companions::sidecarPath(targets[i].toLocalFile()));
        entry.files.append(file);
    }
    for (JournalFile& file : entry.files)
        if (file.writtenTags == entry.writtenTags)
            file.writtenTags.clear();
    return entry;
}

UndoOutcome undo(const ExifToolRunner& runner, const JournalEntry& entry)
{
    return Attempt(runner, entry).outcome();
}

}  // namespace Quorbel::SaveUndo
