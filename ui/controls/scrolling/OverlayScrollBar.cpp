#include "ui/controls/scrolling/OverlayScrollBar.h"

#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QAbstractItemModel>
#include <QAbstractScrollArea>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionViewItem>

namespace Quorbel {

namespace {
constexpr int restMilliseconds = 800;
constexpr qreal stripWidth = 10;  // points
constexpr qreal thumbWidth = 6;  // points
constexpr qreal smallestThumb = 28;  // points
}  // namespace

OverlayScrollBar* OverlayScrollBar::attach(QAbstractScrollArea* area)
{
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    return new OverlayScrollBar(area);
}

int OverlayScrollBar::room()
{
    return px(stripWidth);
}

QRectF OverlayScrollBar::rowBeside(const QStyleOptionViewItem& option, const QModelIndex& index, int mostRows)
{
    QRectF row(option.rect);
    if (index.model()->rowCount() > mostRows)
        row.setRight(row.right() - room());
    return mirrored(row, QRectF(option.rect), option.direction);
}

OverlayScrollBar::OverlayScrollBar(QAbstractScrollArea* area)
    : QWidget(area)
    , m_area(area)
    , m_opacity(this, Duration::column)
{
    m_rest.setSingleShot(true);
    m_rest.setInterval(restMilliseconds);
    connect(&m_rest, &QTimer::timeout, this, [this] {
        if (!m_hovered && m_grab < 0)
            m_opacity.moveTo(0);
    });
    QScrollBar* bar = area->verticalScrollBar();
    connect(bar, &QScrollBar::valueChanged, this, &OverlayScrollBar::reveal);
    connect(bar, &QScrollBar::rangeChanged, this, &OverlayScrollBar::reveal);
    area->installEventFilter(this);
    area->viewport()->installEventFilter(this);
    place();
}

bool OverlayScrollBar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show)
        place();
    return QWidget::eventFilter(watched, event);
}

void OverlayScrollBar::place()
{
    const int width = room();
    setGeometry(mirrored(QRect(m_area->width() - width, 0, width, m_area->height()), m_area));
    const QScrollBar* bar = m_area->verticalScrollBar();
    setVisible(bar->maximum() > bar->minimum());
    raise();
}

QRectF OverlayScrollBar::thumb() const
{
    const QScrollBar* bar = m_area->verticalScrollBar();
    const qreal range = bar->maximum() - bar->minimum();
    const qreal room = height() - 2 * pxF(3);
    const qreal length = qMax(pxF(smallestThumb), room * bar->pageStep() / (range + bar->pageStep()));
    const qreal top = range > 0 ? (room - length) * (bar->value() - bar->minimum()) / range : 0;
    return mirrored(QRectF(width() - pxF(thumbWidth) - 2, pxF(3) + top, pxF(thumbWidth), length), this);
}

void OverlayScrollBar::reveal()
{
    place();
    m_opacity.jumpTo(1);
    m_rest.start();
    update();
}

void OverlayScrollBar::paintEvent(QPaintEvent*)
{
    if (m_opacity.value() <= 0)
        return;
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    painter.setOpacity(m_opacity.value());
    const QColor color = m_hovered || m_grab >= 0 ? theme.derived.scrollHover : theme.scroll;
    paintBox(painter, thumb(), pxF(thumbWidth) / 2, color, Qt::NoPen);
}

void OverlayScrollBar::mousePressEvent(QMouseEvent* event)
{
    const QRectF grip = thumb();
    const qreal y = event->position().y();
    if (y < grip.top() || y > grip.bottom()) {
        QScrollBar* bar = m_area->verticalScrollBar();
        bar->setValue(bar->value() + (y < grip.top() ? -bar->pageStep() : bar->pageStep()));
        return;
    }
    m_grab = int(y - grip.top());
    update();
}

void OverlayScrollBar::mouseMoveEvent(QMouseEvent* event)
{
    if (m_grab < 0)
        return;
    QScrollBar* bar = m_area->verticalScrollBar();
    const qreal room = height() - 2 * pxF(3) - thumb().height();
    if (room <= 0)
        return;
    const qreal part = (event->position().y() - m_grab - pxF(3)) / room;
    bar->setValue(bar->minimum() + qRound(part * (bar->maximum() - bar->minimum())));
}

void OverlayScrollBar::mouseReleaseEvent(QMouseEvent*)
{
    m_grab = -1;
    m_rest.start();
    update();
}

void OverlayScrollBar::enterEvent(QEnterEvent*)
{
    m_hovered = true;
    m_opacity.jumpTo(1);
}

void OverlayScrollBar::leaveEvent(QEvent*)
{
    m_hovered = false;
    m_rest.start();
    update();
}

}  // namespace Quorbel
