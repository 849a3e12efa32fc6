#include "ui/controls/ThemedMenuBar.h"

#include "ui/controls/theme/HighContrast.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QAction>
#include <QMenu>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOptionMenuItem>

namespace Quorbel {

namespace {

constexpr qreal barHeight = 28;  // points
constexpr qreal itemRadius = 6;

// Entries as high as the bar: Qt repaints no more than an entry, and drops its menu from its lower edge.
class EntryStyle final : public QProxyStyle {
public:
    QSize sizeFromContents(
        ContentsType type, const QStyleOption* option, const QSize& size, const QWidget* widget) const override
    {
        const QSize entry = QProxyStyle::sizeFromContents(type, option, size, widget);
        return type == CT_MenuBarItem && widget ? QSize(entry.width(), widget->height()) : entry;
    }
};

}  // namespace

ThemedMenuBar::ThemedMenuBar(QWidget* parent)
    : QMenuBar(parent)
{
    auto* style = new EntryStyle;
    style->setParent(this);
    setStyle(style);
    setNativeMenuBar(false);
    setMouseTracking(true);
    onRestyle(this, [this] {
        setFont(sansFont(13));
        setFixedHeight(px(barHeight));
    });
}

// Where one reads from right to left Qt counts from the wrong end, and finds room for the first entry alone.
QSize ThemedMenuBar::sizeHint() const
{
    QSize size = QMenuBar::sizeHint();
    if (!isRightToLeft())
        return size;
    const auto metric = [this](QStyle::PixelMetric which) { return style()->pixelMetric(which, nullptr, this); };
    int width = 2 * (metric(QStyle::PM_MenuBarHMargin) + metric(QStyle::PM_MenuBarPanelWidth));
    for (const QAction* action : actions()) {
        if (!action->isVisible())
            continue;
        QStyleOptionMenuItem option;
        initStyleOption(&option, action);
        const QSize text = fontMetrics().size(Qt::TextShowMnemonic, action->text());
        width += style()->sizeFromContents(QStyle::CT_MenuBarItem, &option, text, this).width()
            + metric(QStyle::PM_MenuBarItemSpacing);
    }
    size.setWidth(width);
    return size;
}

void ThemedMenuBar::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // The letters to press are marked once the keyboard is in the menus.
    const int mnemonics = hasFocus() || activeAction() ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
    for (const QAction* action : actions()) {
        QRect item = actionGeometry(const_cast<QAction*>(action));  // Qt asks for a pointer that it does not write to
        if (!action->isVisible() || !item.isValid())
            continue;
        item.setTop(0);
        item.setBottom(height() - 1);
        if (action == activeAction()) {
            const bool open = action->menu<QMenu*>() && action->menu<QMenu*>()->isVisible();
            painter.setPen(HighContrast::groundEdge(theme));
            painter.setBrush(open ? theme.derived.pressed : theme.derived.hover);
            painter.drawRoundedRect(item, pxF(itemRadius), pxF(itemRadius));
        }
        painter.setPen(theme.text);
        painter.drawText(item, Qt::AlignCenter | mnemonics, action->text());
    }
}

}  // namespace Quorbel
