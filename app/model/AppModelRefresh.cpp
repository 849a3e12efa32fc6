// What other programs do to the open folder: one look at it in the background, then only what differs is read.
#include "app/model/AppModel.h"

#include "app/model/Background.h"
#include "app/model/MainThread.h"
#include "app/model/library/FolderWatcher.h"
#include "core/text/Text.h"

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

bool AppModel::canRefresh() const
{
    requireMainThread("canRefresh");
    return m_folderURL && m_services.service;
}

/// One refresh at a time, from the look at the folder to the last read; a call meanwhile is answered by one more.
void AppModel::refresh()
{
    requireMainThread("refresh");
    if (!canRefresh())
        return;
    if (m_isRefreshing) {
        m_refreshAgain = true;
        return;
    }
    m_isRefreshing = true;
    runInBackground(
        this, [folder = *m_folderURL] { return FolderScan::of(folder); },
        [this, generation = m_generation, serial = m_diskSerial](const FolderScan& scan) {
            if (generation != m_generation)
                return;
            m_isRefreshing = false;
            // A look that is older than a rename or save of our own would take our doing for another program's.
            if (std::exchange(m_refreshAgain, false) || serial != m_diskSerial)
                return refresh();
            if (scan.isListed)
                applyScan(scan);
        });
}

/// Photos that are being written are left alone: their save reads them again at its end, and for a moment between
/// backup and replacement they are not even there.
void AppModel::applyScan(const FolderScan& scan)
{
    const Update update(*this);
    m_passedOverWritten = m_passedOverWritten || m_isSaving;
    QList<int> removed;
    for (int i = 0; i < int(m_records.size()); ++i) {
        const QUrl& url = m_records.at(i).url;
        if (!scan.photos.contains(url) && !m_beingWritten.contains(url))
            removed.append(i);
    }
    QList<QUrl> changed = ExternalRefresh::modifiedURLs(
        m_records, [&scan](const ImageRecord& record) { return scan.photos.value(record.url); });
    changed.removeIf([this](const QUrl& url) { return m_beingWritten.contains(url) || m_tooSlow.contains(url); });
    QList<QUrl> added;
    for (auto photo = scan.photos.cbegin(); photo != scan.photos.cend(); ++photo)
        if (m_index.position(photo.key()) < 0 && !m_tooSlow.contains(photo.key()))
            added.append(photo.key());
    std::sort(added.begin(), added.end(),
        [](const QUrl& a, const QUrl& b) { return Text::naturalCompare(a.fileName(), b.fileName()) < 0; });
    if (!removed.isEmpty())
        removeRecords(removed);
    if (!changed.isEmpty())
        readChanged(changed);
    if (!added.isEmpty())
        readAdded(added);
    // A folder that was away and came back is another one to the system.
    if (m_watcher && !m_watcher->isWatching())
        startWatching();
}

void AppModel::removeRecords(const QList<int>& positions)
{
    QSet<QUrl> gone;
    for (const int position : positions)
        gone.insert(m_records.at(position).url);
    const bool losesPrimary = m_primary && gone.contains(*m_primary);
    if (losesPrimary && !isBatch() && unsavedCount() > 0)
        setErrorMessage(
            u"“%1” was removed by another program, and its unsaved changes with it."_s.arg(m_primary->fileName()));
    const auto heir = losesPrimary ? nearestSelected(gone) : std::nullopt;
    m_records.removeIf([&gone](const ImageRecord& record) { return gone.contains(record.url); });
    m_index.remove(positions);
    announce(&AppModel::recordsChanged);
    recordContentChanged();
    updateVisibleRows(true);
    pruneSelectionToRecords(heir);
}

void AppModel::readChanged(const QList<QUrl>& urls)
{
    readForRefresh(urls, [this](const QList<ImageRecord>& fresh) { takeChanged(fresh); });
}

void AppModel::readAdded(const QList<QUrl>& urls)
{
    readForRefresh(urls, [this](const QList<ImageRecord>& fresh) { takeAdded(fresh); });
}

/// Silent: what cannot be read stays as it is, or out. A file that the user skips is not asked for again.
void AppModel::readForRefresh(const QList<QUrl>& urls, const std::function<void(const QList<ImageRecord>&)>& take)
{
    m_isRefreshing = true;
    ++m_refreshReads;
    const Task task = beginTask(urls.size(), Task::Kind::refresh, urls);
    runInBackground(
        this,
        [service = *m_services.service, urls, progress = task.progress, stop = task.stop.get_token()] {
            return PhotoReader::read(service, urls, *progress, stop).records;
        },
        [this, urls, take, id = task.id, generation = m_generation, saves = m_saveSerial](
            const QList<ImageRecord>& fresh) {
            const Update update(*this);
            const std::optional<Task> ended = endTask(id);
            if (generation != m_generation)
                return;
            if (ended && ended->skipped) {
                m_tooSlow.insert(*ended->skipped);
                setErrorMessage(PhotoReader::leftOutText({ { ended->skipped->fileName(), u"took too long"_s } }));
                QList<QUrl> rest = urls;
                rest.removeAll(*ended->skipped);
                readForRefresh(rest, take);
                return endRefreshStep();
            }
            // What was read before a save of ours must not overwrite what was read after it.
            if (saves == m_saveSerial)
                take(fresh);
            else
                m_refreshAgain = true;
            endRefreshStep();
        });
}

void AppModel::takeChanged(const QList<ImageRecord>& fresh)
{
    const Update update(*this);
    if (!replaceRecords(fresh))
        return;
    QList<QUrl> urls;
    for (const ImageRecord& record : fresh)
        urls.append(record.url);
    if (m_primary && urls.contains(*m_primary))
        if (const ImageRecord* record = primaryRecord())
            setDrafts(ExternalRefresh::mergeDrafts(*record, drafts(), m_editedSingle));
    if (onImagesModified)
        onImagesModified(urls);
}

void AppModel::takeAdded(const QList<ImageRecord>& fresh)
{
    const Update update(*this);
    bool isAnyNew = false;
    for (const ImageRecord& record : fresh) {
        if (m_index.position(record.url) >= 0)
            continue;
        m_records.append(record);
        m_index.append(record);
        isAnyNew = true;
    }
    if (!isAnyNew)
        return;
    announce(&AppModel::recordsChanged);
    recordContentChanged();
    updateVisibleRows(true);
    if (m_selection.isEmpty())
        selectFirstVisible();
}

void AppModel::endRefreshStep()
{
    if (--m_refreshReads > 0)
        return;
    m_isRefreshing = false;
    if (std::exchange(m_refreshAgain, false))
        refresh();
}

}  // namespace Quorbel
