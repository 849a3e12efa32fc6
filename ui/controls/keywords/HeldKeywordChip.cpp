#include "ui/controls/keywords/HeldKeywordChip.h"

#include "core/language/Texts.h"
#include "ui/controls/HoverFade.h"
#include "ui/controls/ToolTips.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/HighContrast.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QKeyEvent>
#include <QPainter>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal textSize = 12;
constexpr qreal countSize = 11;
constexpr qreal cellHeight = 28;
constexpr qreal capsuleHeight = 22;
constexpr qreal leftPadding = 9;
constexpr qreal countGap = 5;
constexpr qreal crossSide = 16;
constexpr qreal crossGap = 3;
constexpr qreal rightPadding = 3;

QRectF capsuleIn(const QWidget* chip)
{
    const qreal height = pxF(capsuleHeight);
    return { 1, (chip->height() - height) / 2, chip->width() - 2.0, height };
}

QRect crossIn(const QWidget* chip)
{
    const int side = px(crossSide);
    return { chip->width() - side - px(rightPadding) - 2, (chip->height() - side) / 2, side, side };
}

}  // namespace

HeldKeywordChip::HeldKeywordChip(QWidget* parent)
    : ThemedButton({}, parent)
    , m_cross(new QBIconButton(u"xmark"_s, {}, this))
{
    ToolTips::setRestQuiet(this);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_cross->setSizes({ crossSide, crossSide }, 9, 2.6, 8);
    m_cross->setQuiet(true);
    m_cross->setFocusPolicy(Qt::NoFocus);  // the keyboard has Delete
    connect(m_cross, &QAbstractButton::clicked, this, &HeldKeywordChip::crossed);
    onRestyle(this, [this] {
        setFont(verbatimFont(textSize));
        updateGeometry();
    });
    installFocusRing(this, { RingShape::tight, capsuleHeight / 2, {}, [this] { return capsuleIn(this); } });
}

void HeldKeywordChip::setHeld(const HeldKeyword& held)
{
    if (held == m_held)
        return;
    const bool isOtherWidth = held.keyword != m_held.keyword || held.count != m_held.count;
    m_held = held;
    const bool isGone = held.by == HeldKeyword::By::gone;
    setAccessibleName(held.spoken);
    m_cross->setIcon(isGone ? u"arrow.uturn.backward"_s : u"xmark"_s);
    m_cross->setSizes({ crossSide, crossSide }, isGone ? 11 : 9, isGone ? 2.1 : 2.6, 8);
    m_cross->setAmber(isGone);
    //: %1: a keyword.
    m_cross->setName((isGone ? Texts::tr("Keep %1") : Texts::tr("Take away %1")).arg(held.keyword));
    if (isOtherWidth)
        updateGeometry();
    showToolTip();
    update();
}

QSize HeldKeywordChip::sizeHint() const
{
    int width = px(leftPadding) + px(crossGap) + px(crossSide) + px(rightPadding) + 6
        + fontMetrics().horizontalAdvance(m_held.keyword);
    if (!m_held.count.isEmpty())
        width += px(countGap) + QFontMetrics(sansFont(countSize)).horizontalAdvance(m_held.count);
    return { width, px(cellHeight) };
}

void HeldKeywordChip::showToolTip()
{
    QStringList lines;
    if (width() < sizeHint().width() || !m_held.toolTip.isEmpty())
        lines.append(m_held.keyword);
    if (!m_held.toolTip.isEmpty())
        lines.append(m_held.toolTip);
    setToolTip(lines.join(u'\n'));
}

void HeldKeywordChip::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        return emit crossed();
    default:
        ThemedButton::keyPressEvent(event);
    }
}

void HeldKeywordChip::resizeEvent(QResizeEvent*)
{
    m_cross->setGeometry(mirrored(crossIn(this), this));
    showToolTip();
}

void HeldKeywordChip::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    const bool isGone = m_held.by == HeldKeyword::By::gone;
    QColor fill = mixed(Qt::transparent, theme.derived.hover, fade()->hover());
    QColor line = theme.btnLine;
    if (m_held.by == HeldKeyword::By::all) {
        fill = theme.derived.pressed;
        line = HighContrast::isOn(theme) ? theme.btnLine : QColor(Qt::transparent);
    } else if (isGone) {
        fill = theme.amberBg;
        line = theme.amberLine;
    }
    DirectedPainter painter(this);
    painter.setOpacity(opacity());
    paintBox(painter, capsuleIn(this), pxF(capsuleHeight / 2), fill, QPen(line, 1));
    QRect text(px(leftPadding) + 2, 0, crossIn(this).x() - px(leftPadding) - 2 - px(crossGap), height());
    if (!m_held.count.isEmpty()) {
        painter.setFont(sansFont(countSize));
        painter.setPen(isGone ? theme.derived.amberText : theme.derived.label);
        painter.drawText(mirrored(text, this), Qt::AlignVCenter | Qt::AlignRight | Qt::TextSingleLine, m_held.count);
        text.setRight(text.right() - painter.fontMetrics().horizontalAdvance(m_held.count) - px(countGap));
    }
    QFont keywordFont = font();
    keywordFont.setStrikeOut(isGone);
    painter.setFont(keywordFont);
    painter.setPen(isGone ? theme.derived.amberText : theme.text);
    painter.drawText(mirrored(text, this), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
        painter.fontMetrics().elidedText(m_held.keyword, Qt::ElideRight, text.width()));
}

}  // namespace Quorbel
