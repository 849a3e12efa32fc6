// The sidecars that were seen while folders were listed: whoever wants those of thousands of photos asks the file
// system for none of them.
// Thread: any, one at a time. Touches no files.
#pragma once

#include "core/sidecar/SidecarPolicy.h"

#include <QSet>

namespace Quorbel {

class SeenSidecars final {
public:
    explicit SeenSidecars(const SidecarPolicy& policy)
        : m_policy(policy)
    {
    }

    /// Whether a file of this name may be the sidecar of some photo. None is where no edits go beside photos.
    bool isWanted(const QString& fileName) const;
    /// One was seen.
    void add(const QString& path) { m_paths.insert(path); }
    /// As SidecarPolicy::existing(), of a photo in a folder that was listed.
    QString of(const QUrl& photo) const;

private:
    SidecarPolicy m_policy;
    QSet<QString> m_paths;
};

}  // namespace Quorbel
