// How far something in the background has come. Thread: any; written there, looked at on the main thread.
#pragma once

#include <QtGlobal>

#include <atomic>

namespace Quorbel {

struct TaskProgress {
    std::atomic<qsizetype> done = 0;  ///< files
    std::atomic<qsizetype> total = 0;  ///< files
    std::atomic<qint64> processID = 0;  ///< of the tool while it reads; 0 when none runs
};

}  // namespace Quorbel
