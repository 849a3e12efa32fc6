#include "ui/window/WindowGrowth.h"

namespace Quorbel {

QRect widened(const QRect& frame, const QRect& visibleFrame, int target)
{
    const int width = qMin(target, visibleFrame.width());
    if (width <= frame.width())
        return frame;
    const int visibleRight = visibleFrame.x() + visibleFrame.width();
    int left = frame.x() - (width - frame.width()) / 2;
    left = qMin(left, visibleRight - width);
    left = qMax(left, visibleFrame.x());
    return { left, frame.y(), width, frame.height() };
}

}  // namespace Quorbel
