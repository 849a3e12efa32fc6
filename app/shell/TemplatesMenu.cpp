#include "app/shell/TemplatesMenu.h"

#include "app/model/AppModel.h"
#include "app/model/templates/Templates.h"
#include "core/language/Texts.h"
#include "ui/controls/ThemedMenu.h"
#include "ui/window/Shortcuts.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

TemplatesMenu::TemplatesMenu(AppModel& model, ThemedMenu* menu)
    : QObject(menu)
    , m_model(model)
    , m_menu(menu->addThemedMenu(QString()))
    , m_saveAsTemplate(new QAction(Texts::tr("Save as Template…"), this))  // outlives the others, which are made anew
{
    Shortcuts::name(*m_menu->menuAction(), Texts::mark("Te&mplates"));
    connect(m_saveAsTemplate, &QAction::triggered, this, [this] { m_model.templates().saveAsTemplate(); });
    connect(&m_model.templates().store(), &TemplateStore::changed, this, &TemplatesMenu::fill);
    connect(&m_model.templates(), &Templates::canApplyChanged, this, &TemplatesMenu::followState);
    for (const auto change : { &AppModel::selectionChanged, &AppModel::unreadSelectedChanged })
        connect(&m_model, change, this, &TemplatesMenu::followState);
    fill();
}

void TemplatesMenu::fill()
{
    m_menu->clear();
    for (const TemplateStore::Entry& entry : m_model.templates().store().all()) {
        QList<QKeySequence> keys;
        if (const int digit = entry.value().digit; digit > 0)
            keys.append(QKeySequence(Qt::CTRL | Qt::Key(Qt::Key_0 + digit)));
        const auto apply = [this, id = entry.id] { m_model.templates().apply(id); };
        m_menu->addCommand(ThemedMenu::literal(entry.value().name), keys, apply)->setData(entry.id);
    }
    m_menu->addSeparator();
    m_menu->addAction(m_saveAsTemplate);
    m_menu->addCommand(Texts::tr("Templates…"), {}, [this] { m_model.templates().setOpen(true); });
    followState();
}

void TemplatesMenu::followState()
{
    m_saveAsTemplate->setEnabled(m_model.templates().canSaveAsTemplate());
    for (QAction* action : m_menu->actions())
        if (action->data().isValid())
            action->setEnabled(m_model.templates().canApply());
}

}  // namespace Quorbel
