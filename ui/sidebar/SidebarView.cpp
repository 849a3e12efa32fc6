#include "ui/sidebar/SidebarView.h"

#include "app/model/AppModel.h"
#include "app/model/library/filter/Filtering.h"
#include "app/model/pairs/Pairing.h"
#include "core/language/Texts.h"
#include "ui/controls/BriefNote.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/Labels.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/ThemedMenu.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/SymbolText.h"
#include "ui/sidebar/DisagreementsBar.h"
#include "ui/sidebar/FilterChips.h"
#include "ui/sidebar/FilterMenu.h"
#include "ui/sidebar/NothingListed.h"
#include "ui/sidebar/SidebarList.h"
#include "ui/window/ColumnRow.h"
#include "ui/window/ProgressFoot.h"

#include <QActionGroup>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal headerHeight = 40;
constexpr qreal sidePadding = 12;
constexpr qreal rightPadding = 2;  // room for a focus ring: the handle beside it is empty space too
constexpr qreal fieldHeight = 30;
constexpr qreal narrowButton = 24;
constexpr qreal findHeight = 41;  // the field, 10 below it, the hairline
constexpr qreal findHeightOverChips = 36;  // they stand closer to the field
constexpr qreal overListEnd = 12;

// "3 / 120", the selected ones stronger; with a filter "3 / 23 of 120".
class CountLabel final : public QLabel {
public:
    explicit CountLabel(AppModel& model)
        : m_model(model)
    {
        connect(&model, &AppModel::selectionChanged, this, [this] { refresh(); });
        connect(&model, &AppModel::recordsChanged, this, [this] { refresh(); });
        connect(&model, &AppModel::visibleRowsChanged, this, [this] { refresh(); });
        connect(&model.filtering(), &Filtering::changed, this, [this] { refresh(); });
        onRestyle(this, [this] { setFont(sansFont(12, QFont::DemiBold)); });
        refresh();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        const Theme& theme = Theme::of(this);
        DirectedPainter painter(this);
        const QString selected = QString::number(m_model.selection().size());
        painter.setPen(theme.text);
        painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter, selected);
        const int advance = fontMetrics().horizontalAdvance(selected);
        painter.setFont(sansFont(12));
        painter.setPen(theme.muted);
        painter.drawText(mirrored(rect().adjusted(advance, 0, 0, 0), this), Qt::AlignLeft | Qt::AlignVCenter,
            text().mid(selected.size()));
    }

private:
    void refresh()
    {
        const QString all = QString::number(m_model.pairing().photos());
        const bool isFiltered = m_model.filtering().isOn();
        //: Of how many things: %1 and %2 are numbers.
        const QString of = isFiltered ? Texts::tr("%1 of %2").arg(m_model.visibleRows().size()).arg(all) : all;
        setText(u"%1 / %2"_s.arg(QString::number(m_model.selection().size()), of));
        update();
    }

    AppModel& m_model;
};

struct SortItem {
    RecordSortOrder order;
    QString text;
};

const QList<SortItem>& sortItems()
{
    static const QList<SortItem> items{
        { RecordSortOrder::nameAsc, Texts::tr("Name (A–Z)") },
        { RecordSortOrder::nameDesc, Texts::tr("Name (Z–A)") },
        { RecordSortOrder::dateNewest, Texts::tr("Date (newest first)") },
        { RecordSortOrder::dateOldest, Texts::tr("Date (oldest first)") },
    };
    return items;
}

}  // namespace

SidebarView::SidebarView(AppModel& model, ThumbnailStore* thumbs, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_list(new SidebarList(model, thumbs))
    , m_foot(new ProgressFoot(model))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(buildHeader());
    column->addWidget(buildFind());
    column->addWidget(buildChips());
    column->addWidget(buildDisagreements());
    column->addWidget(m_list, 1);
    column->addWidget(m_foot);
    m_list->installEventFilter(this);
    new NothingListed(model, *m_list);
    m_note = new BriefNote(m_list, overListEnd);
    connect(&model.filtering(), &Filtering::noted, m_note, &BriefNote::say);
    connect(&model.filtering(), &Filtering::changed, this, &SidebarView::followFilters);
    followFilters();
    connect(m_foot, &ProgressFoot::shownChanged, this, &SidebarView::footChanged);
    connect(m_list, &GroupedListView::stuckLineMoved, this, &SidebarView::stuckLineMoved);
}

QWidget* SidebarView::buildHeader()
{
    auto* header = new QWidget;
    auto* line = new QHBoxLayout(header);
    line->setSpacing(0);
    line->addWidget(new CountLabel(m_model), 1);
    auto* all = new QBTextButton(Texts::tr("Select all"));
    all->setKeyHint(symbolText(u"⌘A"_s));
    all->setAccessibleName(u"%1 %2"_s.arg(all->text(), symbolText(u"⌘A"_s)));
    connect(all, &QAbstractButton::clicked, &m_model, &AppModel::selectAllPhotos);
    line->addWidget(all);
    onRestyle(header, [header, line] {
        line->setContentsMargins(mirrored(QMargins(px(sidePadding), px(2), px(rightPadding), 0)));
        header->setFixedHeight(px(headerHeight));
    });
    return header;
}

