// Photos that got other names, all at once: two may have swapped theirs. Thread: any. A plain value.
#pragma once

#include <QHash>
#include <QList>
#include <QSet>
#include <QUrl>

#include <utility>

namespace Quorbel {

class NewNames final {
public:
    NewNames() = default;
    NewNames(const QUrl& source, const QUrl& destination)
        : NewNames({ { source, destination } })
    {
    }
    /// Old and new addresses.
    explicit NewNames(const QList<std::pair<QUrl, QUrl>>& photos)
        : m_list(photos)
    {
        for (const auto& [source, destination] : photos) {
            m_byOld.insert(source, destination);
            m_new.insert(destination);
        }
    }

    const QList<std::pair<QUrl, QUrl>>& list() const { return m_list; }
    bool isEmpty() const { return m_list.isEmpty(); }
    /// The photo's address now.
    QUrl of(const QUrl& photo) const { return m_byOld.value(photo, photo); }
    /// Whether another photo has this one's address now, and it has no other: then it is gone.
    bool isReplaced(const QUrl& photo) const { return m_new.contains(photo) && !m_byOld.contains(photo); }

    /// The same photos under their addresses of now, without those that are gone.
    QList<QUrl> of(const QList<QUrl>& photos) const
    {
        QList<QUrl> now;
        for (const QUrl& photo : photos)
            if (!isReplaced(photo))
                now.append(of(photo));
        return now;
    }
    QSet<QUrl> of(const QSet<QUrl>& photos) const
    {
        QSet<QUrl> now;
        for (const QUrl& photo : photos)
            if (!isReplaced(photo))
                now.insert(of(photo));
        return now;
    }
    template <typename T>
    QHash<QUrl, T> of(const QHash<QUrl, T>& byPhoto) const
    {
        QHash<QUrl, T> now;
        for (auto held = byPhoto.cbegin(); held != byPhoto.cend(); ++held)
            if (!isReplaced(held.key()))
                now.insert(of(held.key()), *held);
        return now;
    }

private:
    QList<std::pair<QUrl, QUrl>> m_list;
    QHash<QUrl, QUrl> m_byOld;
    QSet<QUrl> m_new;
};

}  // namespace Quorbel
