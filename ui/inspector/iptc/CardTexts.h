// What is said of one structure or several, each text whole: languages have genders and plurals for "place" and
// "person". Thread: any. Pure.
#pragma once

#include "core/iptc/IptcStructures.h"

namespace Quorbel::CardTexts {

/// "Add place".
QString adding(const StructureSpec& structure);
/// What heads a card with nothing in it: "New place".
QString untitled(const StructureSpec& structure);
/// "2 places".
QString counted(const StructureSpec& structure, qsizetype count);

}  // namespace Quorbel::CardTexts
