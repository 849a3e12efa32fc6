// Where a tag that a save assigns is found again: its name as assigned ("EXIF:Artist") and as read ("IFD0:Artist"), and
// which formats have no place for it. Thread: any. Pure.
#pragma once

#include "core/tool/TagDump.h"

#include <QStringList>

namespace Quorbel::TagHomes {

/// Whether a file of this type (ExifTool's name, "Extended WEBP") can hold the tag. ExifTool says nothing when it drops
/// an assignment for want of a place.
bool holds(const QString& fileType, const QString& tag);
/// What the tag holds in each place where it was found ("IFD0:Artist"), by that place. A thumbnail's tags are none of
/// the photo's.
FileTags placesOf(const QString& tag, const FileTags& tags);
/// The items that the tag holds, of all places, as they are stored.
QStringList itemsOf(const QString& tag, const FileTags& tags);

}  // namespace Quorbel::TagHomes
