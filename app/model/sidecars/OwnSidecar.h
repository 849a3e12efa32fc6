// Which sidecar is a photo's own, of photos of any kind and whatever the settings say.
// Thread: any. Touches the file system.
#pragma once

#include <QString>
#include <QUrl>

namespace Quorbel {

struct OwnSidecar {
    QString path{};  ///< "" where there is none
    /// Its sidecar by name is that of a raw photo with the same base name.
    bool isOthers = false;

    /// By the names and in the order of SidecarPolicy::existing().
    static OwnSidecar of(const QUrl& photo);
};

}  // namespace Quorbel
