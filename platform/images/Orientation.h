// The eight ways a camera can be held, as EXIF numbers them. Pure.
#pragma once

#include <QImage>

namespace Quorbel::Orientation {

/// Whether the orientation exchanges width and height (5 to 8).
inline bool isQuarterTurn(int orientation)
{
    return orientation >= 5 && orientation <= 8;
}

/// The picture upright. Values outside 2 to 8 change nothing.
QImage upright(const QImage& image, int orientation);

}  // namespace Quorbel::Orientation
