// Things that are on or off, or one of several: check box, switch, segmented picker.
// Thread: the main thread.
#pragma once

#include "ui/controls/Buttons.h"
#include "ui/controls/theme/AnimatedValue.h"

#include <QStringList>

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

/// One of a few choices side by side, 216×30 points. Left and Right change it.
class SegmentedPicker final : public QWidget {
    Q_OBJECT

public:
    explicit SegmentedPicker(const QStringList& titles, QWidget* parent = nullptr);
    int currentIndex() const { return m_current; }
    /// Shows a choice; emits nothing.
    void setCurrentIndex(int index);
    const QStringList& titles() const { return m_titles; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    /// The user picked another choice.
    void picked(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void pick(int index);
    QRectF segment(int index) const;

    QStringList m_titles;
    int m_current = 0;
};

}  // namespace Quorbel
