// The map's colours, to go with the window's panels in both appearances. Both columns lie side by side here, and
// nowhere else.
// Thread: any.
#pragma once

#include <QColor>

namespace Quorbel {

struct MapPalette {
    QColor sea{};
    QColor graticule{};
    QColor land{};
    QColor settled{};  ///< where towns are, on the land
    QColor river{};
    QColor national{};
    QColor state{};
    QColor text{};
    QColor halo{};  ///< around text

    static const MapPalette& of(bool dark);
};

}  // namespace Quorbel
