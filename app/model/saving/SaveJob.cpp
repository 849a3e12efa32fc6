#include "app/model/saving/SaveJob.h"

#include "app/model/saving/ReplacedFilesPoll.h"
#include "app/model/saving/SaveReasons.h"
#include "app/model/saving/SidecarOrder.h"
#include "core/iptc/IptcSchema.h"
#include "core/iptc/StructureText.h"
#include "core/language/Texts.h"
#include "core/save/SaveGuard.h"
#include "core/save/SaveVerification.h"
#include "core/save/journal/JournalTags.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/FieldSchema.h"
#include "core/text/Text.h"

#include <QFileInfo>
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
    return SaveGuard::ofTargets(writeFailures(error.messages(), SaveGuard::filesBehindLinks(targets)), targets);
}

EditPlan withoutHomes(EditPlan plan, const QStringList& homes)
{
    plan.leftOut += homes;
    return plan;
}

// The plan of a target before it is known what the photo holds.
EditPlan planOf(const Order& order, const QUrl& target)
{
    const EditPlan plan = order.own.value(target, order.plan);
    // What a photo refused says nothing of sidecars.
    return plan.sidecar ? plan : withoutHomes(plan, order.options.leftOut);
}

QList<EditPlan> allPlans(const Order& order)
{
    QList<EditPlan> plans;
    for (const QUrl& target : order.targets)
        if (order.own.contains(target))
            plans.append(planOf(order, target));
    if (plans.size() < order.targets.size())
        plans.append(planOf(order, {}));
    return plans;
}

bool changesIptc(const QList<EditPlan>& plans)
{
    return std::any_of(plans.cbegin(), plans.cend(), [](const EditPlan& plan) {
        return !plan.iptcLists.isEmpty()
            || std::any_of(plan.scalars.keyBegin(), plan.scalars.keyEnd(), IptcSchema::isId);
    });
}

// What these of the targets hold in all that the save may assign; nothing when that cannot be found out.
std::optional<OldValues> lookBefore(
    const MetadataService& service, const Order& order, const QList<EditPlan>& plans, const QList<QUrl>& targets)
{
    if (targets.isEmpty())
        return OldValues();
    try {
        // A plan that leaves homes out names tags by others; of fields of IptcSchema the early look knows nothing.
        if (order.look && order.options.leftOut.isEmpty() && !changesIptc(plans))
            if (auto values = order.look->values(targets))
                return values;
        if (order.look)
            order.look->giveUp();
        const QStringList tags = PhotoPlans::tagsBefore(plans);
        return tags.isEmpty() ? OldValues() : service.oldValues(tags, targets);
    } catch (const std::exception&) {
        // Then the save cannot be undone, and replaces what it replaces.
        return std::nullopt;
    }
}

// The same for equal plans, whatever targets they are of.
QByteArray keyOf(const EditPlan& plan)
{
    const WriteCommand command = MetadataWriter::command(plan);
    QByteArray key = command.keptLanguages.join(u' ').toUtf8();
    for (const Assignment& assignment : command.assignments + command.languages)
        key += '\n' + assignment.tag.toUtf8() + char('0' + int(assignment.operation)) + assignment.value.toUtf8();
    return key;
}

// Where items are appended, what only some homes hold is brought together first.
QList<Preparation> preparationsFor(const SavePortion& portion, const QHash<QUrl, PhotoPlan>& photos)
{
    QMap<QStringList, Preparation> preparations;  // by arguments
    for (const QUrl& target : portion.targets) {
        const QList<Assignment> assignments = photos.value(target).lists.preparation;
        if (assignments.isEmpty())
            continue;
        Preparation& preparation = preparations[arguments(assignments)];
        preparation.command.assignments = assignments;
        preparation.targets.append(target);
    }
    return preparations.values();
}

QList<SavePortion> portions(const QList<QUrl>& targets, const QHash<QUrl, PhotoPlan>& photos)
{
    QList<SavePortion> portions;
    QHash<QByteArray, qsizetype> known;
    for (const QUrl& target : targets) {
        if (!photos.value(target).problem.isEmpty())
            continue;
        const EditPlan plan = photos.value(target).plan;
        // Neighbors mostly share the very same plan.
        const bool isAsBefore = !portions.isEmpty() && portions.constLast().plan == plan;
        const QByteArray key = isAsBefore ? QByteArray() : keyOf(plan);
        const qsizetype at = isAsBefore ? portions.size() - 1 : known.value(key, portions.size());
        if (at == portions.size()) {
            known.insert(key, at);
            portions.append({ plan, {}, {} });
        }
        portions[at].targets.append(target);
    }
    for (SavePortion& portion : portions)
        portion.preparations = preparationsFor(portion, photos);
    return portions;
}

