#include "ui/controls/SuggestionList.h"

#include "core/language/Texts.h"
#include "ui/controls/Accessibility.h"
#include "ui/controls/theme/HighContrast.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Shadow.h"
#include "ui/controls/theme/Theme.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr int shadowMargin = 25;  // device-independent pixels around the box
constexpr qreal widest = 320;  // points
constexpr qreal padding = 5;  // points, between the border and the rows
constexpr qreal tallRow = 44;  // points, with a subtitle
constexpr qreal flatRow = 28;  // points
constexpr int mostTallRows = 6;
constexpr int mostFlatRows = 8;

}  // namespace

SuggestionList::SuggestionList(QWidget* field)
    : QWidget(field)
    , m_field(field)
{
    installAccessibility();
    setMouseTracking(true);
    setAccessibleName(Texts::tr("Suggestions"));
    // While it is open it belongs to the window, and would outlive its field.
    connect(field, &QObject::destroyed, this, [this] {
        hide();
        deleteLater();
    });
    hide();
}

void SuggestionList::showRows(const QList<SuggestionRow>& rows)
{
    m_message.clear();
    if (rows.isEmpty())
        return dismiss();
    if (rows != m_rows || isHidden()) {
        m_rows = rows;
        setAccessibleName(Texts::tr("Suggestions"));
        m_current = -1;
        m_first = 0;
    }
    place();
}

void SuggestionList::showMessage(const QString& message)
{
    m_rows.clear();
    m_current = -1;
    m_first = 0;
    m_message = message;
    setAccessibleName(message);
    place();
    // A dead end: worth saying although the focus stays in the field.
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void SuggestionList::dismiss()
{
    m_rows.clear();
    m_message.clear();
    m_current = -1;
    if (isHidden())
        return;
    // Only while it is open: Qt offers Tab to a widget with a proxy, and takes one that is the field's child for a part
    // of the field, wherever it stands in the order.
    setFocusProxy(nullptr);
    setFocusPolicy(Qt::NoFocus);
    hide();
    for (QWidget* w = m_field; w; w = w->parentWidget())
        w->removeEventFilter(this);
    // Back to the field, so that it goes where the field goes.
    setParent(m_field);
}

int SuggestionList::rowHeight() const
{
    const bool tall =
        std::any_of(m_rows.cbegin(), m_rows.cend(), [](const SuggestionRow& row) { return !row.subtitle.isEmpty(); });
    return px(tall ? tallRow : flatRow);
}

int SuggestionList::visibleRows() const
{
    const int most = rowHeight() == px(tallRow) ? mostTallRows : mostFlatRows;
    return int(qMin(m_rows.size(), qsizetype(most)));
}

QRect SuggestionList::rowRect(int row) const
{
    const int inset = shadowMargin + px(padding);
    return { inset, inset + (row - m_first) * rowHeight(), width() - 2 * inset, rowHeight() };
}

int SuggestionList::rowAt(QPoint pos) const
{
    for (int row = m_first; row < m_first + visibleRows(); ++row) {
        if (rowRect(row).contains(pos))
            return row;
    }
    return -1;
}

void SuggestionList::place()
{
    if (!m_field)
        return;
    QWidget* window = m_field->window();
    if (parentWidget() != window)
        setParent(window);
    if (isHidden()) {
        for (QWidget* w = m_field; w; w = w->parentWidget())
            w->installEventFilter(this);
        // A click hands the focus to the field, which has it already: whatever lies behind must not get it.
        setFocusPolicy(Qt::ClickFocus);
        setFocusProxy(m_field);
    }
    const int rowsHeight = m_message.isEmpty() ? visibleRows() * rowHeight() : px(flatRow);
    const int boxHeight = rowsHeight + 2 * px(padding);
    const int boxWidth = qMin(px(widest), qMax(m_field->width(), px(200)));
    const QPoint topLeft = m_field->mapTo(window, QPoint(0, 0));
    int y = topLeft.y() + m_field->height() + px(4);
    if (y + boxHeight > window->height() && topLeft.y() - px(4) - boxHeight >= 0)
        y = topLeft.y() - px(4) - boxHeight;
    const int start = isRightToLeft() ? topLeft.x() + m_field->width() - boxWidth : topLeft.x();
    const int x = qBound(0, start, qMax(0, window->width() - boxWidth));
    setGeometry(QRect(x, y, boxWidth, boxHeight).adjusted(-shadowMargin, -shadowMargin, shadowMargin, shadowMargin));
    show();
    raise();
    update();
}

bool SuggestionList::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
        if (!isHidden())
            place();
        break;
    case QEvent::Hide:
    case QEvent::Close:
    case QEvent::WindowDeactivate:
        dismiss();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void SuggestionList::setCurrentRow(int row)
{
    if (row == m_current || row >= m_rows.size())
        return;
    m_current = row;
    if (row >= 0)
        m_first = qBound(row - visibleRows() + 1, m_first, row);
    update();
    if (row < 0)
        return;
    // The focus stays in the field; this tells a screen reader which row the arrow keys have come to.
    QAccessibleEvent event(this, QAccessible::Focus);
    event.setChild(row);
    QAccessible::updateAccessibility(&event);
}

bool SuggestionList::handleKey(QKeyEvent* event)
{
    if (isHidden())
        return false;
    const int last = int(m_rows.size()) - 1;
    switch (event->key()) {
    case Qt::Key_Escape:
        dismiss();
        return true;
    case Qt::Key_Down:
        setCurrentRow(m_current >= last ? 0 : m_current + 1);
        return true;
    case Qt::Key_Up:
        setCurrentRow(m_current <= 0 ? last : m_current - 1);
        return true;
    case Qt::Key_PageDown:
        setCurrentRow(qMin(last, m_current + visibleRows()));
        return true;
    case Qt::Key_PageUp:
        setCurrentRow(qMax(0, m_current - visibleRows()));
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_current < 0)
            return false;
        emit activated(m_current);
        return true;
    default:
        return false;
    }
}

