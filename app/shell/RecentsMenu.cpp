#include "app/shell/RecentsMenu.h"

#include "app/model/AppModel.h"
#include "core/language/Texts.h"
#include "ui/controls/ThemedMenu.h"

#include <QDir>

namespace Quorbel {

namespace {

// A path as people write it: their home is "~".
QString shownPath(const QUrl& url)
{
    const QString path = url.toLocalFile();
    const QString home = QDir::homePath();
    return path.startsWith(home + QLatin1Char('/')) ? QLatin1Char('~') + path.mid(home.size()) : path;
}

}  // namespace

RecentsMenu::RecentsMenu(AppModel& model, ThemedMenu* menu)
    : QObject(menu)
    , m_model(model)
    , m_menu(menu->addThemedMenu(Texts::tr("Open &Recent")))
{
    connect(m_menu, &QMenu::aboutToShow, this, &RecentsMenu::fill);
    connect(&m_model.preferences(), &Preferences::changed, this, &RecentsMenu::fill);
    fill();
}

void RecentsMenu::fill()
{
    m_menu->clear();
    const QList<QUrl> urls = m_model.recentURLs();
    for (const QUrl& url : urls)
        m_menu->addCommand(ThemedMenu::literal(shownPath(url)), {}, [this, url] { m_model.openRecent(url); });
    m_menu->addSeparator();
    m_menu->addCommand(Texts::tr("Clear Menu", "verb: empty it"), {}, [this] { m_model.clearRecents(); });
    m_menu->menuAction()->setEnabled(!urls.isEmpty());
}

}  // namespace Quorbel
