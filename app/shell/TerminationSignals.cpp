#include "app/shell/TerminationSignals.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace Quorbel {

namespace {

constexpr std::array ending{ SIGTERM, SIGHUP, SIGINT };

// A handler may do next to nothing: it writes into the one end, the event loop reads from the other.
std::array<int, 2> pipeEnds{ -1, -1 };

void handle(int)
{
    const int before = errno;
    const char byte = 0;
    // A full pipe holds the news already.
    [[maybe_unused]] const ssize_t written = ::write(pipeEnds[1], &byte, 1);
    errno = before;
}

void setAction(void (*handler)(int))
{
    struct sigaction action { };
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (const int signal : ending)
        ::sigaction(signal, &action, nullptr);
}

}  // namespace

TerminationSignals::TerminationSignals(std::function<void()> received, QObject* parent)
    : QObject(parent)
{
    if (::pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    auto* notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [received = std::move(received)] {
        std::array<char, 64> bytes{};
        while (::read(pipeEnds[0], bytes.data(), bytes.size()) > 0) { }
        received();
    });
    setAction(handle);
}

TerminationSignals::~TerminationSignals()
{
    setAction(SIG_DFL);
    qDeleteAll(findChildren<QSocketNotifier*>());
    for (int& end : pipeEnds)
        if (end >= 0)
            ::close(std::exchange(end, -1));
}

}  // namespace Quorbel
