// What the desktop asks of all that moves, where Qt does not know it by itself (Metrics.h: motionEnabled).
// Thread: the main thread.
#pragma once

namespace Quorbel {

void reduceMotion(bool asked);

}  // namespace Quorbel
