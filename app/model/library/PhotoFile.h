// One photo as the file system knows it, before the tool is asked anything.
// Thread: any. Touches the file system; starts nothing.
#pragma once

#include "core/schema/ImageRecord.h"
#include "core/sidecar/SidecarPolicy.h"

#include <algorithm>

namespace Quorbel {

/// A regular file that can be read. Two looks that are equal saw the same content, but for a change within the clock
/// step of the file system.
struct PhotoFile {
    QUrl url{};
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = 0;  ///< bytes
    qint64 modified = 0;  ///< nanoseconds since 1970, UTC
    qint64 changed = 0;  ///< the same, of content, name or rights
    std::optional<qint64> created{};  ///< the same; nothing where the file system does not know
    /// What lies beside it and belongs to it.
    struct Sidecar {
        QString name{};  ///< "": there is none
        quint64 inode = 0;
        qint64 size = 0;
        qint64 modified = 0;
        qint64 changed = 0;
        bool operator==(const Sidecar&) const = default;

        /// Nothing where there is none.
        std::optional<QDateTime> modificationDate() const;
    };
    bool isBeside = false;  ///< its edits go beside it
    Sidecar sidecar{};  ///< none of any other photo
    bool operator==(const PhotoFile&) const = default;

    /// To the millisecond, as records have them.
    QDateTime modificationDate() const;
    std::optional<QDateTime> creationDate() const;
    /// All that a record can say before the photo was read.
    ImageRecord unreadRecord() const;

    struct Look;
    /// A link is followed. The sidecar of a photo whose edits go beside it belongs to it.
    static Look at(const QUrl& url, const SidecarPolicy& sidecars = {});
    /// The same, where it is known already which sidecar there is: its path, or "".
    static Look at(const QUrl& url, const SidecarPolicy& sidecars, const QString& sidecar);
    /// As it is now, looked at as this was.
    std::optional<PhotoFile> again() const;
    /// Needs a sidecar.
    QUrl sidecarURL() const;
    /// When either file was changed last, in nanoseconds since 1970, UTC.
    qint64 lastChanged() const { return std::max(changed, sidecar.changed); }
    /// Whether the record is of the file and the sidecar as they are here, by their dates.
    bool isOf(const ImageRecord& record) const;
};

/// What may be said about one path before the tool sees it.
struct PhotoFile::Look {
    std::optional<PhotoFile> file{};  ///< nothing where the tool would stumble, or wait for ever
    QString reason{};  ///< why not, in a few words; "" when it is gone or no file at all: nothing to say
};

/// A file that could not be read, and why, in a few words.
struct LeftOut {
    QString fileName{};
    QString reason{};
    bool isSidecar = false;  ///< then its photo is there all the same
    bool operator==(const LeftOut&) const = default;
};

}  // namespace Quorbel
