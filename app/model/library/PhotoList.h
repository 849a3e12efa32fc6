// The photos that are open: their records, which of them search and filter leave on screen, and in what order.
// Thread: the main thread. Reads nothing from disk; knows no selection and no edits.
#pragma once

#include "app/model/Announcer.h"
#include "app/model/library/CreationDates.h"
#include "app/model/library/KeywordUses.h"
#include "app/model/library/KnownFiles.h"
#include "app/model/library/RecordIndex.h"
#include "app/model/library/filter/TextFinding.h"

#include <QList>
#include <QStringList>

#include <chrono>
#include <memory>

namespace Quorbel {

/// How photos are listed.
struct ListForm {
    // NOLINTNEXTLINE(google-explicit-constructor): an order alone is a form
    ListForm(RecordSortOrder sortOrder, bool isPaired = false)
        : order(sortOrder)
        , isPairing(isPaired)
    {
    }

    RecordSortOrder order;
    bool isPairing;  ///< the raw file and the picture of one shot are one row
};

/// Photos, and all that is derived from them: made in the background, since a hundred thousand take their time.
struct OpenPhotos {
    QList<ImageRecord> records{};
    RecordIndex index{};
    KeywordUses keywords{};
    std::shared_ptr<KnownFiles> files{};  ///< null where nothing is watched

    /// Sorted in this form's order, by folder first where folders have one. Once stopped, it ends early, and the result
    /// is of no use.
    static OpenPhotos of(QList<ImageRecord> records, const ListForm& form, bool isWatched, FolderOrder folders = {},
        const std::stop_token& stop = {});
};

class PhotoList final {
public:
    PhotoList(Announcer& announcer, RecordSortOrder order)
        : m_announcer(announcer)
        , m_order(order)
    {
    }
    Q_DISABLE_COPY_MOVE(PhotoList)

    /// In the order in which they were read.
    const QList<ImageRecord>& records() const { return m_open.records; }
    /// -1 when there is none.
    int position(const QUrl& url) const { return m_open.index.position(url); }
    bool contains(const QUrl& url) const { return position(url) >= 0; }
    /// Null when there is none. Valid until the records change.
    const ImageRecord* record(const QUrl& url) const;
    /// Positions of the photos that pass search and filter, in sort order; where subfolders are open, by folder first.
    const QList<int>& visibleRows() const { return m_visibleRows; }
    const FolderGroups& groups() const { return m_groups; }
    /// The folders that hold photos, where subfolders are open.
    const FolderOrder& folders() const { return m_open.index.folders(); }
    void setFolded(const QList<QUrl>& folders, bool on);
    /// Counts the changes of the records: what was derived from them under another number is out of date.
    int serial() const { return m_serial; }
    /// The same, though photos that were only added do not count: the others are where and what they were.
    int heldSerial() const { return m_heldSerial; }
    /// Counts the photos that got another name.
    int renames() const { return m_renames; }
    /// What looks in the background compare with; null where nothing is watched.
    const std::shared_ptr<KnownFiles>& files() const { return m_open.files; }

    const QString& search() const { return m_search; }
    void setSearch(const QString& text);
    /// What a photo must have to be on screen; nothing but the search is left of it when other photos are opened.
    const PhotoFilter& filter() const { return m_filter; }
    PhotoTraits wanted() const { return m_filter.traits; }
    void setWanted(PhotoTraits traits) { setWanted(traits, m_filter.stars); }
    void setWanted(PhotoTraits traits, int leastStars);
    /// Gives those of these photos that are open a trait, or takes it away.
    void setTrait(PhotoTrait trait, const QList<QUrl>& photos, bool on);
    /// The photos at these positions have the trait, and no others.
    void setOnly(PhotoTrait trait, const QList<int>& positions);
    /// Which photos have which traits.
    const RecordIndex& index() const { return m_open.index; }
    /// Only photos are to be listed that hold the text in any field; "": all. They are looked for by findOn(), and the
    /// list stays as it is until all are found.
    void find(const QString& text);
    bool isFinding() const { return m_finding.isRunning(); }
    /// Looks on for about so long.
    void findOn(std::chrono::milliseconds budget);
    /// Where in visibleRows() the photo at this position stands, or would stand if it were listed.
    qsizetype rowOf(int position) { return m_open.index.rowOf(position, m_visibleRows, m_order); }
    /// The photo on screen that stands behind this one, which may not be listed itself; in front of it where none does.
    std::optional<QUrl> shownNear(const QUrl& photo);
    RecordSortOrder order() const { return m_order; }
    void setOrder(RecordSortOrder order);
    ListForm form() const { return { m_order, m_isPairing }; }
    /// Whether the raw file and the picture of one shot are one row, the raw file's: the picture is in records(), but
    /// never in visibleRows(), unless it is held.
    bool isPairing() const { return m_isPairing; }
    void setPairing(bool on);
    /// The picture that this raw file's row stands for as well; nothing where there is none.
    std::optional<QUrl> pictureOf(const QUrl& raw) const;
    /// The raw file in whose row the picture is; nothing where it has one of its own.
    std::optional<QUrl> rawOf(const QUrl& picture) const;

    /// Other photos are open now. What was open goes in the background.
    void open(OpenPhotos photos);
    /// Of photos that are about to be opened, those that will be the first ones on screen, at most so many.
    QList<QUrl> firstOnScreen(OpenPhotos& photos, qsizetype most) const;
    /// Puts each record in the place of the one with its URL; one that is not open is ignored. Whether any differed.
    bool replace(const QList<ImageRecord>& fresh);
    /// The same for what a load has read; which ones differed. Where all of it was unread before, what is held of the
    /// others stays as it is (heldSerial()).
    QList<QUrl> fill(const QList<ImageRecord>& fresh);
    /// The same for photos that a save of ours has just written, some after the other: they stay where they were in
    /// order of creation. Nobody is told before endSaved(), which says whether any differed.
    void putSaved(QList<ImageRecord> some);
    bool endSaved();
    /// Positions ascending.
    void remove(const QList<int>& positions);
    /// Those that are not open yet; whether there were any.
    bool append(const QList<ImageRecord>& fresh);
    /// The photos have other names in the same places of the list; such as are not open are ignored.
    void rename(const NewNames& names);

    /// Keywords of the photos that begin with the text (any case), the most used first; at most `limit`.
    QStringList keywordCompletions(const QString& prefix, int limit) const
    {
        return m_open.keywords.completions(prefix, limit);
    }

private:
    void keepCreationDates();
    QList<int> putAll(const QList<ImageRecord>& fresh);
    void put(int position, const ImageRecord& record);
    void traitsChanged(PhotoTrait trait);
    void markText(int position);
    void endFinding();
    void contentChanged(bool isHeldChanged, bool photosChanged);
    void updateVisibleRows(bool photosChanged);

    Announcer& m_announcer;
    OpenPhotos m_open;
    QList<int> m_visibleRows;
    FolderGroups m_groups;
    QString m_search;
    PhotoFilter m_filter;
    TextFinding m_finding;
    RecordSortOrder m_order;
    bool m_isPairing = false;
    CreationDates m_creationDates;
    int m_serial = 0;
    int m_heldSerial = 0;
    int m_renames = 0;
    bool m_hasPutSaved = false;  ///< nobody was told of some records yet
};

}  // namespace Quorbel
