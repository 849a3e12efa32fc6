#include "app/model/saving/SaveJob.h"

#include "app/model/saving/ReplacedFilesPoll.h"
#include "app/model/saving/SaveReasons.h"
#include "core/save/SaveGuard.h"
#include "core/save/SaveVerification.h"
#include "core/schema/FieldSchema.h"
#include "core/text/Text.h"

#include <QHash>

#include <algorithm>

namespace Quorbel::SaveJob {

using namespace Qt::StringLiterals;

namespace {

// The tool is given the files behind symbolic links and names those; told of the targets that stand for them.
QList<FileFailure> namedFailures(const ToolError& error, const QList<QUrl>& targets)
{
    const QList<QUrl> files = SaveGuard::filesBehindLinks(targets);
    const QList<FileFailure> named = writeFailures(error.messages(), files);
    QList<FileFailure> failures;
    for (const FileFailure& failure : named)
        for (qsizetype i = 0; i < files.size(); ++i)
            if (files.at(i) == failure.file)
                failures.append({ targets.at(i), failure.reason });
    return failures;
}

// What the save is about to replace; nothing when that cannot be found out.
std::optional<JournalEntry> lookBefore(
    const MetadataService& service, const EditPlan& plan, const QList<QUrl>& targets, const WriteOptions& options)
{
    try {
        return service.journalEntry(plan, targets, options);
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

QHash<QUrl, QString> reasonsByFile(const QList<FileFailure>& failures)
{
    QHash<QUrl, QString> reasons;
    for (const FileFailure& failure : failures)
        reasons.insert(failure.file, failure.reason);
    return reasons;
}

QList<std::optional<FileStamp>> stampsOf(const QList<QUrl>& targets)
{
    QList<std::optional<FileStamp>> stamps;
    for (const QUrl& target : targets)
        stamps.append(FileStamp::of(target.toLocalFile()));
    return stamps;
}

// Of targets that failed, which home it was.
void findRefusedHomes(const MetadataService& service, const EditPlan& plan, Written& written)
{
    QList<QUrl> failed;
    for (const FileFailure& failure : written.failures)
        failed.append(failure.file);
    try {
        written.refusedHomes = service.refusedHomes(plan, failed);
    } catch (const std::exception&) {
        return;  // What the tool said of the whole save has to do.
    }
    for (FileFailure& failure : written.failures)
        if (const auto homes = written.refusedHomes.constFind(failure.file); homes != written.refusedHomes.cend())
            failure.reason = SaveReasons::refused(*homes);
}

EditPlan withoutHomes(EditPlan plan, const QStringList& homes)
{
    plan.leftOut += homes;
    return plan;
}

// The plan as it was written to this target.
EditPlan planFor(const EditPlan& plan, const Written& written, const QUrl& target)
{
    const bool hasIptc = !written.notes.iptcLeftAlone.contains(target);
    return withoutHomes(plan, hasIptc ? written.leftOut : written.leftOut + QStringList(u"IPTC"_s));
}

}  // namespace

Written run(const MetadataService& service, const EditPlan& whole, const QList<QUrl>& targets,
    const WriteOptions& options, SaveHistory* history, TaskProgress& progress)
{
    const EditPlan plan = withoutHomes(whole, options.leftOut);
    const QList<std::optional<FileStamp>> stamps = stampsOf(targets);
    const std::optional<JournalEntry> before = history ? lookBefore(service, plan, targets, options) : std::nullopt;
    const ReplacedFilesPoll poll(targets, progress.done);
    Written written{ .leftOut = options.leftOut };
    try {
        service.write(plan, targets, options, {}, &written.notes);
    } catch (const ToolError& error) {
        written.error = toolReason(error);
        written.notes.messages += error.messages();
        if (std::holds_alternative<ToolError::ExecFailed>(error.payload())) {
            written.isPartial = true;
            written.failures = namedFailures(error, targets);
        }
    } catch (const Error& error) {
        written.error = error.description();
    } catch (const std::exception& error) {
        written.error = QString::fromUtf8(error.what());
    }
    findRefusedHomes(service, plan, written);
    if (targets.size() == 1 && !written.failures.isEmpty())
        written.error = written.failures.constFirst().reason;
    written.isUntouched = stampsOf(targets) == stamps;
    // After a failure too: some of the files may have been written.
    if (before)
        written.undoable = history->add(*before);
    else if (history)
        written.undoable = !written.error || written.isPartial ? history->addUnknown() : history->latest();
    return written;
}

Checked check(const MetadataService& service, const EditPlan& plan, const QList<QUrl>& targets, const Written& written,
    const QSet<QUrl>& tooSlow, TaskProgress& progress, const std::stop_token& stop)
{
    Checked checked;
    QList<QUrl> readable = targets;
    readable.removeIf([&tooSlow](const QUrl& target) { return tooSlow.contains(target); });
    const PhotoReader::Result read = PhotoReader::read(service, readable, progress, stop);
    if (read.error) {
        checked.error = read.error;
        return checked;
    }
    QHash<QUrl, const ImageRecord*> records;
    for (const ImageRecord& record : read.records)
        records.insert(record.url, &record);
    const QHash<QUrl, QString> reasons = reasonsByFile(written.failures);
    QSet<QString> differing;
    for (const QUrl& target : targets) {
        const ImageRecord* record = records.value(target);
        const QStringList differences =
            record ? SaveVerification::differences(planFor(plan, written, target), *record) : QStringList();
        if (reasons.contains(target)) {
            checked.failures.append({ target, reasons.value(target) });
        } else if (tooSlow.contains(target)) {
            checked.failures.append({ target, u"reading it back took too long"_s });
        } else if (!record) {
            checked.failures.append({ target, u"cannot be read any more"_s });
        } else if (written.error && !differences.isEmpty()) {
            checked.failures.append({ target, SaveReasons::notWritten(differences, written.notes.messages) });
        } else {
            checked.records.append(*record);
            differing.unite(QSet<QString>(differences.cbegin(), differences.cend()));
        }
    }
    for (const FieldSpec& field : FieldSchema::all())
        if (differing.remove(field.id))
            checked.differences.append(field.id);
    QStringList customs(differing.cbegin(), differing.cend());
    customs.sort();
    checked.differences += customs;
    return checked;
}

QString failuresText(const QList<FileFailure>& failures, qsizetype targetCount)
{
    QStringList named;
    for (const FileFailure& failure : failures)
        named.append(u"%1 (%2)"_s.arg(failure.file.fileName(), failure.reason));
    return u"Could not save %1 of %2 photos: "_s.arg(failures.size()).arg(targetCount) + Text::listed(named);
}

}  // namespace Quorbel::SaveJob
