// The commands for the text field that has the focus: what Undo, Cut, Copy and Paste mean there.
// Thread: the main thread. Knows no model: fields take their keys themselves; the menu shows them and serves the mouse.
#pragma once

namespace Quorbel {

class ThemedMenu;

namespace TextCommands {

/// Undo and Redo.
void addHistory(ThemedMenu& menu);
/// Cut, Copy and Paste.
void addClipboard(ThemedMenu& menu);
/// Selects all of the field's text; false where no text field has the focus.
bool selectAll();

}  // namespace TextCommands
}  // namespace Quorbel
