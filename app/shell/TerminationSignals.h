// What the system sends to a program that has to end: SIGTERM, SIGHUP and SIGINT, brought to the event loop.
// Thread: the main thread; one at a time. Knows nothing of what is done then.
#pragma once

#include <QObject>

#include <functional>

namespace Quorbel {

class TerminationSignals final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TerminationSignals)

public:
    /// From now on these signals call `received`, from the event loop, instead of ending the process.
    explicit TerminationSignals(std::function<void()> received, QObject* parent = nullptr);
    /// They end the process again.
    ~TerminationSignals() override;
};

}  // namespace Quorbel
