// Turns the file events of one folder into one debounced call. Thread: the main thread only.
#pragma once

#include <QObject>
#include <QTimer>
#include <QUrl>

#include <functional>
#include <memory>

namespace Quorbel {

class FileEventStream;

class FolderWatcher final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FolderWatcher)

public:
    /// Starts watching at once; a folder that cannot be watched stays silent. `onChange` is called 0.3 s after the
    /// last batch of events, and must not destroy the watcher.
    FolderWatcher(const QUrl& url, std::function<void()> onChange);
    ~FolderWatcher() override;
    /// No call after this.
    void stop();
    /// False after stop(), and when the folder could not be watched or was removed.
    bool isWatching() const;

private:
    std::unique_ptr<FileEventStream> m_stream;
    std::function<void()> m_onChange;
    QTimer m_pending;
};

}  // namespace Quorbel
