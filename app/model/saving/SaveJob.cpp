#include "app/model/saving/SaveJob.h"

#include "app/model/saving/ReplacedFilesPoll.h"
#include "app/model/saving/SaveReasons.h"
#include "core/save/SaveGuard.h"
#include "core/save/SaveVerification.h"
#include "core/save/journal/JournalTags.h"
#include "core/schema/FieldSchema.h"
#include "core/text/Text.h"

#include <QHash>
#include <QScopeGuard>

#include <algorithm>
#include <atomic>

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

LookBefore lookBefore(const MetadataService& service, const EditPlan& plan, const Order& order)
{
    LookBefore look;
    try {
        if (order.look)
            look.entry = order.look->entry(plan, order.targets, order.options, &look.fileTypes);
        if (!look.entry)
            look.entry = service.journalEntry(plan, order.targets, order.options, &look.fileTypes);
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

// What the files of a save hold in its tags now, looked at beside the read that proves it.
class LookAfter {
public:
    LookAfter(const MetadataService& service, const EditPlan& plan, const QList<QUrl>& targets, std::stop_token stop)
        : m_forward(std::move(stop), Forward{ m_stop })
    {
        if (!SaveVerification::hasHiddenHomes(plan))
            return;
        m_stored = std::async(std::launch::async, [this, &service, &plan, &targets] {
            QList<QUrl> files = targets;
            // Anything else would stop the tool, or lead it astray.
            files.removeIf([](const QUrl& file) { return !PhotoFile::at(file).file; });
            try {
                return service.stored(
                    plan, files, { .progress = {}, .stop = m_stop.get_token(), .started = [this](qint64 processID) {
                                      m_processID = processID;
                                  } });
            } catch (const std::exception&) {
                // The records tell of the homes that are shown.
                return QHash<QUrl, FileTags>();
            }
        });
    }
    ~LookAfter() { m_stop.request_stop(); }
    Q_DISABLE_COPY_MOVE(LookAfter)

    /// Waits for it. None when that is known already, or cannot be found out.
    QHash<QUrl, FileTags> stored(TaskProgress& progress)
    {
        if (!m_stored.valid())
            return {};
        progress.processID = m_processID.load();
        const auto end = qScopeGuard([&progress] { progress.processID = 0; });
        return m_stored.get();
    }

private:
    struct Forward {
        std::stop_source& end;
        void operator()() const { end.request_stop(); }
    };

    std::stop_source m_stop;
    std::stop_callback<Forward> m_forward;
    std::atomic<qint64> m_processID = 0;
    std::future<QHash<QUrl, FileTags>> m_stored;
};

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

// Keeps what the write has replaced: after a failure too, since some of the files may have been written. The disk takes
// its time to have it for certain; the proof of the save need not wait for that.
void remember(const std::optional<JournalEntry>& entry, const std::shared_ptr<SaveHistory>& history, Written& written)
{
    const bool isLost = !entry && (!written.error || written.isPartial);
    written.undoable = std::async(std::launch::async, [entry, history, isLost] {
        return entry ? history->add(*entry) : isLost ? history->addUnknown() : history->latest();
    }).share();
    if (!written.mayBeSaved)
        written.undoable.wait();
}

}  // namespace

Written run(const MetadataService& service, const Order& order, const std::shared_ptr<SaveHistory>& history,
    TaskProgress& progress)
{
    const QList<QUrl>& targets = order.targets;
    const EditPlan plan = withoutHomes(order.plan, order.options.leftOut);
    const QList<std::optional<FileStamp>> stamps = stampsOf(targets);
    const bool looks = history || !plan.lists.isEmpty();
    LookBefore before = looks ? lookBefore(service, plan, order) : LookBefore();
    Written written{ .leftOut = order.options.leftOut };
    written.lists = listChanges(before, plan, targets, order.seen);
    // Items of other homes may need what the plan's own do not: IPTC that is encoded anew.
    const EditPlan all = wholePlan(plan, written.lists);
    if (history && before.entry && JournalTags::writtenTags(all) != before.entry->writtenTags)
        before = lookBefore(service, all, order);
    const ReplacedFilesPoll poll(targets, progress.done);
    const QList<Portion> runs = portions(plan, targets, written.lists);
    for (const Portion& portion : runs)
        write(service, portion, order.options, runs.size() == 1, written);
    findRefusedHomes(service, plan, written);
    if (targets.size() == 1 && !written.failures.isEmpty())
        written.error = written.failures.constFirst().reason;
    written.isUntouched = stampsOf(targets) == stamps;
    written.mayBeSaved = !written.error || (written.isPartial && targets.size() > 1);
    if (history)
        remember(before.entry, history, written);
    return written;
}

Checked check(const MetadataService& service, const EditPlan& plan, const QList<QUrl>& targets, const Written& written,
    const QSet<QUrl>& tooSlow, TaskProgress& progress, const std::stop_token& stop,
    const std::shared_ptr<RecordCache>& cache)
{
    Checked checked;
    QList<QUrl> readable = targets;
    readable.removeIf([&tooSlow](const QUrl& target) { return tooSlow.contains(target); });
    const auto remembered = qScopeGuard([&written] {
        if (written.undoable.valid())
            written.undoable.wait();
    });
    LookAfter homes(service, plan, readable, stop);
    const PhotoReader::Result read = PhotoReader::read(service, readable, progress, stop, cache);
    if (read.error) {
        checked.error = read.error;
        return checked;
    }
    const QHash<QUrl, FileTags> stored = homes.stored(progress);
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
