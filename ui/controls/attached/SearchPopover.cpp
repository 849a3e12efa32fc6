#include "ui/controls/attached/SearchPopover.h"

#include "ui/controls/Labels.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/scrolling/OverlayScrollBar.h"
#include "ui/controls/theme/Metrics.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QListWidget>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal padding = 5;
constexpr qreal fieldHeight = 30;
constexpr qreal fieldSide = 3;  // more than the rows
constexpr qreal belowField = 6;
constexpr qreal nothingHeight = 28;
constexpr qreal nothingSide = 10;

}  // namespace

SearchPopover::SearchPopover(const QString& name, const QString& placeholder, QWidget* opener)
    : Popover(opener)
    , m_field(new QBTextField(this))
    , m_list(new QListWidget(this))
    , m_nothing(ThemedLabel::wrapped({}, TextRole::label, 12))
{
    setAccessibleName(name);
    m_field->setAccessibleName(name);
    m_field->setPlaceholder(placeholder);
    m_field->setLeadingIcon(u"magnifyingglass"_s);
    m_field->installEventFilter(this);
    connect(m_field, &QLineEdit::textChanged, this, &SearchPopover::findAgain);
    m_list->setAccessibleName(name);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setUniformItemSizes(true);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->viewport()->setAutoFillBackground(false);
    m_list->setMouseTracking(true);
    OverlayScrollBar::attach(m_list);
    connect(m_list, &QListWidget::itemEntered, this, [this](QListWidgetItem* item) { m_list->setCurrentItem(item); });
    connect(m_list, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) { pick(m_list->row(item)); });
    m_nothing->setParent(this);
    m_nothing->hide();
}

void SearchPopover::setNothingFound(const QString& text)
{
    m_nothing->setText(text);
    m_nothing->setVisible(!text.isEmpty() && !m_list->isVisibleTo(this));
}

void SearchPopover::findAgain()
{
    m_list->clear();
    const int first = find(m_field->text().trimmed());
    const bool isFound = m_list->count() > 0;
    m_list->setVisible(isFound);
    m_nothing->setVisible(!isFound && !m_nothing->text().isEmpty());
    if (m_nothing->isVisible()) {
        QAccessibleEvent event(m_nothing, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
    goTo(first);
}

int SearchPopover::heightWith(int rows) const
{
    return 2 * px(padding) + px(fieldSide + fieldHeight + belowField) + rows + roomBelow();
}

void SearchPopover::arrange(const QRect& box)
{
    const QRect inner = box.adjusted(px(padding), px(padding), -px(padding), -px(padding));
    m_field->setGeometry(
        inner.left() + px(fieldSide), inner.top() + px(fieldSide), inner.width() - 2 * px(fieldSide), px(fieldHeight));
    const QRect rows = inner.adjusted(0, px(fieldSide + fieldHeight + belowField), 0, -roomBelow());
    m_list->setGeometry(rows);
    m_nothing->setGeometry(rows.left() + px(nothingSide), rows.top(), rows.width() - 2 * px(nothingSide),
        qMax(rows.height(), px(nothingHeight)));
    if (QListWidgetItem* item = m_list->currentItem())
        m_list->scrollToItem(item);
}

void SearchPopover::showEvent(QShowEvent* event)
{
    Popover::showEvent(event);
    m_field->setFocus(Qt::PopupFocusReason);
}

void SearchPopover::goTo(int row)
{
    if (m_list->count() == 0)
        return;
    const int to = qBound(0, row, m_list->count() - 1);
    m_list->setCurrentRow(to);
    // Nobody listens: Qt would keep the description of a row, and not hear that the row is gone.
    if (!QAccessible::isActive())
        return;
    // The keyboard stays in the field; this tells a screen reader which row the keys have come to.
    QAccessibleEvent event(m_list, QAccessible::Focus);
    event.setChild(to);
    QAccessible::updateAccessibility(&event);
}

bool SearchPopover::useKey(int key)
{
    const int last = m_list->count() - 1;
    const int now = m_list->currentRow();
    switch (key) {
    case Qt::Key_Down:
        goTo(now == last ? 0 : now + 1);
        return true;
    case Qt::Key_Up:
        goTo(now <= 0 ? last : now - 1);
        return true;
    case Qt::Key_PageDown:
        goTo(now + pageRows());
        return true;
    case Qt::Key_PageUp:
        goTo(now - pageRows());
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (now >= 0 && now <= last)
            pick(now);
        return true;
    case Qt::Key_Escape:
        close();
        return true;
    default:
        return false;
    }
}

bool SearchPopover::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_field && event->type() == QEvent::KeyPress && useKey(static_cast<QKeyEvent*>(event)->key()))
        return true;
    return Popover::eventFilter(watched, event);
}

}  // namespace Quorbel
