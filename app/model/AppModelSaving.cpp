// Saving: when to ask, and what a save leaves behind.
#include "app/model/AppModel.h"
#include "app/model/AppModelTools.h"
#include "core/language/Texts.h"
#include "core/save/Agreement.h"

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// The lists that were on screen: the record's own, and what other homes held when one was taken for all.
ListHomes::SeenLists seenIn(const ImageRecord& record, const Edits& edits)
{
    ListHomes::SeenLists seen = record.lists;
    for (auto items = edits.givenUp.cbegin(); items != edits.givenUp.cend(); ++items)
        seen[items.key()] += *items;
    return seen;
}

}  // namespace

void AppModel::setSaveOpen(bool open)
{
    requireMainThread("setSaveOpen");
    // A sheet that closes itself after an answer says so too: then it is no cancel any more.
    if (!open && m_sheets.save) {
        dropWaiting();
        giveUpAgreeing();
    }
    m_announcer.assign(m_sheets.save, open, Change::saveOpen);
}

void AppModel::setBatchDontAskSession(bool on)
{
    requireMainThread("setBatchDontAskSession");
    m_announcer.assign(m_batchDontAskSession, on, Change::batchDontAskSession);
}

void AppModel::lookAhead()
{
    m_saving.lookAhead(unsavedCount() > 0 ? pairing().filesOf(selection()) : selection(), unsavedCount() > 0);
}

void AppModel::requestSave()
{
    requireMainThread("requestSave");
    if (unsavedCount() < 1 || isSaving())
        return;
    const bool asks =
        isBatch() ? m_preferences.confirmMassEdit() && !m_batchDontAskSession : !m_preferences.saveDontAsk();
    if (asks)
        m_announcer.assign(m_sheets.save, true, Change::saveOpen);
    else
        save();
}

void AppModel::confirmSaveDialog()
{
    requireMainThread("confirmSaveDialog");
    if (m_sheets.save)
        m_tools->credentials->noteConfirmed();
    m_announcer.assign(m_sheets.save, false, Change::saveOpen);
    if (m_agreeing && m_agreeing->isAsking) {
        m_agreeing->isAsking = false;
        m_agreeing->isConfirmed = true;
        return goOnAgreeing();
    }
    // What waits is asked for again when the running save ends, and saves then.
    if (!isSaving())
        save();
}

void AppModel::discardSaveDialog()
{
    requireMainThread("discardSaveDialog");
    if (m_agreeing && m_agreeing->isAsking)
        return cancelSaveDialog();
    {
        const Announcer::Together together(m_announcer);
        m_announcer.assign(m_sheets.save, false, Change::saveOpen);
        m_editing.leave();
    }
    resumeWaiting();
}

void AppModel::cancelSaveDialog()
{
    setSaveOpen(false);
}

void AppModel::save(const QStringList& leftOut)
{
    if (!isBatch() && !primaryRecord())
        return resumeWaiting();
    const Announcer::Together together(m_announcer);
    const Edits edits = m_editing.unsaved();
    if (!m_saving.isPossible() || edits.isEmpty()) {
        // Edits that amount to nothing must not hold back for ever what waits.
        if (isHoldingBack())
            discardSaveDialog();
        return;
    }
    m_editing.send();
    const QList<QUrl> unread = unreadOf(pairing().filesOf(edits.subjects));
    if (unread.isEmpty())
        return beginSave(edits, leftOut);
    m_saving.reserve();
    m_awaited = Awaited{ edits, leftOut, QSet<QUrl>(unread.cbegin(), unread.cend()) };
    m_library.require(unread);
}

// What the photos hold is known: lists cannot be replaced without.
void AppModel::beginSave(const Edits& edits, const QStringList& leftOut)
{
    const Edits all = pairing().forFiles(edits, m_editing.leftOf(edits));
    // Of the other file of a shot nothing was seen but what the photo shows.
    SaveJob::SeenLists seen;
    if (!all.lists.isEmpty())
        for (const QUrl& file : all.subjects)
            if (const ImageRecord* record = photos().record(pairing().photoOf(file)))
                seen.insert(file, seenIn(*record, edits));
    if (onWriteBegins)
        onWriteBegins(all.subjects);
    m_tools->rememberedCards->noteSaving(edits);
    const WriteOptions options{ m_preferences.backupOriginals(), m_preferences.writeSidecar(), leftOut,
        pairing().picturesAmong(all.subjects) };
    m_saving.save(all, options, seen);
}

void AppModel::saveAwaited()
{
    if (!m_awaited->unread.isEmpty())
        return;
    const Awaited awaited = *std::exchange(m_awaited, std::nullopt);
    beginSave(awaited.edits, awaited.leftOut);
}

// Nothing was written: the edits are what they were.
void AppModel::giveUpAwaited()
{
    if (!m_awaited)
        return;
    const Announcer::Together together(m_announcer);
    const Awaited awaited = *std::exchange(m_awaited, std::nullopt);
    m_editing.takeSaved(awaited.edits, awaited.edits.subjects, {});
    m_saving.release();
}

