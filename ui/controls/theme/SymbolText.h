// Texts that name keys and programs of another platform, rendered with this platform's names. Thread: any. Pure.
#pragma once

#include <QString>

namespace Quorbel {

/// "⌘A" becomes "Ctrl+A", "⇧" "Shift", "⌥" "Alt", "Finder" "your file manager"; a key symbol that stands before a
/// word or a slash loses no space and gains none but the "+" of a key combination.
QString symbolText(const QString& text);

}  // namespace Quorbel
