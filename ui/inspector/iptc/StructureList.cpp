#include "ui/inspector/iptc/StructureList.h"

#include "core/iptc/StructureEdit.h"
#include "core/language/Texts.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/ReadingOrder.h"
#include "ui/controls/cards/EditedDot.h"
#include "ui/controls/cards/ItemCard.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/inspector/iptc/CardTexts.h"
#include "ui/inspector/iptc/SettledFocus.h"
#include "ui/inspector/iptc/StructureCard.h"
#include "ui/inspector/iptc/StructureFields.h"

#include <QAction>
#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {
constexpr qreal gap = 7;  // points
constexpr int releaseInterval = 50;  // milliseconds between looks whether the mouse was let go
}  // namespace

StructureList::StructureList(const Parts& parts, QWidget* parent)
    : QWidget(parent)
    , m_parts(parts)
    , m_column(new QVBoxLayout(this))
    , m_add(new QBButton(CardTexts::adding(*parts.structure), QBButtonKind::dashed, this))
{
    describeInReadingOrder(staticMetaObject, QAccessible::Grouping);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setAccessibleName(parts.name);
    m_add->setAccessibleDescription(parts.name);
    m_add->setSmall(parts.isInner);
    m_add->installEventFilter(this);
    auto* foot = new QHBoxLayout;
    foot->addWidget(m_add);
    foot->addStretch();
    m_column->addLayout(foot);
    connect(m_add, &QAbstractButton::clicked, this, &StructureList::add);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { dropLeft(now); });
    onRestyle(this, [this, foot] {
        // In line with the edges of the cards.
        foot->setContentsMargins(mirrored(QMargins(m_parts.isInner ? 0 : px(EditedDot::room), 0, 0, 0)));
        m_column->setContentsMargins(0, 0, 0, 0);
        m_column->setSpacing(px(gap));
    });
    take({}, true);
}

// --- What is shown ---

void StructureList::show(const QStringList& items, bool fresh)
{
    if (fresh || items != this->items())
        take(items, fresh);
}

QStringList StructureList::items() const
{
    QStringList items;
    for (const StructureCard* card : m_cards)
        if (!card->text().isEmpty())
            items.append(card->text());
    return items;
}

void StructureList::take(const QStringList& items, bool fresh)
{
    const bool isAlways = m_parts.holds == Holds::always;
    if (fresh) {
        m_held.reset();
        showEdited();
    }
    const QWidget* focus = QApplication::focusWidget();
    // Each card keeps its place; an empty one takes part where it is one of just as many.
    const bool isSameCount = items.size() == m_cards.size();
    QList<StructureCard*> free;
    for (StructureCard* card : std::as_const(m_cards))
        if (fresh || isSameCount || isAlways || !card->text().isEmpty())
            free.append(card);
    const qsizetype wanted = isAlways ? 1 : items.size();
    while (free.size() < wanted)
        free.append(makeCard());
    for (qsizetype i = 0; i < free.size(); ++i) {
        StructureCard* card = free.at(i);
        if (i >= wanted)
            drop(card);
        // Whoever types reads what was typed, whatever the owner made of it.
        else if (fresh || !m_telling || !card->holds(focus))
            card->setText(items.value(i), fresh);
    }
    if (fresh)
        for (StructureCard* card : std::as_const(m_cards))
            card->setOpen(isAlways || (m_parts.holds == Holds::several && !m_parts.isInner && items.size() == 1));
    showOrder();
}

