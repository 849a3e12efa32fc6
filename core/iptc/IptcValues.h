// What one photo holds of the fields of IptcSchema.
// Thread: any. A plain value; pure.
#pragma once

#include "core/text/JSONValue.h"

namespace Quorbel {

struct IptcValues {
    QMap<QString, QString> texts{};  ///< id to text, number, code, or a structure as StructureText has it
    QMap<QString, QStringList> lists{};  ///< id to items: texts, numbers, codes, structures

    /// Of what the tool reads of one file: with group 1, by number, structures whole.
    static IptcValues fromRead(const JSONObject& tags);
    /// The structures under this id, be they one or several.
    QStringList structures(const QString& id) const;
    bool operator==(const IptcValues&) const = default;
};

}  // namespace Quorbel
