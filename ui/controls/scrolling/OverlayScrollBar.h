// A thin scroll bar laid over the right edge of what it scrolls; fades out when nothing moves.
// Thread: the main thread.
#pragma once

#include "ui/controls/theme/AnimatedValue.h"

#include <QTimer>
#include <QWidget>

class QAbstractScrollArea;
class QModelIndex;
class QStyleOptionViewItem;

namespace Quorbel {

/// 6 points wide in a 10-point strip, no track, no arrows. Shown while scrolling, while the pointer is over it, and
/// for 800 ms after.
class OverlayScrollBar final : public QWidget {
    Q_OBJECT

public:
    /// Hides the area's own vertical scroll bar and lays one of these over it; owned by the area.
    static OverlayScrollBar* attach(QAbstractScrollArea* area);
    /// In pixels, what it lies over at the right: for content that must not lie under it.
    static int room();
    /// The row of a list beside it; one that scrolls when it has more rows than `mostRows`.
    static QRectF rowBeside(const QStyleOptionViewItem& option, const QModelIndex& index, int mostRows);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    explicit OverlayScrollBar(QAbstractScrollArea* area);
    QRectF thumb() const;
    void place();
    void reveal();

    QAbstractScrollArea* m_area;
    QTimer m_rest;
    AnimatedValue m_opacity;
    int m_grab = -1;  ///< y of the press within the thumb; -1 while not dragged
    bool m_hovered = false;
};

}  // namespace Quorbel
