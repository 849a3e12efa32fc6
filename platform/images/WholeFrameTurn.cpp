#include "platform/images/WholeFrameTurn.h"

#include <chrono>

namespace Quorbel {

WholeFrameTurn::WholeFrameTurn(QSize frame, const std::stop_token& cancel)
{
    constexpr qint64 smallFrame = 4'000'000;
    // The memory that it guards is the process's, so the lock is too.
    static std::timed_mutex turn;
    if (qint64(frame.width()) * frame.height() <= smallFrame)
        return;
    m_lock = std::unique_lock(turn, std::defer_lock);
    while (!cancel.stop_requested() && !m_lock.try_lock_for(std::chrono::milliseconds(20))) { }
}

}  // namespace Quorbel
