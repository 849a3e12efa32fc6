#include "ui/sidebar/FilterChips.h"

#include "app/model/library/filter/Filtering.h"
#include "core/language/Texts.h"
#include "ui/controls/Accessibility.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/keywords/KeywordChip.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/sidebar/FilterTexts.h"

#include <QKeyEvent>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal gap = 2;
constexpr qreal lineHeight = 28;
constexpr int mostLines = 2;

constexpr int starsKey = -1;
constexpr int textKey = -2;

// Puts boxes one behind the other into lines, as long as there is room.
struct Flow {
    int room = 0;
    int x = 0;
    int line = 0;
    /// Where a box of this width goes.
    QPoint put(int width)
    {
        if (x > 0 && x + width > room) {
            x = 0;
            ++line;
        }
        const QPoint at(x, line * px(lineHeight));
        x += width + px(gap);
        return at;
    }
};

}  // namespace

FilterChips::FilterChips(Filtering& filtering, QWidget* parent)
    : QWidget(parent)
    , m_filtering(filtering)
    , m_more(new QBTextButton({}, this))
{
    describeAs(staticMetaObject, QAccessible::List);
    setAccessibleName(Texts::tr("Filters"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_more->hide();
    connect(m_more, &QAbstractButton::clicked, this, &FilterChips::menuAsked);
    connect(&filtering, &Filtering::changed, this, &FilterChips::follow);
    onRestyle(this, [this] { place(); });
    follow();
}

// That places differ is said by a line of its own, which tells how many are still to be looked at.
QList<FilterChips::Item> FilterChips::items() const
{
    QList<Item> items;
    const auto add = [&](const FilterText& text) {
        if (text.trait != PhotoTrait::disagreement && m_filtering.isOn(text.trait))
            items.append({ int(text.trait), text.chip });
    };
    for (const FilterText& text : FilterTexts::gaps())
        add(text);
    add(FilterTexts::unrated());
    if (m_filtering.leastStars() > 0)
        items.append({ starsKey, FilterTexts::stars(m_filtering.leastStars()) });
    for (const FilterText& text : FilterTexts::states())
        add(text);
    if (const QString text = m_filtering.text().trimmed(); !text.isEmpty())
        items.append({ textKey, FilterTexts::contains(text) });
    return items;
}

void FilterChips::follow()
{
    const QList<Item> items = this->items();
    const auto isWanted = [&](int key) {
        return std::any_of(items.cbegin(), items.cend(), [key](const Item& item) { return item.key == key; });
    };
    qsizetype focused = -1;
    for (qsizetype i = m_chips.size() - 1; i >= 0; --i) {
        if (isWanted(m_chips.at(i).key))
            continue;
        if (m_chips.at(i).widget->hasFocus())
            focused = i;
        m_chips.at(i).widget->hide();
        m_chips.takeAt(i).widget->deleteLater();
    }
    for (qsizetype i = 0; i < items.size(); ++i) {
        if (i == m_chips.size() || m_chips.at(i).key != items.at(i).key)
            m_chips.insert(i, make(items.at(i).key));
        m_chips.at(i).widget->setKeyword(items.at(i).text, {}, false);
    }
    place();
    if (focused >= 0)
        goTo(qMin(focused, m_shown - 1));
    emit changed();
}

FilterChips::Chip FilterChips::make(int key)
{
    auto* chip = new KeywordChip(this);
    chip->installEventFilter(this);
    connect(chip, &KeywordChip::crossed, this, [this, key] { remove(key); });
    return { key, chip };
}

void FilterChips::remove(int key)
{
    if (key == starsKey)
        m_filtering.setLeastStars(0);
    else if (key == textKey)
        m_filtering.setText({});
    else
        m_filtering.setOn(PhotoTrait(key), false);
}

void FilterChips::place()
{
    QList<int> widths;
    for (const Chip& chip : std::as_const(m_chips)) {
        chip.widget->setMostWidth(qMax(px(60), width()));
        widths.append(qMin(chip.widget->sizeHint().width(), width()));
    }
    // As many as fit, with what stands for the others behind them.
    int more = 0;
    for (m_shown = m_chips.size(); m_shown > 0; --m_shown) {
        m_more->setText(u"+%1"_s.arg(m_chips.size() - m_shown));
        more = m_shown < m_chips.size() ? m_more->sizeHint().width() : 0;
        Flow flow{ width() };
        for (qsizetype i = 0; i < m_shown; ++i)
            flow.put(widths.at(i));
        if (more > 0)
            flow.put(more);
        if (flow.line < mostLines)
            break;
    }
    Flow flow{ width() };
    for (qsizetype i = 0; i < m_chips.size(); ++i) {
        KeywordChip* chip = m_chips.at(i).widget;
        chip->setVisible(i < m_shown);
        chip->setFocusPolicy(i == 0 ? Qt::StrongFocus : Qt::ClickFocus);
        if (i < m_shown)
            chip->setGeometry(mirrored(QRect(flow.put(widths.at(i)), QSize(widths.at(i), px(lineHeight))), this));
    }
    m_more->setVisible(more > 0);
    m_more->setAccessibleName(Texts::tr("%n more filters", nullptr, m_chips.size() - m_shown));
    if (more > 0)
        m_more->setGeometry(mirrored(QRect(flow.put(more), QSize(more, px(lineHeight))), this));
    setFixedHeight((flow.line + 1) * px(lineHeight));
}

void FilterChips::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (event->oldSize().width() != event->size().width())
        place();
}

void FilterChips::goTo(qsizetype at)
{
    if (m_chips.isEmpty())
        return emit keyboardLeft();
    m_chips.at(qBound(qsizetype(0), at, qMax(qsizetype(0), m_shown - 1))).widget->setFocus(Qt::TabFocusReason);
}

bool FilterChips::useKey(qsizetype at, int key)
{
    switch (mirroredKey(key, this)) {
    case Qt::Key_Left:
        goTo(at - 1);
        return true;
    case Qt::Key_Right:
        goTo(at + 1);
        return true;
    case Qt::Key_Home:
        goTo(0);
        return true;
    case Qt::Key_End:
        goTo(m_shown - 1);
        return true;
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        remove(m_chips.at(at).key);
        return true;
    default:
        return false;
    }
}

bool FilterChips::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto chip = std::find_if(
            m_chips.cbegin(), m_chips.cend(), [watched](const Chip& candidate) { return candidate.widget == watched; });
        if (chip != m_chips.cend() && useKey(chip - m_chips.cbegin(), static_cast<QKeyEvent*>(event)->key()))
            return true;
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace Quorbel
