// The palette for those who need strong contrasts: black on white or white on black, each text at least 7:1, each
// control with a border, and states told by shapes and widths of lines where the other palettes have shades alone.
// Thread: the main thread. Knows nothing of who asks for it.
#pragma once

#include <QPen>

namespace Quorbel {

struct Theme;

namespace HighContrast {

const Theme& palette(bool dark);
bool isOn(const Theme& theme);

/// What a disabled control is drawn with; `usual` where the palette leaves room for it.
qreal disabledOpacity(const Theme& theme, qreal usual = .42);
/// Pixels of the border of what is edited, wanted or focused.
qreal markedLine(const Theme& theme);
/// The border of what is otherwise told by its ground alone; none in the other palettes.
QPen groundEdge(const Theme& theme);

}  // namespace HighContrast

}  // namespace Quorbel
