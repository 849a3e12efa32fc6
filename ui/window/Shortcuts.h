// All keys of the program: those of its menus, asked of the menus themselves, and a table of those that are in none.
// Thread: the main thread. Only says them.
#pragma once

#include <QKeySequence>
#include <QList>
#include <QString>

#include <functional>

class QAction;
class QMenuBar;

namespace Quorbel {

class ThemedMenu;

/// Where a key that is in no menu works.
enum class ShortcutPlace { list, field, keywords, stars, search, closeup, sheet };

struct Shortcut {
    QString does{};
    QList<QKeyCombination> keys{};  ///< each does it, or each a part of it
    bool isRange = false;  ///< from the first key to the last
    QString english{};  ///< what it does in English, for who searches; "" where that is not known
    /// "Ctrl+Alt+0 … 5", "Down, Up"
    QString shownKeys() const;
};

struct ShortcutGroup {
    QString title{};
    QList<Shortcut> rows{};
    QString english{};  ///< its title in English
};

namespace Shortcuts {

/// Gives an entry of a menu, or the menu of such an action, its text in the user's language; `english` is a marked
/// text, by which it is found in a search, too.
void name(QAction& action, const QString& english);
/// Adds an entry with such a name. Of several keys the first is shown.
QAction* addCommand(
    ThemedMenu& menu, const QString& english, const QList<QKeySequence>& keys, const std::function<void()>& run);

/// One group a menu, with what its entries are called now; entries without keys are left out.
QList<ShortcutGroup> ofMenus(const QMenuBar& menus);
ShortcutGroup in(ShortcutPlace place);
/// Of all places, in their order.
QList<ShortcutGroup> inPlaces();

}  // namespace Shortcuts

}  // namespace Quorbel
