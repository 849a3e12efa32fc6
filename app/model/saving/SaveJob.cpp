#include "app/model/saving/SaveJob.h"

#include "app/model/saving/ReplacedFilesPoll.h"
#include "app/model/saving/SaveReasons.h"
#include "core/save/SaveGuard.h"
#include "core/save/SaveVerification.h"
#include "core/save/journal/JournalTags.h"
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

// What the save is about to replace; no files when that cannot be found out.
struct LookBefore {
    std::optional<JournalEntry> entry{};
    QHash<QString, QString> fileTypes{};  // by path
};

LookBefore lookBefore(
    const MetadataService& service, const EditPlan& plan, const QList<QUrl>& targets, const WriteOptions& options)
{
    LookBefore look;
    try {
        look.entry = service.journalEntry(plan, targets, options, &look.fileTypes);
    } catch (const std::exception&) {
        // Then the save cannot be undone, and replaces what it replaces.
    }
    return look;
}

QHash<QUrl, ListHomes::Change> listChanges(
    const LookBefore& look, const EditPlan& plan, const QList<QUrl>& targets, const SeenLists& seen)
{
    QHash<QString, const JournalFile*> files;
    if (look.entry && !plan.lists.isEmpty())
        for (const JournalFile& file : look.entry->files)
            files.insert(file.path, &file);
    QHash<QUrl, ListHomes::Change> changes;
    const QList<QUrl> behind = files.isEmpty() ? QList<QUrl>() : SaveGuard::filesBehindLinks(targets);
    for (qsizetype i = 0; i < behind.size(); ++i) {
        const QString path = behind.at(i).toLocalFile();
        if (const JournalFile* file = files.value(path))
            changes.insert(targets.at(i),
                ListHomes::change(plan, file->tags, look.fileTypes.value(path), seen.value(targets.at(i))));
    }
    return changes;
}

// The plan with all that is written beside it: what has to be known before.
EditPlan wholePlan(const EditPlan& plan, const QHash<QUrl, ListHomes::Change>& changes)
{
    EditPlan whole = plan;
    for (const ListHomes::Change& change : changes) {
        for (auto list = whole.lists.begin(); list != whole.lists.end(); ++list) {
            const FieldSpec* field = FieldSchema::spec(list.key());
            for (const Assignment& assignment : change.preparation)
                if (field && field->writeTags.contains(assignment.tag))
                    list->append(assignment.value);
            if (plan.listMode == MetadataWriter::ListMode::replace)
                *list += change.items.value(list.key());
        }
    }
    return whole;
}

// The plan as it concerns one target.
EditPlan planFor(const EditPlan& plan, const QHash<QUrl, ListHomes::Change>& changes, const QUrl& target)
{
    EditPlan own = plan;
    if (const auto change = changes.constFind(target); change != changes.cend()) {
        own.lists = change->items;
        own.isExact = true;
    }
    return own;
}

// What one write is given: all targets, where items are appended; those whose lists become the same, where lists are
// replaced.
struct Portion {
    EditPlan plan{};
    QList<QUrl> targets{};
    QList<Preparation> preparations{};
};

QList<Portion> appendingPortion(
    const EditPlan& plan, const QList<QUrl>& targets, const QHash<QUrl, ListHomes::Change>& changes)
{
    QMap<QStringList, Preparation> preparations;  // by arguments
    for (const QUrl& target : targets) {
        const QList<Assignment> assignments = changes.value(target).preparation;
        if (assignments.isEmpty())
            continue;
        Preparation& preparation = preparations[arguments(assignments)];
        preparation.command.assignments = assignments;
        preparation.targets.append(target);
    }
    return { { plan, targets, preparations.values() } };
}

QList<Portion> replacingPortions(
    const EditPlan& plan, const QList<QUrl>& targets, const QHash<QUrl, ListHomes::Change>& changes)
{
    QList<Portion> portions;
    for (const QUrl& target : targets) {
        const EditPlan own = planFor(plan, changes, target);
        const auto same = std::find_if(
            portions.begin(), portions.end(), [&own](const Portion& portion) { return portion.plan == own; });
        if (same == portions.end())
            portions.append({ own, { target }, {} });
        else
            same->targets.append(target);
    }
    return portions;
}

QList<Portion> portions(const EditPlan& plan, const QList<QUrl>& targets, const QHash<QUrl, ListHomes::Change>& changes)
{
    if (changes.isEmpty())
        return { { plan, targets, {} } };
    return plan.listMode == MetadataWriter::ListMode::append ? appendingPortion(plan, targets, changes)
                                                             : replacingPortions(plan, targets, changes);
}

// Adds what came of one portion. Of several, an error of one says nothing of the others.
void write(
    const MetadataService& service, const Portion& portion, const WriteOptions& options, bool isOnly, Written& written)
{
    const auto fail = [&](const QString& reason) {
        written.error = reason;
        written.isPartial = written.isPartial || !isOnly;
        for (const QUrl& target : isOnly ? QList<QUrl>() : portion.targets)
            written.failures.append({ target, reason });
    };
    try {
        service.write(portion.plan, portion.targets, options, portion.preparations, &written.notes);
    } catch (const ToolError& error) {
        written.notes.messages += error.messages();
        if (!std::holds_alternative<ToolError::ExecFailed>(error.payload()))
            return fail(toolReason(error));
        written.error = toolReason(error);
        written.isPartial = true;
        written.failures += namedFailures(error, portion.targets);
    } catch (const Error& error) {
        fail(error.description());
    } catch (const std::exception& error) {
        fail(QString::fromUtf8(error.what()));
    }
}

