// Reads what photos and their sidecars hold, each for itself, and says what moving over would do to them.
// Thread: any but the main one; blocks on ExifTool.
#pragma once

#include "app/model/TaskProgress.h"
#include "app/model/sidecars/MovePreview.h"
#include "core/MetadataService.h"

#include <stop_token>

namespace Quorbel::MoveLook {

struct Asked {
    QUrl photo{};
    /// What is known of it; without a sidecar's values, and with its file's date, it need not be read again.
    std::optional<ImageRecord> known{};
};

struct Order {
    MoveWay way = MoveWay::intoPhotos;
    SidecarNaming naming = SidecarNaming::base;  ///< of new sidecars
    QList<Asked> photos{};
};

struct Found {
    MovePreview preview{};
    std::optional<QString> error{};  ///< the photos could not be read: why
    bool isCancelled = false;
};

/// The policy by which photos are written when metadata moves this way.
SidecarPolicy policyOf(MoveWay way, SidecarNaming naming);
/// In one go; in few runs however many the photos are. Never throws.
Found look(const MetadataService& service, const Order& order, TaskProgress& progress, const std::stop_token& stop);
/// Those of the photos that are not what they were any more are looked at again.
Found again(const MetadataService& service, const Order& order, MovePreview preview, TaskProgress& progress,
    const std::stop_token& stop);

}  // namespace Quorbel::MoveLook
