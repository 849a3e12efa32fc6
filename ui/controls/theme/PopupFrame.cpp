#include "ui/controls/theme/PopupFrame.h"

#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Shadow.h"
#include "ui/controls/theme/Theme.h"

#include <QGuiApplication>
#include <QPainter>
#include <QWidget>

namespace Quorbel::PopupFrame {

namespace {

// Points.
constexpr qreal radius = 9;
constexpr qreal shadowRoom = 30;
constexpr int anchorGap = 3;  // pixels

std::function<bool()>& composedHook()
{
    static std::function<bool()> hook;
    return hook;
}

bool isComposed()
{
    if (composedHook())
        return composedHook()();
    return QGuiApplication::platformName() != QLatin1String("xcb");
}

}  // namespace

void setComposed(std::function<bool()> composed)
{
    composedHook() = std::move(composed);
}

QMargins room()
{
    if (!isComposed())
        return {};
    return { px(shadowRoom), px(shadowRoom), px(shadowRoom), px(shadowRoom) };
}

void prepare(QWidget& popup)
{
    popup.setAttribute(Qt::WA_TranslucentBackground);
    popup.setWindowFlag(Qt::FramelessWindowHint);
    popup.setWindowFlag(Qt::NoDropShadowWindowHint);
}

void shape(QWidget& popup)
{
    if (room().isNull())
        cutCorners(popup, pxF(radius));
    else
        popup.clearMask();
}

void paint(QPainter& painter, const QRect& box, const Theme& theme)
{
    // A shade more than a hairline: a menu lies on panels of its own color.
    if (room().isNull())
        return paintCutBox(painter, box, pxF(radius), theme.panel, theme.btnLine);
    paintShadow(painter, box, pxF(radius), Shadow::notice, theme);
    paintBox(painter, box, pxF(radius), theme.panel, QPen(theme.btnLine, 1));
}

QRect placed(const QRect& anchor, QSize size, const QRect& screen, bool alignRight)
{
    const int below = anchor.bottom() + 1 + anchorGap;
    const int above = anchor.top() - anchorGap - size.height();
    const bool fitsBelow = below + size.height() <= screen.bottom() + 1;
    const int y = fitsBelow || above < screen.top() ? below : above;
    const bool atRight = alignRight != QGuiApplication::isRightToLeft();
    const int x = atRight ? anchor.right() + 1 - size.width() : anchor.left();
    const QPoint last = screen.bottomRight() - QPoint(size.width(), size.height()) + QPoint(1, 1);
    return { QPoint(qMax(screen.left(), qMin(x, last.x())), qMax(screen.top(), qMin(y, last.y()))), size };
}

}  // namespace Quorbel::PopupFrame
