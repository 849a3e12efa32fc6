#include "core/MetadataService.h"

#include "core/save/Companions.h"
#include "core/save/RefusedHomes.h"
#include "core/save/SafeWriter.h"
#include "core/save/ValueTooLong.h"
#include "core/schema/CustomFields.h"
#include "core/tool/MetadataReader.h"
#include "core/tool/MetadataWriter.h"

#include <QDir>
#include <QFileInfo>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// The objects by the path of the file that they are about: as the tool printed it, and tidied up.
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
        if (control.stop.stop_requested())
            throw CancelledError();
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

QString MetadataService::write(const EditPlan& plan, const QList<QUrl>& targets, const WriteOptions& options,
    const QList<Preparation>& preparations, WriteNotes* notes) const
{
    const WriteCommand command{ .assignments = MetadataWriter::assignments(plan) };
    if (command.isEmpty() || targets.isEmpty())
        return {};
    requireShortValues(plan);
    const QStringList customNames = CustomFields::names(plan.customs);
    const QString output =
        SafeWriter::write(runner, command, targets, options.backupOriginals, customNames, preparations, notes);
    if (!options.writeSidecar)
        return output;
    const auto failures = Companions::writeSidecars(runner, command.assignments, targets, customNames);
    if (notes)
        notes->sidecars = failures;
    return output;
}

QMap<QUrl, QMap<QString, QString>> MetadataService::refusedHomes(const EditPlan& plan, const QList<QUrl>& targets) const
{
    return RefusedHomes::find(runner, plan, targets);
}

JournalEntry MetadataService::journalEntry(
    const EditPlan& plan, const QList<QUrl>& targets, const WriteOptions& options) const
{
    return SaveUndo::journalEntry(runner, plan, targets, options);
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
