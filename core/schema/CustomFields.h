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
/// Why ExifTool could not store a custom field of this typed name, in one line for the user; nothing when it can, and
/// nothing for a name of which MetadataWriter::sanitizeCustomName() leaves nothing. One such name spoils its whole
/// save.
std::optional<QString> nameProblem(const QString& name);
/// The names of these values, in their order.
QStringList names(const QList<CustomValue>& values);
/// Position of the first value with this name; -1 when there is none.
qsizetype indexOf(const QList<CustomValue>& values, const QString& name);
/// Replaces the first value with its name in place, or appends it.
void put(QList<CustomValue>& values, const CustomValue& value);

}  // namespace Quorbel::CustomFields
