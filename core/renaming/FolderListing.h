// The names in a folder, and which of them go with a photo. Thread: any.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace Quorbel {

struct FolderListing {
    QStringList names{};  ///< of all entries, hidden ones too
    bool isWritable = true;

    /// Asks the file system. A folder that cannot be listed has no names.
    static FolderListing of(const QString& folder);
};

/// The same, by what stands in front of the last dot.
class CompanionNames final {
public:
    /// What goes with a photo: its backup and sidecars, or all that programs and cameras put beside it.
    enum class Kind { ofMetadata, all };

    explicit CompanionNames(const QStringList& names, Kind kind = Kind::ofMetadata);

    /// Names of the photo's own backup and sidecars ("a.jpg_original", "a.jpg.xmp", "a.xmp"), as far as there are any;
    /// of all kinds also the sidecars' backups, settings of raw developers ("a.cr3.pp3", "a.dop") and voice memos.
    /// What has the base name alone is a raw file's where there is one: of another photo that is no picture of the same
    /// shot, as a TIFF made of it, it is not.
    QStringList of(const QString& photo) const;
    /// The same, of names that begin with the photo's whole name: they can be no other's.
    QStringList withWholeName(const QString& photo) const;
    /// Names of the raw file and the finished pictures that the camera made in one shot with this photo.
    QStringList shotWith(const QString& photo) const;
    /// Names of raw files, DNG included, with the photo's base name, but the photo itself.
    QStringList rawsBeside(const QString& photo) const;
    static bool isRaw(const QString& photo);
    /// What one and all of them begin with: "IMG_1" of "IMG_1.CR2".
    static QString baseOf(const QString& photo);

private:
    bool isCompanion(const QString& name, const QString& photo) const;
    QStringList companionsWith(const QString& base, const QString& photo) const;

    QHash<QString, QStringList> m_byBase;
    Kind m_kind;
};

}  // namespace Quorbel
