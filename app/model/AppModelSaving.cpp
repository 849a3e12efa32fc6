// Saving: when to ask, the one write in the background, and the re-read that follows it.
#include "app/model/AppModel.h"

#include "app/model/Background.h"
#include "app/model/MainThread.h"
#include "app/model/saving/SaveJob.h"

#include <QPointer>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView customPrefix("custom:");

/// What a key of editedSingle stands for in these drafts: an item list, or a single text.
QStringList draftOf(const ExternalRefresh::Drafts& drafts, const QString& key)
{
    if (key.startsWith(customPrefix)) {
        const QString name = key.mid(customPrefix.size());
        for (const CustomValue& custom : drafts.customs)
            if (custom.name == name)
                return { custom.value };
        return {};
    }
    const FieldSpec* field = FieldSchema::spec(key);
    return field && field->isList() ? drafts.lists.value(key) : QStringList{ drafts.values.value(key) };
}

}  // namespace

void AppModel::setSaveOpen(bool open)
{
    requireMainThread("setSaveOpen");
    // A sheet that closes itself after an answer says so too: then it is no cancel any more.
    if (!open && m_saveOpen)
        m_waiting = nullptr;
    assign(m_saveOpen, open, &AppModel::saveOpenChanged);
}

void AppModel::setBatchDontAskSession(bool on)
{
    requireMainThread("setBatchDontAskSession");
    assign(m_batchDontAskSession, on, &AppModel::batchDontAskSessionChanged);
}

void AppModel::requestSave()
{
    requireMainThread("requestSave");
    if (unsavedCount() < 1 || m_isSaving)
        return;
    if (!isBatch()) {
        if (m_saveDontAsk)
            saveSingle();
        else
            assign(m_saveOpen, true, &AppModel::saveOpenChanged);
    } else if (m_confirmMassEdit && !m_batchDontAskSession) {
        assign(m_saveOpen, true, &AppModel::saveOpenChanged);
    } else {
        saveBatch();
    }
}

void AppModel::confirmSaveDialog()
{
    requireMainThread("confirmSaveDialog");
    assign(m_saveOpen, false, &AppModel::saveOpenChanged);
    // What waits is asked for again when the running save ends, and saves then.
    if (m_isSaving)
        return;
    if (isBatch())
        saveBatch();
    else
        saveSingle();
}

void AppModel::discardSaveDialog()
{
    requireMainThread("discardSaveDialog");
    {
        const Update update(*this);
        assign(m_saveOpen, false, &AppModel::saveOpenChanged);
        clearBatch();
        reinitializeDrafts();
    }
    goOn();
}

void AppModel::cancelSaveDialog()
{
    setSaveOpen(false);
}

void AppModel::saveSingle()
{
    if (!primaryRecord())
        return goOn();
    EditPlan plan;
    plan.listMode = MetadataWriter::ListMode::replace;
    for (const QString& key : std::as_const(m_editedSingle)) {
        const FieldSpec* field = FieldSchema::spec(key);
        if (key.startsWith(customPrefix)) {
            const QStringList value = draftOf(drafts(), key);
            if (!value.isEmpty())
                plan.customs.append({ key.mid(customPrefix.size()), value.constFirst() });
        } else if (field && field->isList()) {
            plan.lists.insert(key, m_draftLists.value(key));
        } else {
            plan.scalars.insert(key, m_draftValues.value(key));
        }
    }
    runWrite(plan, { *m_primary });
}

void AppModel::saveBatch()
{
    EditPlan plan;
    plan.listMode = MetadataWriter::ListMode::append;
    for (const QString& id : std::as_const(m_batchInclude)) {
        const FieldSpec* field = FieldSchema::spec(id);
        if (!field || !field->isList())
            plan.scalars.insert(id, m_batchValues.value(id));
    }
    plan.lists = nonEmptyBatchLists();
    plan.customs = m_batchCustoms;
    QList<QUrl> urls;
    urls.reserve(selectedRows().size());
    for (const int row : selectedRows())
        urls.append(m_records.at(row).url);
    runWrite(plan, urls);
}

