// What ExifTool 12.57 does not know of the standard, as definitions for its configuration: five properties, a member of
// places, and that a product has several identifiers.
// Thread: any. Pure.
#pragma once

#include "core/tool/Assignment.h"

namespace Quorbel::IptcDefinitions {

/// Whether one of these can be stored only with the definitions.
bool areNeeded(const QList<Assignment>& assignments);
/// Perl code that ends in "1;". Single entries, so that it may stand behind the definitions of custom fields.
QString text();

}  // namespace Quorbel::IptcDefinitions
