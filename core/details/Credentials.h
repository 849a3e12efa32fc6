// Whether a photo is sealed with Content Credentials (C2PA): whatever writes to it breaks the seal.
// Thread: any. Asks the tool; knows no format by itself.
#pragma once

#include "core/text/JSONValue.h"

#include <QStringList>
#include <QUrl>

namespace Quorbel {

class ExifToolRunner;
struct ReadControl;

namespace Credentials {

/// What the details run asks for.
QStringList tags();
/// Of a photo of which the details run has found these tags. Of HEIC and AVIF that hold a box which the tool has no
/// name for, the box itself is read in a run of its own; throws CancelledError then.
bool isSealed(const ExifToolRunner& runner, const QUrl& photo, const JSONObject& tags, const ReadControl& control);

}  // namespace Credentials

}  // namespace Quorbel
