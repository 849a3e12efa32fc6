// Photos that are to be renamed, with all that goes with them: made once, asked for each change of the pattern.
// Thread: any. Pure: what the folders hold is handed in.
#pragma once

#include "core/renaming/FolderListing.h"
#include "core/renaming/RenamePlan.h"

#include <QSet>

#include <vector>

namespace Quorbel {

class RenameSet final {
public:
    /// Photos in the order in which they are numbered; the listings of their folders, by path; what goes along.
    RenameSet(const QList<ImageRecord>& photos, const QHash<QString, FolderListing>& folders,
        CompanionNames::Kind companions = CompanionNames::Kind::ofMetadata);

    qsizetype size() const { return m_photos.size(); }
    /// Pictures of the same shots that are not among the photos: they go along.
    QList<QUrl> along() const;
    /// Once stopped, it ends early, and the plan is of no use. Time grows with the number of photos alone.
    RenamePlan plan(const RenameOrder& order, const std::stop_token& stop = {}) const;

private:
    struct Photo {
        QUrl url{};
        QString name{};
        bool isThere = true;
        size_t shot = 0;
    };
    /// Files that keep one base name: a raw file and the picture made of it, and their companions.
    struct Shot {
        size_t folder = 0;
        QString base{};
        QStringList suffixes{};  ///< what each file's name has behind the base
        QStringList kept{};  ///< the same of sidecars that a raw file may have: another's would be taken for its own
        QSet<QString> photos{};  ///< suffixes of those that are photos
        QStringList along{};
        PhotoTokens tokens{};
        bool isTokened = false;
    };
    struct Folder {
        QString path{};
        CompanionNames companions;
        QSet<QString> names{};
        QSet<QString> claimed{};  ///< of these, such as belong to a shot
        QSet<QString> staying{};  ///< the others, in lower case
        bool isWritable = true;
    };
    struct Naming;

    size_t shotOf(size_t folder, const QString& name, QHash<QString, size_t>& known);
    void claim(Shot& shot, const QString& name, bool isPhoto);
    void addTokens(Shot& shot, const ImageRecord& photo) const;
    RenameRow row(const Photo& photo, const Naming& naming) const;

    QList<Photo> m_photos;
    std::vector<Shot> m_shots;
    std::vector<Folder> m_folders;
};

}  // namespace Quorbel
