#include "core/MetadataService.h"

#include "core/save/SaveGuard.h"
#include "core/text/Coordinates.h"
#include "core/tool/IptcEncoding.h"
#include "core/tool/MetadataReader.h"
#include "core/tool/MetadataWriter.h"
#include "core/tool/TemporaryFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QScopeGuard>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

/// The objects by the path of the file that they are about: as the tool printed it, and tidied up.
QMap<QString, JSONObject> indexBySourceFile(const QList<JSONObject>& objects)
{
    const QString key = u"SourceFile"_s;
    QMap<QString, JSONObject> index;
    for (const auto& object : objects) {
        const auto member = object.value(key);
        if (const auto* path = std::get_if<QString>(&member.payload)) {
            index.insert(*path, object);
            index.insert(QDir::cleanPath(*path), object);
        }
    }
    return index;
}

void addFileDates(ImageRecord& record)
{
    const QFileInfo file(record.url.toLocalFile());
    if (!file.exists())
        return;
    if (const auto created = file.birthTime(); created.isValid())
        record.creationDate = created;
    if (const auto modified = file.lastModified(); modified.isValid())
        record.contentModificationDate = modified;
}

/// Writes the definitions of the custom group for one save. Readable by the user alone: names may be private.
QUrl writeTempConfig(const QStringList& names)
{
    const QByteArray text = MetadataWriter::customConfig(names).toUtf8();

    const QString directory = QDir::tempPath();
    if (directory.isEmpty())  // Qt's answer for a TMPDIR that does not exist
        throw FileError(
            u"Cannot write to"_s, QUrl::fromLocalFile(qEnvironmentVariable("TMPDIR")), qt_error_string(ENOENT));
    const QUrl url = QUrl::fromLocalFile(directory + u'/' + TemporaryFiles::newConfigName());
    QSaveFile file(url.toLocalFile());
    if (!file.open(QIODevice::WriteOnly) || !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner)
        || file.write(text) != text.size() || !file.commit())
        throw FileError(u"Cannot write"_s, url, file.errorString());
    return url;
}

QString backupPath(const QString& imagePath)
{
    return imagePath + u"_original"_s;
}

/// As the name of a file to copy from to its sidecar: there the tool puts folder and name of the sidecar for "%d" and
/// "%f", so a photo's own name with such text in it has to be put the same way.
QString sourceArgument(const QString& path)
{
    if (!path.contains(u'%'))
        return path;
    const qsizetype nameSize = SaveJournal::sidecarPath(path).size() - u".xmp"_s.size();
    return u"%d%f"_s + path.sliced(nameSize);
}

void writeSidecars(const ExifToolRunner& runner, const QList<QUrl>& images)
{
    for (const auto& image : images) {
        const QString path = image.toLocalFile();
        try {
            SaveGuard::clearLeftovers({ QUrl::fromLocalFile(SaveJournal::sidecarPath(path)) });
            runner.write({ .options = { u"-tagsfromfile"_s, sourceArgument(path), u"-xmp:all"_s } },
                { QUrl::fromLocalFile(SaveJournal::sidecarPath(path)) }, false);
        } catch (const Error&) {
            // The photo itself is saved; a sidecar is a courtesy beside it.
        }
    }
}

/// One write, after the run that its texts may need.
QString writeTexts(const ExifToolRunner& runner, const WriteCommand& command, const QList<QUrl>& files, bool backup,
    const std::optional<QUrl>& config)
{
    if (!IptcEncoding::needsUtf8(command.assignments))
        return runner.write(command, files, backup, config);
    QList<QUrl> converted = files;
    try {
        runner.write(IptcEncoding::conversion(), files, backup);
    } catch (const ToolError& error) {
        // Those that it names would not take the values either; they do not keep the others from them.
        const auto failures = writeFailures(error.messages(), files);
        for (const auto& failure : failures)
            converted.removeAll(failure.file);
        if (failures.isEmpty() || converted.isEmpty())
            throw;
        runner.write(command, converted, backup, config);
        throw;
    }
    return runner.write(command, files, backup, config);
}

/// One write, and the run that its position may need.
QString writeSigned(const ExifToolRunner& runner, const WriteCommand& command, const QList<QUrl>& files, bool backup,
    const std::optional<QUrl>& config)
{
    const WriteCommand signs = Coordinates::signCommand(command.assignments);
    if (signs.isEmpty())
        return writeTexts(runner, command, files, backup, config);
    QString output;
    try {
        output = writeTexts(runner, command, files, backup, config);
    } catch (const ToolError& error) {
        const auto failures = writeFailures(error, files);
        QList<QUrl> written = files;
        for (const auto& failure : failures)
            written.removeAll(failure.file);
        try {
            runner.write(signs, written, false);
        } catch (const Error&) {
            // The first failure is the one to tell.
        }
        throw;
    }
    runner.write(signs, files, false);
    return output;
}

