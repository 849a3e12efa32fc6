#include "app/model/Announcer.h"

#include <algorithm>

namespace Quorbel {

Announcer::Together::Together(Announcer& announcer)
    : m_announcer(announcer)
{
    ++m_announcer.m_depth;
}

Announcer::Together::~Together()
{
    if (--m_announcer.m_depth > 0)
        return;
    const std::shared_ptr<bool> isAlive = m_announcer.m_isAlive;
    const std::vector<Change> changes = std::exchange(m_announcer.m_collected, {});
    for (const Change change : changes)
        if (*isAlive)
            m_announcer.m_tell(change);
}

Announcer::~Announcer()
{
    *m_isAlive = false;
}

void Announcer::announce(Change change)
{
    if (m_depth == 0)
        m_tell(change);
    else if (std::find(m_collected.cbegin(), m_collected.cend(), change) == m_collected.cend())
        m_collected.push_back(change);
}

}  // namespace Quorbel
