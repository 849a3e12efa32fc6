// What one writing run of ExifTool is told, beside its files. Thread: any. A plain value.
#pragma once

#include "core/tool/Assignment.h"

namespace Quorbel {

struct WriteCommand {
    QStringList options{};  ///< "-ec", "-tagsfromfile …": they come first, as they stand
    QList<Assignment> assignments{};

    bool isEmpty() const { return options.isEmpty() && assignments.isEmpty(); }
    bool operator==(const WriteCommand&) const = default;
};

}  // namespace Quorbel
