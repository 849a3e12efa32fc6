// What becomes of edits that are saved.
#include "app/model/edits/Editing.h"

#include <algorithm>

namespace Quorbel {

void Editing::send()
{
    m_sent = { .batch = m_batch,
        .added = m_added,
        .languages = m_languages,
        .selectionSerial = m_selected.serial(),
        .isRunning = true };
    m_sent.batch.edits = unsaved();
}

void Editing::takeSaved(const Edits& unsaved, const QList<QUrl>& failed, const QSet<QString>& differing)
{
    const Announcer::Together together(m_announcer);
    const bool isSending = this->isSending();
    m_sent.isRunning = false;
    if (!isSending) {
        giveBack(unsaved);
        m_left.noteStanding(false);
    } else if (!failed.isEmpty()) {
        narrow(failed);
    } else {
        m_batch = m_batch.afterSave(m_sent.batch, differing);
        m_draft.edits = m_draft.edits.minus(m_sent.batch.edits, differing);
        m_added.subtract(m_sent.added);
        noteSaved(m_sent.batch.edits, differing);
    }
    // A photo that failed holds what it held: its rows stay as they are, under the hands of who tries again.
    const std::optional<QUrl>& primary = m_selected.selection().primary;
    if (!primary || !failed.contains(*primary))
        layDraft();
    changed();
}

// The selection shrinks to those of its photos that still wait for their edits, so that Save tries just them again.
void Editing::narrow(const QList<QUrl>& photos)
{
    Selection rest = m_selected.selection();
    rest.photos.intersect(setOf(photos));
    if (rest.photos.isEmpty() || rest.photos == m_selected.selection().photos)
        return;
    if (!rest.primary || !rest.photos.contains(*rest.primary))
        rest.primary = *std::find_if(
            photos.cbegin(), photos.cend(), [&rest](const QUrl& photo) { return rest.photos.contains(photo); });
    rest.anchor = rest.primary;
    const Batch batch = m_batch;
    const QSet<QString> added = m_added;
    const QSet<QString> languages = m_languages;
    select(rest);
    m_batch = batch;
    m_batch.keepOnly(rest.photos);
    m_added = added;
    m_languages = languages;
    if (!isBatch())
        foldBatchIntoDraft();
    changed();
}

// Selects the photos that still wait, with their edits, unless the user edits others by now: then these edits wait
// until just their photos are selected again.
void Editing::giveBack(Edits edits)
{
    QSet<QUrl> away = setOf(edits.subjects);
    away.removeIf([this](const QUrl& photo) { return m_photos.contains(photo); });
    m_left.keep(leftOf(edits.onlyOf(away)));
    edits = edits.onlyOf(setOf(edits.subjects).subtract(away));
    if (edits.isEmpty() || edits.subjects.isEmpty())
        return;
    const QSet<QUrl> photos = setOf(edits.subjects);
    if (photos == m_selected.selection().photos)
        return put(leftOf(edits));
    if (m_unsavedCount > 0)
        return m_left.keep(leftOf(edits, true));
    const std::optional<QUrl>& primary = m_selected.selection().primary;
    const QUrl next = primary && photos.contains(*primary) ? *primary : edits.subjects.constFirst();
    select({ photos, next, next });
    m_added = m_sent.added;
    m_languages = m_sent.languages;
    put(leftOf(edits));
}

// Under what is being edited, for the selected photos.
void Editing::put(const LeftEdits& left)
{
    if (isUnread())
        return m_left.keep(
            { .edits = left.edits, .heldLists = left.heldLists, .confirmed = left.confirmed, .returns = true });
    if (isBatch()) {
        m_batch.take(left.edits.merged(m_batch.edits, m_selected.urls()));
    } else if (const ImageRecord* record = m_selected.primaryRecord()) {
        m_draft.take(left.rebasedOnto(*record, m_details.of(record->url)).merged(m_draft.edits), *record, m_known.now);
    }
    changed();
}

}  // namespace Quorbel