StructureCard* StructureList::makeCard()
{
    auto* card = new StructureCard(*m_parts.structure, m_parts.codes, this);
    card->setReadOnly(m_readOnly);
    addMenu(card);
    ItemCard* widget = card->widget();
    if (m_parts.isInner)
        widget->setInner();
    if (m_parts.holds == Holds::always) {
        // It does not fold.
        widget->input()->setFocusPolicy(Qt::NoFocus);
        card->setUntitled(m_parts.name);
    }
    widget->input()->installEventFilter(this);
    m_column->insertWidget(int(m_cards.size()), widget);
    m_cards.append(card);
    widget->show();
    connect(widget, &ItemCard::openAsked, this, [this, card](bool open) {
        setOpen(card, open);
        if (open)
            showWhereItStands(*card->widget());
    });
    connect(widget, &ItemCard::moveAsked, this, [this, card](int by) { move(card, by); });
    connect(widget, &ItemCard::removeAsked, this, [this, card] { remove(card); });
    connect(widget, &ItemCard::menuAsked, this, [this, card] { showCan(card); });
    connect(card, &StructureCard::startAsked, this, [this, card] {
        if (const StructureAction* action = start())
            action->run(itemOf(card));
    });
    connect(card, &StructureCard::textChanged, this, &StructureList::tell);
    connect(card, &StructureCard::tabStopsChanged, this, &StructureList::tabStopsChanged);
    return card;
}

void StructureList::addMenu(StructureCard* card)
{
    ItemCard* widget = card->widget();
    widget->setFixed(m_readOnly);
    if (m_parts.holds != Holds::several)
        widget->setAlone(
            m_parts.holds == Holds::always ? Texts::tr("Clear", "verb: empties the fields") : Texts::tr("Remove"));
    const QList<QAction*> before = widget->actions();
    for (QAction* action : before)
        delete action;
    for (const StructureAction& one : std::as_const(m_actions)) {
        auto* action = new QAction(one.text, widget);
        connect(action, &QAction::triggered, this, [this, card, run = one.run] { run(itemOf(card)); });
        widget->addAction(action);
    }
    card->setStart(start() ? start()->start : QString());
}

const StructureAction* StructureList::start() const
{
    const auto found = std::find_if(
        m_actions.cbegin(), m_actions.cend(), [](const StructureAction& action) { return !action.start.isEmpty(); });
    return found == m_actions.cend() ? nullptr : &*found;
}

// Before the card's menu is made. A reason in a tooltip would not reach whoever uses the keyboard.
void StructureList::showCan(StructureCard* card)
{
    const QList<QAction*> actions = card->widget()->actions();
    for (qsizetype i = 0; i < m_actions.size(); ++i) {
        const StructureAction& one = m_actions.at(i);
        const QString reason = one.whyNot ? one.whyNot(itemOf(card)) : QString();
        actions.at(i)->setText(reason.isEmpty() ? one.text : u"%1 (%2)"_s.arg(one.text, reason));
        actions.at(i)->setEnabled(reason.isEmpty());
    }
    card->widget()->setCanRemove(m_parts.holds != Holds::always || !card->text().isEmpty());
}

void StructureList::setActions(const QList<StructureAction>& actions)
{
    m_actions = actions;
    for (StructureCard* card : std::as_const(m_cards))
        addMenu(card);
}

// Two items may be the same: counted, not looked up.
int StructureList::itemOf(const StructureCard* card) const
{
    const auto end = card->text().isEmpty() ? m_cards.cend() : std::find(m_cards.cbegin(), m_cards.cend(), card);
    return int(
        std::count_if(m_cards.cbegin(), end, [](const StructureCard* before) { return !before->text().isEmpty(); }));
}

void StructureList::setReadOnly(bool on)
{
    if (on == m_readOnly)
        return;
    m_readOnly = on;
    for (StructureCard* card : std::as_const(m_cards)) {
        card->setReadOnly(on);
        card->widget()->setFixed(on);
    }
    showOrder();
}

void StructureList::setHeld(const std::optional<QStringList>& held, bool dots)
{
    m_held = held;
    m_hasDots = dots;
    showEdited();
}

