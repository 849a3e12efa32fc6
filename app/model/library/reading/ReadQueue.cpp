#include "app/model/library/reading/ReadQueue.h"

#include <algorithm>
#include <utility>

namespace Quorbel {

void ReadQueue::add(const QList<QUrl>& photos)
{
    if (photos.isEmpty())
        return;
    // Growing takes its time on the main thread: where more are expected it is done while there are few.
    const bool isBegin = m_isBroken && m_photos.size() < 1000;
    m_photos.reserve(std::max<qsizetype>(m_photos.size() + photos.size(), isBegin ? 100'000 : 0));
    for (const QUrl& photo : photos) {
        if (m_photos.contains(photo))
            continue;
        m_photos.insert(photo, State::waits);
        m_order.append(photo);
        ++m_waiting;
    }
}

void ReadQueue::addPart(const QList<QUrl>& photos)
{
    m_isBroken = true;
    m_parts.push_back(photos);
}

// The first ones of these that wait; what does not wait is dropped on the way.
QList<QUrl> ReadQueue::take(QList<QUrl>& from, qsizetype most)
{
    QList<QUrl> taken;
    qsizetype looked = 0;
    while (looked < from.size() && taken.size() < most) {
        const auto photo = m_photos.find(from.at(looked++));
        if (photo == m_photos.end() || *photo != State::waits)
            continue;
        *photo = State::runs;
        taken.append(photo.key());
    }
    from.remove(0, looked);
    m_waiting -= taken.size();
    return taken;
}

QList<QUrl> ReadQueue::nextFirst()
{
    QList<QUrl> first;
    if (m_first)
        first.append(*m_first);
    return take(first, 1);
}

QList<QUrl> ReadQueue::next(bool demandedOnly)
{
    const bool isWhole = !std::exchange(m_isBroken, true) && m_waiting <= wholeSize;
    if (isWhole && !demandedOnly)
        return take(m_order, m_waiting);
    if (const QList<QUrl> first = nextFirst(); !first.isEmpty())
        return first;
    while (!m_parts.empty()) {
        QList<QUrl> part = std::move(m_parts.back());
        m_parts.pop_back();
        if (const QList<QUrl> taken = take(part, part.size()); !taken.isEmpty())
            return taken;
    }
    // They stay in view, and are asked for again when they wait again.
    QList<QUrl> inView = demandedOnly ? QList<QUrl>() : m_inView;
    if (const QList<QUrl> taken = take(inView, viewSize); !taken.isEmpty())
        return taken;
    if (const QList<QUrl> taken = take(m_required, sliceSize); !taken.isEmpty())
        return taken;
    return demandedOnly ? QList<QUrl>() : take(m_order, sliceSize);
}

void ReadQueue::putBack(const QList<QUrl>& photos)
{
    for (const QUrl& photo : photos) {
        const auto known = m_photos.find(photo);
        if (known == m_photos.end() || *known == State::waits)
            continue;
        *known = State::waits;
        m_order.append(photo);
        ++m_waiting;
    }
}

void ReadQueue::end(const QList<QUrl>& photos)
{
    for (const QUrl& photo : photos)
        if (const auto known = m_photos.find(photo); known != m_photos.end()) {
            m_waiting -= *known == State::waits ? 1 : 0;
            m_photos.erase(known);
        }
}

}  // namespace Quorbel
