#include "ui/controls/cards/ItemCard.h"

#include "core/language/Texts.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/ReadingOrder.h"
#include "ui/controls/ThemedMenu.h"
#include "ui/controls/cards/CardLine.h"
#include "ui/controls/cards/EditedDot.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QShortcut>
#include <QVBoxLayout>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal radius = 9;
constexpr qreal above = 5;
constexpr qreal below = 5;
constexpr qreal belowContent = 11;
constexpr qreal belowLine = 4;
constexpr qreal moreOut = 5;  // the menu's button hangs out into the room beside the content

}  // namespace

ItemCard::ItemCard(const QString& item, QWidget* parent)
    : QWidget(parent)
    , m_item(item)
    , m_column(new QVBoxLayout(this))
    , m_body(new QHBoxLayout)
    , m_line(new CardLine(this))
    , m_more(new QBIconButton(u"ellipsis"_s, {}, this))
{
    describeInReadingOrder(staticMetaObject, QAccessible::Grouping);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_more->setSizes({ 28, 26 }, 16, 0, 6);
    m_more->hide();
    m_column->setSpacing(0);
    auto* top = new QHBoxLayout;
    top->setSpacing(0);
    top->addWidget(m_line, 1);
    top->addWidget(m_more);
    m_column->addLayout(top);
    m_column->addLayout(m_body);
    connect(m_line, &FoldLine::openAsked, this, &ItemCard::openAsked);
    connect(m_line, &CardLine::removeAsked, this, &ItemCard::removeAsked);
    connect(m_more, &QAbstractButton::clicked, this, [this] { makeMenu()->popUpUnder(m_more, Qt::AlignRight, true); });
    addMoving();
    onRestyle(this, [this] { layOut(); });
}

int ItemCard::dotRoom() const
{
    return m_inner ? 0 : px(EditedDot::room);
}

void ItemCard::layOut()
{
    const int out = px(moreOut);
    const bool hasFields = isOpen() && m_content;
    const int side = isOpen() ? px(CardLine::side) : 0;
    const int edge = isOpen() ? px(below) : 0;
    m_body->setContentsMargins(
        mirrored(QMargins(0, hasFields ? px(belowLine) : 0, out, hasFields ? px(belowContent - below) : 0)));
    m_column->setContentsMargins(
        mirrored(QMargins(dotRoom() + side, isOpen() ? px(above) : 0, qMax(0, side - out), edge)));
    m_line->updateGeometry();
}

void ItemCard::addMoving()
{
    m_up = new QAction(Texts::tr("Move Up"), this);
    m_down = new QAction(Texts::tr("Move Down"), this);
    m_remove = new QAction(Texts::tr("Remove"), this);
    connect(m_up, &QAction::triggered, this, [this] { emit moveAsked(-1); });
    connect(m_down, &QAction::triggered, this, [this] { emit moveAsked(1); });
    connect(m_remove, &QAction::triggered, this, &ItemCard::removeAsked);
    setCanMove(false, false);
    for (const int by : { -1, 1 }) {
        const QKeySequence keys(Qt::CTRL | Qt::SHIFT | (by < 0 ? Qt::Key_Up : Qt::Key_Down));
        auto* shortcut = new QShortcut(keys, this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        const auto move = [this, by] { moveFocused(by); };
        connect(shortcut, &QShortcut::activated, this, move);
        // A card within a card: both have the keys.
        connect(shortcut, &QShortcut::activatedAmbiguously, this, move);
        (by < 0 ? m_up : m_down)->setShortcut(keys);
        (by < 0 ? m_up : m_down)->setShortcutContext(Qt::WidgetShortcut);
    }
}

// The innermost of the cards around the keyboard.
void ItemCard::moveFocused(int by)
{
    QWidget* around = QApplication::focusWidget();
    while (around && !qobject_cast<ItemCard*>(around))
        around = around->parentWidget();
    if (auto* card = qobject_cast<ItemCard*>(around); card && (by < 0 ? card->m_up : card->m_down)->isEnabled())
        emit card->moveAsked(by);
}

void ItemCard::setSummary(const Summary& summary)
{
    m_line->setTitle(summary.first);
    m_line->setSummary(summary);
    setAccessibleName(summary.first);
    //: %1: what the card holds, as “place”, “person” or “contact”.
    m_more->setName(Texts::tr("Actions for this %1").arg(m_item));
}

void ItemCard::setContent(QWidget* content)
{
    if (m_content) {
        m_body->removeWidget(m_content);
        m_content->hide();
        m_content->deleteLater();  // something in it may be what asked for another
    }
    m_content = content;
    if (content) {
        m_body->addWidget(content);
        content->setVisible(isOpen());
    }
    layOut();
}

bool ItemCard::isOpen() const
{
    return m_line->isOpen();
}

void ItemCard::setOpen(bool open)
{
    if (open == isOpen())
        return;
    // The keyboard must not be left in what goes.
    const QWidget* focus = QApplication::focusWidget();
    if (!open && focus && focus != m_line && isAncestorOf(focus))
        m_line->setFocus(Qt::OtherFocusReason);
    m_line->setOpen(open);
    m_more->setVisible(open && !m_fixed);
    if (m_content)
        m_content->setVisible(open);
    layOut();
    update();
}

void ItemCard::setEdited(bool edited)
{
    m_line->setEdited(edited);
    update();
}

void ItemCard::setCanMove(bool up, bool down)
{
    m_up->setEnabled(up);
    m_down->setEnabled(down);
}

void ItemCard::setCanRemove(bool can)
{
    m_remove->setEnabled(can);
}

void ItemCard::setAlone(const QString& removing)
{
    m_up->setVisible(false);
    m_down->setVisible(false);
    m_remove->setText(removing);
}

void ItemCard::setInner()
{
    m_inner = true;
    layOut();
}

void ItemCard::setFixed(bool on)
{
    m_fixed = on;
    m_more->setVisible(isOpen() && !on);
}

QWidget* ItemCard::input() const
{
    return m_line;
}

QList<QWidget*> ItemCard::tabStops() const
{
    return { m_line, m_more };
}

ThemedMenu* ItemCard::makeMenu()
{
    emit menuAsked();
    auto* menu = new ThemedMenu(this);
    menu->addActions(actions());
    if (!menu->isEmpty())
        menu->addSeparator();
    menu->addActions({ m_up, m_down });
    menu->addSeparator();
    menu->addAction(m_remove);
    return menu;
}

// On the line, or in the room around the fields; a field has a menu of its own.
void ItemCard::contextMenuEvent(QContextMenuEvent* event)
{
    if (m_fixed)
        return event->ignore();
    ThemedMenu* menu = makeMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (event->reason() == QContextMenuEvent::Keyboard)
        menu->popUpUnder(isOpen() ? static_cast<QWidget*>(m_more) : m_line, Qt::AlignRight, true);
    else
        menu->popup(event->globalPos());
}

void ItemCard::setWanted(bool wanted)
{
    if (std::exchange(m_wanted, wanted) != wanted)
        update();
}

void ItemCard::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    const bool isAmber = m_inner && m_line->isEdited() && !isOpen();
    const QPen plain = m_wanted ? dashedPen(theme.derived.dashedLine) : QPen(theme.line, 1);
    paintBox(painter, mirrored(QRectF(rect()).adjusted(dotRoom(), 0, 0, 0), this), pxF(radius),
        isAmber ? theme.amberBg : QColor(Qt::transparent), isAmber ? QPen(theme.amberLine, 1) : plain);
    if (m_line->isEdited() && !m_inner)
        EditedDot::paint(painter, this, m_line->geometry().center().y() + .5);
}

}  // namespace Quorbel
