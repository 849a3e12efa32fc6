// A photo that the real tool saves only in part. For tests only.
#pragma once

#include "tests/support/Support.h"

namespace Quorbel::Test {

/// A photo whose EXIF no tool would add to: its one entry has a format that does not exist.
inline QByteArray jpegWithBrokenExif()
{
    const QByteArray exif = "Exif" + QByteArray(2, '\0') + "II*" + QByteArray::fromHex("00080000000100")
        + QByteArray::fromHex("0e0100000100000000000000") + QByteArray(4, '\0');
    return jpegBytes().insert(2, QByteArray::fromHex("ffe1") + '\0' + char(exif.size() + 2) + exif);
}

}  // namespace Quorbel::Test
