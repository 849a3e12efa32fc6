// When photos were created, where a save of ours has since put a new file in the old one's place: for the system a
// saved photo is born again, and would jump to the end of a list in order of creation.
// Thread: one at a time. Plain values; reads nothing from disk. Lives as long as the program: a later start knows the
// new dates.
#pragma once

#include "core/renaming/NewNames.h"
#include "core/schema/ImageRecord.h"

#include <QHash>

namespace Quorbel {

class CreationDates final {
public:
    /// `fresh` is the photo after a save that began with `before`: it keeps the date.
    void keep(const ImageRecord& before, ImageRecord& fresh);
    /// Records that were just read, with the dates that were kept for their files. A file that somebody else has
    /// replaced since has its own.
    QList<ImageRecord> applied(QList<ImageRecord> fresh) const;
    void rename(const NewNames& names) { m_dates = names.of(m_dates); }

    /// The photos with a date of their own.
    QList<QUrl> photos() const { return m_dates.keys(); }

private:
    struct Dates {
        QDateTime file{};  ///< as the system tells it since the save
        QDateTime photo{};  ///< as it was before
    };

    QHash<QUrl, Dates> m_dates;
};

}  // namespace Quorbel
