// The sets of quick keywords as entries of a menu. Thread: the main thread.
#pragma once

class QMenu;

namespace Quorbel {

class QuickKeywords;

/// Which set is shown, and what makes and changes one. What is chosen happens at once; the sheet in which a set is
/// changed is opened by whoever follows QuickKeywords::edited().
void addQuickSets(QMenu& menu, QuickKeywords& quick);

}  // namespace Quorbel
