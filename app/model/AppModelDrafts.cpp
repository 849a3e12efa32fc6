// The draft of the one selected photo: what the user typed and did not save yet, and which fields are on screen.
#include "app/model/AppModel.h"

#include "app/model/MainThread.h"
#include "core/schema/CustomFields.h"
#include "core/schema/FieldID.h"
#include "core/text/Text.h"

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

/// Whether the custom values changed.
bool putCustom(QList<CustomValue>& customs, const QString& name, const QString& value)
{
    const qsizetype i = CustomFields::indexOf(customs, name);
    if (value == (i < 0 ? QString() : customs.at(i).value))
        return false;
    if (i < 0)
        customs.append({ name, value });
    else
        customs[i].value = value;
    return true;
}

}  // namespace

ExternalRefresh::Drafts AppModel::drafts() const
{
    return { m_draftValues, m_draftLists, m_draftCustoms };
}

void AppModel::setDrafts(ExternalRefresh::Drafts drafts)
{
    assign(m_draftValues, std::move(drafts.values), &AppModel::draftValuesChanged);
    assign(m_draftLists, std::move(drafts.lists), &AppModel::draftListsChanged);
    assign(m_draftCustoms, std::move(drafts.customs), &AppModel::draftCustomsChanged);
}

void AppModel::reinitializeDrafts()
{
    const Update update(*this);
    assign(m_editedSingle, {}, &AppModel::editedSingleChanged);
    assign(m_sessionAddedKnownIDs, {}, &AppModel::sessionAddedKnownIDsChanged);
    const ImageRecord* record = primaryRecord();
    setDrafts(
        record ? ExternalRefresh::Drafts{ record->values, record->lists, record->custom } : ExternalRefresh::Drafts{});
}

int AppModel::unsavedCount() const
{
    requireMainThread("unsavedCount");
    if (!isBatch())
        return int(m_editedSingle.size());
    return int(m_batchInclude.size() + nonEmptyBatchLists().size() + m_batchCustoms.size());
}

void AppModel::setSingle(const QString& id, const QString& value)
{
    requireMainThread("setSingle");
    if (m_draftValues.value(id) == value)
        return;
    const Update update(*this);
    m_draftValues.insert(id, value);
    announce(&AppModel::draftValuesChanged);
    assign(m_editedSingle, QSet(m_editedSingle) << id, &AppModel::editedSingleChanged);
}

void AppModel::addSingleListItem(const QString& id, const QString& item)
{
    requireMainThread("addSingleListItem");
    QStringList items = m_draftLists.value(id);
    if (item.isEmpty() || items.contains(item))
        return;
    const Update update(*this);
    m_draftLists.insert(id, items << item);
    announce(&AppModel::draftListsChanged);
    assign(m_editedSingle, QSet(m_editedSingle) << id, &AppModel::editedSingleChanged);
}

void AppModel::removeSingleListItem(const QString& id, const QString& item)
{
    requireMainThread("removeSingleListItem");
    QStringList items = m_draftLists.value(id);
    if (items.removeAll(item) == 0)
        return;
    const Update update(*this);
    m_draftLists.insert(id, items);
    announce(&AppModel::draftListsChanged);
    assign(m_editedSingle, QSet(m_editedSingle) << id, &AppModel::editedSingleChanged);
}

void AppModel::setCustom(const QString& name, const QString& value)
{
    requireMainThread("setCustom");
    const Update update(*this);
    if (isBatch()) {
        if (putCustom(m_batchCustoms, name, value))
            announce(&AppModel::batchCustomsChanged);
    } else if (putCustom(m_draftCustoms, name, value)) {
        announce(&AppModel::draftCustomsChanged);
        assign(m_editedSingle, QSet(m_editedSingle) << CustomFields::key(name), &AppModel::editedSingleChanged);
    }
}

void AppModel::addCustomField(const QString& name, const QString& value)
{
    requireMainThread("addCustomField");
    const auto cleaned = CustomFields::sanitizeName(name);
    if (!cleaned)
        return;
    const Update update(*this);
    if (isBatch()) {
        QList<CustomValue> customs = m_batchCustoms;
        customs.removeIf([&cleaned](const CustomValue& custom) { return custom.name == *cleaned; });
        customs.append({ *cleaned, value });
        assign(m_batchCustoms, customs, &AppModel::batchCustomsChanged);
    } else {
        setCustom(*cleaned, value);
    }
    setAddOpen(false);
}

void AppModel::addKnownField(const QString& id)
{
    requireMainThread("addKnownField");
    if (!FieldSchema::spec(id))
        return;
    const Update update(*this);
    assign(m_sessionAddedKnownIDs, QSet(m_sessionAddedKnownIDs) << id, &AppModel::sessionAddedKnownIDsChanged);
    setAddOpen(false);
}

