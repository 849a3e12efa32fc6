// A rating in stars. Thread: the main thread.
#pragma once

#include <QWidget>

namespace Quorbel {

/// Five stars in a row 30 points high. The value is the decimal number of stars as text; "0" means none. Clicking the
/// current rating clears it; the digits 0 to 5 set it, Left and Right change it by one.
class RatingEditor final : public QWidget {
    Q_OBJECT

public:
    explicit RatingEditor(QWidget* parent = nullptr);
    const QString& value() const { return m_value; }
    /// Shows a value; emits nothing. What is not a decimal integer shows no stars.
    void setValue(const QString& value);
    void setEdited(bool edited);
    /// As QBTextField::setWanted(): while there is no value, the stars stand within a dashed border.
    void setWanted(bool wanted);
    /// 28 points high, with smaller stars closer together: in a row of a menu.
    void setSmall(bool on);
    /// The stars shown, 0…5.
    int rating() const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    /// As a user's choice: shows it and emits valueEdited() if it differs.
    void choose(int stars);

signals:
    void valueEdited(const QString& value);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QRectF cell(int star) const;  ///< 1…5
    int starAt(QPointF pos) const;  ///< 0 when none

    QString m_value;
    bool isGap() const { return m_wanted && m_value.isEmpty(); }

    bool m_edited = false;
    bool m_wanted = false;
    bool m_small = false;
    int m_hovered = 0;
    int m_pressed = 0;
};

}  // namespace Quorbel
