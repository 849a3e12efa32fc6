// One frame at a time: while it lives, no other large frame is held in this process.
// Thread: any; blocks the caller until its turn has come or its request is cancelled.
#pragma once

#include <QSize>

#include <mutex>
#include <stop_token>

namespace Quorbel {

/// Frames of a few megapixels pass at once: they are what most folders hold, and cost little memory.
class WholeFrameTurn {
public:
    WholeFrameTurn(QSize frame, const std::stop_token& cancel);

private:
    std::unique_lock<std::timed_mutex> m_lock;
};

}  // namespace Quorbel
