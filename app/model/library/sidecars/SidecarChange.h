// Another policy of sidecars, and which photos are read otherwise for it.
// Thread: any. Goes by names alone.
#pragma once

#include "core/sidecar/SidecarPolicy.h"

namespace Quorbel {

struct SidecarChange {
    SidecarPolicy from{};
    SidecarPolicy to{};

    bool concerns(const QUrl& photo) const { return from.isBeside(photo) != to.isBeside(photo); }
};

}  // namespace Quorbel
