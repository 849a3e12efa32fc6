#include "ui/inspector/iptc/StructureCards.h"

#include "core/iptc/IptcStructures.h"
#include "core/language/Texts.h"
#include "ui/controls/FormLabels.h"
#include "ui/controls/ReadingOrder.h"
#include "ui/controls/cards/EditedDot.h"
#include "ui/controls/cards/ItemCard.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"
#include "ui/inspector/iptc/StructureCard.h"

#include <QPainter>
#include <QVBoxLayout>

namespace Quorbel {

namespace {

// Points.
constexpr qreal gap = 7;
constexpr qreal blockHeight = 42;  // of a folded card
constexpr qreal radius = 9;
constexpr qreal gapSide = 7;  // between the border of a gap and its button

StructureList::Parts partsOf(const FieldSpec& field, const CodeTexts& codes)
{
    const auto holds = field.isSeveral ? StructureList::Holds::several : StructureList::Holds::always;
    return { Texts::shown(field.label), IptcStructures::spec(field.structure), holds, false, codes };
}

}  // namespace

StructureCards::StructureCards(const FieldSpec& field, const CodeTexts& codes, QWidget* parent)
    : QWidget(parent)
    , m_column(new QVBoxLayout(this))
    , m_reason(new WrappedLine(TextRole::label, 11, 15, this))
    , m_list(new StructureList(partsOf(field, codes), this))
    , m_block(new QWidget(this))
{
    describeInReadingOrder(staticMetaObject, QAccessible::Client);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_column->addWidget(m_reason);
    m_column->addWidget(m_list);
    m_column->addWidget(m_block);
    m_reason->hide();
    m_block->hide();
    connect(m_list, &StructureList::itemsChanged, this, &StructureCards::itemsChanged);
    connect(m_list, &StructureList::tabStopsChanged, this, &StructureCards::tabStopsChanged);
    connect(m_list, &StructureList::tabStopsChanged, this, &StructureCards::showGap);
    onRestyle(this, [this] {
        showGap();
        m_column->setSpacing(px(gap));
        m_reason->setContentsMargins(mirrored(QMargins(px(EditedDot::room), 0, 0, 0)));
        m_block->setFixedHeight(px(blockHeight));
    });
}

void StructureCards::setState(const StructureCardsState& state, bool fresh)
{
    if (!fresh && state == m_state)
        return;
    m_state = state;
    m_list->setVisible(!state.unread);
    m_block->setVisible(state.unread);
    m_list->setReadOnly(!state.readOnlyReason.isEmpty());
    m_list->show(state.items, fresh);
    // In a batch the field's tick tells that all of them will be added.
    const QStringList held = state.batch ? QStringList() : state.held;
    m_list->setHeld(state.edited ? std::optional(held) : std::nullopt, !state.batch);
    m_reason->setText(state.readOnlyReason);
    m_reason->setVisible(!state.readOnlyReason.isEmpty() && !state.unread);
    showGap();
}

// Wanted, and there is nothing but the button that adds a card.
bool StructureCards::isGap() const
{
    return m_state.wanted && !m_state.unread && !m_list->card(0);
}

void StructureCards::showGap()
{
    if (const StructureCard* card = m_list->card(0))
        card->widget()->setWanted(m_state.wanted && m_state.items.isEmpty());
    const int side = isGap() ? px(gapSide) : 0;
    m_column->setContentsMargins(side, side, side, side);
    update();
}

void StructureCards::paintEvent(QPaintEvent*)
{
    DirectedPainter painter(this);
    if (isGap())
        paintBox(painter, mirrored(QRectF(rect()).adjusted(px(EditedDot::room), 0, 0, 0), this), pxF(radius),
            Qt::transparent, dashedPen(Theme::of(this).derived.dashedLine));
    if (!m_state.unread)
        return;
    const QRect block = m_block->geometry().marginsRemoved(mirrored(QMargins(px(EditedDot::room), 0, 0, 0)));
    paintBox(painter, block, pxF(radius), Theme::of(this).derived.hover, Qt::NoPen);
}

}  // namespace Quorbel
