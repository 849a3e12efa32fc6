#include "ui/controls/attached/MenuRow.h"

#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QApplication>
#include <QLineEdit>
#include <QPainter>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal high = 28;
constexpr qreal radius = 6;
constexpr qreal side = 12;
constexpr qreal boxLeft = 9;
constexpr qreal boxSide = 15;
constexpr qreal behindBox = 32;
constexpr qreal gap = 20;

}  // namespace

MenuRow::MenuRow(const QString& title, bool ticks, QWidget* parent)
    : ThemedButton(title, parent)
{
    setCheckable(ticks);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    onRestyle(this, [this] {
        setFont(sansFont(13));
        updateGeometry();
    });
}

void MenuRow::setTrailing(const QString& text)
{
    if (text == m_trailing)
        return;
    m_trailing = text;
    updateGeometry();
    update();
}

void MenuRow::setQuiet(bool quiet)
{
    m_quiet = quiet;
    update();
}

QSize MenuRow::sizeHint() const
{
    const QFontMetrics small(sansFont(12));
    const int text = fontMetrics().horizontalAdvance(this->text()) + small.horizontalAdvance(m_trailing);
    return { px(isCheckable() ? behindBox : side) + text + px(gap + side), px(high) };
}

void MenuRow::enterEvent(QEnterEvent* event)
{
    ThemedButton::enterEvent(event);
    if (isEnabled() && !qobject_cast<QLineEdit*>(window()->focusWidget()))
        setFocus(Qt::MouseFocusReason);
}

void MenuRow::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    painter.setOpacity(opacity());
    const bool isActive = hasFocus();
    if (isActive)
        paintBox(painter, rect(), pxF(radius), theme.sel, Qt::NoPen);
    else if (underMouse() && isEnabled())
        paintBox(painter, rect(), pxF(radius), theme.derived.hover, Qt::NoPen);
    const QColor trailing = isActive ? theme.selSub : m_quiet ? theme.muted : theme.derived.label;
    const QRectF line =
        mirrored(QRectF(rect()).adjusted(pxF(isCheckable() ? behindBox : side), 0, -pxF(side), 0), this);
    painter.setFont(sansFont(12));
    painter.setPen(trailing);
    painter.drawText(line, Qt::AlignVCenter | Qt::AlignRight | Qt::TextSingleLine, m_trailing);
    painter.setFont(font());
    painter.setPen(isActive ? theme.selText : m_quiet ? theme.muted : theme.text);
    painter.drawText(line, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, text());
    if (isCheckable())
        paintBoxAt(
            painter, mirrored(QRectF(pxF(boxLeft), (height() - pxF(boxSide)) / 2, pxF(boxSide), pxF(boxSide)), this));
}

void MenuRow::paintBoxAt(QPainter& painter, const QRectF& box) const
{
    const Theme& theme = Theme::of(this);
    if (m_quiet && !isChecked() && !hasFocus())
        painter.setOpacity(painter.opacity() * .5);
    // On the dark row the tick changes places with its ground, or neither would be seen.
    const QColor on = hasFocus() ? theme.selText : theme.accent;
    const QColor mark = hasFocus() ? theme.sel : theme.accentText;
    paintBox(painter, box, pxF(4.5), isChecked() ? on : theme.field, QPen(isChecked() ? on : theme.muted, 1));
    if (isChecked())
        Icon::paint(painter, box, u"checkmark"_s, box.width() * 13 / 16, mark, 2.6);
}

}  // namespace Quorbel
