#include "ui/inspector/FormPause.h"

#include <QApplication>

namespace Quorbel {

FormPause::FormPause(QWidget* form)
    : QObject(form)
    , m_form(form)
{
}

void FormPause::begin()
{
    if (std::exchange(m_isOn, true))
        return;
    if (const QWidget* viewport = m_form->parentWidget())
        m_leastHeight = viewport->height() - m_form->y();
    QWidget* focus = QApplication::focusWidget();
    if (!focus || !m_form->isAncestorOf(focus))
        return;
    m_keyboard = focus;
    m_form->setFocus(Qt::OtherFocusReason);
}

void FormPause::end(QWidget* fallback)
{
    if (!std::exchange(m_isOn, false))
        return;
    const QPointer<QWidget> before = std::exchange(m_keyboard, nullptr);
    if (m_form->hasFocus()) {
        QWidget* next = before && before->isVisible() && before->isEnabled() ? before.data() : fallback;
        if (next)
            next->setFocus(Qt::OtherFocusReason);
    }
    // Later: what took the place back is laid out first.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (m_isOn)
                return;
            m_leastHeight = 0;
            m_form->updateGeometry();
        },
        Qt::QueuedConnection);
}

}  // namespace Quorbel
