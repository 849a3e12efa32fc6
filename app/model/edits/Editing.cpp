#include "app/model/edits/Editing.h"

#include "core/schema/CustomFields.h"
#include "core/schema/FieldID.h"
#include "core/schema/FieldLanguages.h"

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Keys of edits that are what the photo shows: somebody wants it written all the same.
QStringList confirmedIn(const Edits& edits, const ImageRecord& photo)
{
    QStringList keys;
    for (auto text = edits.scalars.cbegin(); text != edits.scalars.cend(); ++text)
        if (!text->isEmpty() && photo.values.value(text.key()) == *text)
            keys.append(text.key());
    for (auto list = edits.lists.cbegin(); list != edits.lists.cend(); ++list)
        if (!list->isEmpty() && photo.lists.value(list.key()) == *list)
            keys.append(list.key());
    return keys;
}

}  // namespace

Editing::Editing(Announcer& announcer, const PhotoList& photos, SelectedPhotos& selected,
    const SelectedDetails& details, LeftBehind& left)
    : m_announcer(announcer)
    , m_photos(photos)
    , m_selected(selected)
    , m_details(details)
    , m_left(left)
{
    m_left.setStanding([this] { return standing(); });
}

QSet<QUrl> Editing::setOf(const QList<QUrl>& photos)
{
    return QSet<QUrl>(photos.cbegin(), photos.cend());
}

Edits Editing::unsaved() const
{
    Edits edits = isBatch() ? m_batch.edits : m_draft.edits;
    edits.subjects = isBatch() ? m_selected.urls() : m_draft.edits.subjects;
    return edits;
}

// Whether the one photo that is selected was not read yet.
bool Editing::isUnread() const
{
    const ImageRecord* record = isBatch() ? nullptr : m_selected.primaryRecord();
    return record && record->isUnread;
}

// Whether what is being saved is still what is being edited.
bool Editing::isSending() const
{
    return m_sent.isRunning && !m_sent.isLeft && m_sent.selectionSerial == m_selected.serial();
}

Edits Editing::typed() const
{
    return isSending() ? unsaved().minus(m_sent.batch.edits, {}) : unsaved();
}

LeftEdits Editing::leftOf(const Edits& edits, bool returns) const
{
    LeftEdits left{ .edits = edits, .returns = returns };
    if (edits.subjects.size() == 1)
        left.edits = edits.of(edits.subjects.constFirst());
    const ImageRecord* photo = edits.subjects.size() == 1 ? m_photos.record(edits.subjects.constFirst()) : nullptr;
    for (auto list = edits.lists.cbegin(); photo && list != edits.lists.cend(); ++list)
        if (const auto held = heldItems(*photo, list.key()))
            left.heldLists.insert(list.key(), *held);
    if (photo)
        left.confirmed = confirmedIn(edits, *photo);
    return left;
}

// Nothing where it is not known.
std::optional<QStringList> Editing::heldItems(const ImageRecord& photo, const QString& id) const
{
    if (!PhotoDetails::hold(id))
        return photo.lists.value(id);
    const PhotoDetails* details = m_details.of(photo.url);
    return details ? std::optional(details->lists.value(id)) : std::nullopt;
}

// What would be lost if the program ended now.
QList<LeftEdits> Editing::standing() const
{
    QList<LeftEdits> standing;
    if (const Edits edits = unsaved(); !edits.isEmpty() && !edits.subjects.isEmpty())
        standing.append(leftOf(edits));
    if (m_sent.isRunning && !isSending())
        standing.append(leftOf(m_sent.batch.edits));
    return standing;
}

// Tells observers, where there is something to tell. What differs between many photos is looked at once, and not at
// all while the fingers are in other fields.
void Editing::changed()
{
    const Announcer::Together together(m_announcer);
    const bool isOwnOther = noteOwn();
    Told now{ .shown = m_draft.shown,
        .edited = m_draft.edits.keys(),
        .batch = m_batch,
        .ownSerial = m_told.ownSerial + (isOwnOther ? 1 : 0),
        .batchOwn = summaryOf(m_batch.edits.own),
        .added = m_added,
        .languages = m_languages,
        .only = m_only };
    now.batch.edits.own.clear();
    now.batchInclude = now.batch.include();
    for (auto field = now.batchOwn.cbegin(); field != now.batchOwn.cend(); ++field)
        if (field->texts > 0 && !CustomFields::nameIn(field.key()))
            now.batchInclude.insert(field.key());
    now.batchValues = now.batch.values();
    m_announcer.assign(m_told, now, Change::edits);
    m_announcer.assign(m_unsavedCount, unsavedNow(), Change::unsavedCount);
    Edits edits = isBatch() ? m_batch.edits : m_draft.edits;
    const bool isNone = edits.isEmpty();
    edits.own.clear();
    const Edits before = std::exchange(m_noted, edits);
    const bool wasNone = std::exchange(m_isNothingNoted, isNone);
    if ((isOwnOther || before != edits) && !(wasNone && isNone))
        m_left.noteStanding(!isNone);
}

