// The nested boxes of an ISO base media file (ISO/IEC 14496-12), walked without reading what they hold.
// Thread: the one that owns the device. The device's position is left anywhere.
#pragma once

#include <QByteArrayView>
#include <QIODevice>

#include <functional>
#include <span>

namespace Quorbel {

/// A box's type and the file positions between which its content lies.
using BoxVisit = std::function<void(QByteArrayView type, qint64 bodyAt, qint64 bodyEnd)>;

/// Calls `visit` for each box that lies in [at, end), up to the first broken one, at most as many as libheif reads.
void eachBox(QIODevice& device, qint64 at, qint64 end, const BoxVisit& visit);

/// Calls `visit` for each box inside the boxes of that path, from the top level down: { "meta", "iprp" }.
void eachBoxInside(QIODevice& device, std::span<const char* const> path, const BoxVisit& visit);

/// The content between two positions; empty when it is longer than tables are.
QByteArray boxContent(QIODevice& device, qint64 at, qint64 end);

}  // namespace Quorbel
