#include "ui/controls/attached/SearchMenu.h"

#include "ui/controls/Labels.h"
#include "ui/controls/OverlayScrollBar.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QListWidget>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>
#include <array>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal padding = 5;
constexpr qreal fieldHeight = 30;
constexpr qreal fieldSide = 3;  // more than the rows
constexpr qreal belowField = 6;
constexpr qreal rowHeight = 28;
constexpr qreal rowSide = 10;

constexpr int codeRole = Qt::UserRole;

class SearchMenuDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override { return { 0, px(rowHeight) }; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const Theme& theme = Theme::of(option.widget);
        const bool active = option.state.testFlag(QStyle::State_Selected);
        QRect row = option.rect;
        if (index.model()->rowCount() > SearchMenu::mostRows)
            row.setRight(row.right() - OverlayScrollBar::room());
        if (active)
            paintBox(*painter, row, pxF(6), theme.sel, Qt::NoPen);
        const QString code = index.data(codeRole).toString();
        const QRect inner = row.adjusted(px(rowSide), 0, -px(rowSide), 0);
        painter->setFont(verbatimFont(11));
        const int codeWidth = painter->fontMetrics().horizontalAdvance(code);
        painter->setPen(active ? theme.selSub : theme.derived.label);
        painter->drawText(inner, Qt::AlignVCenter | Qt::AlignRight | Qt::TextSingleLine, code);
        painter->setFont(verbatimFont(13));
        painter->setPen(active ? theme.selText : theme.text);
        const QRect title = inner.adjusted(0, 0, -codeWidth - px(rowSide), 0);
        const QString text = index.data().toString();
        painter->drawText(title, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
            painter->fontMetrics().elidedText(text, Qt::ElideRight, title.width()));
    }
};

// How well a row fits what was typed: 0 best, 4 not at all.
int rankOf(const SearchMenuRow& row, const QString& typed)
{
    const std::array<bool, 4> fits{ row.code.compare(typed, Qt::CaseInsensitive) == 0,
        row.title.startsWith(typed, Qt::CaseInsensitive), row.code.startsWith(typed, Qt::CaseInsensitive),
        row.title.contains(typed, Qt::CaseInsensitive) };
    return int(std::find(fits.cbegin(), fits.cend(), true) - fits.cbegin());
}

}  // namespace

SearchMenu::SearchMenu(const QString& name, const QString& placeholder, QWidget* opener)
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
    connect(m_field, &QLineEdit::textChanged, this, &SearchMenu::find);
    m_list->setItemDelegate(new SearchMenuDelegate(m_list));
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

void SearchMenu::setRows(const QList<SearchMenuRow>& rows)
{
    m_rows = rows;
    find();
}

void SearchMenu::setOther(std::function<std::optional<SearchMenuRow>(const QString& typed)> other)
{
    m_other = std::move(other);
}

void SearchMenu::setNothingFound(const QString& text)
{
    m_nothing->setText(text);
}

void SearchMenu::find()
{
    const QString typed = m_field->text().trimmed();
    m_found = m_rows;
    if (!typed.isEmpty()) {
        const auto rank = [&typed](const SearchMenuRow& row) { return rankOf(row, typed); };
        m_found.removeIf([&rank](const SearchMenuRow& row) { return rank(row) == 4; });
        std::stable_sort(m_found.begin(), m_found.end(),
            [&rank](const SearchMenuRow& a, const SearchMenuRow& b) { return rank(a) < rank(b); });
        if (const auto other = m_other ? m_other(typed) : std::nullopt; other && !m_found.contains(*other))
            m_found.append(*other);
    }
    m_list->clear();
    for (const SearchMenuRow& row : std::as_const(m_found)) {
        auto* item = new QListWidgetItem(row.title, m_list);
        item->setData(codeRole, row.code);
        item->setData(Qt::AccessibleTextRole, u"%1, %2"_s.arg(row.title, row.code));
    }
    m_list->setVisible(!m_found.isEmpty());
    m_nothing->setVisible(m_found.isEmpty());
    if (m_found.isEmpty() && isVisible()) {
        QAccessibleEvent event(m_nothing, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
    goTo(0);
}

// As high with few rows as with many: what one types must not move the menu about.
int SearchMenu::heightIn(int)
{
    const int rows = int(qBound(qsizetype(1), m_rows.size(), qsizetype(mostRows)));
    return 2 * px(padding) + px(fieldSide + fieldHeight + belowField) + rows * px(rowHeight);
}

void SearchMenu::arrange(const QRect& box)
{
    const QRect inner = box.adjusted(px(padding), px(padding), -px(padding), -px(padding));
    m_field->setGeometry(
        inner.left() + px(fieldSide), inner.top() + px(fieldSide), inner.width() - 2 * px(fieldSide), px(fieldHeight));
    const QRect rows = inner.adjusted(0, px(fieldSide + fieldHeight + belowField), 0, 0);
    m_list->setGeometry(rows);
    m_nothing->setGeometry(rows.adjusted(px(rowSide), 0, -px(rowSide), 0));
}

void SearchMenu::showEvent(QShowEvent* event)
{
    Popover::showEvent(event);
    m_field->setFocus(Qt::PopupFocusReason);
}

void SearchMenu::goTo(int row)
{
    if (m_found.isEmpty())
        return;
    const int to = qBound(0, row, int(m_found.size()) - 1);
    m_list->setCurrentRow(to);
    // The keyboard stays in the field; this tells a screen reader which row the keys have come to.
    QAccessibleEvent event(m_list, QAccessible::Focus);
    event.setChild(to);
    QAccessible::updateAccessibility(&event);
}

void SearchMenu::pick(int row)
{
    if (row < 0 || row >= m_found.size())
        return;
    const SearchMenuRow found = m_found.at(row);
    close();
    emit picked(found);
}

bool SearchMenu::useKey(int key)
{
    const int last = int(m_found.size()) - 1;
    const int now = m_list->currentRow();
    switch (key) {
    case Qt::Key_Down:
        goTo(now == last ? 0 : now + 1);
        return true;
    case Qt::Key_Up:
        goTo(now <= 0 ? last : now - 1);
        return true;
    case Qt::Key_PageDown:
        goTo(now + mostRows);
        return true;
    case Qt::Key_PageUp:
        goTo(now - mostRows);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        pick(now);
        return true;
    case Qt::Key_Escape:
        close();
        return true;
    default:
        return false;
    }
}

bool SearchMenu::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_field && event->type() == QEvent::KeyPress && useKey(static_cast<QKeyEvent*>(event)->key()))
        return true;
    return Popover::eventFilter(watched, event);
}

}  // namespace Quorbel
