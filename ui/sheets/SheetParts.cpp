#include "ui/sheets/SheetParts.h"

#include "ui/controls/Buttons.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"
#include "ui/sheets/Sheet.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

namespace Quorbel {

namespace {
// Points.
constexpr qreal tileRadius = 11;
constexpr qreal symbolSize = 22;
constexpr qreal buttonGap = 8;
}  // namespace

void frameSheet(SheetBody* sheet, QLayout* column, qreal width)
{
    onRestyle(sheet, [=] {
        const int padding = px(sheetPadding);
        sheet->setWantedWidth(px(width));
        column->setContentsMargins(padding, padding, padding, padding);
    });
}

SymbolTile::SymbolTile(const QString& icon, QWidget* parent)
    : QWidget(parent)
    , m_icon(icon)
{
    onRestyle(this, [this] { setFixedSize(px(side), px(side)); });
}

void SymbolTile::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    paintBox(painter, rect(), pxF(tileRadius), theme.amberBg, QPen(theme.amberLine, 1));
    Icon::paint(painter, rect(), m_icon, pxF(symbolSize), theme.amber);
}

void stackParts(QWidget* sheet, QVBoxLayout* column, const QList<SheetPart>& parts)
{
    column->setSpacing(0);
    for (const SheetPart& part : parts) {
        auto* gap = new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Fixed);
        column->addWidget(part.widget, 0, part.alignment);
        column->addItem(gap);
        onRestyle(sheet, [gap, column, below = part.below] {
            gap->changeSize(0, px(below), QSizePolicy::Minimum, QSizePolicy::Fixed);
            column->invalidate();
        });
    }
}

QHBoxLayout* sheetButtonRow(QWidget* sheet, const QList<QBButton*>& buttons)
{
    auto* line = new QHBoxLayout;
    line->addStretch();
    for (QBButton* button : buttons)
        line->addWidget(button);
    onRestyle(sheet, [line] { line->setSpacing(px(buttonGap)); });
    return line;
}

}  // namespace Quorbel
