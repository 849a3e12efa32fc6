// What the details run asks ExifTool for, beyond what the records tell.
// Thread: any. Pure.
#pragma once

#include <QStringList>

namespace Quorbel::DetailTags {

/// In all groups that know them, so that a namesake of another standard is found as well.
QStringList all();
/// The same of sidecars, where all fields stand in XMP; with what tells of a broken one.
QStringList ofSidecars();
/// Set where the tool cannot read a file; a tag of the photo's own that is called Error has another group.
QString error();

}  // namespace Quorbel::DetailTags
