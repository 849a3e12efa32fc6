#include "app/shell/QuickKeywordsMenu.h"

#include "app/model/words/QuickKeywords.h"
#include "core/language/Texts.h"
#include "core/schema/KeywordPath.h"
#include "ui/controls/ThemedMenu.h"
#include "ui/inspector/keywords/QuickSetMenu.h"
#include "ui/window/Shortcuts.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

QuickKeywordsMenu::QuickKeywordsMenu(QuickKeywords& quick, ThemedMenu* menu)
    : QObject(menu)
    , m_quick(quick)
    , m_menu(menu->addThemedMenu(QString()))
{
    Shortcuts::name(*m_menu->menuAction(), Texts::mark("Quick &Keywords"));
    // Later: what changes them may be one of these entries.
    connect(&m_quick, &QuickKeywords::changed, this, &QuickKeywordsMenu::fill, Qt::QueuedConnection);
    fill();
}

void QuickKeywordsMenu::fill()
{
    m_menu->clear();
    const QStringList keywords = m_quick.keywords();
    for (int i = 0; i < int(keywords.size()); ++i) {
        const bool hasKey = i < QuickKeywords::withKeys;
        const auto path = KeywordPath::fromTyped(keywords.at(i));
        m_menu->addCommand(ThemedMenu::literal(path ? KeywordPath::shown(*path) : keywords.at(i)),
            hasKey ? QList<QKeySequence>{ QKeyCombination(Qt::ALT, Qt::Key(Qt::Key_1 + i)) } : QList<QKeySequence>(),
            [this, i] { m_quick.give(i); });
    }
    m_menu->addSeparator();
    addQuickSets(*m_menu, m_quick);
}

}  // namespace Quorbel
