// Edit ▸ Quick Keywords: one that is chosen is given to the selected photos. Thread: the main thread. Shows the model
// and calls it.
#pragma once

#include <QObject>

namespace Quorbel {

class QuickKeywords;
class ThemedMenu;

class QuickKeywordsMenu final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QuickKeywordsMenu)

public:
    /// Adds itself to the menu, which it belongs to.
    QuickKeywordsMenu(QuickKeywords& quick, ThemedMenu* menu);

private:
    void fill();

    QuickKeywords& m_quick;
    ThemedMenu* m_menu;
};

}  // namespace Quorbel