void AppModel::tellWritten(const SaveOutcome& outcome)
{
    QList<QUrl> written;
    written.reserve(outcome.records.size());
    for (const ImageRecord& record : outcome.records)
        written.append(record.url);
    if (onWriteEnds)
        onWriteEnds(written);
}

void AppModel::noteRead(const QList<ImageRecord>& fresh)
{
    QList<QUrl> read;
    for (const ImageRecord& record : fresh)
        read.append(record.url);
    m_library.noteRead(read);
}

void AppModel::takeSaved(const SaveOutcome& ofFiles)
{
    tellWritten(ofFiles);
    photos().endSaved();
    noteRead(ofFiles.records);
    const SaveOutcome outcome = pairing().forPhotos(ofFiles);
    m_editing.takeSaved(outcome.unsaved, outcome.failed, outcome.differing);
    const QList<QUrl> waiting = outcome.failed + takeRefused();
    if (outcome.message)
        setErrorMessage(outcome.message);
    noteWritten(ofFiles);
    if (!waiting.isEmpty() || !outcome.unsaved.isEmpty())
        m_lastSave.refused = { QSet<QUrl>(waiting.cbegin(), waiting.cend()), outcome.homesToLeaveOut };
}

// The picture of a shot comes out from behind its raw file with what it alone refused, for whoever tries again.
QList<QUrl> AppModel::takeRefused()
{
    const auto refused = pairing().takeRefused();
    if (!refused)
        return {};
    const QList<QUrl>& waiting = refused->edits.subjects;
    const auto isOpen = [this](const QUrl& photo) { return photos().contains(photo); };
    if (unsavedCount() == 0 && std::all_of(waiting.cbegin(), waiting.cend(), isOpen))
        m_editing.bringBack(*refused);
    else
        m_left.keep(*refused);
    return waiting;
}

// For what is remembered of what was saved.
void AppModel::noteWritten(const SaveOutcome& outcome)
{
    const SidecarPolicy sidecars = outcome.sidecars.value_or(m_sidecarPolicy);
    const QSet<QUrl> failed(outcome.failed.cbegin(), outcome.failed.cend());
    QList<QUrl> written;
    for (const ImageRecord& record : outcome.records)
        if (!failed.contains(record.url) && !sidecars.isBeside(record.url))
            written.append(record.url);
    m_tools->credentials->noteWritten(written);
    m_tools->rememberedCards->noteSaved(outcome.records, failed, outcome.differing);
}

// Homes are made to agree only where there is something to write. What goes beside a photo leaves its file sealed.
int AppModel::credentialsAtStake() const
{
    if (!m_agreeing || !m_agreeing->isAsking) {
        const QList<QUrl>& sealed = selectedDetails().sealed();
        const auto written = std::count_if(
            sealed.cbegin(), sealed.cend(), [this](const QUrl& photo) { return !m_sidecarPolicy.isBeside(photo); });
        return int(written + pairing().credentialsBehind(selection()));
    }
    return int(std::count_if(m_agreeing->photos.cbegin(), m_agreeing->photos.cend(), [this](const QUrl& photo) {
        if (m_sidecarPolicy.isBeside(photo))
            return false;
        const ImageRecord* record = photos().record(photo);
        const PhotoDetails* known = details(photo);
        return record && known && known->hasCredentials && !Agreement::plan(*record, *known).isEmpty();
    }));
}

QString AppModel::partialSaveText() const
{
    const bool isOffered = !m_lastSave.refused.homes.isEmpty() && m_errorMessage && !isSaving() && unsavedCount() > 0
        && selection() == m_lastSave.refused.photos;
    if (!isOffered)
        return {};
    QString homes = m_lastSave.refused.homes.constFirst();
    for (const QString& home : m_lastSave.refused.homes.sliced(1))
        //: the end of a list: "a.jpg, b.jpg and c.jpg"
        homes = Texts::tr("%1 and %2").arg(homes, home);
    //: %1 are parts of a file that take no text: "EXIF and IPTC"
    return Texts::tr("Save without %1").arg(homes);
}

void AppModel::savePartially()
{
    requireMainThread("savePartially");
    if (partialSaveText().isEmpty())
        return;
    const Announcer::Together together(m_announcer);
    const QStringList homes = m_lastSave.refused.homes;
    setErrorMessage(std::nullopt);
    save(homes);
}

void AppModel::undoSave()
{
    requireMainThread("undoSave");
    m_saving.undo([this](QList<QUrl> saved) {
        saved.removeIf([this](const QUrl& photo) { return !photos().contains(photo); });
        if (onWriteBegins)
            onWriteBegins(saved);
        return saved;
    });
}

void AppModel::takeUndone(const SaveOutcome& outcome)
{
    tellWritten(outcome);
    const bool isOther = photos().endSaved();
    noteRead(outcome.records);
    if (isOther)
        m_editing.takeRead();
    if (outcome.message)
        setErrorMessage(outcome.message);
}

}  // namespace Quorbel
