// When to look at the open folders: after the system told of a change, every few seconds where it tells nothing, and
// once more after a moment.
// Thread: the main thread. Knows no photos.
#pragma once

#include "app/model/library/FolderWatcher.h"

#include <chrono>
#include <optional>

namespace Quorbel {

class LookTimes final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LookTimes)

public:
    LookTimes();

    /// The shortest pause between looks where nobody tells of changes.
    void setInterval(std::chrono::milliseconds interval);
    /// Other folders are looked at now, or none.
    void begin(bool isAny);
    /// Of the folders that are looked at now.
    std::shared_ptr<FolderWatches> watches() const { return m_watcher->watches(); }
    /// A look has ended, and none is due before the system tells of a change.
    void rest() { m_next.stop(); }
    /// A look has ended, and the next one is due by itself: looks take at most a tenth of the time.
    void goOn(std::chrono::milliseconds taken);
    /// This moment does not suit: once more after the same pause.
    void postpone() { m_next.start(); }
    /// One more look, after a moment in which what was begun comes to its end.
    void lookSoon(std::chrono::milliseconds moment) { m_soon.start(moment); }
    /// While nobody sees the photos, only the system's word leads to looks.
    void setOnScreen(bool on);

signals:
    /// Something has changed, or may have.
    void due();
    /// It is time to look again, for no better reason.
    void dueByTheClock();

private:
    void tellUnlessHidden();

    std::chrono::milliseconds m_interval{};
    std::optional<FolderWatcher> m_watcher;
    QTimer m_next;
    QTimer m_soon;
    bool m_isOnScreen = true;
    bool m_isDue = false;  ///< as soon as somebody sees the photos
};

}  // namespace Quorbel
