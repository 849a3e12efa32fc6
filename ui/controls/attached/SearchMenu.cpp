#include "ui/controls/attached/SearchMenu.h"

#include "ui/controls/scrolling/OverlayScrollBar.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QListWidget>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>
#include <array>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal rowHeight = 28;
constexpr qreal rowSide = 10;

constexpr int codeRole = Qt::UserRole;

class SearchMenuDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override { return { 0, px(rowHeight) }; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        painter->setLayoutDirection(option.direction);
        const Theme& theme = Theme::of(option.widget);
        const bool active = option.state.testFlag(QStyle::State_Selected);
        const QRect row = OverlayScrollBar::rowBeside(option, index, SearchMenu::mostRows).toRect();
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
        const QRect title =
            mirrored(QRectF(inner.adjusted(0, 0, -codeWidth - px(rowSide), 0)), QRectF(inner), option.direction)
                .toRect();
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
        row.title.contains(typed, Qt::CaseInsensitive) || row.english.contains(typed, Qt::CaseInsensitive) };
    return int(std::find(fits.cbegin(), fits.cend(), true) - fits.cbegin());
}

}  // namespace

SearchMenu::SearchMenu(const QString& name, const QString& placeholder, QWidget* opener)
    : SearchPopover(name, placeholder, opener)
{
    list()->setItemDelegate(new SearchMenuDelegate(list()));
}

void SearchMenu::setRows(const QList<SearchMenuRow>& rows)
{
    m_rows = rows;
    findAgain();
}

void SearchMenu::setOther(std::function<std::optional<SearchMenuRow>(const QString& typed)> other)
{
    m_other = std::move(other);
}

int SearchMenu::find(const QString& typed)
{
    m_found = m_rows;
    if (!typed.isEmpty()) {
        const auto rank = [&typed](const SearchMenuRow& row) { return rankOf(row, typed); };
        m_found.removeIf([&rank](const SearchMenuRow& row) { return rank(row) == 4; });
        std::stable_sort(m_found.begin(), m_found.end(),
            [&rank](const SearchMenuRow& a, const SearchMenuRow& b) { return rank(a) < rank(b); });
        if (const auto other = m_other ? m_other(typed) : std::nullopt; other && !m_found.contains(*other))
            m_found.append(*other);
    }
    for (const SearchMenuRow& row : std::as_const(m_found)) {
        auto* item = new QListWidgetItem(row.title, list());
        item->setData(codeRole, row.code);
        item->setData(Qt::AccessibleTextRole, u"%1, %2"_s.arg(row.title, row.code));
    }
    return 0;
}

int SearchMenu::heightIn(int)
{
    const int rows = int(qBound(qsizetype(1), m_rows.size(), qsizetype(mostRows)));
    return heightWith(rows * px(rowHeight));
}

void SearchMenu::pick(int row)
{
    const SearchMenuRow found = m_found.at(row);
    close();
    emit picked(found);
}

}  // namespace Quorbel
