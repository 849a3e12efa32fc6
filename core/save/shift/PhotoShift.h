// What a shift of time makes of one photo, decided from exactly what its file holds: all tags in which a camera's clock
// is written, and the zones beside them. GPS times are another clock's and stay. Thread: any. Pure.
#pragma once

#include "core/save/shift/TimeShift.h"
#include "core/tool/Assignment.h"
#include "core/tool/TagDump.h"

#include <QStringList>

namespace Quorbel {

struct PhotoShift {
    /// EXIF's and XMP's tags move by the tool's own arithmetic, those that the photo lacks too, so that photos with
    /// other tags share a run. IPTC's day and time are assigned: there the tool's arithmetic goes wrong.
    QList<Assignment> assignments{};
    /// Of tags(): what the file holds afterwards.
    FileTags expected{};
    /// Tags that hold no date with a time ("0000:00:00 00:00:00", "2020"), or nothing that could be moved: they stay.
    QStringList leftAlone{};
    /// The moment was to stay, and the zone that the clock is in is not known: nothing changes.
    bool hasNoZone = false;
    bool isOfSidecar = false;  ///< what is changed and expected is the photo's sidecar; see SidecarShift
    bool operator==(const PhotoShift&) const = default;

    /// The tags that have to be known, named as assignments name them.
    static const QStringList& tags();
    /// `held`: what the file holds in these tags or more, as it is stored. The date when a file was changed last moves
    /// along where it is just the date of the photo: then the camera wrote it, and not a computer later. A day without
    /// a time follows the photo's own.
    static PhotoShift of(const TimeShift& shift, const FileTags& held);
    /// The tags of a file that differ from what is expected.
    QStringList differences(const FileTags& found) const;
    /// Of what a file holds, what stands in tags().
    static FileTags among(const FileTags& held);
    /// The same of the file that this changes.
    FileTags watched(const FileTags& held) const;
};

}  // namespace Quorbel
