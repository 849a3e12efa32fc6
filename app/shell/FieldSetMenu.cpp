#include "app/shell/FieldSetMenu.h"

#include "app/model/AppModel.h"
#include "app/model/fieldsets/FieldSets.h"
#include "core/language/Texts.h"
#include "ui/controls/ThemedMenu.h"

#include <QActionGroup>

namespace Quorbel {

using namespace Qt::StringLiterals;

FieldSetMenu::FieldSetMenu(AppModel& model, ThemedMenu* menu)
    : QObject(menu)
    , m_model(model)
    , m_menu(menu->addThemedMenu(Texts::tr("Field &Set")))
{
    // Later: what changes them may be one of these entries.
    connect(&m_model.fieldSets(), &FieldSets::changed, this, &FieldSetMenu::fill, Qt::QueuedConnection);
    connect(m_menu, &QMenu::aboutToShow, this, [this] {
        for (QAction* action : m_menu->actions())
            if (action->data().toBool())
                action->setEnabled(!m_model.selection().isEmpty());
    });
    fill();
}

void FieldSetMenu::fill()
{
    FieldSets& sets = m_model.fieldSets();
    m_menu->clear();
    auto* group = new QActionGroup(m_menu);
    const QStringList names = sets.names();
    const qsizetype firstOwn = FieldSetTexts::builtIn().size() + 1;  // behind the usual form and those that come along
    for (qsizetype i = 0; i < names.size(); ++i) {
        const QString& name = names.at(i);
        QAction* action = m_menu->addAction(ThemedMenu::literal(i < firstOwn ? Texts::shown(name) : name));
        action->setCheckable(true);
        action->setChecked(name == sets.current());
        group->addAction(action);
        connect(action, &QAction::triggered, &sets, [&sets, name] { sets.choose(name); });
    }
    m_menu->addSeparator();
    QAction* save = m_menu->addAction(Texts::tr("Save What Is on Screen as Set…"));
    save->setData(true);  // needs photos
    connect(save, &QAction::triggered, &sets, &FieldSets::editWhatIsShown);
    connect(m_menu->addAction(Texts::tr("Edit Sets…")), &QAction::triggered, &sets, &FieldSets::edit);
}

}  // namespace Quorbel