// Whether other edits differ from photo to photo than when it was last told.
bool Editing::noteOwn()
{
    if (m_toldOwn.isSharedWith(m_batch.edits.own))
        return false;
    const QHash<QUrl, OwnEdits> before = std::exchange(m_toldOwn, m_batch.edits.own);
    return before != m_toldOwn;
}

QMap<QString, OwnSummary> Editing::summaryOf(const QHash<QUrl, OwnEdits>& own) const
{
    if (!m_summarized.first.isSharedWith(own))
        m_summarized = { own, OwnSummary::of(own) };
    return m_summarized.second;
}

// Fields, each once.
int Editing::unsavedNow() const
{
    if (!isBatch())
        return m_draft.edits.count();
    QSet<QString> keys = m_told.batch.edits.keys();
    for (auto field = m_told.batchOwn.cbegin(); field != m_told.batchOwn.cend(); ++field)
        keys.insert(field.key());
    return int(keys.size());
}

// --- What one types ---

void Editing::setSingle(const QString& id, const QString& value)
{
    if (isUnread() || isOutOfReach(id))
        return;
    if (FieldLanguages::languageIn(id))
        m_languages.insert(id);
    m_draft.setScalar(id, value);
    changed();
}

void Editing::addSingleListItem(const QString& id, const QString& item)
{
    if (isUnread() || isOutOfReach(id))
        return;
    addItem(id, item);
    changed();
}

void Editing::removeSingleListItem(const QString& id, const QString& item)
{
    if (isUnread() || isOutOfReach(id))
        return;
    m_draft.removeItem(id, item);
    changed();
}

// Of a photo that nobody has looked at yet, nobody knows what they would replace.
void Editing::setItems(const QString& id, const QStringList& items)
{
    if (isBatch())
        m_batch.setAdded(id, items);
    else if (!isUnread() && (knowsDetails() || !PhotoDetails::hold(id)))
        m_draft.setItems(id, items);
    changed();
}

void Editing::setBatch(const QString& id, const QString& value)
{
    // Merely focusing and leaving a field includes nothing.
    const bool isOwn = m_told.batchOwn.contains(id);
    if (!isOwn && !m_batch.edits.scalars.contains(id) && value == m_details.sharedValue(id).value_or(QString()))
        return;
    if (FieldLanguages::languageIn(id))
        m_languages.insert(id);
    // Who empties a field again in which he typed over the texts of many photos wants them back.
    if (isOwn || !value.isEmpty() || !m_batch.bringBackOwn(id))
        m_batch.setScalar(id, value);
    changed();
}

void Editing::toggleBatchInclude(const QString& id)
{
    m_batch.toggle(id, m_details.sharedValue(id).value_or(QString()));
    if (FieldLanguages::languageIn(id))
        m_languages.insert(id);
    changed();
}

void Editing::addBatchListItem(const QString& id, const QString& item)
{
    addItem(id, item);
    changed();
}

void Editing::removeBatchListItem(const QString& id, const QString& item)
{
    m_batch.removeItem(id, item);
    changed();
}

void Editing::takeBatchItemAway(const QString& id, const QString& item)
{
    m_batch.takeItemAway(id, item);
    changed();
}

void Editing::keepBatchItem(const QString& id, const QString& item)
{
    m_batch.keepItem(id, item);
    changed();
}

void Editing::clearBatchList(const QString& id)
{
    m_batch.clearList(id);
    changed();
}

void Editing::toggleBatchCustom(const QString& name)
{
    if (!CustomFields::isWritable(name))
        return;
    m_batch.toggleCustom(name, m_selected.sharedCustom(name).value_or(QString()));
    changed();
}

void Editing::setCustom(const QString& name, const QString& value)
{
    if (!CustomFields::isWritable(name) || isUnread())
        return;
    if (!isBatch())
        m_draft.setCustom(name, value);
    else if (value != shownCustom(name) && !(value.isEmpty() && m_batch.bringBackOwn(CustomFields::key(name))))
        m_batch.setCustom(name, value);
    changed();
}

void Editing::addCustom(const QString& name, const QString& value)
{
    if (!isBatch() || !CustomFields::isWritable(name))
        return setCustom(name, value);
    m_batch.addCustom({ name, value });
    changed();
}

void Editing::addKnownField(const QString& id)
{
    m_added.insert(id);
    changed();
}

void Editing::removeAddedField(const QString& id)
{
    m_added.remove(id);
    m_languages.removeIf([&id](const QString& key) { return FieldLanguages::languageIn(key)->field->id == id; });
    m_draft.forget(id);
    m_batch.forget(id);
    changed();
}

void Editing::assignPlace(const LocationFill::Result& result, bool withPosition)
{
    const Announcer::Together together(m_announcer);
    auto assignments = LocationFill::assignments(result, [this](const QString& id) { return isFieldEmpty(id); });
    // Nobody is given a field that is not on screen.
    if (const FieldSpec& code = *FieldSchema::spec(u"iptc.countryCode"_s);
        !result.countryCode.isEmpty() && isShown(code) && isFieldEmpty(code.id))
        assignments.append({ code.id, result.countryCode });
    for (const LocationFill::Assignment& assignment : assignments) {
        if (!withPosition && assignment.id == FieldID::coords)
            continue;
        if (isBatch())
            setBatch(assignment.id, assignment.value);
        else
            setSingle(assignment.id, assignment.value);
    }
}

