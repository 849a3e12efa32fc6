#include "ui/controls/Buttons.h"

#include "ui/controls/Accessibility.h"
#include "ui/controls/HoverFade.h"
#include "ui/controls/Labels.h"
#include "ui/controls/TargetRoom.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/HighContrast.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QKeyEvent>
#include <QPainter>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points, of a text button.
constexpr qreal leadingIcon = 10;
constexpr qreal trailingIcon = 12;
constexpr qreal trailingGap = 5;
constexpr qreal tokenKeyGap = 6;
constexpr qreal leadingGap = 6;

// Three colours, blended as far as the pointer and the press have come.
QColor stateColor(const HoverFade& fade, const QColor& rest, const QColor& hover, const QColor& pressed)
{
    return mixed(mixed(rest, hover, fade.hover()), pressed, fade.pressed());
}

struct ButtonLook {
    QColor fill{};
    QColor line{};
    QColor text{};
    Qt::PenStyle pen = Qt::SolidLine;
};

ButtonLook primaryLook(const Theme& t, const HoverFade& fade, bool enabled)
{
    if (!enabled)
        return { t.derived.primaryOff, HighContrast::isOn(t) ? t.derived.primaryOffText : t.derived.primaryOff,
            t.derived.primaryOffText };
    const QColor fill = stateColor(fade, t.accent, t.derived.primaryHover, t.derived.primaryPressed);
    return { fill, fill, t.accentText };
}

ButtonLook lookOf(QBButtonKind kind, const Theme& t, const HoverFade& fade, bool enabled)
{
    const DerivedColors& d = t.derived;
    switch (kind) {
    case QBButtonKind::primary:
        return primaryLook(t, fade, enabled);
    case QBButtonKind::secondary:
        return { stateColor(fade, t.btn, d.secondaryHover, d.secondaryPressed),
            stateColor(fade, t.btnLine, d.secondaryHoverLine, d.secondaryHoverLine), t.text };
    case QBButtonKind::dashed:
        return { stateColor(fade, Qt::transparent, d.hover, d.pressed),
            stateColor(fade, d.dashedLine, t.muted, t.muted), stateColor(fade, d.label, t.text, t.text), Qt::DashLine };
    case QBButtonKind::destructive:
        return { stateColor(fade, Qt::transparent, d.destructiveHover, d.destructivePressed), Qt::transparent,
            d.destructive, Qt::NoPen };
    }
    return {};
}

QPen penOf(const ButtonLook& look)
{
    if (look.pen == Qt::NoPen)
        return Qt::NoPen;
    return look.pen == Qt::DashLine ? dashedPen(look.line) : QPen(look.line, 1);
}

}  // namespace

ThemedButton::ThemedButton(const QString& text, QWidget* parent)
    : QAbstractButton(parent)
    , m_fade(new HoverFade(this))
{
    installAccessibility();
    setText(text);
    setFocusPolicy(Qt::StrongFocus);
    giveTargetRoom(this);
    connect(this, &QAbstractButton::pressed, this, [this] { m_fade->setPressed(true); });
    connect(this, &QAbstractButton::released, this, [this] { m_fade->setPressed(false); });
}

qreal ThemedButton::opacity(qreal whenDisabled) const
{
    return isEnabled() ? 1 : HighContrast::disabledOpacity(Theme::of(this), whenDisabled);
}

void ThemedButton::keyPressEvent(QKeyEvent* event)
{
    // Space is QAbstractButton's; a focused button answers to Return too.
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && !event->isAutoRepeat())
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

QBButton::QBButton(const QString& title, QBButtonKind kind, QWidget* parent)
    : ThemedButton(title, parent)
    , m_kind(kind)
{
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    onRestyle(this, [this] { restyle(); });
    installFocusRing(this, { RingShape::button, 7, {}, {} });
}

void QBButton::restyle()
{
    setFont(m_small ? sansFont(11.5) : sansFont(13, QFont::Medium));
    updateGeometry();
}

void QBButton::setSmall(bool on)
{
    m_small = on;
    restyle();
}

void QBButton::setSidePadding(qreal points)
{
    m_sidePadding = points;
    updateGeometry();
}

QSize QBButton::sizeHint() const
{
    const qreal usual = m_kind == QBButtonKind::primary ? 16 : 14;
    const qreal natural = m_small ? 8 : usual;
    const int padding = px(m_sidePadding < 0 ? natural : m_sidePadding);
    return { fontMetrics().horizontalAdvance(text()) + 2 * padding + 2, px(m_small ? 22 : 30) };
}

