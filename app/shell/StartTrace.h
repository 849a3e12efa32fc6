// Says on standard error when the first picture of the window was painted, for whoever measures starts.
// Thread: the main thread.
#pragma once

class QWidget;

namespace Quorbel::StartTrace {

/// Prints "first paint" and a line feed once the window's first picture went out; only when QUORBEL_TRACE_START is in
/// the environment.
void watch(QWidget* window);

}  // namespace Quorbel::StartTrace
