// Turns the file events of some folders into one debounced call. Thread: the main thread only.
#pragma once

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

namespace Quorbel {

class FileEventStream;
class FolderWatches;

class FolderWatcher final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FolderWatcher)

public:
    /// At most so many folders are watched: each takes the kernel some memory.
    static constexpr int mostFolders = 1000;

    /// Watches nothing until folders are added to watches(). `onChange` is called 0.3 s after the last batch of
    /// events, and must not destroy the watcher.
    explicit FolderWatcher(std::function<void()> onChange);
    ~FolderWatcher() override;
    /// No call after this.
    void stop();
    /// For the background: adding a folder waits for its file system.
    const std::shared_ptr<FolderWatches>& watches() const { return m_watches; }

private:
    std::shared_ptr<FolderWatches> m_watches;
    std::unique_ptr<FileEventStream> m_stream;
    std::function<void()> m_onChange;
    QTimer m_pending;
};

}  // namespace Quorbel
