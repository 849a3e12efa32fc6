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
    explicit CompanionNames(const QStringList& names);

    /// Names of the photo's own backup and sidecars ("a.jpg_original", "a.jpg.xmp", "a.xmp"), as far as there are any.
    QStringList of(const QString& photo) const;
    /// Names of the raw file and the finished pictures that the camera made in one shot with this photo.
    QStringList shotWith(const QString& photo) const;
    /// What one and all of them begin with: "IMG_1" of "IMG_1.CR2".
    static QString baseOf(const QString& photo);

private:
    QHash<QString, QStringList> m_byBase;
};

}  // namespace Quorbel
