// Whether the desktop composes windows: only then does what is transparent in one let show what lies behind it.
// Thread: the main thread.
#pragma once

namespace Quorbel::Compositor {

/// True on Wayland, and on X11 while a compositing manager runs. Asked anew each time: it may be switched off.
bool isRunning();

}  // namespace Quorbel::Compositor