// What the files of a save hold in its tags now; none when that is known already, or cannot be found out.
QHash<QUrl, FileTags> storedNow(const MetadataService& service, const EditPlan& plan, const QList<ImageRecord>& records,
    TaskProgress& progress, const std::stop_token& stop)
{
    QList<QUrl> photos;
    for (const ImageRecord& record : records)
        photos.append(record.url);
    if (photos.isEmpty() || !SaveVerification::hasHiddenHomes(plan))
        return {};
    QHash<QUrl, FileTags> stored;
    try {
        stored = service.stored(plan, photos,
            { .progress = {}, .stop = stop, .started = [&](qint64 processID) { progress.processID = processID; } });
    } catch (const std::exception&) {
        // The records tell of the homes that are shown.
    }
    progress.processID = 0;
    return stored;
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
    return withoutHomes(
        planFor(plan, written.lists, target), hasIptc ? written.leftOut : written.leftOut + QStringList(u"IPTC"_s));
}

// Why a target does not count as saved; nothing when it does.
std::optional<QString> failureOf(const QUrl& target, const ImageRecord* record, const QHash<QUrl, QString>& reasons,
    bool isTooSlow, const Written& written, const QStringList& differences)
{
    if (const auto reason = reasons.constFind(target); reason != reasons.cend())
        return *reason;
    if (isTooSlow)
        return u"reading it back took too long"_s;
    if (!record)
        return u"cannot be read any more"_s;
    if (written.error && !differences.isEmpty())
        return SaveReasons::notWritten(differences, written.notes.messages);
    return std::nullopt;
}

// Those of the schema first, in its order.
QStringList inOrderOfFields(QSet<QString> keys)
{
    QStringList ordered;
    for (const FieldSpec& field : FieldSchema::all())
        if (keys.remove(field.id))
            ordered.append(field.id);
    QStringList customs(keys.cbegin(), keys.cend());
    customs.sort();
    return ordered + customs;
}

}  // namespace

Written run(const MetadataService& service, const EditPlan& whole, const QList<QUrl>& targets,
    const WriteOptions& options, const SeenLists& seen, SaveHistory* history, TaskProgress& progress)
{
    const EditPlan plan = withoutHomes(whole, options.leftOut);
    const QList<std::optional<FileStamp>> stamps = stampsOf(targets);
    const bool looks = history || !plan.lists.isEmpty();
    LookBefore before = looks ? lookBefore(service, plan, targets, options) : LookBefore();
    Written written{ .leftOut = options.leftOut };
    written.lists = listChanges(before, plan, targets, seen);
    // Items of other homes may need what the plan's own do not: IPTC that is encoded anew.
    const EditPlan all = wholePlan(plan, written.lists);
    if (history && before.entry && JournalTags::writtenTags(all) != before.entry->writtenTags)
        before = lookBefore(service, all, targets, options);
    const ReplacedFilesPoll poll(targets, progress.done);
    const QList<Portion> runs = portions(plan, targets, written.lists);
    for (const Portion& portion : runs)
        write(service, portion, options, runs.size() == 1, written);
    findRefusedHomes(service, plan, written);
    if (targets.size() == 1 && !written.failures.isEmpty())
        written.error = written.failures.constFirst().reason;
    written.isUntouched = stampsOf(targets) == stamps;
    // After a failure too: some of the files may have been written.
    if (history && before.entry)
        written.undoable = history->add(*before.entry);
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
    const QHash<QUrl, FileTags> stored = storedNow(service, plan, read.records, progress, stop);
    QHash<QUrl, const ImageRecord*> records;
    for (const ImageRecord& record : read.records)
        records.insert(record.url, &record);
    const QHash<QUrl, QString> reasons = reasonsByFile(written.failures);
    QSet<QString> differing;
    for (const QUrl& target : targets) {
        const ImageRecord* record = records.value(target);
        const auto tags = stored.constFind(target);
        const QStringList differences = record ? SaveVerification::differences(planFor(plan, written, target), *record,
                                            tags == stored.cend() ? nullptr : &*tags)
                                               : QStringList();
        if (const auto failure = failureOf(target, record, reasons, tooSlow.contains(target), written, differences)) {
            checked.failures.append({ target, *failure });
            continue;
        }
        checked.records.append(*record);
        differing.unite(QSet<QString>(differences.cbegin(), differences.cend()));
        for (const QString& id : written.lists.value(target).joined)
            if (!differences.contains(id))
                checked.joined[id].append(target.fileName());
    }
    checked.differences = inOrderOfFields(differing);
    return checked;
}

QString joinedText(const QMap<QString, QStringList>& joined)
{
    QStringList texts;
    for (auto it = joined.cbegin(); it != joined.cend(); ++it) {
        const QString photos = it->size() == 1 ? u"1 photo"_s : u"%1 photos"_s.arg(it->size());
        texts.append(u"%1 of %2 differed between IPTC and XMP and were brought together: "_s.arg(
                         SaveVerification::labels({ it.key() }).constFirst(), photos)
            + Text::listed(*it));
    }
    return texts.join(u". "_s);
}

QString failuresText(const QList<FileFailure>& failures, qsizetype targetCount)
{
    QStringList named;
    for (const FileFailure& failure : failures)
        named.append(u"%1 (%2)"_s.arg(failure.file.fileName(), failure.reason));
    return u"Could not save %1 of %2 photos: "_s.arg(failures.size()).arg(targetCount) + Text::listed(named);
}

}  // namespace Quorbel::SaveJob
