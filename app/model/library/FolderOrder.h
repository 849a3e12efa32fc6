// The folders that photos lie in, in the order of a walk: the photos of a folder itself before those of the folders in
// it, names in natural order. Texts are compared once for each folder that is new; from then on a number tells.
// Thread: one at a time. Knows of the photos only how many lie where.
#pragma once

#include <QCollatorSortKey>
#include <QHash>
#include <QStringList>
#include <QUrl>

#include <vector>

namespace Quorbel {

class FolderOrder final {
public:
    struct Folder {
        QUrl url{};
        QString parents{};  ///< names of the folders between the top and this one: "A / B"; "" directly below the top
        QString name{};
        int photos = 0;
    };

    /// No order: all folders are one.
    FolderOrder() = default;
    /// `tops`: paths of the folders that are walked through. `isSeveral`: something else is open beside the one; names
    /// then begin with the top's own.
    FolderOrder(const QStringList& tops, bool isSeveral);

    bool isOrdering() const { return m_isOrdering; }
    /// Whether the same folders are walked through.
    bool isSame(const FolderOrder& other) const { return m_tops == other.m_tops && m_isSeveral == other.m_isSeveral; }
    /// The number of the folder that a photo lies in, for good; one photo more lies there.
    int enter(const QUrl& photo);
    /// One photo less.
    void leave(int folder);
    /// Ascends in the order of the walk. May change for all folders when a new one is entered, their order does not.
    int rank(int folder) const { return m_isOrdering ? m_ranks[size_t(folder)] : 0; }
    const Folder& folder(int number) const { return m_folders[size_t(number)].folder; }
    /// How many folders hold photos.
    int holding() const { return m_holding; }
    /// Those that hold photos.
    QList<QUrl> urls() const;

private:
    struct Step {
        QCollatorSortKey key;
        QString name;
    };
    struct Place {
        Folder folder{};
        std::vector<Step> steps{};  ///< from the top down
    };

    int add(const QString& path);
    QStringList names(const QString& path) const;
    static bool isBefore(const Place& a, const Place& b);

    bool m_isOrdering = false;
    bool m_isSeveral = false;
    QStringList m_tops;
    std::vector<Place> m_folders;
    QHash<QString, int> m_numbers;  ///< by path
    std::vector<int> m_sorted;  ///< numbers in the order of the walk
    std::vector<int> m_ranks;  ///< by number
    QString m_lastPath;  ///< photos mostly come folder by folder
    int m_last = -1;
    int m_holding = 0;
};

}  // namespace Quorbel
