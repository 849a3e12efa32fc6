#include "ui/inspector/iptc/MemberLanguages.h"

#include "core/language/Texts.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/cards/CardRow.h"

#include <QAction>
#include <QApplication>
#include <QEvent>

namespace Quorbel {

using namespace Qt::StringLiterals;

MemberLanguages::MemberLanguages(CardRow& row)
    : QObject(&row)
    , m_row(row)
    , m_plus(new QBIconButton(u"plus"_s, Texts::tr("Add language"), &row))
    , m_add(new QAction(Texts::tr("Add Language…"), row.input()))
{
    m_plus->setSizes({ 22, 22 }, 12, 2.1, 6);
    m_plus->setFocusPolicy(Qt::NoFocus);  // the keyboard has Alt+Right
    m_plus->hide();
    row.setAtLabel(m_plus);
    row.installEventFilter(this);
    m_add->setShortcut(Qt::ALT | Qt::Key_Right);
    m_add->setShortcutContext(Qt::WidgetShortcut);
    m_plus->setHint(m_add->shortcut().toString(QKeySequence::NativeText));
    row.input()->addAction(m_add);
    connect(m_plus, &QAbstractButton::clicked, this, &MemberLanguages::asked);
    connect(m_add, &QAction::triggered, this, &MemberLanguages::asked);
    connect(qApp, &QApplication::focusChanged, this, &MemberLanguages::offer);
}

void MemberLanguages::setReadOnly(bool on)
{
    m_add->setEnabled(!on);
    offer();
}

void MemberLanguages::offer()
{
    const QWidget* focus = QApplication::focusWidget();
    m_plus->setVisible(m_add->isEnabled() && (m_isHovered || (focus && m_row.isAncestorOf(focus))));
}

bool MemberLanguages::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Enter || event->type() == QEvent::Leave) {
        m_isHovered = event->type() == QEvent::Enter;
        offer();
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace Quorbel
