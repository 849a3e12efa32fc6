// Taking the last save back, also one of an earlier run of the program.
#include "app/model/AppModel.h"

#include "app/model/Background.h"
#include "app/model/MainThread.h"

namespace Quorbel {

/// Whether there is anything to undo takes a look at the disk.
void AppModel::openHistory()
{
    if (m_services.journalPath.isEmpty() || !m_services.service)
        return;
    m_history = std::make_shared<SaveHistory>(m_services.journalPath);
    runInBackground(
        this, [history = m_history] { return history->isEmpty(); },
        [this](bool isEmpty) {
            m_hasUndo = m_hasUndo || !isEmpty;
            updateCanUndoSave();
        });
}

void AppModel::updateCanUndoSave()
{
    assign(m_canUndoSave, m_hasUndo && !m_isSaving, &AppModel::canUndoSaveChanged);
}

/// A write like a save: one at a time, and what else would be done to the files waits for its end.
void AppModel::undoSave()
{
    requireMainThread("undoSave");
    if (!m_canUndoSave)
        return;
    const Update update(*this);
    QList<QUrl> photos;
    photos.reserve(m_records.size());
    for (const ImageRecord& record : std::as_const(m_records))
        photos.append(record.url);
    assign(m_isSaving, true, &AppModel::isSavingChanged);
    updateCanUndoSave();
    m_beingWritten = QSet<QUrl>(photos.cbegin(), photos.cend());
    ++m_saveSerial;
    ++m_diskSerial;
    const Task task = beginTask(0, Task::Kind::write);
    runInBackground(
        this,
        [service = *m_services.service, history = m_history, photos, progress = task.progress] {
            return history->undo(service, photos, *progress);
        },
        [this, id = task.id](const SaveHistory::Undone& undone) {
            {
                const Update done(*this);
                endTask(id);
                finishUndo(undone);
            }
            endSave(!undone.error);
        });
}

void AppModel::finishUndo(const SaveHistory::Undone& undone)
{
    m_hasUndo = undone.hasMore;
    if (replaceRecords(undone.records))
        if (const ImageRecord* record = primaryRecord())
            setDrafts(ExternalRefresh::mergeDrafts(*record, drafts(), m_editedSingle));
    if (const auto text = SaveHistory::text(undone))
        setErrorMessage(text);
}

}  // namespace Quorbel
