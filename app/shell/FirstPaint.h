// What may wait until the window shows its first picture. Thread: the main thread.
#pragma once

#include <functional>

class QWidget;

namespace Quorbel {

/// Calls `then` once, from the event loop, when the window's first picture went out. Not at all when the window goes
/// before.
void afterFirstPaint(QWidget* window, std::function<void()> then);

/// Prints "first paint" and a line feed on standard error at that moment, for whoever measures starts; only when
/// QUORBEL_TRACE_START is in the environment.
void traceFirstPaint(QWidget* window);

}  // namespace Quorbel
