// Turns the file events of one folder into one debounced call. Thread: the main thread only.
#pragma once

#include <QObject>
#include <QUrl>

#include <functional>

namespace Quorbel {

class FolderWatcher final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FolderWatcher)

public:
    /// Starts watching at once; a folder that cannot be watched stays silent.
    FolderWatcher(const QUrl& url, std::function<void()> onChange);
    ~FolderWatcher() override;
    /// No call after this.
    void stop();
};

}  // namespace Quorbel
