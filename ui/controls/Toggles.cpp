#include "ui/controls/Toggles.h"

#include "ui/controls/Accessibility.h"
#include "ui/controls/HoverFade.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/HighContrast.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QPainter>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {
constexpr qreal boxSide = 16;  // points
}  // namespace

QBCheckbox::QBCheckbox(QWidget* parent)
    : QBCheckbox(QString(), parent)
{
}

QBCheckbox::QBCheckbox(const QString& title, QWidget* parent)
    : ThemedButton(title, parent)
{
    setCheckable(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    onRestyle(this, [this] {
        setFont(sansFont(13));
        updateGeometry();
    });
    installFocusRing(this, { RingShape::button, 4.5, {}, [this] { return box(); } });
}

void QBCheckbox::setAmber(bool amber)
{
    m_amber = amber;
    update();
}

QSize QBCheckbox::sizeHint() const
{
    const int side = px(boxSide);
    if (text().isEmpty())
        return { side, side };
    return { side + px(8) + fontMetrics().horizontalAdvance(text()), qMax(side, px(18)) };
}

QRectF QBCheckbox::box() const
{
    const qreal side = pxF(boxSide);
    return mirrored(QRectF(0, (height() - side) / 2, side, side), this);
}

void QBCheckbox::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    const qreal side = pxF(boxSide);
    const QRectF box = this->box();
    const QColor on = m_amber ? theme.amber : theme.accent;
    const QColor ground = isChecked() ? on : mixed(theme.field, theme.derived.secondaryHover, fade()->hover());
    const QColor line = isChecked() ? on : mixed(theme.muted, theme.derived.label, fade()->hover());
    DirectedPainter painter(this);
    painter.setOpacity(opacity());
    paintBox(painter, box, pxF(4.5), ground, QPen(line, 1));
    if (isChecked())
        Icon::paint(painter, box, u"checkmark"_s, side * 13 / 16, theme.accentText, 2.6);
    if (text().isEmpty())
        return;
    painter.setPen(theme.text);
    const QRectF title = QRectF(rect()).adjusted(side + pxF(8), 0, 0, 0);
    painter.drawText(mirrored(title, this), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, text());
}

QBSwitch::QBSwitch(QWidget* parent)
    : ThemedButton({}, parent)
    , m_position(this, Duration::hover, QEasingCurve::OutCubic)
{
    setCheckable(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    onRestyle(this, [this] { updateGeometry(); });
    installFocusRing(this, { RingShape::button, 10, {}, {} });
}

QSize QBSwitch::sizeHint() const
{
    return { px(34), px(20) };
}

void QBSwitch::checkStateSet()
{
    QAbstractButton::checkStateSet();
    slide();
}

void QBSwitch::nextCheckState()
{
    QAbstractButton::nextCheckState();
    slide();
}

void QBSwitch::slide()
{
    m_position.moveTo(isChecked() ? 1 : 0);
}

void QBSwitch::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    // With high contrast what is off is empty.
    const bool isStrong = HighContrast::isOn(theme);
    const QColor plain = mixed(theme.scroll, theme.derived.scrollHover, fade()->hover());
    const QColor off = isStrong ? theme.btn : plain;
    const QColor on = mixed(theme.accent, theme.derived.primaryHover, fade()->hover());
    DirectedPainter painter(this);
    painter.setOpacity(opacity());
    paintBox(painter, rect(), height() / 2.0, mixed(off, on, m_position.value()), HighContrast::groundEdge(theme));
    const qreal inset = pxF(2);
    const qreal side = height() - 2 * inset;
    const QRectF knob =
        mirrored(QRectF(inset + m_position.value() * (width() - side - 2 * inset), inset, side, side), this);
    paintBox(painter, knob.translated(0, 1), side / 2, withAlpha(Qt::black, .16), Qt::NoPen);
    const QColor knobOff = isStrong ? theme.text : theme.derived.switchKnob;
    paintBox(painter, knob, side / 2, mixed(knobOff, theme.accentText, m_position.value()), Qt::NoPen);
}

}  // namespace Quorbel
