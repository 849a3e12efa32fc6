#include "platform/images/Orientation.h"

#include <QTransform>

namespace Quorbel {

QImage Orientation::upright(const QImage& image, int orientation)
{
    switch (orientation) {
    case 2:
        return image.mirrored(true, false);
    case 3:
        return image.mirrored(true, true);
    case 4:
        return image.mirrored(false, true);
    case 5:
        return image.mirrored(true, false).transformed(QTransform().rotate(270));
    case 6:
        return image.transformed(QTransform().rotate(90));
    case 7:
        return image.mirrored(true, false).transformed(QTransform().rotate(90));
    case 8:
        return image.transformed(QTransform().rotate(270));
    default:
        return image;
    }
}

}  // namespace Quorbel
