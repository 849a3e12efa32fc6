#include "ui/controls/WalkedFlow.h"

#include "core/language/Texts.h"
#include "ui/controls/FlowLayout.h"
#include "ui/controls/ReadingOrder.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"

#include <QAbstractButton>
#include <QKeyEvent>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

bool isSameLine(const QRect& a, const QRect& b)
{
    return a.top() <= b.center().y() && b.center().y() <= a.bottom();
}

QString moreText(int hidden)
{
    //: Button behind keywords: shows those that have no room.
    return Texts::tr("%n more", nullptr, hidden);
}

}  // namespace

WalkedFlow::WalkedFlow(qreal gap, QWidget* parent)
    : QWidget(parent)
    , m_gap(gap)
{
    describeInReadingOrder(staticMetaObject, QAccessible::Grouping);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    onRestyle(this, [this] { layOut(); });
}

void WalkedFlow::setItems(const QList<QWidget*>& items)
{
    const int focused = int(m_shown.indexOf(focusWidget()));
    const bool hadFocus = focused >= 0 && m_shown.at(focused)->hasFocus();
    for (QWidget* item : std::as_const(m_items))
        if (!items.contains(item))
            item->hide();
    for (QWidget* item : items) {
        if (item->parentWidget() != this)
            item->setParent(this);
        if (!m_items.contains(item)) {
            item->installEventFilter(this);
            item->setFocusPolicy(Qt::ClickFocus);
        }
    }
    m_items = items;
    layOut();
    // What had the keyboard is gone: its neighbour has it now.
    if (hadFocus && !m_shown.contains(focusWidget()))
        focusAt(focused);
}

void WalkedFlow::setMost(int lines, QAbstractButton* more, int beyond)
{
    if (more && more != m_more) {
        more->setParent(this);
        more->installEventFilter(this);
        more->setFocusPolicy(Qt::ClickFocus);
    }
    m_lines = lines;
    m_more = more;
    m_beyond = beyond;
    layOut();
}

QList<QWidget*> WalkedFlow::tabStops() const
{
    QList<QWidget*> stops = m_items;
    if (m_more)
        stops.append(m_more);
    return stops;
}

bool WalkedFlow::focusAt(int place)
{
    if (m_shown.isEmpty())
        return false;
    m_shown.at(qBound(0, place, int(m_shown.size()) - 1))->setFocus(Qt::OtherFocusReason);
    return true;
}

QSize WalkedFlow::sizeHint() const
{
    return { px(200), height() };
}

QSize WalkedFlow::minimumSizeHint() const
{
    return { px(60), height() };
}

// How many of the items there is room for, with what tells of the others behind them.
int WalkedFlow::fitting(int available) const
{
    QList<int> widths;
    for (const QWidget* item : m_items)
        widths.append(qMin(available, item->sizeHint().width()));
    if (m_lines == 0 || (m_beyond == 0 && FlowLayout::lines(widths, available, px(m_gap)) <= m_lines))
        return int(m_items.size());
    // Not by setting its text: each change would ask for another layout.
    const QFontMetrics metrics = m_more->fontMetrics();
    const int around = m_more->sizeHint().width() - metrics.horizontalAdvance(m_more->text());
    for (int count = int(widths.size()) - (m_beyond > 0 ? 0 : 1); count > 0; --count) {
        const QString text = moreText(int(m_items.size()) - count + m_beyond);
        const QList<int> line = widths.mid(0, count) << around + metrics.horizontalAdvance(text);
        if (FlowLayout::lines(line, available, px(m_gap)) <= m_lines)
            return count;
    }
    return qMin(1, int(m_items.size()));
}

void WalkedFlow::layOut()
{
    const int available = qMax(width(), minimumSizeHint().width());
    const int count = fitting(available);
    m_shown = m_items.mid(0, count);
    const int hidden = int(m_items.size()) - count + m_beyond;
    if (m_more) {
        m_more->setText(moreText(hidden));
        m_more->setVisible(hidden > 0);
        if (hidden > 0)
            m_shown.append(m_more);
    }
    for (QWidget* item : m_items.mid(count))
        item->hide();
    int x = 0;
    int y = 0;
    int lineHeight = 0;
    for (QWidget* item : std::as_const(m_shown)) {
        const QSize size = item->sizeHint().boundedTo({ available, QWIDGETSIZE_MAX });
        if (x > 0 && x + size.width() > available) {
            x = 0;
            y += lineHeight + px(m_gap);
            lineHeight = 0;
        }
        lineHeight = qMax(lineHeight, size.height());
        const int left = isRightToLeft() ? width() - x - size.width() : x;
        item->setGeometry(QRect(QPoint(left, y + (lineHeight - size.height()) / 2), size));
        item->show();
        x += size.width() + px(m_gap);
    }
    setFixedHeight(y + lineHeight);
    makeStop(m_shown.contains(m_stop) ? m_stop : m_shown.value(0));
}

void WalkedFlow::makeStop(QWidget* stop)
{
    if (m_stop && m_stop != stop)
        m_stop->setFocusPolicy(Qt::ClickFocus);
    m_stop = stop;
    if (m_stop)
        m_stop->setFocusPolicy(Qt::StrongFocus);
}

bool WalkedFlow::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest)  // controls have another size
        layOut();
    return QWidget::event(event);
}

void WalkedFlow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (event->oldSize().width() != width())
        layOut();
}

bool WalkedFlow::eventFilter(QObject* watched, QEvent* event)
{
    auto* item = qobject_cast<QWidget*>(watched);
    const int place = int(m_shown.indexOf(item));
    if (event->type() == QEvent::FocusIn && place >= 0)
        makeStop(item);
    if (event->type() == QEvent::KeyPress && place >= 0) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (!(key->modifiers() & ~Qt::KeypadModifier) && walk(place, key->key()))
            return true;
    }
    return QWidget::eventFilter(watched, event);
}

// The nearest one in the next line up or down; -1 where there is no line.
int WalkedFlow::lineAbove(int place, int step) const
{
    const QRect from = m_shown.at(place)->geometry();
    int best = -1;
    for (int i = place + step; i >= 0 && i < m_shown.size(); i += step) {
        const QRect there = m_shown.at(i)->geometry();
        if (isSameLine(there, from))
            continue;
        if (best >= 0 && !isSameLine(there, m_shown.at(best)->geometry()))
            break;
        const auto distance = [&from](const QRect& rect) { return qAbs(rect.center().x() - from.center().x()); };
        if (best < 0 || distance(there) < distance(m_shown.at(best)->geometry()))
            best = i;
    }
    return best;
}

bool WalkedFlow::walk(int place, int key)
{
    const int last = int(m_shown.size()) - 1;
    switch (mirroredKey(key, this)) {
    case Qt::Key_Left:
        return focusAt(qMax(0, place - 1));
    case Qt::Key_Right:
        return focusAt(qMin(last, place + 1));
    case Qt::Key_Home:
        return focusAt(0);
    case Qt::Key_End:
        return focusAt(last);
    case Qt::Key_Up:
    case Qt::Key_Down: {
        const int there = lineAbove(place, key == Qt::Key_Up ? -1 : 1);
        return there >= 0 && focusAt(there);
    }
    default:
        return false;
    }
}

}  // namespace Quorbel
