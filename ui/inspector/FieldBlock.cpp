#include "ui/inspector/FieldBlock.h"

#include "core/language/Texts.h"
#include "ui/controls/Accessibility.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

namespace Quorbel {

namespace {
// Points.
constexpr qreal radius = 7;
constexpr qreal side = 10;
constexpr qreal lineHeight = 30;
}  // namespace

FieldBlock::FieldBlock(QWidget* parent)
    : QWidget(parent)
{
    describeAs(staticMetaObject, QAccessible::StaticText);
    setAccessibleName(Texts::tr("Reading metadata"));
}

void FieldBlock::setText(const QString& text)
{
    if (text == m_text)
        return;
    m_text = text;
    setAccessibleName(text.isEmpty() ? Texts::tr("Reading metadata") : text);
    setToolTip(text);
    update();
}

void FieldBlock::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    paintBox(painter, rect(), pxF(radius), theme.derived.hover, Qt::NoPen);
    painter.setFont(sansFont(13));
    painter.setPen(theme.derived.label);
    const QRect line(px(side), 0, width() - 2 * px(side), px(lineHeight));
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        painter.fontMetrics().elidedText(m_text, Qt::ElideRight, line.width()));
}

}  // namespace Quorbel