QWidget* SidebarView::buildFind()
{
    m_find = new QWidget;
    auto* line = new QHBoxLayout(m_find);
    m_search = new QBTextField;
    m_search->setLeadingIcon(u"magnifyingglass"_s);
    m_search->setAccessibleName(Texts::tr("Search"));
    m_search->setPlaceholder(Texts::tr("Search"));
    m_search->setBoundText(m_model.search());
    connect(m_search, &QLineEdit::textEdited, &m_model, &AppModel::setSearch);
    m_search->installEventFilter(this);
    connect(&m_model, &AppModel::searchChanged, m_search, [this] { m_search->setBoundText(m_model.search()); });
    line->addWidget(m_search, 1);
    m_filter = new QBIconButton(u"line.3.horizontal.decrease"_s, FilterTexts::name());
    connect(m_filter, &QAbstractButton::clicked, this, &SidebarView::openFilterMenu);
    line->addWidget(m_filter);
    m_sort = new QBIconButton(u"arrow.up.arrow.down"_s, Texts::tr("Sort images"));
    connect(m_sort, &QAbstractButton::clicked, this, &SidebarView::openSortMenu);
    line->addWidget(m_sort);
    onRestyle(m_find, [this] {
        fitFind();
        followFilters();
    });
    return m_find;
}

// In a sidebar that large text makes narrow, the buttons leave the field room for its word.
void SidebarView::fitFind()
{
    const bool isNarrow = width() < px(Columns::minSidebar);
    m_find->layout()->setSpacing(px(isNarrow ? 1 : 4));
    for (QBIconButton* button : { m_filter, m_sort })
        button->setSizes({ isNarrow ? narrowButton : fieldHeight, fieldHeight }, 16);
}

void SidebarView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    fitFind();
}

QWidget* SidebarView::buildChips()
{
    auto* holder = new QWidget;
    auto* line = new QVBoxLayout(holder);
    m_chips = new FilterChips(m_model.filtering());
    line->addWidget(m_chips);
    holder->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(m_chips, &FilterChips::menuAsked, this, &SidebarView::openFilterMenu);
    connect(m_chips, &FilterChips::keyboardLeft, this, [this] { m_list->setFocus(Qt::OtherFocusReason); });
    onRestyle(holder,
        [line] { line->setContentsMargins(mirrored(QMargins(px(sidePadding - 1), 0, px(rightPadding), px(9)))); });
    return holder;
}

void SidebarView::followFilters()
{
    const bool hasChips = m_chips && !m_chips->isEmpty();
    m_filter->setHighlighted(m_model.filtering().isOn() || m_menu);
    const qreal height = hasChips ? findHeightOverChips : findHeight;
    m_find->setFixedHeight(px(height));
    m_find->layout()->setContentsMargins(
        mirrored(QMargins(px(sidePadding), 0, px(rightPadding), px(height - fieldHeight))));
    if (m_chips)
        m_chips->parentWidget()->setVisible(hasChips);
}

void SidebarView::openFilterMenu()
{
    m_menu = new FilterMenu(m_model, m_filter);
    connect(m_menu, &QObject::destroyed, this, &SidebarView::followFilters);
    m_menu->popUp();
    followFilters();
}

QWidget* SidebarView::buildDisagreements()
{
    auto* holder = new QWidget;
    auto* line = new QVBoxLayout(holder);
    auto* bar = new DisagreementsBar(m_model);
    line->addWidget(bar);
    holder->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    const auto follow = [this, holder] {
        const bool isShown = m_model.showsDisagreements();
        // Its cross may be what was pressed.
        if (!isShown && holder->isAncestorOf(focusWidget()))
            m_list->setFocus();
        holder->setVisible(isShown);
    };
    connect(&m_model, &AppModel::disagreementsChanged, holder, follow);
    follow();
    onRestyle(
        holder, [line] { line->setContentsMargins(mirrored(QMargins(px(sidePadding), 0, px(rightPadding), px(11)))); });
    return holder;
}

void SidebarView::openSortMenu()
{
    auto* menu = new ThemedMenu(this);
    //: Heads the ways in which photos are listed.
    menu->addHeader(Texts::tr("Sort by"));
    auto* group = new QActionGroup(menu);
    for (const SortItem& item : sortItems()) {
        QAction* action = menu->addAction(item.text);
        action->setCheckable(true);
        action->setChecked(item.order == m_model.sortOrder());
        group->addAction(action);
        connect(action, &QAction::triggered, &m_model, [this, order = item.order] { m_model.setSortOrder(order); });
    }
    menu->popUpUnder(m_sort, Qt::AlignLeft, true);
}

void SidebarView::focusSearch()
{
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
}

// From the search field, Down and Return lead to what was found, and Escape shows all photos again.
bool SidebarView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_search && event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Escape:
            m_model.setSearch({});
            return true;
        case Qt::Key_Down:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            m_list->takeKeyboard();
            return true;
        default:
            break;
        }
    }
    if (watched == m_list && event->type() == QEvent::Move) {
        update();
        emit stuckLineMoved();
    }
    return QWidget::eventFilter(watched, event);
}

int SidebarView::listTop() const
{
    return m_list->y();
}

std::optional<int> SidebarView::stuckLine() const
{
    const auto line = m_list->stuckLine();
    return line ? std::optional(m_list->y() + *line) : std::nullopt;
}

QRect SidebarView::footRect() const
{
    return m_foot->isHidden() ? QRect() : m_foot->geometry();
}

void SidebarView::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    painter.fillRect(rect(), theme.bg);
    painter.fillRect(0, listTop() - 1, width(), 1, theme.hair);
}

}  // namespace Quorbel
