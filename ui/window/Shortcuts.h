// All keys of the program: those of its menus, asked of the menus themselves, and a table of those that are in none.
// Thread: the main thread. Only says them.
#pragma once

#include <QKeySequence>
#include <QList>
#include <QString>

class QMenuBar;

namespace Quorbel {

/// Where a key that is in no menu works.
enum class ShortcutPlace { list, field, keywords, stars, search, closeup, sheet };

struct Shortcut {
    QString does{};
    QList<QKeyCombination> keys{};  ///< each does it, or each a part of it
    bool isRange = false;  ///< from the first key to the last
    /// "Ctrl+Alt+0 … 5", "Down, Up"
    QString shownKeys() const;
};

struct ShortcutGroup {
    QString title{};
    QList<Shortcut> rows{};
};

namespace Shortcuts {

/// One group a menu, with what its entries are called now; entries without keys are left out.
QList<ShortcutGroup> ofMenus(const QMenuBar& menus);
ShortcutGroup in(ShortcutPlace place);
/// Of all places, in their order.
QList<ShortcutGroup> inPlaces();

}  // namespace Shortcuts

}  // namespace Quorbel
