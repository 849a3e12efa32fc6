// What is around the rows of a popup window: its rounded edge, and its shadow where windows are composed.
// Thread: the main thread. Knows no window system: whether one composes windows, it is told.
#pragma once

#include <QMargins>
#include <QRect>

#include <functional>

class QPainter;
class QWidget;

namespace Quorbel {

struct Theme;

namespace PopupFrame {

/// Says whether what is transparent in a popup lets the window behind it show; asked whenever a popup opens. Without
/// it: everywhere but on X11, where what is transparent is black when nothing composes windows.
void setComposed(std::function<bool()> composed);

/// Pixels around the box of a popup in which its shadow is painted; none where it has no shadow.
QMargins room();
/// Makes a popup translucent. Before it is shown first.
void prepare(QWidget& popup);
/// Gives a popup without a shadow its rounded shape. To be called at each resize.
void shape(QWidget& popup);
/// Paints shadow, ground and edge of a popup; `box` lies inside it by room().
void paint(QPainter& painter, const QRect& box, const Theme& theme);

/// Where a box of this size goes that drops down from `anchor` (global): below it, or above where there is no room, and
/// on the screen. With `alignRight` the right edges are in line.
QRect placed(const QRect& anchor, QSize size, const QRect& screen, bool alignRight = false);

}  // namespace PopupFrame

}  // namespace Quorbel
