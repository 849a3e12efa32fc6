// Places and texts where one reads from right to left. What code puts at the left stands at the right there.
// Thread: the main thread. Qt's layouts are mirrored by Qt; this is for what is painted or
// placed by hand.
#pragma once

#include <QMargins>
#include <QPainter>
#include <QRectF>
#include <QString>
#include <QWidget>

namespace Quorbel {

/// The place as a widget's direction has it, in the widget's own rectangle.
QRectF mirrored(const QRectF& place, const QWidget* widget);
QRect mirrored(const QRect& place, const QWidget* widget);
/// The same in a part of something, as a row of a list; painter and list know the direction.
QRectF mirrored(const QRectF& place, const QRectF& within, Qt::LayoutDirection direction);

/// Margins as the program's direction has them: Qt turns the order in a layout round, but not the room at its sides.
QMargins mirrored(const QMargins& margins);
/// The key as it stands in code: left is where one came from.
int mirroredKey(int key, const QWidget* widget);

/// Aligns texts as the widget's direction has them; Qt's own painter goes by the letters of each text.
class DirectedPainter final : public QPainter {
public:
    explicit DirectedPainter(QWidget* widget)
        : QPainter(widget)
    {
        setLayoutDirection(widget->layoutDirection());
    }
};

/// A name of a file or folder, a tag, a size, a position or a date inside a text that may run the other way: its parts
/// keep their order. The text itself where all runs from left to right.
QString keptInOrder(const QString& text);

}  // namespace Quorbel
