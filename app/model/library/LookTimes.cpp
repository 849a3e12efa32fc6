#include "app/model/library/LookTimes.h"

#include <algorithm>

namespace Quorbel {

LookTimes::LookTimes()
{
    m_next.setSingleShot(true);
    m_soon.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, this, &LookTimes::tellUnlessHidden);
    connect(&m_soon, &QTimer::timeout, this, &LookTimes::due);
}

void LookTimes::setInterval(std::chrono::milliseconds interval)
{
    m_interval = interval;
    m_next.setInterval(interval);
}

void LookTimes::begin(bool isAny)
{
    m_next.stop();
    m_soon.stop();
    m_isDue = false;
    m_watcher.reset();
    if (isAny)
        m_watcher.emplace([this] { emit due(); });
}

void LookTimes::goOn(std::chrono::milliseconds taken)
{
    m_next.start(std::max(m_interval, taken * 9));
}

void LookTimes::setOnScreen(bool on)
{
    m_isOnScreen = on;
    if (on && std::exchange(m_isDue, false))
        emit dueByTheClock();
}

void LookTimes::tellUnlessHidden()
{
    m_isDue = !m_isOnScreen;
    if (m_isOnScreen)
        emit dueByTheClock();
}

}  // namespace Quorbel
