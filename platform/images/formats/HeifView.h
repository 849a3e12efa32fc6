// The file as libheif is shown it: with the same length and places, but with some bytes of its tables changed. What it
// would read without need, megabytes of tiles for a thumbnail of some kilobytes, has no length there; what it refuses a
// file for, though the picture has nothing to do with it, is not there.
// Thread: the one that owns the device.
#pragma once

#include "platform/images/gate/HeifItems.h"

#include <QByteArray>
#include <QIODevice>

namespace Quorbel {

/// Bytes that take the place of the file's own.
struct HeifPatch {
    qint64 at = 0;  ///< file position of the first
    QByteArray bytes{};  ///< empty: the file as it is

    /// Puts the patch's bytes into `data`, which holds what the file has at `from`.
    void apply(qint64 from, char* data, qint64 length) const;
};

/// The table of item locations (ISO/IEC 14496-12, 8.11.3) with every item but the thumbnails, and what they are put
/// together from, of length 0. Empty when the file names no thumbnail or its table cannot be read. The device's
/// position is put back to the start.
HeifPatch onlyThumbnails(QIODevice& device, const HeifItems& items);

/// The references between items (8.11.12) without those that libheif 1.15 refuses: of metadata, which is none of its
/// affair here, and of one item to several. Phones make such files when they keep a picture twice, with and without its
/// high dynamic range. Empty when there is nothing to leave out. The device's position is put back to the start.
HeifPatch plainReferences(QIODevice& device, const HeifItems& items);

}  // namespace Quorbel
