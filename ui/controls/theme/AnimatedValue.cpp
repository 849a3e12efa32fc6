#include "ui/controls/theme/AnimatedValue.h"

#include "ui/controls/theme/Metrics.h"

#include <QVariantAnimation>
#include <QWidget>

namespace Quorbel {

AnimatedValue::AnimatedValue(
    QWidget* widget, int milliseconds, QEasingCurve::Type easing, std::function<void()> changed)
    : m_widget(widget)
    , m_milliseconds(milliseconds)
    , m_easing(easing)
    , m_changed(std::move(changed))
{
}

AnimatedValue::~AnimatedValue()
{
    delete m_running.data();
}

void AnimatedValue::moveTo(qreal target, std::function<void()> arrived)
{
    stop();
    if (target == m_value || !m_widget->isVisible() || !motionEnabled(m_widget)) {
        jumpTo(target);
        if (arrived)
            arrived();
        return;
    }
    // Made when it is needed: most of what can move on screen never does.
    m_running = new QVariantAnimation(m_widget);
    m_running->setDuration(m_milliseconds);
    m_running->setEasingCurve(m_easing);
    m_running->setStartValue(m_value);
    m_running->setEndValue(target);
    QObject::connect(
        m_running, &QVariantAnimation::valueChanged, m_widget, [this](const QVariant& value) { set(value.toReal()); });
    if (arrived)
        QObject::connect(m_running, &QVariantAnimation::finished, m_widget, std::move(arrived));
    m_running->start(QAbstractAnimation::DeleteWhenStopped);
}

void AnimatedValue::jumpTo(qreal value)
{
    stop();
    if (value != m_value)
        set(value);
}

void AnimatedValue::stop()
{
    if (!m_running)
        return;
    // It deletes itself, later: this may be called by what it calls.
    m_running->disconnect();
    m_running->stop();
    m_running.clear();
}

void AnimatedValue::set(qreal value)
{
    m_value = value;
    if (m_changed)
        m_changed();
    else
        m_widget->update();
}

}  // namespace Quorbel
