// Turns one file's JSON objects, as ExifTool printed them, into an ImageRecord.
// Thread: any. Pure: starts nothing, touches no file.
#pragma once

#include "core/schema/ImageRecord.h"
#include "core/text/JSONValue.h"

namespace Quorbel::MetadataReader {

/// Raise it when parse() makes another record of the same answers, or when other options are read with: records that
/// were kept from earlier reads are then read again. The schema's fields and their tags need no such reminder.
constexpr int meaning = 1;

/// The tags of the main read, in the order in which they are asked for.
QStringList readTags();
/// The record of one file, without the file system's dates.
ImageRecord parse(const QUrl& url, const JSONObject& main, const JSONObject& custom);
/// A sidecar's date as it is shown: in XMP it may have fractions of a second and a zone, which a photo's has not.
QString shownBeside(const QString& date);
/// Puts what a sidecar holds (SidecarSchema::readTags()) over the record: a field that it holds is the sidecar's, and
/// empty where its text has no characters; all others stay.
void overlay(ImageRecord& record, const JSONObject& main, const JSONObject& custom);

}  // namespace Quorbel::MetadataReader
