// The names of all entries of a folder, for the question which new name would collide: listed once, not for each key.
// Thread: the main thread; large folders are listed in the background. Knows no photos.
#pragma once

#include <QHash>
#include <QObject>
#include <QString>

#include <memory>

namespace Quorbel {

class FolderNames final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FolderNames)

public:
    /// The names as they were at one time.
    struct Listing {
        QString folder{};
        qint64 changedAt = 0;  ///< modification date of the folder before it was listed, ns since 1970; 0: none
        qint64 listedAt = 0;  ///< ns since 1970
        QHash<QString, int> uses{};  ///< by name in lower case

        /// Whether an entry other than `own` bears this name but for case. The very name is looked up besides.
        bool isTaken(const QString& name, const QString& own) const;
    };

    explicit FolderNames(QObject* parent = nullptr)
        : QObject(parent)
    {
    }

    /// Never waits for a large folder: until that is listed, or listed anew after a change, these are the names known
    /// so far; changed() tells when to ask again. Valid until the next call.
    const Listing& known(const QString& folder);
    /// As the folder is now, even if that means to wait. Valid until the next call.
    const Listing& current(const QString& folder);

signals:
    void changed();

private:
    void listInBackground(const QString& folder);

    std::shared_ptr<const Listing> m_listing = std::make_shared<const Listing>();
    bool m_isListing = false;
};

}  // namespace Quorbel
