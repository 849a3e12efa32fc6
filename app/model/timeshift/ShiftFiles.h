// The files that a shift of times reads and writes: photos, and the sidecars of those whose edits go beside them.
// Thread: any but the main one; asks the file system where a photo's edits go beside it.
#pragma once

#include "core/MetadataService.h"
#include "core/save/shift/PhotoShift.h"

namespace Quorbel {

class ShiftFiles final {
public:
    ShiftFiles(const SidecarPolicy& policy, const QList<QUrl>& targets);

    bool areAnyBeside() const { return !m_sidecars.isEmpty(); }
    /// The tags that have to be known of the files.
    QStringList tags() const;
    /// The targets, and the sidecars that are there.
    QList<QUrl> toRead() const;
    /// The file that changes when the target's times do: its own, or its sidecar, which may not be there yet.
    QUrl written(const QUrl& target) const { return m_sidecars.value(target, target); }
    bool isBeside(const QUrl& target) const { return m_sidecars.contains(target); }
    /// Those files of these targets, each once.
    QList<QUrl> written(const QList<QUrl>& targets) const;
    /// What becomes of the target, decided from what the files hold.
    std::optional<PhotoShift> shifted(const QUrl& target, const TimeShift& shift, const OldValues& values) const;
    /// What the file that changes holds.
    FileTags held(const QUrl& target, const OldValues& values) const;
    /// What the files of each target hold in these tags, read in one run: first the one that is shown. Throws the
    /// runner's errors.
    QHash<QUrl, QList<FileTags>> stored(const ExifToolRunner& runner, const QStringList& tags) const;
    /// The targets whose photo or sidecar is not what it was when these were taken.
    QList<QUrl> changedSince(const QHash<QUrl, FileStamp>& stamps) const;
    /// Tells of which photo each sidecar is.
    void addTo(JournalEntry& entry) const;
    /// The failures of targets instead of those of files.
    QList<FileFailure> byTarget(const QList<FileFailure>& failures) const;

private:
    QList<QUrl> m_targets;
    QHash<QUrl, QUrl> m_sidecars;  ///< by target
    QString m_savedAt;
};

}  // namespace Quorbel
