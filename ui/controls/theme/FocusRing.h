// The ring around the control that has the keyboard focus, drawn outside the control's own rectangle.
// Thread: the main thread.
#pragma once

#include <QRectF>
#include <QWidget>

#include <functional>

namespace Quorbel {

enum class RingShape {
    field,  ///< 2 points, directly around; always when focused
    button,  ///< 1.5 points of gap, then 2 points; only for focus that came by keyboard
    tight,  ///< 2 points, no gap; only for focus that came by keyboard
};

struct FocusRingOptions {
    RingShape shape = RingShape::button;
    qreal radius = 7;  ///< the control's own corner radius, in points
    std::function<bool()> amber{};  ///< whether the control shows an edited value; never when empty
    std::function<QRectF()> box{};  ///< the part of the control that the ring goes round; all of it when empty
};

/// Gives a control its ring. Leave 4 points around a control, or its ring is clipped by its nearest scrolling area or
/// window. What is returned belongs to the control; installed as an event filter on a widget inside the control, it
/// shows the control's ring for that widget's focus too.
QObject* installFocusRing(QWidget* control, FocusRingOptions options);

}  // namespace Quorbel
