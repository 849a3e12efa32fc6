// The files that go with a photo: its XMP sidecar, and the backup that ExifTool keeps of it.
// Thread: any. The names are pure; the rest touches files and blocks.
#pragma once

#include "core/tool/WriteCommand.h"
#include "core/tool/WriteFailures.h"

namespace Quorbel {
struct ExifToolRunner;
}

namespace Quorbel::Companions {

/// The sidecar's path: the photo's, with the extension "xmp".
QString sidecarPath(const QString& photo);
/// The path of the copy that a save with backups leaves: the photo's, with "_original" behind it. ExifTool gives that
/// name; another one here would only lose sight of its copies.
QString backupPath(const QString& photo);

/// Which sidecars go along with a photo.
enum class SidecarsAlong {
    none,  ///< that of its base name holds another photo's edits
    mirror,  ///< the one that mirrors it
    all,  ///< its edits lie beside it: of all its names ("IMG_1.CR3.xmp", "IMG_1.XMP")
};

/// Moves the photo within its file system, and with it its sidecar and its backup as far as they exist. Never replaces
/// a file: throws FileError when the destination exists or the photo's own move fails; a companion whose new name is
/// taken stays where it is.
void movePhoto(const QUrl& source, const QUrl& destination, SidecarsAlong along = SidecarsAlong::mirror);
/// The paths that a photo's sidecar may have, by either name and in either case, and what becomes of each.
QList<std::pair<QString, QString>> sidecarMoves(const QString& from, const QString& to);

/// Brings the sidecars of these photos up to date: a run each copies the photo's XMP, and where that leaves what the
/// command takes away, a second one takes it away there too. A linked sidecar stands for the file that it points to;
/// attributes, mode and owner survive. Those that may not, or could not, be written to are left as they are and named.
QList<FileFailure> writeSidecars(const ExifToolRunner& runner, const WriteCommand& command, const QList<QUrl>& photos,
    const QStringList& customNames);

}  // namespace Quorbel::Companions
