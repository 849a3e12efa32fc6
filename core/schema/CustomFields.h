// Custom fields among the schema's: in drafts, batches and saves both are keyed by one string.
// Thread: any. Pure.
#pragma once

#include "core/schema/ImageRecord.h"

#include <optional>

namespace Quorbel::CustomFields {

/// "custom:" + name; no field of the schema has such an id.
QString key(const QString& name);
/// The name in such a key; nothing for the id of a field of the schema.
std::optional<QString> nameIn(const QString& key);
/// The names of these values, in their order.
QStringList names(const QList<CustomValue>& values);
/// Position of the first value with this name; -1 when there is none.
qsizetype indexOf(const QList<CustomValue>& values, const QString& name);

}  // namespace Quorbel::CustomFields
