// The details of the open photos, as far as they are known, and what is asked of all of them at once: how many
// disagree, which keyword paths there are.
// Thread: one at a time. Plain values: reads nothing, and knows no list of photos.
#pragma once

#include "app/model/library/SharedTexts.h"
#include "core/renaming/NewNames.h"
#include "core/schema/PhotoDetails.h"

#include <QHash>
#include <QSet>

namespace Quorbel {

class DetailsStore final {
public:
    /// Null where they are not known, or out of date. Valid until the next change. Where a photo has nothing to tell,
    /// its address is not told either.
    const PhotoDetails* find(const QUrl& photo) const;
    /// The same, though it may be out of date: what the photo held before it changed.
    const PhotoDetails* findLast(const QUrl& photo) const;
    bool isKnown(const QUrl& photo) const { return find(photo) != nullptr; }
    /// How many are known.
    qsizetype known() const { return m_details.size() + m_silent.size() - m_outdated.size(); }
    /// Whether the photo's homes disagree, by what was known last.
    bool disagrees(const QUrl& photo) const;
    /// How many photos do.
    qsizetype disagreeing() const { return m_disagreeing; }
    /// Keyword paths that begin with the text (any case) in one of their elements, those whose keyword does first, and
    /// of these the most used; at most `limit`. Of a text with a bar in it, "Places|Fr", those that begin so as a
    /// whole.
    QStringList paths(const QString& prefix, int limit) const;

    void put(PhotoDetails details);
    /// The photo changed: what is held of it counts for what it was. Whether it was known.
    bool outdate(const QUrl& photo);
    /// Whether anything was held of it.
    bool forget(const QUrl& photo);
    /// Photos have other names; whether anything is held of them.
    bool rename(const NewNames& names);

private:
    void count(const PhotoDetails& details, int step);
    void share(PhotoDetails& details);

    QHash<QUrl, PhotoDetails> m_details;
    QSet<QUrl> m_silent;  ///< known, and with nothing to tell: most photos, so they take no more room than this
    QSet<QUrl> m_outdated;  ///< of those that are held
    QHash<QString, int> m_paths;  ///< and how many photos hold each
    qsizetype m_disagreeing = 0;
    SharedTexts m_texts;
};

}  // namespace Quorbel
