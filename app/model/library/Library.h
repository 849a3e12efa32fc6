// What is open: a folder or some files, and the load that brings their photos.
// Thread: the main thread; the reading runs in the background. Knows no selection and no edits.
#pragma once

#include "app/model/RunningTasks.h"
#include "app/model/library/FolderRefresh.h"
#include "app/model/library/PhotoList.h"

#include <memory>

namespace Quorbel {

class Library final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Library)

public:
    Library(Announcer& announcer, RunningTasks& tasks, std::optional<MetadataService> service, RecordSortOrder order);

    PhotoList& photos() { return m_photos; }
    const PhotoList& photos() const { return m_photos; }
    FolderRefresh& refresh() { return m_refresh; }
    const FolderRefresh& refresh() const { return m_refresh; }
    const QString& folderName() const { return m_folderName; }
    /// The one folder that is open and watched; nothing where files or several folders are.
    const std::optional<QUrl>& folderURL() const { return m_folderURL; }

    /// Lists the folders among these and reads the photos. What is open is replaced as a whole by open(), once
    /// arrived(): photos, name and watched folder always come from the same load, whichever of several ends last. What
    /// others, or a save of ours, changed during the read is read again.
    void load(const QList<QUrl>& given, bool withSubfolders);
    /// Whether photos have arrived that are neither shown nor dropped.
    bool hasArrived() const { return m_arrived != nullptr; }
    /// Shows the photos that arrived; reads them again before, when a save of ours ended meanwhile.
    void open();
    void dropArrived() { m_arrived.reset(); }
    void close();

signals:
    /// Photos were found, and are being read; of what was given, these exist.
    void listed(const QList<QUrl>& given);
    /// A load has ended with photos. What was open stays until somebody calls open().
    void arrived();
    /// Other photos are in the list.
    void opened();
    /// A text for the banner.
    void problem(const QString& text);

private:
    struct Load;

    void read(const std::shared_ptr<Load>& load);
    void finish(const std::shared_ptr<Load>& load);
    void show(Load& load);

    Announcer& m_announcer;
    RunningTasks& m_tasks;
    std::optional<MetadataService> m_service;
    PhotoList m_photos;
    FolderRefresh m_refresh;
    QString m_folderName;
    std::optional<QUrl> m_folderURL;
    std::shared_ptr<Load> m_arrived;
};

}  // namespace Quorbel
