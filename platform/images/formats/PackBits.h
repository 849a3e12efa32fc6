// The run-length coding of Photoshop files. Pure.
#pragma once

#include <QByteArray>

namespace Quorbel {

/// Fills `row` from the packed bytes; what they do not reach stays as it is.
void unpackBits(QByteArrayView packed, QByteArray& row);

}  // namespace Quorbel
