// An order of a save whose photos, some or all, keep their edits beside them: told for the files that are written, and
// what came of it told for the photos again.
// Thread: any but the main one; the constructor blocks on ExifTool where a photo's edits go beside it.
#pragma once

#include "app/model/saving/SaveJob.h"

namespace Quorbel {

class SidecarOrder final {
public:
    /// Reads what the sidecars hold, and of the photos what has to be known of them. Throws the runner's errors.
    SidecarOrder(const MetadataService& service, const SaveJob::Order& given);

    /// Its targets are the files. With no edits that go beside photos it is the given one.
    const SaveJob::Order& order() const { return m_order; }
    /// The targets that are no sidecars.
    QList<QUrl> photosThemselves() const;
    /// Adds what the sidecars hold to what the other files do.
    void addTo(OldValues& before) const;
    /// Tells of which photo each sidecar is.
    void addTo(JournalEntry& entry) const;
    /// Names photos instead of files.
    void nameTheirPhotos(SaveJob::Written& written) const;

private:
    struct Sidecar {
        QUrl file{};
        QList<QUrl> photos{};  ///< one, but where photos share it
        FileTags held{};
    };
    struct Read;

    Read read(const MetadataService& service, const QList<QUrl>& photos) const;
    void take(const QUrl& photo, const QUrl& file, const Read& read, const QString& savedAt);
    EditPlan given(const QUrl& photo) const;

    SaveJob::Order m_order;
    QList<Sidecar> m_sidecars;
    QHash<QUrl, qsizetype> m_known;  ///< positions by file
};

}  // namespace Quorbel
