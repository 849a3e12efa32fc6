#include "app/shell/HandsMenu.h"

#include "app/model/AppModel.h"
#include "core/language/Texts.h"
#include "core/schema/FieldID.h"
#include "ui/controls/ThemedMenu.h"
#include "ui/window/ContentView.h"
#include "ui/window/Shortcuts.h"

#include <QActionGroup>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostStars = 5;

QString starsText(int stars)
{
    return stars == 0 ? Texts::tr("N&o Stars") : Texts::tr("&%n Star(s)", nullptr, stars);
}

}  // namespace

HandsMenu::HandsMenu(AppModel& model, ContentView& content)
    : QObject(&content)
    , m_model(model)
    , m_content(content)
{
    for (const auto change : { &AppModel::recordsChanged, &AppModel::selectionChanged, &AppModel::primaryChanged,
             &AppModel::visibleRowsChanged, &AppModel::folderGroupsChanged, &AppModel::unreadSelectedChanged,
             &AppModel::unsavedCountChanged })
        connect(&model, change, this, &HandsMenu::followState);
}

void HandsMenu::addToFile(ThemedMenu* menu)
{
    m_saveAndGoOn = Shortcuts::addCommand(*menu, Texts::mark("Save and Ne&xt Photo"),
        { Qt::CTRL | Qt::Key_Return, Qt::CTRL | Qt::Key_Enter }, [this] { m_content.saveAndGoOn(); });
    followState();
}

void HandsMenu::addToEdit(ThemedMenu* menu)
{
    addRating(menu);
    m_sameAsBefore = Shortcuts::addCommand(*menu, Texts::mark("Same as Photo Be&fore"),
        { Qt::CTRL | Qt::Key_Apostrophe }, [this] { m_content.takeFromPhotoBefore(); });
    // Where no field has the keyboard there is nothing to fill; the keys are let through once the menu is closed.
    connect(menu, &QMenu::aboutToShow, this,
        [this] { m_sameAsBefore->setEnabled(m_model.hasPhotoBefore() && m_content.hasField()); });
    connect(menu, &QMenu::aboutToHide, this, &HandsMenu::followState, Qt::QueuedConnection);
    followState();
}

void HandsMenu::addRating(ThemedMenu* menu)
{
    m_rating = menu->addThemedMenu(QString());
    Shortcuts::name(*m_rating->menuAction(), Texts::mark("Rati&ng"));
    auto* group = new QActionGroup(m_rating);
    group->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    for (int stars = 0; stars <= mostStars; ++stars) {
        QAction* action = m_rating->addCommand(starsText(stars), { Qt::CTRL | Qt::ALT | Qt::Key(Qt::Key_0 + stars) },
            [this, stars] { m_model.rate(stars); });
        action->setCheckable(true);
        group->addAction(action);
    }
    connect(m_rating, &QMenu::aboutToShow, this, &HandsMenu::showRating);
}

// The stars that all selected photos have have the tick.
void HandsMenu::showRating()
{
    const bool isTicked = m_model.batchInclude().contains(FieldID::rating);
    const std::optional<QString> shown = !m_model.isBatch() ? m_model.draftValues().value(FieldID::rating)
        : isTicked                                          ? m_model.batchValues().value(FieldID::rating)
                                                            : m_model.sharedValue(FieldID::rating);
    const QList<QAction*> actions = m_rating->actions();
    for (int stars = 0; stars <= mostStars; ++stars)
        actions.at(stars)->setChecked(shown && (*shown == QString::number(stars) || (stars == 0 && shown->isEmpty())));
}

void HandsMenu::addToView(ThemedMenu* menu)
{
    m_next = Shortcuts::addCommand(
        *menu, Texts::mark("Ne&xt Photo"), { Qt::ALT | Qt::Key_Down }, [this] { m_content.step(1); });
    m_previous = Shortcuts::addCommand(
        *menu, Texts::mark("Previ&ous Photo"), { Qt::ALT | Qt::Key_Up }, [this] { m_content.step(-1); });
    m_look = Shortcuts::addCommand(
        *menu, Texts::mark("&Look Closely"), { Qt::Key_F11 }, [this] { m_content.toggleCloseup(); });
    followState();
}

void HandsMenu::followState()
{
    const bool isSelected = !m_model.selection().isEmpty();
    if (m_saveAndGoOn)
        m_saveAndGoOn->setEnabled(isSelected);
    if (m_rating) {
        const bool isRead = m_model.isBatch() || m_model.unreadSelected() == 0;
        for (QAction* action : m_rating->actions())
            action->setEnabled(isSelected && isRead);
        m_rating->menuAction()->setEnabled(isSelected && isRead);
    }
    if (m_sameAsBefore)
        m_sameAsBefore->setEnabled(m_model.hasPhotoBefore());
    if (m_next) {
        m_next->setEnabled(m_model.canStep(1));
        m_previous->setEnabled(m_model.canStep(-1));
        m_look->setEnabled(isSelected);
    }
}

}  // namespace Quorbel
