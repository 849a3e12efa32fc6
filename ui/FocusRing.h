// The ring around the control that has the keyboard focus, drawn outside the control's own rectangle.
// Thread: the main thread.
#pragma once

#include <QPointer>
#include <QWidget>

#include <functional>

namespace Quorbel {

enum class RingShape {
    field,  ///< 2 points, directly around; always when focused
    button,  ///< 1.5 points of gap, then 2 points; only for focus that came by keyboard
    tight,  ///< 2 points, no gap; only for focus that came by keyboard
};

/// Gives a control its ring. `radius` is the control's own corner radius in points, `amber` (may be empty) says
/// whether the control shows an edited value. Leave 4 points around a control, or its ring is clipped by its
/// parent's nearest scrolling area or window.
void installFocusRing(QWidget* control, RingShape shape, qreal radius, std::function<bool()> amber = {});

}  // namespace Quorbel
