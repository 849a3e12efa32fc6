// Decodes ExifTool's JSON: as a whole, or, where that fails, file by file, so that one file's values do not take those
// of the others with them.
// Thread: any. Pure.
#pragma once

#include "core/text/Errors.h"
#include "core/text/JSONValue.h"

#include <QByteArray>
#include <QList>
#include <QMap>

#include <optional>

namespace Quorbel::ToolOutput {

struct Decoded {
    QList<JSONObject> objects{};  ///< in the order in which they were printed
    QMap<QString, QString> undecodable{};  ///< path, as it was printed, to why its object makes no sense
    /// Set when there is such a file, or when the output is no array of objects at all; it quotes the beginning of the
    /// output.
    std::optional<ToolError> error{};
};

/// `output`: trimmed, not empty.
Decoded decode(QByteArray output);
/// The same with every number as the text that was printed: the tool prints a title "1.10" as a number, and "1e5".
Decoded decodeExactly(QByteArray output);

}  // namespace Quorbel::ToolOutput
