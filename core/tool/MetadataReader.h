// Turns one file's JSON objects, as ExifTool printed them, into an ImageRecord.
// Thread: any. Pure: starts nothing, touches no file.
#pragma once

#include "core/schema/ImageRecord.h"
#include "core/text/JSONValue.h"

namespace Quorbel::MetadataReader {

/// The tags of the main read, in the order in which they are asked for.
QStringList readTags();
/// The record of one file, without the file system's dates.
ImageRecord parse(const QUrl& url, const JSONObject& main, const JSONObject& custom);

}  // namespace Quorbel::MetadataReader
