#include "platform/images/gate/GuardedFile.h"

#include <QFileInfo>

#include <ctime>

namespace Quorbel {

GuardedFile::GuardedFile(const QString& path, std::stop_token cancel)
    : QFile(path)
    , m_cancel(std::move(cancel))
    , m_end(threadTime() + timeAllowed)
{
}

bool GuardedFile::openRegular()
{
    return QFileInfo(fileName()).isFile() && open(QIODevice::ReadOnly);
}

qint64 GuardedFile::readData(char* data, qint64 length)
{
    if (m_cancel.stop_requested() || threadTime() > m_end)
        return -1;
    return QFile::readData(data, length);
}

std::chrono::nanoseconds GuardedFile::threadTime()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return std::chrono::seconds(now.tv_sec) + std::chrono::nanoseconds(now.tv_nsec);
}

}  // namespace Quorbel
