// The check that what belongs to the main thread is only used there.
// Thread: any. Kept in release builds: a stray call would otherwise corrupt state without a trace.
#pragma once

#include <QCoreApplication>
#include <QThread>

namespace Quorbel {

/// Ends the program, naming the operation, when called off the main thread.
inline void requireMainThread(const char* operation)
{
    if (QThread::currentThread() != QCoreApplication::instance()->thread())
        qFatal("%s was called off the main thread", operation);
}

}  // namespace Quorbel
