// Things that are on or off: check box, switch.
// Thread: the main thread.
#pragma once

#include "ui/controls/Buttons.h"
#include "ui/controls/theme/AnimatedValue.h"

namespace Quorbel {

/// A small rounded square that shows a state. It only shows: a click or Space emits clicked(), and whoever listens
/// decides what `checked` becomes. An optional title at its right belongs to the click area.
class QBCheckbox final : public ThemedButton {
    Q_OBJECT
    Q_PROPERTY(bool checked READ isChecked WRITE setChecked)

public:
    explicit QBCheckbox(QWidget* parent = nullptr);
    QBCheckbox(const QString& title, QWidget* parent);
    void setAmber(bool amber);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void nextCheckState() override { }

private:
    QRectF box() const;

    bool m_amber = false;
};

/// A switch, 34×20 points. It flips itself; toggled(bool) tells.
class QBSwitch final : public ThemedButton {
    Q_OBJECT

public:
    explicit QBSwitch(QWidget* parent = nullptr);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void checkStateSet() override;
    void nextCheckState() override;

private:
    void slide();

    AnimatedValue m_position;  ///< 0 off … 1 on, while it slides
};

}  // namespace Quorbel