void SuggestionList::paintEvent(QPaintEvent*)
{
    if (!m_field)
        return;
    const Theme& theme = Theme::of(m_field);
    DirectedPainter painter(this);
    const QRectF box = QRectF(rect()).adjusted(shadowMargin, shadowMargin, -shadowMargin, -shadowMargin);
    paintShadow(painter, box, pxF(9), Shadow::dropdown, theme);
    paintBox(painter, box, pxF(9), theme.panel, QPen(theme.line, 1));
    if (!m_message.isEmpty()) {
        painter.setFont(sansFont(12));
        painter.setPen(theme.derived.label);
        const QRectF line = box.adjusted(pxF(padding + 10), 0, -pxF(padding + 10), 0);
        const QString shown = QFontMetrics(painter.font()).elidedText(m_message, Qt::ElideRight, int(line.width()));
        painter.drawText(line, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, shown);
        return;
    }
    for (int row = m_first; row < m_first + visibleRows(); ++row)
        paintRow(painter, row);
    if (m_rows.size() > visibleRows()) {
        const qreal room = box.height() - 2 * pxF(padding);
        const qreal length = room * visibleRows() / m_rows.size();
        const qreal top = box.top() + pxF(padding) + room * m_first / m_rows.size();
        const QRectF thumb(box.right() - pxF(5), top, pxF(3), length);
        paintBox(painter, mirrored(thumb, this), pxF(1.5), theme.scroll, Qt::NoPen);
    }
}

void SuggestionList::paintRow(QPainter& painter, int row)
{
    const Theme& theme = Theme::of(m_field);
    const QRect cell = rowRect(row);
    if (row == m_current)
        paintBox(painter, cell, pxF(6), theme.derived.hover, HighContrast::groundEdge(theme));
    const QRect text = cell.adjusted(px(10), 0, -px(10), 0);
    const auto line = [&](const QString& content, qreal points, const QColor& color, const QRect& where,
                          Qt::TextElideMode elided = Qt::ElideRight) {
        painter.setFont(verbatimFont(points));
        painter.setPen(color);
        const QString shown = QFontMetrics(painter.font()).elidedText(content, elided, where.width());
        painter.drawText(where, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, shown);
    };
    const SuggestionRow& content = m_rows.at(row);
    if (content.subtitle.isEmpty())
        return line(content.title, 13, theme.text, text);
    line(content.title, 13, theme.text, QRect(text.left(), text.top() + px(5), text.width(), px(18)));
    line(content.subtitle, 11, content.isPath ? theme.derived.label : theme.muted,
        QRect(text.left(), text.top() + px(23), text.width(), px(16)),
        content.isPath ? Qt::ElideMiddle : Qt::ElideRight);
}

void SuggestionList::mouseMoveEvent(QMouseEvent* event)
{
    const int row = rowAt(event->position().toPoint());
    if (row >= 0)
        setCurrentRow(row);
}

void SuggestionList::mousePressEvent(QMouseEvent* event)
{
    if (rowAt(event->position().toPoint()) < 0 && m_message.isEmpty())
        dismiss();
}

void SuggestionList::mouseReleaseEvent(QMouseEvent* event)
{
    const int row = rowAt(event->position().toPoint());
    if (row >= 0 && event->button() == Qt::LeftButton)
        emit activated(row);
}

void SuggestionList::wheelEvent(QWheelEvent* event)
{
    const int step = event->angleDelta().y() > 0 ? -1 : 1;
    m_first = qBound(0, m_first + step, int(m_rows.size()) - visibleRows());
    update();
    event->accept();
}

}  // namespace Quorbel
