#include "ui/sheets/ListSheet.h"

#include "ui/controls/Buttons.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Theme.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

namespace Quorbel {

ListSheet::ListSheet(const Widths& widths, QWidget* parent)
    : SheetBody(parent)
    , m_widths(widths)
    , m_columns(new QHBoxLayout(this))
    , m_side(new QWidget)
{
    m_columns->setContentsMargins(0, 0, 0, 0);
    m_columns->setSpacing(0);
    m_columns->addWidget(m_side);
}

void ListSheet::setParts(
    QWidget* list, const QList<QWidget*>& belowList, const QList<QBIconButton*>& buttons, QWidget* editor)
{
    auto* column = new QVBoxLayout(m_side);
    auto* foot = new QHBoxLayout;
    column->addWidget(list, 1);
    for (QWidget* part : belowList)
        column->addWidget(part);
    for (QBIconButton* button : buttons) {
        button->setSizes({ 32, 28 }, 14);
        foot->addWidget(button);
    }
    foot->addStretch();
    column->addLayout(foot);
    m_columns->addWidget(editor, 1);
    onRestyle(m_side, [column, foot] {
        column->setContentsMargins(mirrored(QMargins(px(8), px(10), px(9), px(10))));
        column->setSpacing(px(6));
        foot->setSpacing(px(2));
    });
    onRestyle(this, [this] {
        setWantedWidth(px(m_widths.sheet));
        fit();
    });
}

bool ListSheet::isNarrow() const
{
    return width() < px(m_widths.narrowBelow);
}

void ListSheet::fit()
{
    m_side->setFixedWidth(px(isNarrow() ? m_widths.narrowSide : m_widths.side));
}

void ListSheet::resizeEvent(QResizeEvent* event)
{
    SheetBody::resizeEvent(event);
    fit();
}

void ListSheet::paintEvent(QPaintEvent*)
{
    DirectedPainter painter(this);
    painter.fillRect(QRectF(m_side->width() - 1, 0, 1, height()), Theme::of(this).line);
}

}  // namespace Quorbel
