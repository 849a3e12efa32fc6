// Which fields are on screen, and how far they are filled.
#include "app/model/edits/Editing.h"

#include "app/model/fieldsets/FieldSet.h"
#include "core/iptc/FieldAdvice.h"
#include "core/iptc/IptcSchema.h"
#include "core/schema/CustomFields.h"
#include "core/schema/FieldLanguages.h"
#include "core/text/Text.h"

namespace Quorbel {

namespace {

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
    if (!isBatch() && PhotoDetails::hold(id) && !knowsDetails() && !m_draft.edits.edited(id))
        return false;
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

// Fields that no photo holds are on screen only when somebody put them there.
void Editing::showFieldsOf(const Edits& edits)
{
    for (const QString& key : edits.keys()) {
        const auto language = FieldLanguages::languageIn(key);
        if (const FieldSpec* field = language ? language->field : FieldSchema::spec(key); field && !field->alwaysShown)
            m_added.insert(field->id);
    }
}

}  // namespace Quorbel