// --- What follows the selection ---

void Editing::select(const Selection& selection)
{
    const Announcer::Together together(m_announcer);
    m_selected.set(selection);
    restart();
    takeReturning();
}

// The edits that wait for just these photos. One photo must have been read: they are laid over what it holds.
void Editing::takeReturning()
{
    if (isUnread())
        return;
    while (const auto left = m_left.takeReturning(m_selected.selection().photos))
        put(*left);
}

void Editing::leave()
{
    const Announcer::Together together(m_announcer);
    m_left.keep(leftOf(typed()));
    m_sent.isLeft = true;
    restart();
}

void Editing::leave(const QSet<QUrl>& gone)
{
    const QSet<QUrl>& selected = m_selected.selection().photos;
    if (!isBatch() || gone.contains(selected)) {
        if (selected.intersects(gone))
            leave();
        return;
    }
    m_left.keep(leftOf(typed().onlyOf(gone)));
}

void Editing::bringBack(const LeftEdits& left)
{
    const Announcer::Together together(m_announcer);
    m_left.forget(left);
    const QList<QUrl>& photos = left.edits.subjects;
    if (setOf(photos) != m_selected.selection().photos) {
        leave();
        select({ setOf(photos), photos.constFirst(), photos.constFirst() });
    }
    // What stands there already is not to be written over without a trace.
    if (unsaved().keys().intersects(left.edits.keys()))
        m_left.keep(leftOf(unsaved()));
    showFieldsOf(left.edits);
    const ImageRecord* record = m_selected.primaryRecord();
    if (isBatch())
        m_batch.take(m_batch.edits.merged(left.edits, m_selected.urls()));
    else if (record)
        m_draft.take(m_draft.edits.merged(left.rebasedOnto(*record, m_details.of(record->url))), *record, m_known.now);
    changed();
}

// No edit; the draft shows what the primary photo holds.
void Editing::restart()
{
    m_batch = {};
    beginDraft();
    changed();
}

// What the primary photo holds, with no edit and no field that was added to the screen.
void Editing::beginDraft()
{
    m_added = {};
    m_languages = {};
    m_known = {};
    const ImageRecord* record = m_selected.primaryRecord();
    const PhotoDetails* details = record ? m_details.of(record->url) : nullptr;
    if (details) {
        m_known = { *details, *details };
        m_known.now.url = record->url;
    }
    m_draft = record ? Draft::of(*record, m_known.now) : Draft();
}

void Editing::follow(const Selection& selection)
{
    const Announcer::Together together(m_announcer);
    const bool wasBatch = isBatch();
    const bool hasOtherPrimary = selection.primary != m_selected.selection().primary;
    m_selected.follow(selection);
    if (hasOtherPrimary)
        beginDraft();
    m_batch.keepOnly(m_selected.selection().photos);
    if (wasBatch && !isBatch())
        foldBatchIntoDraft();
    changed();
}

void Editing::passTo(const NewNames& heirs)
{
    const Announcer::Together together(m_announcer);
    LeftEdits passed = leftOf(typed());
    const Selection next = m_selected.selection().renamed(heirs);
    if (isBatch()) {
        m_batch.rename(heirs);
        m_selected.follow(next);
        if (!isBatch())
            foldBatchIntoDraft();
        return changed();
    }
    m_sent.isLeft = true;
    m_selected.set(next);
    restart();
    passed.edits.subjects = heirs.of(passed.edits.subjects);
    if (!passed.edits.isEmpty()) {
        showFieldsOf(passed.edits);
        put(passed);
    }
}

void Editing::rename(const NewNames& names)
{
    m_selected.follow(m_selected.selection().renamed(names));
    m_draft.edits.subjects = names.of(m_draft.edits.subjects);
    m_draft.edits.own = names.of(m_draft.edits.own);
    m_batch.rename(names);
    m_left.rename(names);
}

void Editing::rebase()
{
    m_known.said.reset();
    layDraft();
    changed();
}

// Its edits lie over what the primary photo holds now.
void Editing::layDraft()
{
    if (const ImageRecord* record = m_selected.primaryRecord())
        m_draft.rebase(*record, m_known.now);
}

// The edits of the batch, whose one photo is left.
Edits Editing::batchOfOne() const
{
    Edits edits = m_batch.edits;
    edits.subjects = m_selected.urls();
    return edits;
}

void Editing::takeRead()
{
    const Announcer::Together together(m_announcer);
    rebase();
    takeReturning();
}

// All but one of the selected photos disappeared: what was typed for all of them becomes that one's edits.
void Editing::foldBatchIntoDraft()
{
    if (isUnread())
        m_left.keep(leftOf(batchOfOne(), true));
    else if (const ImageRecord* record = m_selected.primaryRecord())
        m_draft.take(
            m_draft.edits.merged(m_batch.edits.foldedInto(*record, m_details.of(record->url))), *record, m_known.now);
    m_batch = {};
}

}  // namespace Quorbel