void takeError(const ToolError& error, const QList<QUrl>& targets, Written& written)
{
    written.notes.messages += error.messages();
    written.error = toolReason(error);
    if (!std::holds_alternative<ToolError::ExecFailed>(error.payload()))
        return;
    written.isPartial = true;
    written.failures += namedFailures(error, targets);
}

void writeOne(const MetadataService& service, const SavePortion& portion, const WriteOptions& options, Written& written)
{
    service.write(portion.plan, portion.targets, options, portion.preparations, &written.notes);
}

// What keeps one portion from being written says nothing of the others.
void writeEach(
    const MetadataService& service, const QList<SavePortion>& portions, const WriteOptions& options, Written& written)
{
    const PortionsOutcome outcome = service.writeEach(portions, options, &written.notes);
    for (auto refused = outcome.refused.cbegin(); refused != outcome.refused.cend(); ++refused) {
        written.error = *refused;
        written.isPartial = true;
        for (const QUrl& target : portions.at(refused.key()).targets)
            written.failures.append({ target, *refused });
    }
    QList<QUrl> targets;
    for (const SavePortion& portion : portions)
        targets += portion.targets;
    if (outcome.error)
        takeError(*outcome.error, targets, written);
}

void write(
    const MetadataService& service, const QList<SavePortion>& portions, const WriteOptions& options, Written& written)
{
    try {
        if (portions.size() == 1 && !portions.constFirst().plan.sidecar)
            writeOne(service, portions.constFirst(), options, written);
        else
            writeEach(service, portions, options, written);
    } catch (const ToolError& error) {
        takeError(error, portions.value(0).targets, written);
    } catch (const Error& error) {
        written.error = error.description();
    } catch (const std::exception& error) {
        written.error = QString::fromUtf8(error.what());
    }
}

