// The dot that marks what is edited, in a strip that is left free for it at the left.
// Thread: the main thread.
#pragma once

class QPainter;

namespace Quorbel {

struct Theme;

namespace EditedDot {

/// Points that whoever paints a dot keeps free at its left.
constexpr double room = 12;

/// In the strip at the left of a widget; `middle` in pixels from its top.
void paint(QPainter& painter, double middle, const Theme& theme);

}  // namespace EditedDot

}  // namespace Quorbel
