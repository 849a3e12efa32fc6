// The fields as an XMP sidecar holds them: every field has a home in XMP there, also those that photos keep in EXIF or
// IPTC alone. Where an assignment for a photo would be dropped without a word, this table says what to assign instead.
// Thread: any. Built once, then immutable.
//
// What a sidecar holds stands over what the photo's own file holds, field by field. So a field that the file holds and
// the user emptied stays in the sidecar as a text without characters, which hides the file's.
#pragma once

#include "core/schema/FieldSpec.h"
#include "core/tool/Assignment.h"

namespace Quorbel::SidecarSchema {

/// As FieldSchema::everyField(), with the tags of sidecars. Dates have two homes, the one of editors and the one of
/// cameras; positions name none, see Coordinates::inXmp().
const QList<FieldSpec>& everyField();
/// Nothing for an id that no field has.
const FieldSpec* spec(const QString& id);
/// The tags of the main read of sidecars, with group 0.
QStringList readTags();

/// What empties the field and hides the photo's own value.
QList<Assignment> emptied(const FieldSpec& field);
/// The tag that an assignment of emptied() changes, under the name that it is read by.
QString plainTag(const QString& tag);

/// Whether one of these can be stored only with the definitions.
bool needDefinitions(const QList<Assignment>& assignments);
/// Perl code for ExifTool's configuration that ends in "1;": offsets of XMP, which 12.57 does not know, and names under
/// which a date, a number or a position may be empty. Not for runs over photos: there a tag without a group would be
/// written under these names as well.
QString definitions();

}  // namespace Quorbel::SidecarSchema
