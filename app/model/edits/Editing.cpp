#include "app/model/edits/Editing.h"

#include "app/model/fieldsets/FieldSet.h"
#include "core/iptc/FieldAdvice.h"
#include "core/iptc/IptcSchema.h"
#include "core/schema/CustomFields.h"
#include "core/schema/FieldID.h"
#include "core/schema/FieldLanguages.h"
#include "core/text/Text.h"

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

// In the order of the form.
const QList<const FieldSpec*>& fieldsOfForm()
{
    static const QList<const FieldSpec*> fields = [] {
        QList<const FieldSpec*> fields;
        for (const QString& id : FieldSetTexts::formOrder())
            fields.append(FieldSchema::spec(id));
        return fields;
    }();
    return fields;
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
    if (isUnread())
        return;
    if (FieldLanguages::languageIn(id))
        m_languages.insert(id);
    m_draft.setScalar(id, value);
    changed();
}

void Editing::addSingleListItem(const QString& id, const QString& item)
{
    if (isUnread())
        return;
    addItem(id, item);
    changed();
}

void Editing::removeSingleListItem(const QString& id, const QString& item)
{
    if (isUnread())
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

// --- Which fields are on screen ---

void Editing::showOnly(const std::optional<QSet<QString>>& fields)
{
    m_only = fields;
    changed();
}

bool Editing::isRemovableAddedField(const QString& id) const
{
    if (!m_added.contains(id) || (m_only && m_only->contains(id)) || !heldLanguages(id).isEmpty())
        return false;
    if (isBatch())
        return !m_selected.holds(id) && !m_details.holds(id);
    if (PhotoDetails::hold(id))
        return !m_known.now.texts.contains(id) && !m_known.now.lists.contains(id);
    const ImageRecord* record = m_selected.primaryRecord();
    return !record || (!record->values.contains(id) && !record->lists.contains(id));
}

// By what the other field says now.
bool Editing::isCalledFor(const QString& id, const QString& other) const
{
    const QString value = !isBatch()            ? m_draft.shown.values.value(other)
        : m_batch.edits.scalars.contains(other) ? m_batch.edits.scalars.value(other)
                                                : m_details.sharedValue(other).value_or(QString());
    return FieldAdvice::companions(other, value).contains(id);
}

bool Editing::isShown(const FieldSpec& field) const
{
    if ((m_only ? m_only->contains(field.id) : field.alwaysShown) || m_added.contains(field.id))
        return true;
    if (m_only && isTouched(field.id))
        return true;
    if (!field.languageTag().isEmpty() && !languages(field.id).isEmpty())
        return true;
    if (const QString other = FieldAdvice::companionsOf(field.id); !other.isEmpty() && isCalledFor(field.id, other))
        return true;
    if (isBatch())
        return m_selected.holds(field.id) || m_details.holds(field.id);
    return m_draft.shown.values.contains(field.id) || !m_draft.shown.lists.value(field.id).isEmpty();
}

// Whether something was typed into it, ticked or not.
bool Editing::isTouched(const QString& id) const
{
    return isBatch() ? m_told.batchInclude.contains(id) || m_told.batchValues.contains(id) : m_told.edited.contains(id);
}

QStringList Editing::visibleFieldIDs(FieldSection section) const
{
    QStringList ids;
    for (const FieldSpec* field : fieldsOfForm())
        if (field->section == section && isShown(*field))
            ids.append(field->id);
    return ids;
}

QList<FieldSpec> Editing::addableKnownFields() const
{
    QList<FieldSpec> fields = FieldSchema::all();
    fields.removeIf([this](const FieldSpec& field) { return isShown(field); });
    return fields;
}

QList<FieldSpec> Editing::addableIptcFields() const
{
    QList<FieldSpec> fields = IptcSchema::all();
    fields.removeIf([this](const FieldSpec& field) { return isShown(field); });
    return fields;
}

QList<CustomValue> Editing::visibleCustomFields() const
{
    if (!isBatch())
        return m_draft.shown.customs;
    QStringList names = m_selected.customNames();
    for (const QString& name : m_batch.customNames)
        if (!names.contains(name))
            names.append(name);
    QList<CustomValue> fields;
    for (const QString& name : names)
        fields.append({ name, shownCustom(name) });
    return fields;
}

// A custom field's text in the batch: what was typed, else what all photos hold.
QString Editing::shownCustom(const QString& name) const
{
    if (m_told.batchOwn.contains(CustomFields::key(name)))
        return {};
    const auto typed = m_batch.customText(name);
    return typed ? *typed : m_selected.sharedCustom(name).value_or(QString());
}

std::optional<QString> Editing::storedCustomName(const QString& typed) const
{
    const auto cleaned = MetadataWriter::sanitizeCustomName(typed);
    if (!cleaned || CustomFields::nameProblem(typed))
        return std::nullopt;
    return CustomFields::spelling(*cleaned, CustomFields::names(visibleCustomFields()));
}

bool Editing::isFieldEmpty(const QString& id) const
{
    const auto isBlank = [](const QString& text) { return Text::trimmed(text).isEmpty(); };
    if (!isBatch())
        return isBlank(m_draft.shown.values.value(id));
    if (const auto typed = m_batch.edits.scalars.constFind(id); typed != m_batch.edits.scalars.cend())
        return isBlank(*typed);
    if (m_told.batchOwn.contains(id))
        return false;
    // Where the photos differ, some of them hold a text of their own; and nobody knows what the unread ones hold.
    const auto shared = m_selected.unreadCount() == 0 ? m_details.sharedValue(id) : std::nullopt;
    return shared && isBlank(*shared);
}

FieldFill Editing::fill(const QString& id) const
{
    const bool isOfDetails = PhotoDetails::hold(id);
    if (!isBatch()) {
        if (m_told.edited.contains(id) || (!isUnread() && (!isOfDetails || knowsDetails())))
            return isLacking(id) ? FieldFill::empty : FieldFill::filled;
        return FieldFill::unknown;
    }
    if (isTouched(id) || !isLacking(id))
        return isLacking(id) ? FieldFill::empty : FieldFill::filled;
    const int known = int(m_selected.rows().size()) - (isOfDetails ? m_details.unknown() : m_selected.unreadCount());
    return known > 0 ? FieldFill::empty : FieldFill::unknown;
}

// As far as one knows.
bool Editing::isLacking(const QString& id) const
{
    if (!isBatch())
        return isFieldEmpty(id) && m_draft.shown.lists.value(id).isEmpty();
    if (m_batch.edits.scalars.contains(id))
        return isFieldEmpty(id);
    return !m_told.batchInclude.contains(id) && !m_selected.holds(id) && !m_details.holds(id);
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

// Fields that no photo holds are on screen only when somebody put them there.
void Editing::showFieldsOf(const Edits& edits)
{
    for (const QString& key : edits.keys()) {
        const auto language = FieldLanguages::languageIn(key);
        if (const FieldSpec* field = language ? language->field : FieldSchema::spec(key); field && !field->alwaysShown)
            m_added.insert(field->id);
    }
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
