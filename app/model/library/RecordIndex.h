// Where each photo of a list stands: by URL, and in a sort order through a search; where folders have an order, by
// folder first.
// Thread: one at a time. Keeps one natural sort key and one lower-case name a photo, so that neither a keystroke in
// the search nor another sort order compares texts again. What comes, goes or changes is put in its place in what is
// sorted already: that costs steps over plain numbers, and texts are compared only around the photos concerned.
// Knows of each photo its traits and stars, and counts them. Where raw files and the pictures of their shots are
// paired, the picture is hidden behind its raw file, unless it is edited for itself.
#pragma once

#include "app/model/library/FolderGroups.h"
#include "app/model/library/FolderOrder.h"
#include "app/model/library/ShotPairs.h"
#include "app/model/library/filter/RecordTraits.h"
#include "core/schema/ImageRecord.h"
#include "core/schema/RecordSortOrder.h"

#include <QCollatorSortKey>
#include <QHash>

#include <array>
#include <optional>
#include <stop_token>
#include <vector>

namespace Quorbel {

class RecordIndex final {
public:
    /// While folders are walked through, nobody knows how many photos are still to come, and growing moves everything.
    /// Room that is not used costs no memory.
    static constexpr qsizetype roomForWalk = 120'000;

    /// Sorts at once. Once stopped, it ends early, and the index is of no use.
    void reset(const QList<ImageRecord>& records, RecordSortOrder order, FolderOrder folders = {},
        const std::stop_token& stop = {});
    /// The records from this position on are new, behind those that are known.
    void append(const QList<ImageRecord>& records);
    /// The records at these positions are other ones now, or were read again.
    void replace(const QList<int>& positions, const QList<ImageRecord>& records);
    /// The same where the photos only got other names.
    void rename(const QList<int>& positions, const QList<ImageRecord>& records);
    /// Positions ascending; those behind them move up.
    void remove(const QList<int>& positions);

    /// Two files of one shot are one photo from now on, or each is one again. Kept when other photos come in.
    void setPairing(bool on);
    bool isPairing() const { return m_isPairing; }
    /// The picture that is hidden behind this raw file; -1 where none is.
    int hiddenBehind(int position) const;
    /// Whether the photo is the picture of a pair, hidden or not.
    bool isPaired(int position) const { return m_isPairing && m_pairs.rawOf(entry(position).id) >= 0; }
    /// The raw file that stands for this photo, which is not listed therefore; -1 where none does.
    int standingFor(int position) const;

    /// -1 when there is none. The first one where a URL occurs twice.
    int position(const QUrl& url) const;
    /// Gives the photo a trait, or takes it away; whether it had it otherwise. A photo keeps under another name, and
    /// when it was read again, what its record says nothing about.
    bool setTrait(int position, PhotoTrait trait, bool on);
    /// Those at these positions have the trait, and no others; whether any had it otherwise.
    bool setOnly(PhotoTrait trait, const QList<int>& positions);
    /// Whoever has the one trait has the other from now on, and nobody else, and the one no more.
    void moveTrait(PhotoTrait from, PhotoTrait to);
    PhotoTraits traits(int position) const { return mark(position).traits; }
    /// How many photos there are, hidden ones left out.
    int photos() const;
    /// How many of these have it.
    int count(PhotoTrait trait) const;
    /// How many have so many stars or more.
    int countOfStars(int least) const;
    /// Whether the photo has what is asked for beside its name.
    bool passes(int position, const PhotoFilter& filter) const;
    /// Whether it is listed, but for its name: it passes, or is held, and is not hidden.
    bool isListed(int position, const PhotoFilter& filter) const
    {
        return (passes(position, filter) || traits(position).testFlag(PhotoTrait::held)) && standingFor(position) < 0;
    }
    /// Positions of the photos that are listed, in this order; what is equal in it stays in the list's. Photos without
    /// a creation date come last; those of one date, or without, by name.
    QList<int> rows(const PhotoFilter& filter, RecordSortOrder order);
    /// The runs of one folder in what rows() gave; none where folders have no order.
    QList<FolderGroup> groups(const QList<int>& rows) const;
    /// Where in rows() the photo stands, or would stand if it passed.
    qsizetype rowOf(int position, const QList<int>& rows, RecordSortOrder order);
    const FolderOrder& folders() const { return m_folders; }

private:
    struct Entry {
        explicit Entry(const ImageRecord& record);

        void setName(const ImageRecord& record);
        void setCreationDate(const std::optional<QDateTime>& date);

        QUrl url;
        QString fileName;
        QString lowerName;
        QCollatorSortKey nameKey;
        std::optional<QDateTime> creationDate;
        std::optional<qint64>
            created;  ///< the same in ms since 1970: worked out once, since the system then looks at its time zone
        int id = 0;
        int folder = 0;  ///< its number
    };
    /// What decides in an order by date.
    struct DateKey {
        int folder;  ///< its rank
        bool isUndated;
        qint64 date;
        int rank;
        int position;
        auto operator<=>(const DateKey&) const = default;
    };

    /// What is known of one photo beside its name.
    using Mark = RecordTraits;

    void add(const ImageRecord& record);
    const Mark& mark(int position) const { return m_marks[size_t(entry(position).id)]; }
    bool change(int id, const Mark& next);
    bool isHidden(int id) const;
    bool holdsName(int position, const QString& needle) const;
    void countAll() const;
    void tally(const Mark& mark, int step) const;
    void follow(const std::vector<int>& moved, const QList<ImageRecord>& records);
    void follow(int position, const ImageRecord& record);
    const Entry& entry(int position) const { return m_entries[size_t(position)]; }
    int folderRank(int position) const { return m_folders.rank(entry(position).folder); }
    bool isBefore(int a, int b) const;
    DateKey dateKey(int position, bool newestFirst) const;
    void rank(const std::vector<int>& fresh);
    void take(const std::vector<int>& positions);
    void put(std::vector<int> positions);
    const std::vector<int>& sortedBy(RecordSortOrder order);
    std::vector<int> namesDescending() const;
    std::vector<int> byDate(bool newestFirst) const;

    std::vector<Entry> m_entries;
    QHash<QUrl, int> m_ids;  ///< never renumbered, so that a photo that goes moves no other one in it
    std::vector<int> m_positions;  ///< by id
    std::vector<Mark> m_marks;  ///< by id
    bool m_isPairing = false;
    ShotPairs m_pairs;  ///< of ids
    /// What is paired changes with what is held: then all are counted when somebody asks.
    mutable bool m_isCounted = true;
    mutable int m_hidden = 0;
    mutable std::array<int, 16> m_counts{};  ///< by the number of a trait's bit
    mutable std::array<int, 6> m_starCounts{};  ///< by stars
    std::vector<int> m_byName;  ///< positions, ascending by folder and name
    std::vector<int> m_nameRank;  ///< by position; photos of equal names in one folder have equal ranks
    std::vector<int> m_sorted;  ///< positions in m_sortedBy's order
    std::optional<RecordSortOrder> m_sortedBy;
    FolderOrder m_folders;
};

}  // namespace Quorbel
