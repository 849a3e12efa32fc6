// The thin strip between two columns that makes the left one wider or narrower.
// Thread: the main thread. Knows nothing of the columns: it holds a number between two limits.
#pragma once

#include <QWidget>

#include <optional>

namespace Quorbel {

/// 7 points wide. Dragging, or Left and Right while it has the focus (10 points; 1 with Ctrl; Home and End to the
/// limits), changes the width within minWidth…maxWidth; double-click takes the default.
class ResizeHandle final : public QWidget {
    Q_OBJECT

public:
    ResizeHandle(double width, double minWidth, double maxWidth, double defaultWidth, QWidget* parent = nullptr);
    double columnWidth() const { return m_width; }  ///< points
    double minWidth() const { return m_minWidth; }
    double maxWidth() const { return m_maxWidth; }
    /// As a user's choice: takes the width, clamped, and emits both signals.
    void choose(double width);
    /// How much of the strip's right end is line now: 1 pixel at rest, 3 while it is pointed at, dragged or focused.
    int lineWidth() const;
    QSize sizeHint() const override;

signals:
    void widthChanged(double width);
    /// The drag or key press is over: the moment to store the width.
    void widthSettled(double width);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void change(double width);

    double m_width;
    double m_minWidth;
    double m_maxWidth;
    double m_defaultWidth;
    std::optional<double> m_dragStart;  ///< the column's width when the drag began
    double m_pressX = 0;  ///< global, device-independent pixels
    bool m_hovered = false;
};

}  // namespace Quorbel
