#include "core/MetadataService.h"

#include "core/details/DetailsRead.h"
#include "core/save/Companions.h"
#include "core/save/RefusedHomes.h"
#include "core/save/SafeWriter.h"
#include "core/save/SaveGuard.h"
#include "core/save/ValueTooLong.h"
#include "core/save/journal/JournalTags.h"
#include "core/save/together/PhotoPlans.h"
#include "core/schema/CustomFields.h"
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
    return PhotoRead::all(runner, urls, control);
}

PhotoRead::Outcome MetadataService::readEach(const QList<QUrl>& urls, const ReadControl& control) const
{
    return PhotoRead::each(runner, urls, control);
}

QString MetadataService::write(const EditPlan& plan, const QList<QUrl>& targets, const WriteOptions& options,
    const QList<Preparation>& preparations, WriteNotes* notes) const
{
    const WriteCommand command = MetadataWriter::command(plan);
    if (command.isEmpty() || targets.isEmpty())
        return {};
    requireShortValues(plan);
    const QStringList customNames = CustomFields::names(plan.customs);
    const QString output =
        SafeWriter::write(runner, command, targets, options.backupOriginals, customNames, preparations, notes);
    if (!options.writeSidecar)
        return output;
    const auto failures = Companions::writeSidecars(runner, command, targets, customNames);
    if (notes)
        notes->sidecars = failures;
    return output;
}

QHash<QUrl, PhotoDetails> MetadataService::details(const QList<ImageRecord>& photos, const ReadControl& control) const
{
    return DetailsRead::of(runner, photos, control);
}

QMap<QUrl, QMap<QString, QString>> MetadataService::refusedHomes(const EditPlan& plan, const QList<QUrl>& targets) const
{
    return RefusedHomes::find(runner, plan, targets);
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
    const QList<QUrl> files = SaveGuard::filesBehindLinks(targets);
    const auto tags = TagDump::parse(runner.readDump(selection, files, control));
    QHash<QUrl, FileTags> stored;
    for (qsizetype i = 0; i < targets.size(); ++i)
        if (const auto found = tags.constFind(QFile::encodeName(files.at(i).toLocalFile())); found != tags.cend())
            stored.insert(targets.at(i), *found);
    return stored;
}

UndoOutcome MetadataService::undo(const JournalEntry& entry) const
{
    return SaveUndo::undo(runner, entry);
}

void MetadataService::renameFile(const QUrl& source, const QUrl& destination) const
{
    Companions::movePhoto(source, destination);
}

}  // namespace Quorbel
