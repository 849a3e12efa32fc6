#include "ui/controls/attached/Popover.h"

#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/PopupFrame.h"
#include "ui/controls/theme/Theme.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScreen>

namespace Quorbel {

namespace {

// Points.
constexpr qreal gap = 6;  // between the anchor and the box
constexpr qreal edge = 4;  // left free at the window's edges
constexpr qreal least = 96;  // high, however little room there is

}  // namespace

Popover::Popover(QWidget* opener)
    : QWidget(opener, Qt::Popup)
    , m_opener(opener)
{
    PopupFrame::prepare(*this);
    setAttribute(Qt::WA_DeleteOnClose);
}

void Popover::open(const QRect& anchor, int width)
{
    m_anchor = anchor;
    m_width = width;
    place();
    show();
}

void Popover::place(bool sameSide)
{
    const QWidget* window = m_opener->window();
    const int free = px(edge);
    const QRect inWindow = QRect(window->mapToGlobal(QPoint()), window->size()).adjusted(free, free, -free, -free);
    const QRect screen = m_opener->screen()->availableGeometry();
    const QRect room = staysInWindow() ? inWindow & screen : screen;
    const int width = qMin(m_width, room.width());
    const int wanted = heightIn(width);
    const int below = room.bottom() - m_anchor.bottom() - px(gap);
    const int above = m_anchor.top() - px(gap) - room.top();
    if (!sameSide)
        m_isBelow = wanted <= below || below >= above;
    const int height = qMin(wanted, qMax(px(least), m_isBelow ? below : above));
    const int y = m_isBelow ? m_anchor.bottom() + 1 + px(gap) : m_anchor.top() - px(gap) - height;
    const QPoint last = room.bottomRight() - QPoint(width, height) + QPoint(1, 1);
    const int start = isRightToLeft() ? m_anchor.right() + 1 - width : m_anchor.left();
    const QPoint at(qMax(room.left(), qMin(start, last.x())), qMax(room.top(), qMin(y, last.y())));
    setGeometry(QRect(at, QSize(width, height)) + PopupFrame::room());
    arrange(box());
}

QRect Popover::box() const
{
    return rect() - PopupFrame::room();
}

void Popover::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void Popover::mousePressEvent(QMouseEvent* event)
{
    if (box().contains(event->position().toPoint()))
        return;
    const QRect opener(m_opener->mapToGlobal(QPoint()), m_opener->size());
    setAttribute(Qt::WA_NoMouseReplay, opener.contains(event->globalPosition().toPoint()));
    close();
}

void Popover::closeEvent(QCloseEvent* event)
{
    QWidget::closeEvent(event);
    emit closed();
}

void Popover::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    PopupFrame::shape(*this);
}

void Popover::paintEvent(QPaintEvent*)
{
    DirectedPainter painter(this);
    PopupFrame::paint(painter, box(), Theme::of(this));
}

}  // namespace Quorbel
