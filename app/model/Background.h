// One way to work away from the main thread and come back.
// Thread: call it on the owner's thread; `job` runs on the global thread pool, `done` on the owner's thread.
#pragma once

#include <QFutureWatcher>
#include <QObject>
#include <QRunnable>
#include <QThreadPool>
#include <QtConcurrent>

#include <type_traits>
#include <utility>

namespace Quorbel {

/// Lets the pool run one more job while this one waits for a tool: a read that hangs must not keep others waiting.
class PoolThreadLoan final {
public:
    PoolThreadLoan() { QThreadPool::globalInstance()->releaseThread(); }
    ~PoolThreadLoan() { QThreadPool::globalInstance()->reserveThread(); }
    Q_DISABLE_COPY_MOVE(PoolThreadLoan)
};

/// Destroys a value in the background: a hundred thousand photos take their time even for that.
template <typename T>
void discardInBackground(T value)
{
    class Discard final : public QRunnable {
    public:
        explicit Discard(T&& value)
            : m_value(std::move(value))
        {
        }
        void run() override { }

    private:
        T m_value;
    };
    QThreadPool::globalInstance()->start(new Discard(std::move(value)));
}

/// Runs `job` in the pool and hands its result to `done`. The job must capture values, never the owner: it runs to its
/// end whatever happens. When the owner is gone by then, `done` is not called at all. What the job throws must be
/// caught in the job and returned as part of its result. The result, and what `done` holds, end in the background: it
/// may all be of many photos.
template <typename Job, typename Done>
void runIn(QThreadPool& pool, QObject* owner, Job job, Done done)
{
    // Not QFuture::then(context, …): when the context dies first, Qt 6.4 asserts or calls through null.
    using Result = std::invoke_result_t<Job>;
    auto* watcher = new QFutureWatcher<Result>(owner);
    QObject::connect(watcher, &QFutureWatcherBase::finished, owner, [watcher, done = std::move(done)]() mutable {
        watcher->deleteLater();
        if constexpr (std::is_void_v<Result>) {
            done();
            discardInBackground(std::move(done));
        } else {
            std::pair ended(watcher->future().takeResult(), std::move(done));
            ended.second(std::move(ended.first));  // it may leave some of the result, or all of it
            discardInBackground(std::move(ended));
        }
    });
    watcher->setFuture(QtConcurrent::run(&pool, std::move(job)));
}

/// The same in the global pool. Jobs wait far more than they compute, so any number of them runs at once; work that
/// keeps a core busy belongs in a pool of its own.
template <typename Job, typename Done>
void runInBackground(QObject* owner, Job job, Done done)
{
    runIn(
        *QThreadPool::globalInstance(), owner,
        [job = std::move(job)]() mutable {
            const PoolThreadLoan loan;
            return job();
        },
        std::move(done));
}

/// Threads for work that nobody waits for. How much of it runs at once is decided elsewhere: a job that hangs keeps
/// none waiting.
QThreadPool& patientThreads();
/// This thread, and a tool that it starts, take a core from now on only when nobody else wants it: what goes on behind
/// the window never keeps it waiting. For patientThreads() alone.
void bePatient();

/// The same as runInBackground(), by such a thread.
template <typename Job, typename Done>
void runPatiently(QObject* owner, Job job, Done done)
{
    runIn(
        patientThreads(), owner,
        [job = std::move(job)]() mutable {
            bePatient();
            return job();
        },
        std::move(done));
}

}  // namespace Quorbel
