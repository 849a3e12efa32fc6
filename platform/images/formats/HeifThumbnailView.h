// A view of a HEIF or AVIF file in which only its thumbnails have content. The library reads every item when it opens a
// file, megabytes of tiles for a thumbnail of some kilobytes; in this view there is nothing else to read.
// Thread: the one that owns the device.
#pragma once

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

/// The table of item locations (ISO/IEC 14496-12, 8.11.3) with every item but the thumbnails of length 0. Empty when
/// the file names no thumbnail or its table cannot be read. The device's position is put back to the start.
HeifPatch onlyThumbnails(QIODevice& device);

}  // namespace Quorbel