void AppModel::removeAddedField(const QString& id)
{
    requireMainThread("removeAddedField");
    const Update update(*this);
    if (m_sessionAddedKnownIDs.remove(id))
        announce(&AppModel::sessionAddedKnownIDsChanged);
    if (m_draftValues.remove(id) > 0)
        announce(&AppModel::draftValuesChanged);
    if (m_draftLists.remove(id) > 0)
        announce(&AppModel::draftListsChanged);
    if (m_editedSingle.remove(id))
        announce(&AppModel::editedSingleChanged);
    if (m_batchInclude.remove(id))
        announce(&AppModel::batchIncludeChanged);
    if (m_batchValues.remove(id) > 0)
        announce(&AppModel::batchValuesChanged);
    if (m_batchLists.remove(id) > 0)
        announce(&AppModel::batchListsChanged);
}

bool AppModel::isRemovableAddedField(const QString& id) const
{
    requireMainThread("isRemovableAddedField");
    if (!m_sessionAddedKnownIDs.contains(id))
        return false;
    if (isBatch())
        return !selectionSummary().heldIDs.contains(id);
    const ImageRecord* record = primaryRecord();
    return !record || (!record->values.contains(id) && !record->lists.contains(id));
}

bool AppModel::isShown(const FieldSpec& field) const
{
    if (field.alwaysShown || m_sessionAddedKnownIDs.contains(field.id))
        return true;
    if (isBatch())
        return selectionSummary().heldIDs.contains(field.id);
    return m_draftValues.contains(field.id) || !m_draftLists.value(field.id).isEmpty();
}

QStringList AppModel::visibleFieldIDs(FieldSection section) const
{
    requireMainThread("visibleFieldIDs");
    QStringList ids;
    for (const FieldSpec& field : FieldSchema::all())
        if (field.section == section && isShown(field))
            ids.append(field.id);
    return ids;
}

QList<FieldSpec> AppModel::addableKnownFields() const
{
    requireMainThread("addableKnownFields");
    QList<FieldSpec> fields = FieldSchema::addableFields();
    fields.removeIf([this](const FieldSpec& field) { return isShown(field); });
    return fields;
}

QList<CustomValue> AppModel::visibleCustomFields() const
{
    requireMainThread("visibleCustomFields");
    if (!isBatch())
        return m_draftCustoms;
    QList<CustomValue> fields;
    for (const QString& name : selectionSummary().customNames) {
        const qsizetype i = CustomFields::indexOf(m_batchCustoms, name);
        fields.append({ name, i < 0 ? QString() : m_batchCustoms.at(i).value });
    }
    for (const CustomValue& custom : m_batchCustoms)
        if (CustomFields::indexOf(fields, custom.name) < 0)
            fields.append(custom);
    return fields;
}

bool AppModel::isFieldEmpty(const QString& id) const
{
    requireMainThread("isFieldEmpty");
    if (!isBatch())
        return Text::trimmed(m_draftValues.value(id)).isEmpty();
    if (m_batchInclude.contains(id))
        return Text::trimmed(m_batchValues.value(id)).isEmpty();
    // Where the photos differ, some of them hold a text of their own.
    const auto shared = sharedValue(id);
    return shared && Text::trimmed(*shared).isEmpty();
}

void AppModel::applyLocation(const LocationFill::Result& result)
{
    requireMainThread("applyLocation");
    assignPlace(result, true);
}

void AppModel::fillPlaceNames(const LocationFill::Result& result)
{
    requireMainThread("fillPlaceNames");
    assignPlace(result, false);
}

void AppModel::assignPlace(const LocationFill::Result& result, bool withPosition)
{
    const Update update(*this);
    const auto assignments = LocationFill::assignments(result, [this](const QString& id) { return isFieldEmpty(id); });
    for (const LocationFill::Assignment& assignment : assignments) {
        if (!withPosition && assignment.id == FieldID::coords)
            continue;
        if (isBatch())
            setBatch(assignment.id, assignment.value);
        else
            setSingle(assignment.id, assignment.value);
    }
}

QStringList AppModel::keywordCompletions(const QString& prefix, int limit) const
{
    requireMainThread("keywordCompletions");
    if (!m_keywordsByUse) {
        QHash<QString, int> uses;
        for (const ImageRecord& record : m_records)
            for (const QString& keyword : record.lists.value(FieldID::keywords))
                ++uses[keyword];
        QStringList keywords = uses.keys();
        std::sort(keywords.begin(), keywords.end(), [&uses](const QString& a, const QString& b) {
            if (const int difference = uses.value(a) - uses.value(b))
                return difference > 0;
            const int order = Text::naturalCompare(a, b);
            return order != 0 ? order < 0 : a < b;
        });
        m_keywordsByUse = std::move(keywords);
    }
    QStringList found;
    for (const QString& keyword : std::as_const(*m_keywordsByUse)) {
        if (found.size() >= limit)
            break;
        if (keyword.startsWith(prefix, Qt::CaseInsensitive))
            found.append(keyword);
    }
    return found;
}

void AppModel::setAddOpen(bool open)
{
    requireMainThread("setAddOpen");
    assign(m_addOpen, open, &AppModel::addOpenChanged);
}

}  // namespace Quorbel
