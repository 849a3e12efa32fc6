// Work away from the main thread whose results come back while it goes on.
// Thread: that of its owner; the job runs on the global thread pool.
#pragma once

#include "app/model/Background.h"

#include <QPromise>
#include <QTimer>

#include <functional>
#include <memory>

namespace Quorbel {

/// Hands over the pieces in their order, one in each turn of the event loop: whatever else waits there gets its turn
/// between two of them. Nothing is handed over once this is destroyed; the job then has to be stopped by other means.
template <typename Piece>
class BackgroundPieces final : public QObject {
public:
    using Give = std::function<void(Piece)>;

    /// The job must capture values, never an object, and not throw. `take` and `done` may destroy this.
    BackgroundPieces(std::function<void(const Give&)> job, std::function<void(Piece)> take, std::function<void()> done)
        : m_take(std::move(take))
        , m_done(std::move(done))
    {
        QObject::connect(&m_watcher, &QFutureWatcherBase::resultReadyAt, this, [this] { lookSoon(); });
        QObject::connect(&m_watcher, &QFutureWatcherBase::finished, this, [this] { lookSoon(); });
        QObject::connect(&m_turn, &QTimer::timeout, this, [this] { look(); });
        m_watcher.setFuture(QtConcurrent::run([job = std::move(job)](QPromise<std::shared_ptr<Piece>>& promise) {
            const PoolThreadLoan loan;
            job([&promise](Piece piece) { promise.addResult(std::make_shared<Piece>(std::move(piece))); });
        }));
    }
    Q_DISABLE_COPY_MOVE(BackgroundPieces)

    /// While on, pieces are kept.
    void setPaused(bool on)
    {
        m_isPaused = on;
        if (on)
            m_turn.stop();
        else
            lookSoon();
    }

private:
    void lookSoon()
    {
        if (!m_isPaused)
            m_turn.start(0);
    }
    void look()
    {
        const auto future = m_watcher.future();
        if (m_next < future.resultCount()) {
            const std::shared_ptr<Piece> piece = future.resultAt(m_next++);
            const auto take = m_take;
            return take(std::move(*piece));
        }
        m_turn.stop();
        if (!future.isFinished())
            return;
        const auto done = m_done;
        done();
    }

    std::function<void(Piece)> m_take;
    std::function<void()> m_done;
    QFutureWatcher<std::shared_ptr<Piece>> m_watcher;
    QTimer m_turn;
    int m_next = 0;
    bool m_isPaused = false;
};

}  // namespace Quorbel