// What the files of a save hold in its tags now, looked at beside the read that proves it.
class LookAfter {
public:
    // `tags`: all that was written; none where the records show all of it.
    LookAfter(const MetadataService& service, const QStringList& tags, const QList<QUrl>& targets, std::stop_token stop)
        : m_forward(std::move(stop), Forward{ m_stop })
    {
        if (tags.isEmpty())
            return;
        m_stored = std::async(std::launch::async, [this, &service, tags, &targets] {
            QList<QUrl> files = targets;
            // Anything else would stop the tool, or lead it astray.
            files.removeIf([](const QUrl& file) { return !PhotoFile::at(file).file; });
            try {
                return service.stored(
                    tags, files, { .progress = {}, .stop = m_stop.get_token(), .started = [this](qint64 processID) {
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
void findRefusedHomes(const MetadataService& service, QList<SavePortion> portions, Written& written)
{
    const QHash<QUrl, QString> failed = reasonsByFile(written.failures);
    for (SavePortion& portion : portions)
        portion.targets.removeIf([&failed](const QUrl& target) { return !failed.contains(target); });
    portions.removeIf([](const SavePortion& portion) { return portion.targets.isEmpty(); });
    if (portions.isEmpty())
        return;
    try {
        written.refusedHomes = service.refusedHomes(portions);
    } catch (const std::exception&) {
        return;  // What the tool said of the whole save has to do.
    }
    for (FileFailure& failure : written.failures)
        if (const auto homes = written.refusedHomes.constFind(failure.file); homes != written.refusedHomes.cend())
            failure.reason = SaveReasons::refused(*homes);
}

// Structures are written whole only where nothing is lost by it; who knows nothing of a photo's leaves it alone.
void decideStructures(
    const MetadataService& service, const Order& order, const QList<EditPlan>& plans, Written& written)
{
    const QStringList ids = PhotoPlans::structuresOf(plans);
    if (ids.isEmpty())
        return;
    QHash<QUrl, IptcValues> held;
    QString unread = Texts::tr("what it holds could not be read");
    try {
        held = service.iptc(ids, order.targets);
    } catch (const Error& error) {
        unread = error.description();
    }
    for (const QUrl& target : order.targets) {
        PhotoPlan& photo = written.photos[target];
        if (const auto values = held.constFind(target); values != held.cend())
            PhotoPlans::decideStructures(photo, *values);
        else if (photo.plan.sidecar && !QFileInfo::exists(target.toLocalFile()))
            PhotoPlans::decideStructures(photo, {});
        else
            photo.problem = unread;
        if (photo.problem.isEmpty())
            continue;
        written.failures.append({ target, photo.problem });
        written.error = photo.problem;
        written.isPartial = true;
    }
}

// What this target is to hold, as far as it was written to it.
EditPlan expectedOf(const Written& written, const QUrl& target)
{
    const bool hasIptc = !written.notes.iptcLeftAlone.contains(target);
    return withoutHomes(written.photos.value(target).expected(), hasIptc ? QStringList() : QStringList(u"IPTC"_s));
}

// What to look at to prove the save.
QStringList tagsAfter(const QHash<QUrl, PhotoPlan>& photos)
{
    QSet<QString> tags;
    bool hasHiddenHomes = false;
    for (const SavePortion& portion : portions(photos.keys(), photos)) {
        const QStringList written = JournalTags::writtenTags(portion.plan);
        tags.unite(QSet<QString>(written.cbegin(), written.cend()));
        hasHiddenHomes = hasHiddenHomes || SaveVerification::hasHiddenHomes(portion.plan);
    }
    QStringList all = hasHiddenHomes ? tags.values() : QStringList();
    all.sort();
    return all;
}

// Why a target does not count as saved; nothing when it does.
std::optional<QString> failureOf(const QUrl& target, const ImageRecord* record, const QHash<QUrl, QString>& reasons,
    bool isTooSlow, const Written& written, const QStringList& differences)
{
    if (const auto reason = reasons.constFind(target); reason != reasons.cend())
        return *reason;
    if (isTooSlow)
        return Texts::tr("reading it back took too long");
    if (!record)
        return Texts::tr("cannot be read any more");
    if (written.error && !differences.isEmpty())
        return SaveReasons::notWritten(differences, written.notes.messages);
    return std::nullopt;
}

// Those of the schema first, in its order.
QStringList inOrderOfFields(QSet<QString> keys)
{
    QStringList ordered;
    for (const FieldSpec& field : FieldSchema::everyField()) {
        QStringList own;
        for (const QString& key : std::as_const(keys))
            if (key == field.id || key.startsWith(FieldLanguages::key(field.id, {})))
                own.append(key);
        own.sort();
        ordered += own;
    }
    keys.subtract(QSet<QString>(ordered.cbegin(), ordered.cend()));
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
}

QHash<QUrl, IptcValues> structuresAfter(
    const MetadataService& service, const Written& written, const QList<QUrl>& targets)
{
    QSet<QString> ids;
    for (const PhotoPlan& photo : written.photos)
        ids.unite(QSet<QString>(photo.structures.keyBegin(), photo.structures.keyEnd()));
    try {
        return service.iptc(ids.values(), targets);
    } catch (const std::exception&) {
        return {};  // The tool has said that it wrote them.
    }
}

QStringList structureDifferences(const PhotoPlan& photo, const IptcValues& values)
{
    QStringList differing;
    for (auto expected = photo.structures.cbegin(); expected != photo.structures.cend(); ++expected)
        if (const StructureSpec* structure = IptcStructures::spec(IptcSchema::spec(expected.key())->structure);
            !photo.plan.leftOut.contains(u"XMP"_s)
            && !StructureText::areSame(*structure, *expected, values.structures(expected.key())))
            differing.append(expected.key());
    return differing;
}

// What sidecars and their photos hold could not be read: nothing was written.
void failAll(const QList<QUrl>& targets, const QString& reason, Written& written)
{
    written.error = reason;
    written.isPartial = true;
    for (const QUrl& target : targets)
        written.failures.append({ target, reason });
}

void runOver(const SidecarOrder& files, const MetadataService& service, const std::shared_ptr<SaveHistory>& history,
    TaskProgress& progress, Written& written)
{
    const Order& order = files.order();
    const QList<QUrl>& targets = order.targets;
    const WriteOptions options = service.withOwnMirrors(order.options, files.photosThemselves());
    const QList<std::optional<FileStamp>> stamps = stampsOf(targets);
    const QList<EditPlan> plans = allPlans(order);
    const bool looks = history || PhotoPlans::needLook(plans);
    std::optional<OldValues> before = looks ? lookBefore(service, order, plans, files.photosThemselves()) : OldValues();
    if (before)
        files.addTo(*before);
    written.photos = PhotoPlans::decide(
        targets, [&order](const QUrl& target) { return planOf(order, target); }, before, order.seen);
    decideStructures(service, order, plans, written);
    std::optional<JournalEntry> entry;
    if (history && before) {
        entry = SaveUndo::journalEntry(
            *before, [&written](const QUrl& target) { return written.photos.value(target).whole(); }, targets, options);
        files.addTo(*entry);
    }
    const ReplacedFilesPoll poll(targets, progress.done);
    const QList<SavePortion> runs = portions(targets, written.photos);
    if (!runs.isEmpty())
        write(service, runs, options, written);
    findRefusedHomes(service, runs, written);
    written.isUntouched = stampsOf(targets) == stamps;
    if (history)
        remember(entry, history, written);
}

MetadataService serviceFor(MetadataService service, const Order& order)
{
    if (order.sidecars)
        service.sidecars = *order.sidecars;
    return service;
}

// What was proved in the files that were written is shown as the settings say.
void showAs(const MetadataService& service, Checked& checked, TaskProgress& progress, const std::stop_token& stop,
    const std::shared_ptr<RecordCache>& cache)
{
    QList<QUrl> photos;
    for (const ImageRecord& record : std::as_const(checked.records))
        photos.append(record.url);
    const PhotoReader::Result read = PhotoReader::read(service, photos, progress, stop, cache);
    if (!read.error)
        checked.records = read.records;
}

}  // namespace

Written run(const MetadataService& shownBy, const Order& given, const std::shared_ptr<SaveHistory>& history,
    TaskProgress& progress)
{
    Written written{ .leftOut = given.options.leftOut };
    const MetadataService service = serviceFor(shownBy, given);
    try {
        const SidecarOrder files(service, given);
        runOver(files, service, history, progress, written);
        files.nameTheirPhotos(written);
    } catch (const ToolError& error) {
        failAll(given.targets, toolReason(error), written);
    } catch (const std::exception& error) {
        failAll(given.targets, QString::fromUtf8(error.what()), written);
    }
    if (given.targets.size() == 1 && !written.failures.isEmpty())
        written.error = written.failures.constFirst().reason;
    written.mayBeSaved = !written.error || (written.isPartial && given.targets.size() > 1);
    if (written.undoable.valid() && !written.mayBeSaved)
        written.undoable.wait();
    return written;
}

Checked check(const MetadataService& shownBy, const Order& order, const Written& written, const QSet<QUrl>& tooSlow,
    TaskProgress& progress, const std::stop_token& stop, const std::shared_ptr<RecordCache>& cache)
{
    Checked checked;
    const MetadataService service = serviceFor(shownBy, order);
    const bool isShown = service == shownBy;
    QList<QUrl> readable = order.targets;
    readable.removeIf([&tooSlow](const QUrl& target) { return tooSlow.contains(target); });
    const auto remembered = qScopeGuard([&written] {
        if (written.undoable.valid())
            written.undoable.wait();
    });
    LookAfter homes(service, tagsAfter(written.photos), readable, stop);
    const PhotoReader::Result read = PhotoReader::read(service, readable, progress, stop, isShown ? cache : nullptr);
    if (read.error) {
        checked.error = read.error;
        return checked;
    }
    const QHash<QUrl, FileTags> stored = homes.stored(progress);
    const QHash<QUrl, IptcValues> structures = structuresAfter(service, written, readable);
    QHash<QUrl, const ImageRecord*> records;
    for (const ImageRecord& record : read.records)
        records.insert(record.url, &record);
    const QHash<QUrl, QString> reasons = reasonsByFile(written.failures);
    QSet<QString> differing;
    for (const QUrl& target : order.targets) {
        const ImageRecord* record = records.value(target);
        const auto tags = stored.constFind(target);
        QStringList differences = record ? SaveVerification::differences(
                                      expectedOf(written, target), *record, tags == stored.cend() ? nullptr : &*tags)
                                         : QStringList();
        if (const auto values = structures.constFind(target); values != structures.cend())
            differences += structureDifferences(written.photos.value(target), *values);
        if (const auto failure = failureOf(target, record, reasons, tooSlow.contains(target), written, differences)) {
            checked.failures.append({ target, *failure });
            continue;
        }
        checked.records.append(*record);
        differing.unite(QSet<QString>(differences.cbegin(), differences.cend()));
        for (const QString& id : written.photos.value(target).lists.joined)
            if (!differences.contains(id))
                checked.joined[id].append(target.fileName());
    }
    checked.differences = inOrderOfFields(differing);
    if (!isShown)
        showAs(shownBy, checked, progress, stop, cache);
    return checked;
}

QString joinedText(const QMap<QString, QStringList>& joined)
{
    QStringList texts;
    for (auto it = joined.cbegin(); it != joined.cend(); ++it)
        //: %1 is a field that holds a list ("Keywords"), %2 names the photos
        texts.append(Texts::tr(
            "%1 of %n photo(s) differed between IPTC and XMP and were brought together: %2", nullptr, it->size())
                         .arg(SaveVerification::labels({ it.key() }).constFirst(), Text::listed(*it)));
    return texts.join(u". "_s);
}

QString failuresText(const QList<FileFailure>& failures, qsizetype targetCount)
{
    QStringList named;
    for (const FileFailure& failure : failures)
        named.append(u"%1 (%2)"_s.arg(failure.file.fileName(), failure.reason));
    //: %1 is how many of them, %2 names these, with the reasons
    return Texts::tr("Could not save %1 of %n photos: %2", nullptr, targetCount)
        .arg(QString::number(failures.size()), Text::listed(named));
}

}  // namespace Quorbel::SaveJob
