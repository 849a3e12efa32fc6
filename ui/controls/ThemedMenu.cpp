#include "ui/controls/ThemedMenu.h"

#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QPaintEvent>
#include <QPainter>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr qreal radius = 9;  // points
constexpr const char* headerProperty = "quorbelHeader";

// Sizes only: QMenu asks its style how high a row is, and a style sheet is the way to answer without a style of our
// own. Every colour and stroke is drawn by ThemedMenu::paintEvent().
QString rowSizes()
{
    return u"QMenu { border: 0; background: transparent; padding: %1px; }"
           "QMenu::item { height: %2px; padding: 0px %3px 0px %4px; border: 0; background: transparent; }"
           "QMenu::separator { height: %5px; background: transparent; }"
           "QMenu::indicator { width: 0px; height: 0px; }"
           "QMenu::scroller { height: %6px; }"_s.arg(px(5))
               .arg(px(28))
               .arg(px(14))
               .arg(px(28))
               .arg(px(11))
               .arg(px(16));
}

}  // namespace

ThemedMenu::ThemedMenu(QWidget* parent)
    : ThemedMenu(QString(), parent)
{
}

ThemedMenu::ThemedMenu(const QString& title, QWidget* parent)
    : QMenu(title, parent)
{
    setAttribute(Qt::WA_TranslucentBackground);
    setWindowFlag(Qt::FramelessWindowHint);
    setWindowFlag(Qt::NoDropShadowWindowHint);
    setToolTipsVisible(true);
    onRestyle(this, [this] { setUp(); });
}

void ThemedMenu::setUp()
{
    setFont(sansFont(13));
    // Setting a sheet polishes the menu again, which restyles it again.
    const QString sizes = rowSizes();
    if (styleSheet() != sizes)
        setStyleSheet(sizes);
}

QAction* ThemedMenu::addHeader(const QString& title)
{
    QAction* header = addAction(title);
    header->setEnabled(false);
    header->setProperty(headerProperty, true);
    return header;
}

ThemedMenu* ThemedMenu::addThemedMenu(const QString& title)
{
    auto* menu = new ThemedMenu(title, this);
    addMenu(menu);
    return menu;
}

void ThemedMenu::popUpUnder(const QWidget* anchor, Qt::Alignment edge, bool once)
{
    setAttribute(Qt::WA_DeleteOnClose, once);
    const int x = edge.testFlag(Qt::AlignRight) ? anchor->width() - sizeHint().width() : 0;
    popup(anchor->mapToGlobal(QPoint(x, anchor->height() + 3)));
}

void ThemedMenu::paintEvent(QPaintEvent* event)
{
    const Theme& theme = Theme::of(this);
    QPainter painter(this);
    paintCutBox(painter, rect(), pxF(radius), theme.panel, theme.line);
    painter.setClipRect(rect().adjusted(0, px(5), 0, -px(5)));
    for (const QAction* action : actions()) {
        const QRect row = actionGeometry(const_cast<QAction*>(action));
        if (action->isVisible() && event->rect().intersects(row))
            paintItem(painter, action, row);
    }
}

void ThemedMenu::resizeEvent(QResizeEvent* event)
{
    QMenu::resizeEvent(event);
    cutCorners(*this, pxF(radius));
}

void ThemedMenu::paintItem(QPainter& painter, const QAction* action, const QRect& row)
{
    const Theme& theme = Theme::of(this);
    if (action->isSeparator()) {
        painter.fillRect(QRectF(row.left() + pxF(10), row.center().y(), row.width() - pxF(20), 1), theme.line);
        return;
    }
    const bool header = action->property(headerProperty).toBool();
    const bool active = action == activeAction() && action->isEnabled();
    painter.setOpacity(action->isEnabled() || header ? 1 : .42);
    if (active)
        paintBox(painter, row, pxF(6), theme.sel, Qt::NoPen);
    const QColor ink = active ? theme.selText : theme.text;
    painter.setFont(header ? sansFont(11, QFont::DemiBold) : font());
    painter.setPen(header ? theme.muted : ink);
    const QRectF box = QRectF(row).adjusted(pxF(28), 0, -pxF(14), 0);
    painter.drawText(box, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine | Qt::TextShowMnemonic, action->text());
    if (!action->shortcut().isEmpty()) {
        painter.setPen(active ? theme.selSub : theme.muted);
        painter.drawText(box, Qt::AlignVCenter | Qt::AlignRight | Qt::TextSingleLine,
            action->shortcut().toString(QKeySequence::NativeText));
    }
    const QRectF mark(row.left() + pxF(8), row.top(), pxF(14), row.height());
    if (action->isCheckable() && action->isChecked())
        Icon::paint(painter, mark, u"checkmark"_s, pxF(14), ink, 2.1);
    if (action->menu()) {
        const QRectF arrow(row.right() - pxF(18), row.top(), pxF(12), row.height());
        Icon::paint(painter, arrow, u"chevron.right"_s, pxF(12), ink, 2.1);
    }
    painter.setOpacity(1);
}

}  // namespace Quorbel
