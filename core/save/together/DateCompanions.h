// The tags that repeat a date beside its field's own: other programs read them, so a date that is changed is changed
// there too, in the photos that have them. Thread: any. Pure.
#pragma once

#include "core/save/EditPlan.h"
#include "core/tool/TagDump.h"

namespace Quorbel::DateCompanions {

/// What has to be known of a photo before the date is changed; none for any other field.
QStringList tagsOf(const QString& fieldId);
/// IPTC's tags of days and times: the tool cannot write back all that they may hold.
bool isIptcDateOrTime(const QString& tag);
/// Field id to what is written beside the plan's dates: only tags in `held`. A time of IPTC gets the zone that the plan
/// or the photo knows for the date, else its own, else +00:00 (the tool would put this computer's); one of XMP only
/// where it had one. Fractions of a second go, and an emptied date empties all. Nothing for a text that is no date.
QMap<QString, QList<Assignment>> change(const EditPlan& plan, const FileTags& held);

}  // namespace Quorbel::DateCompanions
