// A file that stops giving bytes when its reader is no longer wanted or has used up its time. It is how decoders
// that know no cancelling are ended: to them the file simply breaks off.
// Thread: the one that reads it.
#pragma once

#include <QFile>

#include <chrono>
#include <stop_token>

namespace Quorbel {

class GuardedFile final : public QFile {
    Q_DISABLE_COPY_MOVE(GuardedFile)

public:
    /// Ample for the largest image that passes the header gate; an endless one is given up. Processor time of the
    /// reading thread, so that a busy machine refuses nothing.
    static constexpr std::chrono::seconds timeAllowed{ 20 };

    GuardedFile(const QString& path, std::stop_token cancel);

    /// Opens regular files only: a pipe of the same name would block for ever.
    bool openRegular();
    bool isCancelled() const { return m_cancel.stop_requested(); }

protected:
    qint64 readData(char* data, qint64 length) override;

private:
    static std::chrono::nanoseconds threadTime();

    std::stop_token m_cancel;
    std::chrono::nanoseconds m_end;
};

}  // namespace Quorbel
