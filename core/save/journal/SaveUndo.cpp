#include "core/save/journal/SaveUndo.h"

#include "core/language/Texts.h"
#include "core/save/Companions.h"
#include "core/save/EditPlan.h"
#include "core/save/SafeWriter.h"
#include "core/save/SaveGuard.h"
#include "core/save/journal/JournalTags.h"
#include "core/schema/CustomFields.h"
#include "core/tool/ExifToolRunner.h"

#include <QFile>
#include <QSet>
#include <QTemporaryFile>

#include <algorithm>
#include <memory>
#include <vector>

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
        QList<SafeWriter::Portion> portions = portionsOverUnchangedFiles();
        for (SafeWriter::Portion& portion : portions)
            portion.targets = withoutBlocked(portion.targets, m_outcome.failed);
        portions.removeIf([](const SafeWriter::Portion& portion) { return portion.targets.isEmpty(); });
        if (!portions.isEmpty())
            write(portions);
        checkRestored();
        restoreSidecars();
        restoreWhole();
        return m_outcome;
    }

private:
    // Files that held the same are one portion.
    QList<SafeWriter::Portion> portionsOverUnchangedFiles()
    {
        QList<SafeWriter::Portion> portions;
        QHash<QStringList, qsizetype> known;  // by arguments
        for (const auto& file : m_entry.files) {
            if (file.isSidecar())
                continue;
            const QUrl url = QUrl::fromLocalFile(file.path);
            if (FileStamp::of(file.path) != file.after) {
                m_outcome.changedSince.append(url);
                continue;
            }
            WriteCommand command = JournalTags::restoreCommand(m_entry, file);
            if (const auto xmp = JournalTags::longXmp(m_entry, file))
                command.options.append(u"-XMP<="_s + keepInFile(*xmp));
            const QStringList key = command.options + arguments(command.assignments);
            const qsizetype at = known.value(key, portions.size());
            if (at == portions.size()) {
                known.insert(key, at);
                portions.append({ command, {}, m_entry.customNames, {} });
            }
            portions[at].targets.append(url);
        }
        return portions;
    }

    // What is too long for an argument; the path of a file that lasts as long as this attempt.
    QString keepInFile(const QByteArray& bytes)
    {
        auto& file = m_long.emplace_back(std::make_unique<QTemporaryFile>());
        if (!file->open() || file->write(bytes) != bytes.size() || !file->flush())
            throw FileError(Texts::tr("Cannot write “%1”"), QUrl::fromLocalFile(file->fileName()), file->errorString());
        return file->fileName();
    }

    void write(const QList<SafeWriter::Portion>& portions)
    {
        QList<QUrl> files;
        for (const SafeWriter::Portion& portion : portions)
            files += portion.targets;
        try {
            take(SafeWriter::writeEach(m_runner, portions, false), portions);
        } catch (const Error& error) {
            for (const auto& file : std::as_const(files))
                m_outcome.failed.append({ file, error.description() });
        }
    }

    void take(const SafeWriter::Outcome& written, const QList<SafeWriter::Portion>& portions)
    {
        QHash<QUrl, QString> reasons;
        for (auto refused = written.refused.cbegin(); refused != written.refused.cend(); ++refused)
            for (const auto& file : portions.at(refused.key()).targets)
                reasons.insert(file, *refused);
        const QSet<QUrl> done = setOf(written.done);
        for (const SafeWriter::Portion& portion : portions) {
            QList<QUrl> left = portion.targets;
            left.removeIf([&](const QUrl& file) { return done.contains(file) || reasons.contains(file); });
            if (written.error && !left.isEmpty())
                for (const FileFailure& failure : writeFailures(*written.error, left))
                    reasons.insert(failure.file, failure.reason);
            if (!left.isEmpty())
                m_doubtful.unite(setOf(portion.targets));
            for (const auto& file : portion.targets) {
                if (const auto reason = reasons.constFind(file); reason != reasons.cend())
                    m_outcome.failed.append({ file, *reason });
                else
                    m_outcome.restored.append(file);
            }
        }
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
        QSet<QUrl> lost;
        for (const auto& file : m_entry.files) {
            const QUrl url = QUrl::fromLocalFile(file.path);
            const auto held = now.constFind(QFile::encodeName(file.path));
            const bool isKnown = restored.contains(url) && held != now.cend();
            if (!isKnown || JournalTags::isRestored(m_entry, file, *held))
                continue;
            if (m_doubtful.contains(url)) {
                lost.insert(url);
                m_outcome.failed.append({ url, Texts::tr("not written") });
            } else {
                m_outcome.inexact.append(url);
            }
        }
        m_outcome.restored.removeIf([&lost](const QUrl& file) { return lost.contains(file); });
    }

    void restoreSidecars()
    {
        const QSet<QUrl> restored = setOf(m_outcome.restored);
        for (const auto& file : m_entry.files)
            if (const QUrl url = QUrl::fromLocalFile(file.path);
                restored.contains(url) && !file.sidecar.restore() && !m_outcome.inexact.contains(url))
                m_outcome.inexact.append(url);
    }

    // Sidecars of photos whose edits go beside them. Photos that share one share what became of it.
    void restoreWhole()
    {
        for (const auto& file : m_entry.files) {
            if (!file.isSidecar())
                continue;
            const QUrl photo = QUrl::fromLocalFile(file.photo());
            if (FileStamp::of(file.path) != file.after)
                m_outcome.changedSince.append(photo);
            else if (SaveGuard::isReadOnly(QUrl::fromLocalFile(file.path)))
                m_outcome.failed.append({ photo, u"read-only"_s });
            else if (file.sidecar.restore())
                m_outcome.restored.append(photo);
            else
                m_outcome.failed.append({ photo, Texts::tr("not written") });
        }
    }

    const ExifToolRunner& m_runner;
    const JournalEntry& m_entry;
    UndoOutcome m_outcome;
    std::vector<std::unique_ptr<QTemporaryFile>> m_long;
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

