// Where each photo of a list stands: by URL, and in a sort order through a search.
// Thread: one at a time. Keeps one natural sort key and one lower-case name a photo, so that neither a keystroke in
// the search nor another sort order compares texts again.
#pragma once

#include "core/schema/ImageRecord.h"
#include "core/schema/RecordSortOrder.h"

#include <QCollatorSortKey>
#include <QHash>

#include <optional>
#include <vector>

namespace Quorbel {

class RecordIndex final {
public:
    void reset(const QList<ImageRecord>& records);
    void append(const ImageRecord& record);
    /// The record at this position is another one now, or was read again.
    void replace(int position, const ImageRecord& record);
    /// Positions ascending; those behind them move up.
    void remove(const QList<int>& positions);

    /// -1 when there is none. The first one where a URL occurs twice.
    int position(const QUrl& url) const { return m_positions.value(url, -1); }
    /// Positions of the photos whose lower-case file name contains `needle` (lower case; "" finds all), in this
    /// order; what is equal in it stays in the list's. Photos without a creation date come last; those of one date, or
    /// without, by name.
    QList<int> rows(const QString& needle, RecordSortOrder order);

private:
    struct Entry {
        explicit Entry(const ImageRecord& record);

        QUrl url;
        QString fileName;
        QString lowerName;
        QCollatorSortKey nameKey;
        std::optional<qint64> created;  ///< ms since 1970
    };

    void rebuildPositions();
    void sortNames();
    const std::vector<int>& sortedBy(RecordSortOrder order);
    std::vector<int> namesDescending() const;
    std::vector<int> byDate(bool newestFirst) const;

    std::vector<Entry> m_entries;
    QHash<QUrl, int> m_positions;
    std::vector<int> m_byName;  ///< positions, ascending by name; empty: not sorted yet
    std::vector<int> m_nameRank;  ///< by position; photos of equal names have equal ranks
    std::vector<int> m_sorted;  ///< positions in m_sortedBy's order
    std::optional<RecordSortOrder> m_sortedBy;
};

}  // namespace Quorbel
