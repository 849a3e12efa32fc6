#include "ui/controls/theme/Mirroring.h"

#include <QGuiApplication>

namespace Quorbel {

namespace {

// From here to there the text has the direction of its first letter, or left to right where there is none; it counts as
// one letter for what is around it.
constexpr char16_t isolate = 0x2068;
constexpr char16_t endOfIsolate = 0x2069;

}  // namespace

QRectF mirrored(const QRectF& place, const QRectF& within, Qt::LayoutDirection direction)
{
    if (direction != Qt::RightToLeft)
        return place;
    QRectF result = place;
    result.moveLeft(within.left() + within.right() - place.right());
    return result;
}

QRectF mirrored(const QRectF& place, const QWidget* widget)
{
    return mirrored(place, QRectF(widget->rect()), widget->layoutDirection());
}

QRect mirrored(const QRect& place, const QWidget* widget)
{
    return mirrored(QRectF(place), widget).toRect();
}

QMargins mirrored(const QMargins& margins)
{
    if (!QGuiApplication::isRightToLeft())
        return margins;
    return { margins.right(), margins.top(), margins.left(), margins.bottom() };
}

int mirroredKey(int key, const QWidget* widget)
{
    if (widget->layoutDirection() != Qt::RightToLeft)
        return key;
    return key == Qt::Key_Left ? int(Qt::Key_Right) : key == Qt::Key_Right ? int(Qt::Key_Left) : key;
}

QString keptInOrder(const QString& text)
{
    if (text.isEmpty() || !QGuiApplication::isRightToLeft())
        return text;
    return QChar(isolate) + text + QChar(endOfIsolate);
}

}  // namespace Quorbel