void QBButton::paintEvent(QPaintEvent*)
{
    const ButtonLook look = lookOf(m_kind, Theme::of(this), *fade(), isEnabled());
    DirectedPainter painter(this);
    if (m_kind != QBButtonKind::primary)
        painter.setOpacity(opacity());
    paintBox(painter, rect(), pxF(radius()), look.fill, penOf(look));
    painter.setPen(look.text);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
}

QBIconButton::QBIconButton(const QString& icon, const QString& name, QWidget* parent)
    : ThemedButton({}, parent)
    , m_icon(icon)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setName(name);
    onRestyle(this, [this] { updateGeometry(); });
    installFocusRing(this, { RingShape::tight, 7, {}, {} });
}

void QBIconButton::setIcon(const QString& icon)
{
    m_icon = icon;
    update();
}

void QBIconButton::setName(const QString& name)
{
    setAccessibleName(name);
    setHint(accessibleDescription());
}

void QBIconButton::setHint(const QString& hint)
{
    setAccessibleDescription(hint);
    setToolTip(hint.isEmpty() ? accessibleName() : accessibleName() + u'\n' + hint);
}

void QBIconButton::setSizes(QSizeF button, qreal icon, qreal stroke, qreal radius)
{
    m_buttonSize = button;
    m_iconSize = icon;
    m_stroke = stroke;
    m_radius = radius;
    updateGeometry();
    update();
}

void QBIconButton::setHighlighted(bool on)
{
    m_highlighted = on;
    update();
}

void QBIconButton::setQuiet(bool on)
{
    m_quiet = on;
    update();
}

void QBIconButton::setAmber(bool on)
{
    m_amber = on;
    update();
}

QSize QBIconButton::sizeHint() const
{
    return { px(m_buttonSize.width()), px(m_buttonSize.height()) };
}

void QBIconButton::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    const QColor rest = m_highlighted ? theme.derived.hover : QColor(Qt::transparent);
    const QColor ground = stateColor(*fade(), rest, theme.derived.hover, theme.derived.pressed);
    const QColor plain = m_quiet ? theme.muted : theme.derived.label;
    const QColor resting = m_amber ? theme.amber : plain;
    const QColor ink = m_highlighted ? theme.text : stateColor(*fade(), resting, theme.text, theme.text);
    DirectedPainter painter(this);
    painter.setOpacity(opacity(.38));
    paintBox(painter, rect(), pxF(m_radius), ground, m_highlighted ? HighContrast::groundEdge(theme) : Qt::NoPen);
    Icon::paint(painter, rect(), m_icon, pxF(m_iconSize), ink, m_stroke);
}

QBTextButton::QBTextButton(const QString& title, QWidget* parent)
    : ThemedButton(title, parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    onRestyle(this, [this] {
        setFont(sansFont(12, m_inline ? QFont::Medium : QFont::Normal));
        updateGeometry();
    });
    installFocusRing(this, { RingShape::tight, 6, {}, {} });
}

void QBTextButton::setKeyHint(const QString& keys)
{
    m_keys = keys;
    updateGeometry();
    update();
}

void QBTextButton::setLeadingIcon(const QString& icon)
{
    m_icon = icon;
    updateGeometry();
    update();
}

void QBTextButton::setTrailingIcon(const QString& icon)
{
    m_trailing = icon;
    updateGeometry();
    update();
}

void QBTextButton::setLink(bool on)
{
    m_link = on;
    setCursor(on ? Qt::PointingHandCursor : Qt::ArrowCursor);
    updateGeometry();
    update();
}

void QBTextButton::setInline(bool on)
{
    m_inline = on;
    setFont(sansFont(12, on ? QFont::Medium : QFont::Normal));
    setCursor(on ? Qt::PointingHandCursor : Qt::ArrowCursor);
    updateGeometry();
    update();
}

void QBTextButton::setRole(TextRole role)
{
    m_role = role;
    update();
}

