// Room to hit: what is drawn small can be clicked in a square of 24 pixels round its middle.
// Thread: the main thread. Draws nothing, moves nothing: presses that hit what is around a small control, and nothing
// else that can be clicked, are given to it.
#pragma once

class QWidget;

namespace Quorbel {

/// Pixels, in both directions.
constexpr int leastTarget = 24;

/// For the life of the control. One that is large enough keeps its own size.
void giveTargetRoom(QWidget* control);

}  // namespace Quorbel
