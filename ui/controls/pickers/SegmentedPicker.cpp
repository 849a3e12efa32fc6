#include "ui/controls/pickers/SegmentedPicker.h"

#include "ui/controls/Accessibility.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace Quorbel {

SegmentedPicker::SegmentedPicker(const QStringList& titles, QWidget* parent)
    : QWidget(parent)
    , m_titles(titles)
{
    installAccessibility();
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    onRestyle(this, [this] {
        setFont(sansFont(13));
        updateGeometry();
    });
    installFocusRing(this, { RingShape::tight, 7, {}, {} });
}

void SegmentedPicker::setCurrentIndex(int index)
{
    m_current = index;
    update();
}

void SegmentedPicker::setWidth(qreal width)
{
    m_width = width;
    updateGeometry();
}

void SegmentedPicker::setMono(bool mono)
{
    m_isMono = mono;
    update();
}

QSize SegmentedPicker::sizeHint() const
{
    return { px(m_width), px(30) };
}

QRectF SegmentedPicker::segment(int index) const
{
    const qreal inset = pxF(2);
    const qreal each = (width() - 2 * inset) / qMax(qsizetype(1), m_titles.size());
    return { inset + index * each, inset, each, height() - 2 * inset };
}

void SegmentedPicker::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    QPainter painter(this);
    painter.setOpacity(isEnabled() ? 1 : .42);
    paintBox(painter, rect(), pxF(7), theme.derived.hover, Qt::NoPen);
    for (int i = 0; i < m_titles.size(); ++i) {
        const QRectF box = segment(i);
        const bool on = i == m_current;
        if (on) {
            paintBox(painter, box.translated(0, 1), pxF(5), withAlpha(Qt::black, theme.isDark ? .3 : .08), Qt::NoPen);
            // A dark button would not stand out from this ground.
            const QColor edge = theme.isDark ? theme.derived.secondaryHoverLine : theme.btnLine;
            paintBox(painter, box, pxF(5), theme.isDark ? theme.btnLine : theme.btn, QPen(edge, .5));
        }
        painter.setFont(m_isMono ? monoFont(12.5) : sansFont(13, on ? QFont::Medium : QFont::Normal));
        painter.setPen(on ? theme.text : theme.derived.label);
        painter.drawText(box, Qt::AlignCenter | Qt::TextSingleLine, m_titles.at(i));
    }
}

void SegmentedPicker::mousePressEvent(QMouseEvent* event)
{
    for (int i = 0; i < m_titles.size(); ++i) {
        if (segment(i).contains(event->position()))
            pick(i);
    }
}

void SegmentedPicker::keyPressEvent(QKeyEvent* event)
{
    const int last = int(m_titles.size()) - 1;
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        return pick(qBound(0, m_current + (mirrored ? 1 : -1), last));
    case Qt::Key_Right:
    case Qt::Key_Down:
        return pick(qBound(0, m_current + (mirrored ? -1 : 1), last));
    case Qt::Key_Home:
        return pick(0);
    case Qt::Key_End:
        return pick(last);
    default:
        QWidget::keyPressEvent(event);
    }
}

void SegmentedPicker::pick(int index)
{
    if (index == m_current)
        return;
    setCurrentIndex(index);
    if (hasFocus())
        tellFocus();
    emit picked(index);
}

void SegmentedPicker::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    tellFocus();
}

// The keys go to the choice.
void SegmentedPicker::tellFocus()
{
    QAccessibleEvent event(this, QAccessible::Focus);
    event.setChild(m_current);
    QAccessible::updateAccessibility(&event);
}

}  // namespace Quorbel