namespace {

// Nothing of a sidecar that cannot be read whole.
std::optional<JournalFile> wholeFile(const QString& path)
{
    const JournalSidecar sidecar = JournalSidecar::of(path);
    if (sidecar.path.isEmpty())
        return std::nullopt;
    const FileStamp stamp = sidecar.before.value_or(FileStamp());
    return JournalFile{ .path = path, .before = stamp, .after = stamp, .sidecar = sidecar };
}

}  // namespace

JournalEntry journalEntry(const OldValues& known, const std::function<EditPlan(const QUrl&)>& planOf,
    const QList<QUrl>& targets, const WriteOptions& options)
{
    JournalEntry entry{ .savedAt = QDateTime::currentDateTimeUtc() };
    TagsOfPlans tagsOf;
    const auto files = SaveGuard::filesBehindLinks(targets);
    for (qsizetype i = 0; i < files.size(); ++i) {
        const EditPlan plan = planOf(targets[i]);
        const QString path = files[i].toLocalFile();
        if (plan.sidecar) {
            if (const auto file = plan.isEmpty() && plan.together.isEmpty() ? std::nullopt : wholeFile(path))
                entry.files.append(*file);
            continue;
        }
        const QStringList& tags = tagsOf.of(plan);
        addTo(entry.writtenTags, tags);
        addTo(entry.customNames, CustomFields::names(plan.customs));
        const auto before = known.constFind(QFile::encodeName(path));
        const auto stamp = FileStamp::of(path);
        if (tags.isEmpty() || !stamp || before == known.cend())
            continue;
        JournalFile file{ .path = path, .before = *stamp, .after = *stamp, .tags = JournalTags::among(*before, tags) };
        file.writtenTags = tags;
        if (targets[i] != files[i])
            file.link = targets[i].toLocalFile();
        if (!options.mirrored({ targets[i] }).isEmpty())
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