void AppModel::runWrite(const EditPlan& plan, const QList<QUrl>& urls)
{
    const Update update(*this);
    if (!m_services.service || plan.isEmpty()) {
        // Edits that amount to nothing must not hold back for ever what waits.
        if (m_waiting)
            discardSaveDialog();
        return;
    }
    assign(m_isSaving, true, &AppModel::isSavingChanged);
    updateCanUndoSave();
    m_beingWritten = QSet<QUrl>(urls.cbegin(), urls.cend());
    ++m_saveSerial;
    ++m_diskSerial;
    const Task task = beginTask(urls.size(), Task::Kind::write);
    const WriteOptions options{ m_backupOriginals, m_writeSidecar };
    const SaveSnapshot saved{ plan, urls, m_selectionSerial, m_primary, drafts(), m_editedSingle,
        m_sessionAddedKnownIDs, m_batchInclude, m_batchValues, m_batchLists, m_batchCustoms };
    runInBackground(
        this,
        [service = *m_services.service, plan, urls, options, history = m_history, progress = task.progress] {
            return SaveJob::run(service, plan, urls, options, history.get(), *progress);
        },
        [this, saved, id = task.id](const SaveJob::Written& written) {
            const Update update(*this);
            m_hasUndo = m_hasUndo || written.canBeUndone;
            const bool mayBeSaved = !written.error || (written.isPartial && saved.urls.size() > 1);
            if (mayBeSaved)
                checkSave(saved, written);
            endTask(id);
            if (!mayBeSaved) {
                setErrorMessage(u"Could not save: "_s + *written.error);
                endSave(false);
            }
        });
}

void AppModel::checkSave(const SaveSnapshot& saved, const SaveJob::Written& written, const QSet<QUrl>& tooSlow)
{
    const Task task = beginTask(saved.urls.size(), Task::Kind::check, saved.urls);
    runInBackground(
        this,
        [service = *m_services.service, plan = saved.plan, urls = saved.urls, written, tooSlow,
            progress = task.progress, stop = task.stop.get_token()] {
            return SaveJob::check(service, plan, urls, written, tooSlow, *progress, stop);
        },
        [this, saved, written, tooSlow, id = task.id](const SaveJob::Checked& checked) {
            {
                const Update update(*this);
                const std::optional<Task> ended = endTask(id);
                if (ended && ended->skipped)
                    return checkSave(saved, written, QSet(tooSlow) << *ended->skipped);
                if (!checked.error)
                    takeSaved(checked, saved);
                reportSave(checked, saved, written);
            }
            endSave(!checked.error && checked.failures.isEmpty() && checked.differences.isEmpty());
        });
}

void AppModel::reportSave(const SaveJob::Checked& checked, const SaveSnapshot& saved, const SaveJob::Written& written)
{
    if (checked.error && written.error)
        return setErrorMessage(u"Could not save: "_s + *written.error);
    if (checked.error)
        return setErrorMessage(u"Could not read metadata: "_s + *checked.error);
    QStringList texts;
    if (!checked.failures.isEmpty())
        texts.append(SaveJob::failuresText(checked.failures, saved.urls.size()));
    if (!checked.differences.isEmpty())
        texts.append(SaveJob::differencesText(checked.differences));
    if (!texts.isEmpty())
        setErrorMessage(texts.join(u". "_s));
}

/// What the files hold now as it was written is no edit any more. What they hold otherwise, what could not be
/// written, and what the user typed since the save began stays unsaved.
void AppModel::takeSaved(const SaveJob::Checked& checked, const SaveSnapshot& saved)
{
    replaceRecords(checked.records);
    const bool isSameSelection = saved.selectionSerial == m_selectionSerial;
    if (!checked.failures.isEmpty()) {
        QList<QUrl> failed;
        for (const FileFailure& failure : checked.failures)
            failed.append(failure.file);
        selectUnsaved(failed, saved);
        return;
    }
    const QSet<QString> differing(checked.differences.cbegin(), checked.differences.cend());
    if (isSameSelection || (!differing.isEmpty() && selectUnsaved(saved.urls, saved)))
        dropSavedBatch(saved, differing);
    const ImageRecord* record = primaryRecord();
    if (!record || !saved.urls.contains(*m_primary))
        return;
    const QSet<QString> edited = editsSince(saved, differing);
    setDrafts(ExternalRefresh::mergeDrafts(*record, drafts(), edited));
    assign(m_editedSingle, edited, &AppModel::editedSingleChanged);
    if (isSameSelection)
        assign(m_sessionAddedKnownIDs, QSet(m_sessionAddedKnownIDs).subtract(saved.added),
            &AppModel::sessionAddedKnownIDsChanged);
}