/// One write of assignments, with what ExifTool would lose looked after: the files behind links, text that the
/// files' IPTC encoding cannot hold, extended attributes, mode and owner.
QString writeSafely(const ExifToolRunner& runner, const WriteCommand& command, const QList<QUrl>& targets, bool backup,
    const QStringList& customNames)
{
    requireOneWay(command.assignments);
    const auto files = SaveGuard::filesBehindLinks(targets);
    SaveGuard::requireWritable(files);
    SaveGuard::clearLeftovers(files);
    std::optional<QUrl> config;
    if (!customNames.isEmpty())
        config = writeTempConfig(customNames);
    const auto removeConfig = qScopeGuard([&config] {
        if (config)
            QFile::remove(config->toLocalFile());
    });
    const SaveGuard::AttributeKeeper attributes(files);
    // After a failure too: some of the files may have been replaced.
    const auto restoreAttributes = qScopeGuard([&attributes] { attributes.restore(); });
    const SaveGuard::BackupKeeper backups(backup ? files : QList<QUrl>());
    return writeSigned(runner, command, files, backup, config);
}

/// The files that may be written to now; why the others may not goes to the failures.
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

/// Moves a file unless something has the new name already, in one step where the file system can do that.
/// Zero, or the system's error number.
int moveWithoutReplacing(const QString& from, const QString& to)
{
    const QByteArray source = QFile::encodeName(from);
    const QByteArray destination = QFile::encodeName(to);
    if (renameat2(AT_FDCWD, source.constData(), AT_FDCWD, destination.constData(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    // A second name and then the loss of the first is as safe, if the file system knows hard links.
    if (link(source.constData(), destination.constData()) == 0)
        return unlink(source.constData()) == 0 ? 0 : errno;
    if (errno != EPERM && errno != EOPNOTSUPP && errno != ENOSYS)
        return errno;
    if (faccessat(AT_FDCWD, destination.constData(), F_OK, AT_SYMLINK_NOFOLLOW) == 0)
        return EEXIST;
    return std::rename(source.constData(), destination.constData()) == 0 ? 0 : errno;
}

}  // namespace

std::optional<MetadataService> MetadataService::locate()
{
    const auto runner = ExifToolRunner::locate();
    return runner ? std::optional(MetadataService{ *runner }) : std::nullopt;
}

QList<ImageRecord> MetadataService::read(const QList<QUrl>& urls, const ReadControl& control) const
{
    if (urls.isEmpty())
        return {};
    const auto main = runner.read(MetadataReader::readTags(), urls, control);
    const auto custom =
        runner.readCustomNamespace(urls, { .progress = {}, .stop = control.stop, .started = control.started });
    const auto mainByPath = indexBySourceFile(main);
    const auto customByPath = indexBySourceFile(custom);

    QList<ImageRecord> records;
    records.reserve(urls.size());
    for (qsizetype i = 0; i < urls.size(); ++i) {
        const QString path = urls[i].toLocalFile();
        // A name that is no text comes back changed, but at its place: the objects are in the files' order.
        const auto found = mainByPath.constFind(path);
        const auto object = found != mainByPath.cend() ? *found : main.value(i);
        auto record = MetadataReader::parse(urls[i], object, customByPath.value(path));
        addFileDates(record);
        records.append(record);
    }
    return records;
}

QString MetadataService::write(const EditPlan& plan, const QList<QUrl>& targets, const WriteOptions& options) const
{
    if (plan.isEmpty() || targets.isEmpty())
        return {};
    const QList<Assignment> assignments = MetadataWriter::assignments(plan);
    if (assignments.isEmpty())
        return {};
    QStringList customNames;
    for (const auto& custom : plan.customs)
        customNames.append(custom.name);
    const QString output =
        writeSafely(runner, { .assignments = assignments }, targets, options.backupOriginals, customNames);
    if (options.writeSidecar)
        writeSidecars(runner, targets);
    return output;
}

JournalEntry MetadataService::journalEntry(
    const EditPlan& plan, const QList<QUrl>& targets, const WriteOptions& options) const
{
    JournalEntry entry{ .savedAt = QDateTime::currentDateTimeUtc(), .writtenTags = SaveJournal::writtenTags(plan) };
    for (const auto& custom : plan.customs)
        entry.customNames.append(custom.name);
    if (entry.writtenTags.isEmpty() || targets.isEmpty())
        return entry;
    const auto files = SaveGuard::filesBehindLinks(targets);
    const auto tags = TagDump::parse(runner.readDump(SaveJournal::readArgs(entry.writtenTags), files));
    for (qsizetype i = 0; i < files.size(); ++i) {
        const QString path = files[i].toLocalFile();
        const auto before = tags.constFind(QFile::encodeName(path));
        const auto stamp = FileStamp::of(path);
        if (!stamp || before == tags.cend())
            continue;
        entry.files.append({ .path = path, .before = *stamp, .after = *stamp, .tags = *before });
        if (options.writeSidecar)
            entry.files.last().sidecar = JournalSidecar::of(SaveJournal::sidecarPath(targets[i].toLocalFile()));
    }
    return entry;
}

UndoOutcome MetadataService::undo(const JournalEntry& entry) const
{
    UndoOutcome outcome;
    QMap<WriteCommand, QList<QUrl>> filesByCommand;
    for (const auto& file : entry.files) {
        const QUrl url = QUrl::fromLocalFile(file.path);
        if (FileStamp::of(file.path) != file.after)
            outcome.changedSince.append(url);
        else
            filesByCommand[SaveJournal::restoreCommand(entry, file)].append(url);
    }
    QSet<QUrl> doubtful;
    for (auto it = filesByCommand.cbegin(); it != filesByCommand.cend(); ++it) {
        const qsizetype failedBefore = outcome.failed.size();
        const QList<QUrl> files = withoutBlocked(*it, outcome.failed);
        try {
            if (!files.isEmpty())
                writeSafely(runner, it.key(), files, false, entry.customNames);
        } catch (const ToolError& error) {
            outcome.failed += writeFailures(error, files);
            doubtful.unite(QSet<QUrl>(files.cbegin(), files.cend()));
        } catch (const Error& error) {
            for (const auto& file : files)
                outcome.failed.append({ file, error.description() });
        }
        const QList<FileFailure> failures = outcome.failed.sliced(failedBefore);
        for (const auto& url : *it)
            if (std::none_of(failures.cbegin(), failures.cend(), [&url](const auto& f) { return f.file == url; }))
                outcome.restored.append(url);
    }
    checkRestored(entry, doubtful, outcome);
    const QSet<QUrl> restored(outcome.restored.cbegin(), outcome.restored.cend());
    for (const auto& file : entry.files)
        if (const QUrl url = QUrl::fromLocalFile(file.path);
            restored.contains(url) && !file.sidecar.restore() && !outcome.inexact.contains(url))
            outcome.inexact.append(url);
    return outcome;
}

/// Looks what the files really hold now: the tool refuses some values that it read, and of a run that failed it need
/// not name every file that was left out.
void MetadataService::checkRestored(const JournalEntry& entry, const QSet<QUrl>& doubtful, UndoOutcome& outcome) const
{
    QHash<QByteArray, FileTags> now;
    try {
        now = TagDump::parse(runner.readDump(SaveJournal::readArgs(entry.writtenTags), outcome.restored));
    } catch (const Error&) {
        // Then what the tool said of its runs has to do.
    }
    const QSet<QUrl> restored(outcome.restored.cbegin(), outcome.restored.cend());
    for (const auto& file : entry.files) {
        const QUrl url = QUrl::fromLocalFile(file.path);
        const auto held = now.constFind(QFile::encodeName(file.path));
        const bool isKnown = restored.contains(url) && held != now.cend();
        if (!isKnown || SaveJournal::isRestored(entry, file, *held))
            continue;
        if (doubtful.contains(url)) {
            outcome.restored.removeAll(url);
            outcome.failed.append({ url, u"not written"_s });
        } else {
            outcome.inexact.append(url);
        }
    }
}

void MetadataService::renameFile(const QUrl& source, const QUrl& destination) const
{
    const QString from = source.toLocalFile();
    const QString to = destination.toLocalFile();
    if (const int error = moveWithoutReplacing(from, to))
        throw FileError(u"Cannot move"_s, source, qt_error_string(error));
    moveWithoutReplacing(SaveJournal::sidecarPath(from), SaveJournal::sidecarPath(to));
    moveWithoutReplacing(backupPath(from), backupPath(to));
}

}  // namespace Quorbel
