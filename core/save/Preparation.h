// A run over some of a save's photos that has to come before the save's own. Thread: any. A plain value.
#pragma once

#include "core/tool/WriteCommand.h"

#include <QList>
#include <QUrl>

namespace Quorbel {

struct Preparation {
    WriteCommand command{};
    QList<QUrl> targets{};
    bool operator==(const Preparation&) const = default;
};

}  // namespace Quorbel