/// Selects the photos that still wait for their edits, with these edits, so that Save tries just them again. Not
/// when the user edits other photos by now: those edits would be lost instead. Whether it did.
bool AppModel::selectUnsaved(const QList<QUrl>& urls, const SaveSnapshot& saved)
{
    const bool isSameSelection = saved.selectionSerial == m_selectionSerial;
    PendingSelection next;
    for (const QUrl& url : urls)
        if (m_index.position(url) >= 0)
            next.selection.insert(url);
    if (saved.urls.size() < 2 || next.selection.isEmpty() || (!isSameSelection && unsavedCount() > 0))
        return false;
    const bool keepsPrimary = m_primary && next.selection.contains(*m_primary);
    next.primary = keepsPrimary ? *m_primary : urls.constFirst();
    if (!next.selection.contains(*next.primary))
        next.primary = *next.selection.cbegin();
    next.anchor = next.primary;
    const auto include = isSameSelection ? m_batchInclude : saved.batchInclude;
    const auto values = isSameSelection ? m_batchValues : saved.batchValues;
    const auto lists = isSameSelection ? m_batchLists : saved.batchLists;
    const auto customs = isSameSelection ? m_batchCustoms : saved.batchCustoms;
    const auto added = isSameSelection ? m_sessionAddedKnownIDs : saved.added;
    commitSelection(next);
    assign(m_batchInclude, include, &AppModel::batchIncludeChanged);
    assign(m_batchValues, values, &AppModel::batchValuesChanged);
    assign(m_batchLists, lists, &AppModel::batchListsChanged);
    assign(m_batchCustoms, customs, &AppModel::batchCustomsChanged);
    assign(m_sessionAddedKnownIDs, added, &AppModel::sessionAddedKnownIDsChanged);
    if (!isBatch())
        foldBatchIntoDraft();
    return true;
}

/// The edited keys whose draft is not what was written, or whose field does not hold what was written.
QSet<QString> AppModel::editsSince(const SaveSnapshot& saved, const QSet<QString>& differing) const
{
    QSet<QString> edited = m_editedSingle;
    if (saved.primary != m_primary)
        return edited;
    const ExternalRefresh::Drafts now = drafts();
    edited.removeIf([&](const QString& key) {
        return saved.edited.contains(key) && !differing.contains(key)
            && draftOf(saved.drafts, key) == draftOf(now, key);
    });
    return edited;
}

void AppModel::dropSavedBatch(const SaveSnapshot& saved, const QSet<QString>& differing)
{
    QSet<QString> include = m_batchInclude;
    QMap<QString, QString> values = m_batchValues;
    for (const QString& id : saved.batchInclude) {
        if (differing.contains(id) || values.value(id) != saved.batchValues.value(id))
            continue;
        include.remove(id);
        values.remove(id);
    }
    values.removeIf([&](const auto& entry) {
        return !differing.contains(entry.key()) && saved.batchValues.value(entry.key()) == entry.value();
    });
    QMap<QString, QStringList> lists = m_batchLists;
    for (auto list = lists.begin(); list != lists.end(); ++list)
        for (const QString& item : differing.contains(list.key()) ? QStringList() : saved.batchLists.value(list.key()))
            list->removeAll(item);
    lists.removeIf([](const auto& entry) { return entry.value().isEmpty(); });
    QList<CustomValue> customs = m_batchCustoms;
    customs.removeIf([&](const CustomValue& custom) {
        return !differing.contains(customPrefix + custom.name) && saved.batchCustoms.contains(custom);
    });
    assign(m_batchInclude, include, &AppModel::batchIncludeChanged);
    assign(m_batchValues, values, &AppModel::batchValuesChanged);
    assign(m_batchLists, lists, &AppModel::batchListsChanged);
    assign(m_batchCustoms, customs, &AppModel::batchCustomsChanged);
}

/// Then goes on with what waited. After a failure it is dropped: nobody leaves edits that could not be saved.
void AppModel::endSave(bool succeeded)
{
    m_lastSaveFailed = !succeeded;
    m_beingWritten.clear();
    ++m_saveSerial;
    ++m_diskSerial;
    assign(m_isSaving, false, &AppModel::isSavingChanged);
    updateCanUndoSave();
    // A failed write may have done some of its files, and a look at the folder meanwhile passed them over.
    if (!succeeded || std::exchange(m_passedOverWritten, false))
        refresh();
    if (succeeded)
        goOn();
    else
        m_waiting = nullptr;
}

}  // namespace Quorbel
