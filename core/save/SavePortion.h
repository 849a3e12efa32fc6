// What some of a save's photos are asked, all of them the same. Thread: any. A plain value.
#pragma once

#include "core/save/EditPlan.h"
#include "core/save/Preparation.h"

namespace Quorbel {

struct SavePortion {
    EditPlan plan{};
    QList<QUrl> targets{};
    QList<Preparation> preparations{};
};

/// What came of several portions.
struct PortionsOutcome {
    QMap<qsizetype, QString> refused{};  ///< portions of which nothing was written, by position: why
    std::optional<ToolError> error{};  ///< of the runs that failed, with the messages of all
};

}  // namespace Quorbel
