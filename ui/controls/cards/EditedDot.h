// The dot that marks what is edited, in a strip that is left free for it at the left.
// Thread: the main thread.
#pragma once

class QPainter;
class QWidget;

namespace Quorbel::EditedDot {

/// Points that whoever paints a dot keeps free at its left.
constexpr double room = 12;

/// In the strip at the widget's left (its right where one reads from right to left), `middle` pixels from its top.
void paint(QPainter& painter, const QWidget* widget, double middle);

}  // namespace Quorbel::EditedDot