// A card that nothing is like any more is still what it was.
void StructureList::showEdited()
{
    QStringList texts;
    for (const StructureCard* card : std::as_const(m_cards))
        texts.append(card->text());
    const QList<qsizetype> origins = StructureEdit::origins(texts, m_held.value_or(QStringList()));
    QStringList left = m_held.value_or(QStringList());
    for (const qsizetype at : origins)
        if (at >= 0)
            left.removeOne(m_held->at(at));
    for (qsizetype i = 0; i < m_cards.size(); ++i) {
        StructureCard* card = m_cards.at(i);
        const QString before = card->origin().value_or(m_parts.holds == Holds::several ? QString() : left.value(0));
        QString origin;
        if (origins.at(i) >= 0)
            origin = m_held->at(origins.at(i));
        else if (left.removeOne(before))
            origin = before;
        card->setOrigin(m_held ? std::optional(origin) : std::nullopt);
        card->widget()->setEdited(m_held && m_hasDots && card->text() != origin);
    }
}

// Names, what can move, and whether there may be another.
void StructureList::showOrder()
{
    const qsizetype count = m_cards.size();
    const QString item = Texts::shown(m_parts.structure->item);
    for (qsizetype i = 0; i < count; ++i) {
        StructureCard* card = m_cards.at(i);
        card->widget()->setCanMove(i > 0, i + 1 < count);
        //: Spoken of a card. %1: name of the field, %2: “place”, “person”…, %3: which one it is, %4: how many there
        //: are.
        const QString spoken = Texts::tr("%1, %2 %3 of %4").arg(m_parts.name, item).arg(i + 1).arg(count);
        card->setSpoken(m_parts.holds == Holds::several ? spoken : m_parts.name);
    }
    const bool isRoom = m_parts.holds == Holds::several || m_cards.isEmpty();
    m_add->setVisible(isRoom && !m_readOnly);
    showEdited();
    emit tabStopsChanged();
}

void StructureList::tell()
{
    m_telling = true;
    showOrder();
    emit itemsChanged(items());
    m_telling = false;
}

// --- One open at a time ---

void StructureList::open(int item)
{
    if (StructureCard* one = card(item))
        setOpen(one, true);
}

void StructureList::setOpen(StructureCard* card, bool open)
{
    if (m_parts.holds == Holds::always)
        return;
    if (open)
        for (StructureCard* other : std::as_const(m_cards))
            if (other != card)
                other->setOpen(false);
    card->setOpen(open);
    dropLeft(QApplication::focusWidget());
}

bool StructureList::foldOpen()
{
    const auto open =
        std::find_if(m_cards.cbegin(), m_cards.cend(), [](const StructureCard* card) { return card->isOpen(); });
    if (open == m_cards.cend() || m_parts.holds == Holds::always)
        return false;
    StructureCard* card = *open;
    card->setOpen(false);
    if (!card->text().isEmpty())
        card->widget()->input()->setFocus(Qt::OtherFocusReason);
    else
        remove(card);
    return true;
}

// --- What somebody does ---

void StructureList::add()
{
    const auto isEmpty = [](const StructureCard* card) { return card->text().isEmpty(); };
    const auto there = std::find_if(m_cards.cbegin(), m_cards.cend(), isEmpty);
    StructureCard* card = there == m_cards.cend() ? makeCard() : *there;
    // The keyboard is not in it before it is open.
    m_coming = card;
    setOpen(card, true);
    showOrder();
    if (QWidget* first = card->fields()->firstInput())
        focusWhereItStands(*first);
    showWhereItStands(*card->widget());
    m_coming = nullptr;
}

void StructureList::move(StructureCard* card, int by)
{
    const qsizetype from = m_cards.indexOf(card);
    const qsizetype to = from + by;
    if (m_readOnly || from < 0 || to < 0 || to >= m_cards.size())
        return;
    m_cards.move(from, to);
    m_column->removeWidget(card->widget());
    m_column->insertWidget(int(to), card->widget());
    tell();
}

