#include "ui/inspector/keywords/QuickSetMenu.h"

#include "app/model/words/QuickKeywords.h"
#include "core/language/Texts.h"
#include "ui/controls/ThemedMenu.h"

#include <QMenu>

namespace Quorbel {

using namespace Qt::StringLiterals;

void addQuickSets(QMenu& menu, QuickKeywords& quick)
{
    const auto add = [&](const QString& text, const QString& name) {
        QAction* action = menu.addAction(ThemedMenu::literal(text));
        action->setCheckable(true);
        action->setChecked(quick.current() == name);
        QObject::connect(action, &QAction::triggered, &quick, [&quick, name] { quick.show(name); });
    };
    //: The keywords that were used last.
    add(Texts::tr("Last used"), {});
    for (const QuickSet& set : quick.sets())
        add(set.name, set.name);
    menu.addSeparator();
    //: Set: of keywords.
    QObject::connect(menu.addAction(Texts::tr("New Set…")), &QAction::triggered, &quick, &QuickKeywords::beginNew);
    //: Set: of keywords.
    QAction* change = menu.addAction(Texts::tr("Edit Set…"));
    change->setEnabled(!quick.current().isEmpty());
    QObject::connect(change, &QAction::triggered, &quick, &QuickKeywords::beginChange);
}

}  // namespace Quorbel
