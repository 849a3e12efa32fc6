// What we write to the open photos, and when: what was read while that went on may be older than what is in the files.
// Thread: the main thread. Goes by names alone.
#pragma once

#include "app/model/library/sidecars/SidecarChange.h"
#include "core/renaming/NewNames.h"

#include <QHash>
#include <QSet>

#include <vector>

namespace Quorbel {

class OwnWrites final {
public:
    /// A write to these photos.
    void begin(const QSet<QUrl>& photos);
    void end();
    /// Photos get other names: until the end, some have names that nobody knows.
    void beginRenaming();
    /// These names changed.
    void endRenaming(const NewNames& names);
    /// From now on photos are read otherwise; that counts as a write to those that it concerns.
    void noteSidecars(const SidecarChange& change);

    bool isRenaming() const { return m_isRenaming; }
    /// The photos of the write that is under way.
    const QSet<QUrl>& photos() const { return m_photos; }
    bool isBeingWritten(const QUrl& photo) const { return m_isRenaming || m_photos.contains(photo); }
    /// Counts beginnings and ends of writes, and changes of what is read.
    int count() const { return m_count; }
    /// Whether a write to this photo has begun or ended since count() was this.
    bool wasWritten(const QUrl& photo, int since) const;

private:
    QSet<QUrl> m_photos;
    bool m_isRenaming = false;
    int m_count = 0;
    QHash<QUrl, int> m_last;  ///< by photo, the count at the end of the last write
    std::vector<std::pair<int, SidecarChange>> m_sidecarChanges;  ///< with the count of then
};

}  // namespace Quorbel
