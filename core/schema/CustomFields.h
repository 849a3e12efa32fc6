// Custom fields: their names, and how they stand among the schema's. In drafts, batches and saves both are keyed by
// one string.
// Thread: any. Pure.
#pragma once

#include "core/schema/ImageRecord.h"

#include <optional>

namespace Quorbel::CustomFields {

/// "custom:" + name; no field of the schema has such an id.
QString key(const QString& name);
/// The name in such a key; nothing for the id of a field of the schema.
std::optional<QString> nameIn(const QString& key);
/// Why there is to be no new custom field of this typed name, in one line for the user: ExifTool could not store it,
/// takes it for something else, or reads a field of the schema from it. Nothing when all is well, and nothing for a
/// name of which MetadataWriter::sanitizeCustomName() leaves nothing.
std::optional<QString> nameProblem(const QString& name);
/// Whether a save can write a custom field that a photo holds under just this name. Of another it would spoil the
/// whole save, write a field beside it, or empty the group.
bool isWritable(const QString& name);
/// The name as one of `held` spells it, whose case ExifTool does not tell apart ("Mood" for "mood"); the name itself
/// when none does.
QString spelling(const QString& name, const QStringList& held);
/// The names of these values, in their order.
QStringList names(const QList<CustomValue>& values);
/// Position of the first value with this name; -1 when there is none.
qsizetype indexOf(const QList<CustomValue>& values, const QString& name);
/// Replaces the first value with its name in place, or appends it.
void put(QList<CustomValue>& values, const CustomValue& value);

}  // namespace Quorbel::CustomFields
