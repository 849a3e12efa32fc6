#include "app/model/timeshift/ShiftJob.h"

#include "app/model/library/PhotoReader.h"
#include "app/model/saving/ReplacedFilesPoll.h"
#include "app/model/saving/SaveReasons.h"
#include "app/model/timeshift/ShiftFiles.h"
#include "core/language/Texts.h"
#include "core/save/Companions.h"
#include "core/save/SafeWriter.h"
#include "core/save/SaveGuard.h"
#include "core/text/Text.h"

#include <algorithm>

namespace Quorbel::ShiftJob {

using namespace Qt::StringLiterals;

namespace {

// As the journal wants to be told of it.
EditPlan planOf(const PhotoShift& photo)
{
    EditPlan plan;
    plan.together.insert(u"date"_s, photo.assignments);
    if (photo.isOfSidecar)
        plan.sidecar = SidecarNote();
    return plan;
}

// The files that are asked the same together.
QList<SafeWriter::Portion> portions(const QList<QUrl>& files, const QHash<QUrl, PhotoShift>& shifts)
{
    QList<SafeWriter::Portion> portions;
    QHash<QStringList, qsizetype> known;
    for (const QUrl& file : files) {
        const QList<Assignment> assignments = shifts.value(file).assignments;
        const QStringList key = arguments(assignments);
        const qsizetype at = known.value(key, portions.size());
        if (at == portions.size()) {
            known.insert(key, at);
            portions.append({ .command = { .assignments = assignments }, .mayBeNew = shifts.value(file).isOfSidecar });
        }
        portions[at].targets.append(file);
    }
    return portions;
}

// The tool is given the files behind symbolic links and names those; told of the targets that stand for them.
QList<FileFailure> namedFailures(const ToolError& error, const QList<QUrl>& targets)
{
    return SaveGuard::ofTargets(writeFailures(error, SaveGuard::filesBehindLinks(targets)), targets);
}

// What keeps one portion from being written says nothing of the others.
QList<FileFailure> failuresOf(const SafeWriter::Outcome& outcome, const QList<SafeWriter::Portion>& portions)
{
    const QSet<QUrl> done(outcome.done.cbegin(), outcome.done.cend());
    QList<FileFailure> failures;
    QList<QUrl> left;
    for (qsizetype i = 0; i < portions.size(); ++i)
        for (const QUrl& target : portions.at(i).targets)
            if (const auto refused = outcome.refused.constFind(i); refused != outcome.refused.cend())
                failures.append({ target, *refused });
            else if (!done.contains(target))
                left.append(target);
    if (outcome.error)
        failures += namedFailures(*outcome.error, left);
    return failures;
}

// They take over what the photos hold by then: a shift of their own would be a second one.
void mirror(const MetadataService& service, const QList<QUrl>& targets, Written& written)
{
    written.notes.sidecars += Companions::writeSidecars(service.runner, {}, targets, {});
}

void writeSome(const MetadataService& service, const QList<SafeWriter::Portion>& some, bool backup, Written& written)
{
    if (some.isEmpty())
        return;
    try {
        written.failures += failuresOf(SafeWriter::writeEach(service.runner, some, backup, &written.notes), some);
    } catch (const Error& error) {
        for (const SafeWriter::Portion& portion : some)
            for (const QUrl& file : portion.targets)
                written.failures.append({ file, error.description() });
    }
}

// By the file that changes; photos that share one agree. Sidecars are kept whole in the journal, and need no backup.
void write(const MetadataService& service, const QList<QUrl>& files, const QHash<QUrl, PhotoShift>& shifts, bool backup,
    Written& written)
{
    QList<QUrl> photos = files;
    QList<QUrl> sidecars = files;
    photos.removeIf([&shifts](const QUrl& file) { return shifts.value(file).isOfSidecar; });
    sidecars.removeIf([&shifts](const QUrl& file) { return !shifts.value(file).isOfSidecar; });
    writeSome(service, portions(photos, shifts), backup, written);
    writeSome(service, portions(sidecars, shifts), false, written);
}

// By target.
void decide(const Order& order, const ShiftFiles& files, const OldValues& values, Written& written)
{
    for (const QUrl& target : order.targets) {
        const auto photo = files.shifted(target, order.shifts.value(target), values);
        if (!photo) {
            written.failures.append({ target, Texts::tr("cannot be read any more") });
            continue;
        }
        written.before.insert(target, photo->watched(files.held(target, values)));
        written.photos.insert(target, *photo);
    }
}

// Those that are asked anything.
QList<QUrl> changed(const Order& order, const Written& written)
{
    QList<QUrl> targets = order.targets;
    targets.removeIf([&written](const QUrl& target) {
        const auto photo = written.photos.constFind(target);
        return photo == written.photos.cend() || photo->assignments.isEmpty();
    });
    return targets;
}

void readSlice(const MetadataService& service, const QList<QUrl>& targets, const std::stop_token& stop,
    TaskProgress& progress, Looked& looked)
{
    const ShiftFiles files(service.sidecars, targets);
    const QList<QUrl> read = files.toRead();
    for (const QUrl& file : read)
        if (const auto stamp = FileStamp::of(file.toLocalFile()))
            looked.stamps.insert(file, *stamp);
    looked.values.insert(service.oldValues(files.tags(), read,
        { .progress = {}, .stop = stop, .started = [&progress](qint64 id) { progress.processID = id; } }));
    progress.processID = 0;
}

void runAll(const MetadataService& service, const Order& order, Looked looked,
    const std::shared_ptr<SaveHistory>& history, TaskProgress& progress, Written& written)
{
    const ShiftFiles files(service.sidecars, order.targets);
    const QList<QUrl> stale = files.changedSince(looked.stamps);
    if (!stale.isEmpty())
        readSlice(service, stale, {}, progress, looked);
    decide(order, files, looked.values, written);
    const QList<QUrl> targets = changed(order, written);
    const QList<QUrl> changing = files.written(targets);
    const WriteOptions options = service.withOwnMirrors(order.options, targets);
    // All or none: a read-only photo is found before any other is written.
    SaveGuard::requireWritable(SaveGuard::filesBehindLinks(changing));
    QHash<QUrl, PhotoShift> shifts;
    for (const QUrl& target : targets)
        shifts.insert(files.written(target), written.photos.value(target));
    const auto plan = [&shifts](const QUrl& file) { return planOf(shifts.value(file)); };
    JournalEntry entry = history ? SaveUndo::journalEntry(looked.values, plan, changing, options) : JournalEntry();
    entry.isTimeShift = true;
    files.addTo(entry);
    {
        const ReplacedFilesPoll poll(changing, progress.done);
        const QList<FileFailure> earlier = std::exchange(written.failures, {});
        write(service, changing, shifts, order.options.backupOriginals, written);
        written.failures = earlier + files.byTarget(written.failures);
        mirror(service, options.mirrored(targets), written);
    }
    if (history)
        written.undoable = history->add(entry);
}

// A sidecar that is not there holds nothing.
QHash<QUrl, FileTags> storedNow(const MetadataService& service, QList<QUrl> targets, const std::stop_token& stop)
{
    const QStringList tags = ShiftFiles(service.sidecars, targets).tags();
    QHash<QUrl, FileTags> stored;
    targets.removeIf([&](const QUrl& target) {
        const bool isWithout = service.sidecars.isBeside(target) && service.sidecars.existing(target).isEmpty();
        if (isWithout)
            stored.insert(target, {});
        return isWithout;
    });
    stored.insert(service.stored(tags, targets, { .progress = {}, .stop = stop, .started = {} }));
    return stored;
}

QString named(const QList<FileFailure>& failures)
{
    QStringList names;
    for (const FileFailure& failure : failures)
        names.append(u"%1 (%2)"_s.arg(failure.file.fileName(), failure.reason));
    return Text::listed(names);
}

QString failed(const Order& order, const QString& reason)
{
    return (order.setsZone() ? Texts::tr("Could not set the zone: %1") : Texts::tr("Could not shift the time: %1"))
        .arg(reason);
}

QString someFailed(const Order& order, const QList<FileFailure>& failures)
{
    const qsizetype all = order.targets.size();
    //: %1 is how many of them, %2 names these, with the reasons
    return (order.setsZone() ? Texts::tr("Could not set the zone of %1 of %n photos: %2", nullptr, all)
                             //: %1 is how many of them, %2 names these, with the reasons
                             : Texts::tr("Could not shift the time of %1 of %n photos: %2", nullptr, all))
        .arg(QString::number(failures.size()), named(failures));
}

QString namedTags(const QMap<QString, QStringList>& tagsByName)
{
    QStringList names;
    for (auto it = tagsByName.cbegin(); it != tagsByName.cend(); ++it)
        names.append(u"%1 (%2)"_s.arg(it.key(), it->join(u", "_s)));
    return Text::listed(names);
}

}  // namespace

Looked look(const MetadataService& service, const Order& order, TaskProgress& progress, const std::stop_token& stop)
{
    constexpr qsizetype slice = 250;  // a few seconds of camera files
    Looked looked{ .sidecars = service.sidecars };
    try {
        for (qsizetype at = 0; at < order.targets.size(); at += slice) {
            readSlice(service, order.targets.mid(at, slice), stop, progress, looked);
            progress.done = std::min(at + slice, order.targets.size());
        }
    } catch (const CancelledError&) {
        looked.isCancelled = true;
    } catch (const ToolError& error) {
        looked.error = toolReason(error);
    } catch (const std::exception& error) {
        looked.error = QString::fromUtf8(error.what());
    }
    return looked;
}

Written run(const MetadataService& service, const Order& order, const Looked& looked,
    const std::shared_ptr<SaveHistory>& history, TaskProgress& progress)
{
    Written written;
    try {
        runAll(service, order, looked, history, progress, written);
    } catch (const ToolError& error) {
        written.error = toolReason(error);
    } catch (const Error& error) {
        written.error = error.description();
    } catch (const std::exception& error) {
        written.error = QString::fromUtf8(error.what());
    }
    return written;
}

Checked check(const MetadataService& service, const Order& order, const Written& written, const QSet<QUrl>& tooSlow,
    TaskProgress& progress, const std::stop_token& stop, const std::shared_ptr<RecordCache>& cache)
{
    Checked checked;
    QList<QUrl> readable = order.targets;
    readable.removeIf([&tooSlow](const QUrl& target) { return tooSlow.contains(target); });
    const PhotoReader::Result read = PhotoReader::read(service, readable, progress, stop, cache);
    checked.error = read.error;
    if (read.error)
        return checked;
    checked.records = read.records;
    readable.clear();
    for (const ImageRecord& record : read.records)
        readable.append(record.url);
    QHash<QUrl, FileTags> now;
    try {
        now = storedNow(service, readable, stop);
    } catch (const std::exception& error) {
        checked.error = QString::fromUtf8(error.what());
        return checked;
    }
    QHash<QUrl, QString> reasons;
    for (const FileFailure& failure : written.failures)
        reasons.insert(failure.file, failure.reason);
    for (const QUrl& target : order.targets) {
        const auto photo = written.photos.constFind(target);
        const auto found = now.constFind(target);
        const bool isKnown = photo != written.photos.cend() && found != now.cend();
        const QStringList differences = isKnown ? photo->differences(*found) : QStringList();
        if (!isKnown || (!differences.isEmpty() && photo->watched(*found) == written.before.value(target)))
            checked.failures.append({ target,
                reasons.value(target,
                    tooSlow.contains(target) ? Texts::tr("reading it back took too long")
                        : isKnown            ? Texts::tr("not written")
                                             : Texts::tr("cannot be read any more")) });
        else if (!differences.isEmpty())
            checked.differing.insert(target.fileName(), differences);
    }
    return checked;
}

std::optional<QString> message(const Order& order, const Written& written, const Checked& checked)
{
    if (written.error)
        return failed(order, *written.error);
    if (checked.error)
        return Texts::tr("Could not read metadata: %1").arg(*checked.error);
    QStringList texts;
    if (!checked.failures.isEmpty())
        texts.append(someFailed(order, checked.failures));
    if (!checked.differing.isEmpty())
        //: %1 is how many of them, %2 names these, with tags
        texts.append(Texts::tr("Times read back differently in %1 of %n photos: %2", nullptr, order.targets.size())
                         .arg(QString::number(checked.differing.size()), namedTags(checked.differing)));
    QMap<QString, QStringList> alone;
    QStringList zoneless;
    for (const QUrl& target : order.targets) {
        const PhotoShift photo = written.photos.value(target);
        if (!photo.leftAlone.isEmpty())
            alone.insert(target.fileName(), photo.leftAlone);
        if (photo.hasNoZone)
            zoneless.append(target.fileName());
    }
    if (!zoneless.isEmpty())
        //: %1 names photos
        texts.append(Texts::tr("Left alone for want of a time zone: %1").arg(Text::listed(zoneless)));
    if (!alone.isEmpty())
        //: %1 names photos, with tags
        texts.append(Texts::tr("Dates without a full day and time were left alone: %1").arg(namedTags(alone)));
    if (const QString notes = SaveReasons::notesText(written.notes); !notes.isEmpty())
        texts.append(notes);
    return texts.isEmpty() ? std::nullopt : std::optional(texts.join(u". "_s));
}

}  // namespace Quorbel::ShiftJob
