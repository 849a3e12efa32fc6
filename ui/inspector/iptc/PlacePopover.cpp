#include "ui/inspector/iptc/PlacePopover.h"

#include "core/language/Texts.h"
#include "ui/controls/scrolling/OverlayScrollBar.h"
#include "ui/controls/theme/HighContrast.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QListWidget>
#include <QPainter>
#include <QStyledItemDelegate>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal rowHeight = 44;
constexpr qreal rowSide = 10;
constexpr qreal titleTop = 5;
constexpr qreal titleHeight = 18;
constexpr qreal subtitleHeight = 16;

constexpr int subtitleRole = Qt::UserRole;

class PlaceDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override { return { 0, px(rowHeight) }; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        painter->setLayoutDirection(option.direction);
        const Theme& theme = Theme::of(option.widget);
        const QRect row = OverlayScrollBar::rowBeside(option, index, PlacePopover::mostRows).toRect();
        if (option.state.testFlag(QStyle::State_Selected))
            paintBox(*painter, row, pxF(6), theme.derived.hover, HighContrast::groundEdge(theme));
        const QRect title(
            row.left() + px(rowSide), row.top() + px(titleTop), row.width() - 2 * px(rowSide), px(titleHeight));
        paintLine(*painter, title, 13, theme.text, index.data().toString());
        paintLine(*painter, QRect(title.left(), title.bottom() + 1, title.width(), px(subtitleHeight)), 11,
            theme.derived.label, index.data(subtitleRole).toString());
    }

private:
    static void paintLine(QPainter& painter, const QRect& room, qreal points, const QColor& color, const QString& text)
    {
        painter.setFont(verbatimFont(points));
        painter.setPen(color);
        painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
            painter.fontMetrics().elidedText(text, Qt::ElideRight, room.width()));
    }
};

}  // namespace

PlacePopover::PlacePopover(PlaceProvider* places, QWidget* opener)
    : SearchPopover(Texts::tr("Search place"), Texts::tr("Town, landmark or airport"), opener)
    , m_search(places)
{
    list()->setItemDelegate(new PlaceDelegate(list()));
    connect(&m_search, &LocationSearch::suggestionsChanged, this, [this] {
        setNothingFound(m_search.notice());
        findAgain();
        if (isVisible())
            place(true);
    });
    findAgain();
}

int PlacePopover::heightIn(int)
{
    return heightWith(qBound(1, list()->count(), mostRows) * px(rowHeight));
}

// Also called when an answer came: then there is nothing new to ask.
int PlacePopover::find(const QString& typed)
{
    if (typed != m_typed) {
        m_typed = typed;
        setNothingFound({});
        m_search.update(typed);
    }
    for (const PlaceSuggestion& suggestion : m_search.suggestions()) {
        auto* item = new QListWidgetItem(suggestion.title, list());
        item->setData(subtitleRole, suggestion.subtitle);
        item->setData(Qt::AccessibleTextRole, u"%1, %2"_s.arg(suggestion.title, suggestion.subtitle));
    }
    return 0;
}

void PlacePopover::pick(int row)
{
    if (row >= 0 && row < m_search.suggestions().size())
        m_search.resolve(
            m_search.suggestions().at(row), [this](const LocationSearch::Answer& answer) { finish(answer); });
}

void PlacePopover::finish(const LocationSearch::Answer& answer)
{
    if (const auto* found = std::get_if<LocationFill::Result>(&answer)) {
        const LocationFill::Result place = *found;
        close();
        emit picked(place);
        return;
    }
    setNothingFound(Texts::tr("Couldn't look that up"));
    m_search.update({});
}

}  // namespace Quorbel
