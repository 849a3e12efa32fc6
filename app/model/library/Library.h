// What is open: a folder or some files, and the load that brings their photos. They are listed at once, and read in
// slices after that.
// Thread: the main thread; listing and reading run in the background. Knows no selection and no edits.
#pragma once

#include "app/model/RunningTasks.h"
#include "app/model/library/FolderRefresh.h"
#include "app/model/library/PhotoList.h"
#include "app/model/library/details/DetailsReading.h"
#include "app/model/library/reading/PhotoReading.h"

#include <functional>
#include <memory>

namespace Quorbel {

class Library final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Library)

public:
    /// `cache`: photos that it knows are not read; null where there is none.
    Library(Announcer& announcer, RunningTasks& tasks, std::optional<MetadataService> service, RecordSortOrder order,
        std::shared_ptr<RecordCache> cache = {});
    ~Library() override;

    PhotoList& photos() { return m_photos; }
    const PhotoList& photos() const { return m_photos; }
    FolderRefresh& refresh() { return m_refresh; }
    const FolderRefresh& refresh() const { return m_refresh; }
    DetailsReading& details() { return m_details; }
    const DetailsReading& details() const { return m_details; }
    const QString& folderName() const { return m_folderName; }
    /// The one folder that is open and watched; nothing where files or several folders are.
    const std::optional<QUrl>& folderURL() const { return m_folderURL; }

    /// From now on photos are read so; such as are read otherwise for it are read again, under the edits of the user.
    void setSidecars(const SidecarPolicy& policy);

    /// Lists the folders among these. Where nothing is open, all photos are in the list at once, unread. What is open
    /// stays until a photo of the new ones was read, and somebody calls open(). An earlier load is given up.
    /// `withSubfolders`: the folders are walked through; the list begins with the first photos found, and the others
    /// follow.
    void load(const QList<QUrl>& given, bool withSubfolders);
    /// Whether photos have arrived that are neither shown nor dropped.
    bool hasArrived() const;
    /// Shows the photos that arrived; the rest of them is read after that.
    void open();
    void dropArrived();
    void close();

    /// What is read first: the photo whose fields are on screen, and then those in view.
    void setFirst(const std::optional<QUrl>& photo);
    void setInView(const QList<QUrl>& photos);
    /// Somebody waits for the unread ones of these.
    void require(const QList<QUrl>& photos);
    /// Gives up the load that has not brought anything yet; else what is read of the open photos, but for those that
    /// somebody waits for.
    void cancelReads();
    /// Goes on with a walk and a read that were cancelled.
    void resumeReading();
    /// Whether a walk was cancelled.
    bool canResume() const { return m_cancelled != nullptr; }
    /// Reads all open photos again, whatever is known of them.
    void readAgain();
    /// The list holds these as they are now: a read that is under way must not put an older state in their place.
    void noteRead(const QList<QUrl>& photos);

signals:
    /// Photos were found, and are being read; of what was given, these exist.
    void listed(const QList<QUrl>& given);
    /// Photos of a load were read. What was open stays until somebody calls open().
    void arrived();
    /// Other photos are in the list.
    void opened();
    /// Further ones are.
    void added();
    /// These were read, and are in the list as they are now. What was read again and is as before is not among them.
    void read(const QList<QUrl>& photos);
    /// These cannot be read (positions, ascending). Whoever hears it takes them out of the list.
    void unreadable(const QList<int>& positions);
    /// No photo of what is open can be read: whoever hears it closes.
    void nothingReadable();
    /// A text for the banner.
    void problem(const QString& text);

private:
    struct Load;
    struct Walk;

    std::stop_token beginListing();
    void walk(const QList<QUrl>& given);
    void takePiece(const std::shared_ptr<Load>& piece);
    void endWalk();
    bool isWalkShown() const;
    void takeListed(const std::shared_ptr<Load>& load);
    void awaitFirst(const std::shared_ptr<Load>& load);
    void begin(const std::shared_ptr<Load>& load);
    void takeFirst();
    void show(const std::shared_ptr<Load>& load);
    void put(Load& load);
    void takeRead(const QList<ImageRecord>& records, const QList<QUrl>& unreadable);
    void takeRested();
    void takeFailed(const QString& reason);
    std::unique_ptr<PhotoReading> newReading();
    void follow(std::unique_ptr<PhotoReading> reading);
    SidecarPolicy sidecars() const;
    QList<QUrl> readOtherwise(const QList<ImageRecord>& photos, const SidecarPolicy& before) const;
    void endListing();
    void endListingTask();
    void forgetNext();
    void dropNext();
    void sayNothingFound(const QList<LeftOut>& leftOut);

    Announcer& m_announcer;
    RunningTasks& m_tasks;
    std::optional<MetadataService> m_service;
    std::shared_ptr<RecordCache> m_cache;
    PhotoList m_photos;
    FolderRefresh m_refresh;
    DetailsReading m_details;
    QString m_folderName;
    std::optional<QUrl> m_folderURL;
    std::unique_ptr<Walk> m_walk;  ///< while it is under way
    std::unique_ptr<Walk> m_cancelled;  ///< of what is on screen
    std::optional<int> m_listing;  ///< the task of a listing that is under way
    int m_loads = 0;  ///< counts loads; what comes of an earlier one is dropped
    std::shared_ptr<Load> m_next;  ///< listed, and not shown
    std::unique_ptr<PhotoReading> m_reading;  ///< of what is open; null where nothing is
    QList<QUrl> m_inView;
    std::optional<QUrl> m_first;
};

}  // namespace Quorbel
