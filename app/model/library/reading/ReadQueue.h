// Which photos are read next: those that somebody waits for, then those in view, then all others in their order.
// Thread: one at a time. Reads nothing, and knows no list: only the addresses of photos that were not read yet.
#pragma once

#include <QHash>
#include <QList>
#include <QUrl>

#include <optional>
#include <vector>

namespace Quorbel {

class ReadQueue final {
public:
    /// So many are one read, all of them.
    static constexpr qsizetype wholeSize = 64;
    /// Where there are more: of those in view, and of all others, so many are one read. Larger ones take the tool less
    /// time a photo, smaller ones let what somebody looks at come sooner.
    static constexpr qsizetype viewSize = 32;
    static constexpr qsizetype sliceSize = 200;

    /// Further photos that wait, in their order; those that are known already stay as they are.
    void add(const QList<QUrl>& photos);
    /// Those that are known are not all: they are not read as a whole, however few.
    void expectMore() { m_isBroken = true; }
    /// The photo whose fields are on screen: it is read alone, before all others.
    void setFirst(const std::optional<QUrl>& photo) { m_first = photo; }
    void setInView(const QList<QUrl>& photos) { m_inView = photos; }
    /// Somebody waits for these.
    void require(const QList<QUrl>& photos) { m_required += photos; }
    /// These are to be read by themselves.
    void addPart(const QList<QUrl>& photos);

    /// What is read next; none when nothing waits. They do not wait any more. `demandedOnly`: only the first and those
    /// that somebody waits for.
    QList<QUrl> next(bool demandedOnly);
    /// The first photo, if it waits.
    QList<QUrl> nextFirst();
    /// They wait again.
    void putBack(const QList<QUrl>& photos);
    /// They have been read, or need not be.
    void end(const QList<QUrl>& photos);

    bool isKnown(const QUrl& photo) const { return m_photos.contains(photo); }
    qsizetype waiting() const { return m_waiting; }
    /// Those that wait or are being read.
    qsizetype left() const { return m_photos.size(); }

private:
    enum class State { waits, runs };

    QList<QUrl> take(QList<QUrl>& from, qsizetype most);

    QHash<QUrl, State> m_photos;
    qsizetype m_waiting = 0;
    std::optional<QUrl> m_first;
    QList<QUrl> m_inView;
    QList<QUrl> m_required;
    std::vector<QList<QUrl>> m_parts;
    QList<QUrl> m_order;  ///< the rest, in order; some may have been read since
    bool m_isBroken = false;  ///< it is too late to read all of them at once
};

}  // namespace Quorbel
