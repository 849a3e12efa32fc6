// What a save must respect on disk, and what ExifTool would lose: links, read-only files, leftovers of a broken
// save, extended attributes, mode and owner. Thread: any; every call asks the file system.
#pragma once

#include "core/text/Errors.h"
#include "core/tool/WriteFailures.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QMap>
#include <QUrl>

namespace Quorbel::SaveGuard {

/// The files behind the targets: a symbolic link stands for what it points to, since ExifTool would replace the
/// link by an edited copy. A target that is no link is passed on as it stands. Order and number are kept.
QList<QUrl> filesBehindLinks(const QList<QUrl>& targets);

/// Failures of the files behind these targets, told of the targets that stand for them.
QList<FileFailure> ofTargets(const QList<FileFailure>& failures, const QList<QUrl>& targets);

/// Whether the file may not be written to, though ExifTool would replace it all the same.
bool isReadOnly(const QUrl& file);

/// Throws FileProblem when some file may not be written to: "IMG_1.jpg is read-only." or
/// "3 of 40 photos are read-only: …; nothing was written." Likewise when one is a folder, which ExifTool would take for
/// all photos in it: "IMG_1.xmp is a folder; nothing was written."
void requireWritable(const QList<QUrl>& files);

/// Deals with the temporary files that a killed ExifTool leaves beside a photo and that block every later save of
/// it: removes those older than a day, throws FileProblem for a younger one, which may belong to a running tool.
void clearLeftovers(const QList<QUrl>& files, const QDateTime& now = QDateTime::currentDateTime());

/// A file may not be written now; nothing was changed.
class FileProblem final : public Error {
public:
    explicit FileProblem(const QString& description)
        : Error(description)
    {
    }
};

/// Makes the backups that ExifTool is about to make ("PHOTO_original", unless there is one), as second names of the
/// photos. ExifTool itself would take the photo's name away first: when it is killed before it has given it to the new
/// file, or may not write to the folder any more, no photo is left under its name. File systems without second names
/// leave it to ExifTool.
class BackupKeeper {
public:
    explicit BackupKeeper(const QList<QUrl>& files);
    /// Takes back the second names of photos that were not replaced.
    ~BackupKeeper();
    Q_DISABLE_COPY_MOVE(BackupKeeper)

private:
    QList<QUrl> m_made;  ///< the photos
};

/// Remembers extended attributes, mode and owner of files, and gives them back to the files that take their place.
class AttributeKeeper {
public:
    explicit AttributeKeeper(const QList<QUrl>& files);
    /// What the system refuses (another owner, a reserved attribute) is left as it is.
    void restore() const;

private:
    struct Attributes {
        quint32 mode = 0;
        quint32 owner = 0;
        quint32 group = 0;
        QMap<QByteArray, QByteArray> extended{};
    };
    QMap<QByteArray, Attributes> m_byPath;
};

}  // namespace Quorbel::SaveGuard
