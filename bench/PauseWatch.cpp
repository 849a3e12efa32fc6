#include "bench/PauseWatch.h"

#include "bench/Measure.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QMetaEnum>
#include <QThread>

#include <algorithm>
#include <cstdio>

namespace Quorbel::Bench {

namespace {

constexpr size_t keptEvents = 8;

// What must be said before there is an application.
int& prepared(int& argc)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    setvbuf(stdout, nullptr, _IOLBF, 0);
    return argc;
}

}  // namespace

PauseWatch::PauseWatch(int& argc, char* argv[])
    : QApplication(prepared(argc), argv)
{
}

void PauseWatch::begin()
{
    m_longest = {};
    m_turns.clear();
    m_events.clear();
}

void PauseWatch::handle(const std::function<void()>& work)
{
    note(work);
}

void PauseWatch::turn()
{
    note([] { processEvents(); });
    QThread::usleep(500);
}

void PauseWatch::note(const std::function<void()>& work)
{
    const double cpu = cpuMilliseconds();
    QElapsedTimer clock;
    clock.start();
    work();
    const double wall = static_cast<double>(clock.nsecsElapsed()) / 1e6;
    m_longest.wall = std::max(m_longest.wall, wall);
    m_longest.cpu = std::max(m_longest.cpu, cpuMilliseconds() - cpu);
    m_turns.push_back(wall);
}

int PauseWatch::longerThan(double limit) const
{
    return static_cast<int>(
        std::count_if(m_turns.begin(), m_turns.end(), [limit](double wall) { return wall > limit; }));
}

void PauseWatch::printLongestEvents() const
{
    for (const Event& event : m_events)
        std::printf("    %6.1f ms, CPU %.1f ms  %s\n", event.wall, event.cpu, event.what.constData());
}

bool PauseWatch::notify(QObject* receiver, QEvent* event)
{
    if (m_depth > 0)
        return QApplication::notify(receiver, event);
    // The receiver may be gone afterwards.
    const QMetaObject* kind = receiver->metaObject();
    const QEvent::Type type = event->type();
    const double begin = cpuMilliseconds();
    QElapsedTimer clock;
    clock.start();
    ++m_depth;
    const bool result = QApplication::notify(receiver, event);
    --m_depth;
    const double cpu = cpuMilliseconds() - begin;
    const double wall = static_cast<double>(clock.nsecsElapsed()) / 1e6;
    if (m_events.size() < keptEvents || wall > m_events.back().wall) {
        const char* name = QMetaEnum::fromType<QEvent::Type>().valueToKey(type);
        m_events.push_back(
            { wall, cpu, QByteArray(kind->className()) + ' ' + (name ? QByteArray(name) : QByteArray::number(type)) });
        std::sort(m_events.begin(), m_events.end(), [](const Event& a, const Event& b) { return a.wall > b.wall; });
        if (m_events.size() > keptEvents)
            m_events.pop_back();
    }
    return result;
}

}  // namespace Quorbel::Bench