QSize QBTextButton::sizeHint() const
{
    int width = fontMetrics().horizontalAdvance(text()) + 2 * px(hasGround() ? 8 : 0);
    if (!m_icon.isEmpty())
        width += px(leadingIcon + leadingGap);
    if (!m_keys.isEmpty())
        width += px(6) + QFontMetrics(sansFont(11)).horizontalAdvance(m_keys);
    if (!m_trailing.isEmpty())
        width += px(trailingIcon + trailingGap);
    if (m_inline)
        return { width, px(17) };
    return { width, px(m_link ? 20 : 26) };
}

void QBTextButton::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    painter.setOpacity(opacity(.40));
    if (hasGround()) {
        const QColor ground = stateColor(*fade(), Qt::transparent, theme.derived.hover, theme.derived.pressed);
        paintBox(painter, rect(), pxF(6), ground, Qt::NoPen);
    }
    QFont titleFont = font();
    titleFont.setUnderline(m_link || (m_inline && underMouse()));
    painter.setFont(titleFont);
    painter.setPen(
        m_inline ? colorFor(theme, m_role) : stateColor(*fade(), theme.derived.label, theme.text, theme.text));
    const int padding = px(hasGround() ? 8 : 0);
    QRect inner = rect().adjusted(padding, 0, -padding, 0);
    if (!m_icon.isEmpty()) {
        const QRectF icon(inner.left(), 0, pxF(leadingIcon), height());
        Icon::paint(painter, mirrored(icon, this), m_icon, pxF(leadingIcon), painter.pen().color(), 2.1);
        inner.setLeft(inner.left() + px(leadingIcon + leadingGap));
    }
    if (!m_trailing.isEmpty()) {
        const QRectF icon(inner.right() + 1 - pxF(trailingIcon), 0, pxF(trailingIcon), height());
        Icon::paint(painter, mirrored(icon, this), m_trailing, pxF(trailingIcon), painter.pen().color(), 2.1);
        inner.setRight(inner.right() - px(trailingIcon + trailingGap));
    }
    // Metrics round: a text that has its room is never shortened.
    const bool isShort = width() < sizeHint().width();
    painter.drawText(mirrored(inner, this), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
        isShort ? painter.fontMetrics().elidedText(text(), Qt::ElideRight, inner.width()) : text());
    if (isShort)
        return;  // the keys are the first to give way
    painter.setFont(sansFont(11));
    painter.setPen(theme.muted);
    painter.drawText(mirrored(inner, this), Qt::AlignVCenter | Qt::AlignRight | Qt::TextSingleLine, m_keys);
}

TokenChip::TokenChip(const QString& title, QWidget* parent)
    : ThemedButton(title, parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    onRestyle(this, [this] {
        setFont(sansFont(12));
        updateGeometry();
    });
    installFocusRing(this, { RingShape::tight, 13, {}, {} });
}

QSize TokenChip::sizeHint() const
{
    int width = fontMetrics().horizontalAdvance(text()) + 2 * px(m_key.isEmpty() ? 11 : 10) + (m_key.isEmpty() ? 2 : 4);
    if (!m_key.isEmpty())
        width += px(tokenKeyGap) + QFontMetrics(sansFont(11)).horizontalAdvance(m_key);
    return { width, px(26) };
}

void TokenChip::setKeyHint(const QString& key)
{
    m_key = key;
    updateGeometry();
    update();
}

void TokenChip::paintEvent(QPaintEvent*)
{
    const ButtonLook look = lookOf(QBButtonKind::secondary, Theme::of(this), *fade(), isEnabled());
    DirectedPainter painter(this);
    painter.setOpacity(opacity());
    paintBox(painter, rect(), height() / 2.0, look.fill, penOf(look));
    painter.setPen(look.text);
    if (m_key.isEmpty() && width() >= sizeHint().width()) {
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
        return;
    }
    QRect inner = rect().adjusted(px(10) + 1, 0, -px(10) - 1, 0);
    const int keyWidth = m_key.isEmpty() ? 0 : QFontMetrics(sansFont(11)).horizontalAdvance(m_key);
    const QRect title = inner.adjusted(0, 0, m_key.isEmpty() ? 0 : -keyWidth - px(tokenKeyGap), 0);
    painter.drawText(mirrored(title, this), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
        fontMetrics().elidedText(text(), Qt::ElideRight, title.width()));
    painter.setFont(sansFont(11));
    painter.setPen(Theme::of(this).derived.label);
    painter.drawText(inner, Qt::AlignVCenter | Qt::AlignRight | Qt::TextSingleLine, m_key);
}

}  // namespace Quorbel
