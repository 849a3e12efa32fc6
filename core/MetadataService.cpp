#include "core/MetadataService.h"

#include "core/details/DetailsRead.h"
#include "core/iptc/IptcRead.h"
#include "core/save/Companions.h"
#include "core/save/RefusedHomes.h"
#include "core/save/SafeWriter.h"
#include "core/save/SaveGuard.h"
#include "core/save/ValueTooLong.h"
#include "core/save/journal/JournalTags.h"
#include "core/save/together/PhotoPlans.h"
#include "core/schema/CustomFields.h"
#include "core/sidecar/SidecarRead.h"
#include "core/tool/IptcEncoding.h"
#include "core/tool/MetadataWriter.h"

#include <QFile>

namespace Quorbel {

std::optional<MetadataService> MetadataService::locate()
{
    const auto runner = ExifToolRunner::locate();
    return runner ? std::optional(MetadataService{ *runner }) : std::nullopt;
}

QList<ImageRecord> MetadataService::read(const QList<QUrl>& urls, const ReadControl& control) const
{
    QList<ImageRecord> records = PhotoRead::all(runner, urls, control);
    SidecarRead::overlay(runner, sidecars, records, control);
    return records;
}

PhotoRead::Outcome MetadataService::readEach(const QList<QUrl>& urls, const ReadControl& control) const
{
    PhotoRead::Outcome outcome = PhotoRead::each(runner, urls, control);
    outcome.sidecars = SidecarRead::overlay(runner, sidecars, outcome.records, control);
    return outcome;
}

// The sidecar of a photo that shares its base name with one whose edits go beside it is that one's.
WriteOptions MetadataService::withOwnMirrors(WriteOptions options, const QList<QUrl>& photos) const
{
    if (options.writeSidecar && sidecars.isInUse())
        for (const QUrl& photo : photos)
            if (sidecars.isBeside(photo) || sidecars.sharesBase(photo))
                options.unmirrored.insert(photo);
    return options;
}

QString MetadataService::write(const EditPlan& plan, const QList<QUrl>& targets, const WriteOptions& options,
    const QList<Preparation>& preparations, WriteNotes* notes) const
{
    const WriteCommand command = MetadataWriter::command(plan);
    if (command.isEmpty() || targets.isEmpty())
        return {};
    requireShortValues(plan);
    const QStringList customNames = CustomFields::names(plan.customs);
    const QString output = SafeWriter::write(
        runner, command, targets, options.backupOriginals && !plan.sidecar, customNames, preparations, notes);
    if (!options.writeSidecar || plan.sidecar)
        return output;
    const auto failures = Companions::writeSidecars(runner, command, options.mirrored(targets), customNames);
    if (notes)
        notes->sidecars += failures;
    return output;
}

namespace {

// The portions of one kind of files, and which of all portions they are.
struct Commands {
    QList<SafeWriter::Portion> portions{};
    QList<qsizetype> positions{};
};

std::optional<ToolError> joined(const std::optional<ToolError>& a, const std::optional<ToolError>& b)
{
    if (!a || !b)
        return a ? a : b;
    const auto texts = [](const ToolError& error) {
        return std::get<ToolError::ExecFailed>(error.payload()).standardError.trimmed();
    };
    const qint32 code = std::get<ToolError::ExecFailed>(a->payload()).code;
    return ToolError(
        ToolError::ExecFailed{ code, texts(*a) + u'\n' + texts(*b) }, a->messages() + u'\n' + b->messages());
}

// The targets that were written.
QSet<QUrl> write(
    const ExifToolRunner& runner, const Commands& commands, bool backup, PortionsOutcome& outcome, WriteNotes* notes)
{
    if (commands.portions.isEmpty())
        return {};
    const SafeWriter::Outcome written = SafeWriter::writeEach(runner, commands.portions, backup, notes);
    for (auto refused = written.refused.cbegin(); refused != written.refused.cend(); ++refused)
        outcome.refused.insert(commands.positions.at(refused.key()), *refused);
    outcome.error = joined(outcome.error, written.error);
    return { written.done.cbegin(), written.done.cend() };
}

}  // namespace

PortionsOutcome MetadataService::writeEach(
    const QList<SavePortion>& portions, const WriteOptions& options, WriteNotes* notes) const
{
    Commands photos;
    Commands besides;
    PortionsOutcome outcome;
    for (qsizetype i = 0; i < portions.size(); ++i) {
        const SavePortion& portion = portions.at(i);
        const WriteCommand command = MetadataWriter::command(portion.plan);
        if (command.isEmpty() || portion.targets.isEmpty())
            continue;
        try {
            requireShortValues(portion.plan);
        } catch (const ValueTooLong& error) {
            outcome.refused.insert(i, error.description());
            continue;
        }
        Commands& some = portion.plan.sidecar ? besides : photos;
        some.portions.append({ command, portion.targets, CustomFields::names(portion.plan.customs),
            portion.preparations, portion.plan.sidecar.has_value() });
        some.positions.append(i);
    }
    const QSet<QUrl> done = Quorbel::write(runner, photos, options.backupOriginals, outcome, notes);
    Quorbel::write(runner, besides, false, outcome, notes);
    for (SafeWriter::Portion& portion : photos.portions) {
        if (!options.writeSidecar)
            break;
        portion.targets.removeIf([&done](const QUrl& target) { return !done.contains(target); });
        const auto failures =
            Companions::writeSidecars(runner, portion.command, options.mirrored(portion.targets), portion.customNames);
        if (notes)
            notes->sidecars += failures;
    }
    return outcome;
}

QHash<QUrl, PhotoDetails> MetadataService::details(const QList<ImageRecord>& photos, const ReadControl& control) const
{
    return DetailsRead::of(runner, sidecars, photos, control);
}

QMap<QUrl, QMap<QString, QString>> MetadataService::refusedHomes(const EditPlan& plan, const QList<QUrl>& targets) const
{
    return RefusedHomes::find(runner, plan, targets);
}

QMap<QUrl, QMap<QString, QString>> MetadataService::refusedHomes(const QList<SavePortion>& portions) const
{
    return RefusedHomes::find(runner, portions);
}

JournalEntry MetadataService::journalEntry(
    const EditPlan& plan, const QList<QUrl>& targets, const WriteOptions& options) const
{
    const OldValues known = plan.isEmpty() ? OldValues() : oldValues(PhotoPlans::tagsBefore({ plan }), targets);
    return SaveUndo::journalEntry(
        known, [&plan](const QUrl&) { return plan; }, targets, options);
}

OldValues MetadataService::oldValues(
    const QStringList& tags, const QList<QUrl>& targets, const ReadControl& control) const
{
    return SaveUndo::oldValues(runner, tags, targets, control);
}

QHash<QUrl, FileTags> MetadataService::stored(
    QStringList tagNames, const QList<QUrl>& targets, const ReadControl& control) const
{
    tagNames.removeAll(IptcEncoding::blockTag());
    const QStringList selection = JournalTags::readArgs(tagNames);
    const QList<QUrl> files = SaveGuard::filesBehindLinks(sidecars.filesToWrite(targets));
    const auto tags = TagDump::parse(runner.readDump(selection, files, control));
    QHash<QUrl, FileTags> stored;
    for (qsizetype i = 0; i < targets.size(); ++i)
        if (const auto found = tags.constFind(QFile::encodeName(files.at(i).toLocalFile())); found != tags.cend())
            stored.insert(targets.at(i), *found);
    return stored;
}

QHash<QUrl, IptcValues> MetadataService::iptc(
    const QStringList& ids, const QList<QUrl>& targets, const ReadControl& control) const
{
    const QList<QUrl> files = sidecars.filesToWrite(targets);
    const QHash<QUrl, IptcValues> held = IptcRead::of(runner, ids, files, control);
    QHash<QUrl, IptcValues> values;
    for (qsizetype i = 0; i < targets.size(); ++i)
        if (const auto found = held.constFind(files.at(i)); found != held.cend())
            values.insert(targets.at(i), *found);
    return values;
}

UndoOutcome MetadataService::undo(const JournalEntry& entry) const
{
    return SaveUndo::undo(runner, entry);
}

void MetadataService::renameFile(const QUrl& source, const QUrl& destination) const
{
    using Companions::SidecarsAlong;
    const bool isOthers = sidecars.isInUse() && sidecars.sharesBase(source);
    Companions::movePhoto(source, destination,
        sidecars.isBeside(source) ? SidecarsAlong::all
            : isOthers            ? SidecarsAlong::none
                                  : SidecarsAlong::mirror);
}

}  // namespace Quorbel
