// The shades of what lies under the pointer or is pressed. Thread: the main thread. Draws nothing itself.
#pragma once

#include "ui/controls/theme/AnimatedValue.h"

#include <QObject>

namespace Quorbel {

/// Where a press or the pointer is, eased over time; shared by everything that can be hovered.
class HoverFade final : public QObject {
    Q_OBJECT

public:
    explicit HoverFade(QWidget* widget);
    qreal hover() const { return m_hover.value(); }  ///< 0…1
    qreal pressed() const { return m_pressed.value(); }  ///< 0…1
    void setPressed(bool on);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setHover(bool on);

    QWidget* m_widget;
    AnimatedValue m_hover;
    AnimatedValue m_pressed;
};

}  // namespace Quorbel
