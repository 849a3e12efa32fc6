// Leaving photos: clicks, other photos to open, the end of the program; and the question that comes first while edits
// are unsaved.
#include "app/model/AppModel.h"

namespace Quorbel {

QList<ImageRecord> AppModel::selectedRecords() const
{
    QList<ImageRecord> found;
    found.reserve(selectedRows().size());
    for (const int row : selectedRows())
        found.append(records().at(row));
    return found;
}

void AppModel::tap(const QUrl& url, bool shift, bool command)
{
    requireMainThread("tap");
    if (m_services.endEditing)
        m_services.endEditing();
    if (!photos().contains(url))
        return;
    if (!shift && !command && primary() == url && selection() == QSet<QUrl>{ url }) {
        // Back to where we are: a change that still waits for a save to end is taken back.
        m_waiting = nullptr;
        return;
    }
    changeSelection(m_selected.selection().afterClick(photos(), url, shift, command));
}

void AppModel::selectAllPhotos()
{
    requireMainThread("selectAllPhotos");
    const Selection next = m_selected.selection().withAllVisible(photos());
    if (!next.photos.isEmpty())
        changeSelection(next);
}

void AppModel::changeSelection(const Selection& next)
{
    const bool losesEdits = selection().size() == 1 && unsavedCount() > 0 && next.primary != primary();
    if (!losesEdits)
        return commitSelection(next);
    holdBack([this, next] {
        // Photos may have disappeared while the question was open.
        Selection remaining = next;
        remaining.photos.removeIf([this](const QUrl& url) { return !photos().contains(url); });
        if (remaining.primary && remaining.photos.contains(*remaining.primary))
            changeSelection(remaining);
    });
}

void AppModel::commitSelection(const Selection& next)
{
    m_lastSaveFailed = false;
    m_editing.select(next);
}

void AppModel::requestLoad(const QList<QUrl>& urls)
{
    requireMainThread("requestLoad");
    if (m_services.endEditing)
        m_services.endEditing();
    if (unsavedCount() > 0)
        return holdBack([this, urls] { requestLoad(urls); });
    load(urls);
}

void AppModel::requestClose()
{
    requireMainThread("requestClose");
    if (m_services.endEditing)
        m_services.endEditing();
    if (unsavedCount() > 0)
        return holdBack([this] { requestClose(); });
    closeFolder();
}

void AppModel::requestQuit()
{
    requireMainThread("requestQuit");
    if (m_services.endEditing)
        m_services.endEditing();
    if (unsavedCount() > 0 || isSaving())
        return holdBack([this] { requestQuit(); });
    if (m_services.quit)
        m_services.quit();
}

// Saves first, or asks whether to, and asks for the action again when the edits are saved or discarded. While a
// save runs its end is waited for: usually nothing is left to ask about then.
void AppModel::holdBack(std::function<void()> action)
{
    m_waiting = std::move(action);
    if (isSaving())
        return;
    // Edits that cannot be saved need the question all the same: else there would be no way to leave them.
    if (m_preferences.saveDontAsk() && !isBatch() && !m_lastSaveFailed)
        save();
    else
        m_announcer.assign(m_saveOpen, true, Change::saveOpen);
}

void AppModel::resumeWaiting()
{
    if (const auto action = std::exchange(m_waiting, nullptr))
        action();
}

}  // namespace Quorbel
