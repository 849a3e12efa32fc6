#include "ui/controls/ResizeHandle.h"

#include "core/language/Texts.h"
#include "ui/controls/Accessibility.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace Quorbel {

using namespace Qt::StringLiterals;

ResizeHandle::ResizeHandle(double width, double minWidth, double maxWidth, double defaultWidth, QWidget* parent)
    : QWidget(parent)
    , m_width(qBound(minWidth, width, maxWidth))
    , m_minWidth(minWidth)
    , m_maxWidth(maxWidth)
    , m_defaultWidth(defaultWidth)
{
    installAccessibility();
    setCursor(Qt::SplitHCursor);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    //: The line between two columns of the window, which one drags.
    setAccessibleName(Texts::tr("Column width"));
    onRestyle(this, [this] { updateGeometry(); });
}

QSize ResizeHandle::sizeHint() const
{
    return { px(7), px(40) };
}

void ResizeHandle::change(double width)
{
    const double bounded = qBound(m_minWidth, width, m_maxWidth);
    if (bounded == m_width)
        return;
    m_width = bounded;
    emit widthChanged(m_width);
}

void ResizeHandle::choose(double width)
{
    change(width);
    emit widthSettled(m_width);
}

int ResizeHandle::lineWidth() const
{
    return m_hovered || m_dragStart || hasFocus() ? 3 : 1;
}

void ResizeHandle::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    painter.fillRect(rect(), theme.bg);
    const QColor active = hasFocus() ? theme.derived.focusStrong : theme.focus;
    const QRect line = rect().adjusted(width() - lineWidth(), 0, 0, 0);
    painter.fillRect(mirrored(line, this), lineWidth() > 1 ? active : theme.line);
}

void ResizeHandle::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_dragStart = m_width;
    m_pressX = event->globalPosition().x();
    update();
}

void ResizeHandle::mouseMoveEvent(QMouseEvent* event)
{
    if (m_dragStart)
        change(*m_dragStart + (isRightToLeft() ? -1 : 1) * (event->globalPosition().x() - m_pressX) / textScale());
}

void ResizeHandle::mouseReleaseEvent(QMouseEvent*)
{
    if (!m_dragStart)
        return;
    m_dragStart.reset();
    update();
    emit widthSettled(m_width);
}

void ResizeHandle::mouseDoubleClickEvent(QMouseEvent*)
{
    choose(m_defaultWidth);
}

void ResizeHandle::keyPressEvent(QKeyEvent* event)
{
    const double step = event->modifiers().testFlag(Qt::ControlModifier) ? 1 : 10;
    switch (mirroredKey(event->key(), this)) {
    case Qt::Key_Left:
        change(m_width - step);
        break;
    case Qt::Key_Right:
        change(m_width + step);
        break;
    case Qt::Key_Home:
        change(m_minWidth);
        break;
    case Qt::Key_End:
        change(m_maxWidth);
        break;
    default:
        return QWidget::keyPressEvent(event);
    }
    emit widthSettled(m_width);
}

void ResizeHandle::enterEvent(QEnterEvent*)
{
    m_hovered = true;
    update();
}

void ResizeHandle::leaveEvent(QEvent*)
{
    m_hovered = false;
    update();
}

void ResizeHandle::focusInEvent(QFocusEvent*)
{
    update();
}

void ResizeHandle::focusOutEvent(QFocusEvent*)
{
    update();
}

}  // namespace Quorbel
