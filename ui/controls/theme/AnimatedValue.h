// A number that a widget paints or lays itself out with, and that moves from one value to the next in a short time.
// Thread: the main thread. Every motion in the program is one of these, and so follows the desktop's wish for none.
#pragma once

#include <QEasingCurve>
#include <QPointer>

#include <functional>

class QVariantAnimation;
class QWidget;

namespace Quorbel {

class AnimatedValue final {
    Q_DISABLE_COPY_MOVE(AnimatedValue)

public:
    /// A member of what belongs to the widget. `changed` is called after every change; it repaints the widget when
    /// none is given.
    AnimatedValue(QWidget* widget, int milliseconds, QEasingCurve::Type easing = QEasingCurve::Linear,
        std::function<void()> changed = {});
    ~AnimatedValue();

    qreal value() const { return m_value; }
    /// Moves from where it is now; at once while the widget is not on screen, or where the desktop asks for no
    /// animations. `arrived` is called once it is there, and not at all when it is sent elsewhere before.
    void moveTo(qreal target, std::function<void()> arrived = {});
    void jumpTo(qreal value);

private:
    void stop();
    void set(qreal value);

    QWidget* m_widget;
    int m_milliseconds;
    QEasingCurve::Type m_easing;
    std::function<void()> m_changed;
    qreal m_value = 0;
    QPointer<QVariantAnimation> m_running;
};

}  // namespace Quorbel
