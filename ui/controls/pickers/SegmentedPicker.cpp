#include "ui/controls/pickers/SegmentedPicker.h"

#include "ui/controls/Accessibility.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/HighContrast.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace Quorbel {

namespace {

// Points.
constexpr qreal inset = 2;
constexpr qreal titleSide = 9;
constexpr qreal monoSize = 12.5;

}  // namespace

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

// What each title needs, in the heavier letters of a chosen one.
QList<qreal> SegmentedPicker::needs() const
{
    const QFontMetricsF metrics(m_isMono ? monoFont(monoSize) : sansFont(13, QFont::Medium));
    QList<qreal> widths;
    for (const QString& title : m_titles)
        widths.append(metrics.horizontalAdvance(title) + 2 * pxF(titleSide));
    return widths;
}

QSize SegmentedPicker::sizeHint() const
{
    const QList<qreal> widths = needs();
    const qreal all = std::accumulate(widths.cbegin(), widths.cend(), 2 * pxF(inset));
    return { qMax(px(m_width), int(std::ceil(all))), px(30) };
}

// All as wide as each other, unless one needs more than its share.
QRectF SegmentedPicker::segment(int index) const
{
    const qreal room = width() - 2 * pxF(inset);
    const qreal share = room / qMax(qsizetype(1), m_titles.size());
    const QList<qreal> widths = needs();
    QRectF box(pxF(inset) + index * share, pxF(inset), share, height() - 2 * pxF(inset));
    if (std::any_of(widths.cbegin(), widths.cend(), [share](qreal width) { return width > share; })) {
        const auto own = widths.cbegin() + index;
        const qreal all = std::accumulate(widths.cbegin(), widths.cend(), 0.0);
        box.setLeft(pxF(inset) + std::accumulate(widths.cbegin(), own, 0.0) * room / all);
        box.setWidth(*own * room / all);
    }
    return mirrored(box, this);
}

void SegmentedPicker::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    painter.setOpacity(isEnabled() ? 1 : HighContrast::disabledOpacity(theme));
    paintBox(painter, rect(), pxF(7), HighContrast::isOn(theme) ? theme.btn : theme.derived.hover,
        HighContrast::groundEdge(theme));
    for (int i = 0; i < m_titles.size(); ++i) {
        const QRectF box = segment(i);
        const bool on = i == m_current;
        QColor ink = on ? theme.text : theme.derived.label;
        if (on && HighContrast::isOn(theme)) {
            paintBox(painter, box, pxF(5), theme.sel, Qt::NoPen);
            ink = theme.selText;
        } else if (on) {
            paintBox(painter, box.translated(0, 1), pxF(5), withAlpha(Qt::black, theme.isDark ? .3 : .08), Qt::NoPen);
            // A dark button would not stand out from this ground.
            const QColor edge = theme.isDark ? theme.derived.secondaryHoverLine : theme.btnLine;
            paintBox(painter, box, pxF(5), theme.isDark ? theme.btnLine : theme.btn, QPen(edge, .5));
        }
        painter.setFont(m_isMono ? monoFont(monoSize) : sansFont(13, on ? QFont::Medium : QFont::Normal));
        painter.setPen(ink);
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
    switch (mirroredKey(event->key(), this)) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        return pick(qMax(0, m_current - 1));
    case Qt::Key_Right:
    case Qt::Key_Down:
        return pick(qMin(m_current + 1, last));
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