void StructureList::remove(StructureCard* card)
{
    if (m_readOnly)
        return;
    if (m_parts.holds == Holds::always) {
        card->setText({}, true);
        return tell();
    }
    const qsizetype place = m_cards.indexOf(card);
    const bool hadKeyboard = card->holds(QApplication::focusWidget());
    const bool wasItem = !card->text().isEmpty();
    drop(card);
    showOrder();
    if (hadKeyboard && m_cards.isEmpty())
        m_add->setFocus(Qt::OtherFocusReason);
    else if (hadKeyboard)
        m_cards.at(qMin(place, m_cards.size() - 1))->widget()->input()->setFocus(Qt::OtherFocusReason);
    if (wasItem)
        tell();
}

// Its own menu may be what asked for it.
void StructureList::drop(StructureCard* card)
{
    m_cards.removeOne(card);
    m_column->removeWidget(card->widget());
    card->widget()->hide();
    card->deleteLater();
}

// --- Cards with nothing in them ---

void StructureList::dropLeft(const QWidget* focus)
{
    if (m_parts.holds == Holds::always || !focus || focus == m_add)
        return;
    const auto isLeft = [this, focus](const StructureCard* card) {
        return card != m_coming && card->text().isEmpty() && !card->holds(focus);
    };
    if (std::none_of(m_cards.cbegin(), m_cards.cend(), isLeft))
        return;
    // What is pressed must not move away under the pointer.
    const auto dropAll = [this, isLeft] {
        const QList<StructureCard*> cards = m_cards;
        for (StructureCard* card : cards)
            if (isLeft(card))
                drop(card);
        showOrder();
    };
    if (QGuiApplication::mouseButtons() == Qt::NoButton)
        return dropAll();
    QTimer::singleShot(releaseInterval, this, [this] { dropLeft(QApplication::focusWidget()); });
}

void StructureList::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (event->spontaneous() || m_parts.holds == Holds::always)
        return;
    const QList<StructureCard*> cards = m_cards;
    for (StructureCard* card : cards)
        if (card->text().isEmpty())
            drop(card);
    if (cards != m_cards)
        showOrder();
}

// --- Keys ---

bool StructureList::event(QEvent* event)
{
    // Before it reaches a shortcut of the window.
    if (event->type() == QEvent::ShortcutOverride) {
        auto* key = static_cast<QKeyEvent*>(event);
        const bool isOpen =
            std::any_of(m_cards.cbegin(), m_cards.cend(), [](const StructureCard* card) { return card->isOpen(); });
        if (key->key() == Qt::Key_Escape && !key->modifiers() && isOpen && m_parts.holds != Holds::always) {
            event->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

void StructureList::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape || event->modifiers() || !foldOpen())
        QWidget::keyPressEvent(event);
}

bool StructureList::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        const bool isPlain = !(key->modifiers() & ~Qt::KeypadModifier);
        if (isPlain && walk(static_cast<QWidget*>(watched), key->key()))
            return true;
    }
    return QWidget::eventFilter(watched, event);
}

// From line to line, and to the button behind the last.
bool StructureList::walk(QWidget* from, int key)
{
    QList<QWidget*> lines;
    for (const StructureCard* card : std::as_const(m_cards))
        lines.append(card->widget()->input());
    if (m_add->isVisibleTo(this))
        lines.append(m_add);
    const qsizetype at = lines.indexOf(from);
    const QMap<int, qsizetype> places{ { Qt::Key_Up, at - 1 }, { Qt::Key_Down, at + 1 }, { Qt::Key_Home, 0 },
        { Qt::Key_End, lines.size() - 1 } };
    if (!places.contains(key))
        return false;
    // At either end it stays: the next field is Tab's.
    if (QWidget* to = lines.value(places.value(key)))
        to->setFocus(Qt::TabFocusReason);
    return true;
}

QWidget* StructureList::input() const
{
    if (m_cards.isEmpty())
        return m_add;
    if (m_parts.holds == Holds::always)
        return m_cards.constFirst()->fields()->firstInput();
    return m_cards.constFirst()->widget()->input();
}

QList<QWidget*> StructureList::tabStops() const
{
    QList<QWidget*> stops;
    for (const StructureCard* card : m_cards)
        stops.append(card->tabStops());
    stops.append(m_add);
    return stops;
}

}  // namespace Quorbel
