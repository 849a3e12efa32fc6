#include "ui/controls/HoverFade.h"

#include "ui/controls/theme/Metrics.h"

#include <QEvent>
#include <QWidget>

namespace Quorbel {

HoverFade::HoverFade(QWidget* widget)
    : QObject(widget)
    , m_widget(widget)
    , m_hover(widget, Duration::hover, QEasingCurve::OutCubic)
    , m_pressed(widget, Duration::hover, QEasingCurve::OutCubic)
{
    widget->setAttribute(Qt::WA_Hover);
    widget->installEventFilter(this);
}

bool HoverFade::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Enter:
        setHover(m_widget->isEnabled());
        break;
    case QEvent::Leave:
    case QEvent::Hide:
        setHover(false);
        break;
    case QEvent::EnabledChange:
        setHover(m_widget->isEnabled() && m_widget->underMouse());
        if (!m_widget->isEnabled())
            setPressed(false);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void HoverFade::setHover(bool on)
{
    m_hover.moveTo(on ? 1 : 0);
}

void HoverFade::setPressed(bool on)
{
    m_pressed.moveTo(on ? 1 : 0);
}

}  // namespace Quorbel
