#include "ui/controls/attached/CodesChip.h"

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

// Points.
constexpr qreal high = 22;
constexpr qreal radius = 5;
constexpr qreal side = 6;
constexpr qreal gap = 5;
constexpr qreal chevron = 10;
constexpr int mostCodes = 3;

}  // namespace

CodesChip::CodesChip(QWidget* parent)
    : ThemedButton({}, parent)
{
    setCheckable(true);
    setCursor(Qt::ArrowCursor);  // over a text field
    onRestyle(this, [this] {
        QFont font = verbatimFont(11);
        font.setLetterSpacing(QFont::PercentageSpacing, 102);
        setFont(font);
        updateGeometry();
    });
    installFocusRing(this, { RingShape::tight, radius, {}, {} });
}

void CodesChip::setCodes(const QList<Code>& codes)
{
    if (codes == m_codes)
        return;
    m_codes = codes;
    updateGeometry();
    update();
}

void CodesChip::setEdited(bool edited)
{
    m_edited = edited;
    update();
}

void CodesChip::setRoom(int width)
{
    m_room = width;
    updateGeometry();
    update();
}

// The first of the codes, and how many are left.
QList<CodesChip::Code> CodesChip::partsOf(int codes) const
{
    QList<Code> parts = m_codes.first(qMin(qsizetype(codes), m_codes.size()));
    if (const qsizetype left = m_codes.size() - parts.size(); left > 0)
        parts.append({ u"+%1"_s.arg(left) });
    return parts;
}

int CodesChip::widthOf(const QList<Code>& parts) const
{
    int text = 0;
    for (const Code& part : parts)
        text += fontMetrics().horizontalAdvance(part.text + u' ');
    return text + px(2 * side + gap + chevron);
}

QList<CodesChip::Code> CodesChip::shown() const
{
    int codes = m_codes.size() > mostCodes ? mostCodes - 1 : mostCodes;
    while (codes > 0 && widthOf(partsOf(codes)) > m_room)
        --codes;
    return partsOf(codes);
}

QString CodesChip::shownText() const
{
    QStringList texts;
    for (const Code& part : shown())
        texts.append(part.text);
    return texts.join(u' ');
}

QSize CodesChip::sizeHint() const
{
    return { widthOf(shown()), px(high) };
}

void CodesChip::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    painter.setOpacity(opacity());
    const QColor rest = isChecked() ? theme.derived.hover : QColor(Qt::transparent);
    const QColor ground =
        mixed(mixed(rest, theme.derived.hover, fade()->hover()), theme.derived.pressed, fade()->pressed());
    paintBox(painter, rect(), pxF(radius), ground, isChecked() ? HighContrast::groundEdge(theme) : Qt::NoPen);
    const QColor plain = isChecked() ? theme.text : mixed(theme.derived.label, theme.text, fade()->hover());
    painter.setPen(m_edited ? theme.derived.amberText : plain);
    int x = px(side);
    const QList<Code> parts = shown();
    for (const Code& part : parts) {
        QFont struck = font();
        struck.setStrikeOut(part.isGone);
        painter.setFont(struck);
        painter.drawText(mirrored(QRect(x, 0, width() - x, height()), this),
            Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, part.text);
        x += fontMetrics().horizontalAdvance(part.text + u' ');
    }
    const QRectF icon(width() - pxF(side + chevron), 0, pxF(chevron), height());
    Icon::paint(painter, mirrored(icon, this), u"chevron.down"_s, pxF(chevron), painter.pen().color(), 2.1);
}

}  // namespace Quorbel
