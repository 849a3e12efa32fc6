// The largest frame that a HEIF or AVIF file would make its video decoder allocate, read from the decoders'
// configuration records: what the file's own size property says is only a claim.
// Thread: the one that owns the device. Reads boxes, never pixels.
#pragma once

#include "platform/images/gate/HeifItems.h"

#include <QIODevice>
#include <QSize>

namespace Quorbel {

/// The largest coded frame among the item properties; empty when no record could be read. The device's position is
/// put back to the start.
QSize largestCodedFrame(QIODevice& device);

/// The same among what belongs to these items.
QSize largestCodedFrame(QIODevice& device, const HeifItems& items, const QSet<quint32>& of);

}  // namespace Quorbel
