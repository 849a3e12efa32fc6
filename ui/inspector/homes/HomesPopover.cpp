#include "ui/inspector/homes/HomesPopover.h"

#include "core/details/FileHome.h"
#include "core/language/Texts.h"
#include "ui/controls/Accessibility.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/scrolling/OverlayScrollBar.h"
#include "ui/controls/scrolling/ScrollArea.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/inspector/homes/HomeRow.h"

#include <QApplication>
#include <QVBoxLayout>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal padding = 5;
constexpr qreal rowGap = 1;
constexpr int edge = 1;  // pixels, of the box

}  // namespace

HomesPopover::HomesPopover(const QString& field, QWidget* opener)
    : Popover(opener)
    , m_scroll(new ScrollArea(this))
    , m_content(new QWidget)
    , m_column(new QVBoxLayout(m_content))
    //: Button: writes what is shown to all places within a photo that hold a field.
    , m_agree(new QBTextButton(Texts::tr("Make them agree"), this))
{
    //: Places within a photo that hold a field. %1: its name.
    setAccessibleName(Texts::tr("Places of %1").arg(field));
    describeAs(staticMetaObject, QAccessible::List);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setContent(m_content);
    m_agree->hide();
    connect(m_agree, &QAbstractButton::clicked, this, [this] {
        close();
        emit agreeAsked();
    });
    onRestyle(this, [this] { m_column->setSpacing(px(rowGap)); });
}

void HomesPopover::setHomes(const QList<FieldHome>& homes)
{
    if (homes == m_homes)
        return;
    m_homes = homes;
    const bool isBeside = std::any_of(homes.cbegin(), homes.cend(), FileHome::is);
    m_agree->setToolTip(isBeside
            ? Texts::tr("Writes what is shown to all places in the sidecar, of every field whose places differ there")
            : Texts::tr("Writes what is shown to all places, of every field whose places differ"));
    m_agree->setAccessibleDescription(m_agree->toolTip());
    // What is not asked for any more may still have the keyboard.
    for (HomeRow* row : std::as_const(m_rows)) {
        row->hide();
        row->deleteLater();
    }
    m_rows.clear();
    for (const FieldHome& home : homes) {
        auto* row = new HomeRow(home, m_content);
        m_column->addWidget(row);
        m_rows.append(row);
        connect(row, &HomeRow::stepped, this, &HomesPopover::step);
        connect(row, &HomeRow::used, this, [this, home] { use(home); });
    }
    for (qsizetype i = 1; i < m_rows.size(); ++i)
        QWidget::setTabOrder(m_rows.at(i - 1), m_rows.at(i));
    if (!m_rows.isEmpty())
        QWidget::setTabOrder(m_rows.constLast(), m_agree);
    if (!isVisible())
        return;
    for (HomeRow* row : std::as_const(m_rows))
        row->show();
    place();
    start();
}

void HomesPopover::setCanAgree(bool on)
{
    if (on != m_agree->isHidden())
        return;
    m_agree->setVisible(on);
    if (isVisible())
        place();
}

// The rows in a list of this width; the height that they take.
int HomesPopover::layRows(int width, int roomAtRight)
{
    const int side = px(padding) - edge;
    m_column->setContentsMargins(mirrored(QMargins(side, side, roomAtRight, side)));
    int height = 2 * side + qMax(0, int(m_rows.size()) - 1) * px(rowGap);
    for (HomeRow* row : std::as_const(m_rows)) {
        row->setRowWidth(width - side - roomAtRight);
        height += row->height();
    }
    return height;
}

int HomesPopover::heightIn(int width)
{
    const int rows = layRows(width - 2 * edge, px(padding) - edge);
    return rows + 2 * edge + (m_agree->isHidden() ? 0 : m_agree->sizeHint().height() + px(padding));
}

void HomesPopover::arrange(const QRect& box)
{
    QRect list = box.adjusted(edge, edge, -edge, -edge);
    if (!m_agree->isHidden()) {
        const QSize size = m_agree->sizeHint();
        const int left = box.left() + px(padding) + px(2);
        m_agree->setGeometry(mirrored(QRect(QPoint(left, box.bottom() + 1 - px(padding) - size.height()), size), this));
        list.setBottom(m_agree->y() - 1);
    }
    const int side = px(padding) - edge;
    if (layRows(list.width(), side) > list.height())
        layRows(list.width(), qMax(side, OverlayScrollBar::room()));
    m_scroll->setGeometry(list);
}

void HomesPopover::showEvent(QShowEvent* event)
{
    Popover::showEvent(event);
    start();
}

// At the first that can be used.
void HomesPopover::start()
{
    const auto usable = [](const HomeRow* row) { return !row->home().isShown; };
    const auto first = std::find_if(m_rows.cbegin(), m_rows.cend(), usable);
    if (first != m_rows.cend())
        (*first)->setFocus(Qt::PopupFocusReason);
}

void HomesPopover::step(int by)
{
    const auto now = std::find_if(m_rows.cbegin(), m_rows.cend(),
        [](const HomeRow* row) { return row->hasFocus() || row->isAncestorOf(QApplication::focusWidget()); });
    const auto to = std::distance(m_rows.cbegin(), now) + by;
    if (to < 0 || to >= m_rows.size())
        return;
    HomeRow* row = m_rows.at(to);
    row->setFocus(by > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    m_scroll->ensureWidgetVisible(row, 0, px(padding));
}

void HomesPopover::use(const FieldHome& home)
{
    close();
    emit used(home);
}

}  // namespace Quorbel
