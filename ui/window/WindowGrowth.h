// Where a window goes when it is widened. Thread: any. Pure.
#pragma once

#include <QRect>

namespace Quorbel {

/// The frame widened to `target` pixels, but not beyond the visible part of its screen. Keeps the centre, then the
/// screen's edges; height and vertical position stay. A frame that is wide enough comes back as it is.
QRect widened(const QRect& frame, const QRect& visibleFrame, int target);

}  // namespace Quorbel
