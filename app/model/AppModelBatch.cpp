// The edits of several photos at once: only what the user ticked or added is written, and lists only gain items.
#include "app/model/AppModel.h"

#include "app/model/MainThread.h"

#include <algorithm>

namespace Quorbel {

QMap<QString, QStringList> AppModel::nonEmptyBatchLists() const
{
    QMap<QString, QStringList> lists = m_batchLists;
    lists.removeIf([](const auto& entry) { return entry.value().isEmpty(); });
    return lists;
}

std::optional<QString> AppModel::sharedValue(const QString& id) const
{
    requireMainThread("sharedValue");
    if (selectedRows().isEmpty())
        return std::nullopt;
    const auto& fields = selectionSummary().fields;
    const auto field = std::lower_bound(fields.cbegin(), fields.cend(), id,
        [](const SelectionSummary::Field& candidate, const QString& wanted) { return candidate.id < wanted; });
    if (field == fields.cend() || field->id != id)
        return QString();
    return field->isShared ? std::optional(field->value) : std::nullopt;
}

void AppModel::setBatch(const QString& id, const QString& value)
{
    requireMainThread("setBatch");
    if (!m_batchInclude.contains(id) && value == sharedValue(id).value_or(QString()))
        return;
    const Update update(*this);
    if (!m_batchValues.contains(id) || m_batchValues.value(id) != value) {
        m_batchValues.insert(id, value);
        announce(&AppModel::batchValuesChanged);
    }
    assign(m_batchInclude, QSet(m_batchInclude) << id, &AppModel::batchIncludeChanged);
}

void AppModel::toggleBatchInclude(const QString& id)
{
    requireMainThread("toggleBatchInclude");
    if (!m_batchInclude.remove(id))
        m_batchInclude.insert(id);
    announce(&AppModel::batchIncludeChanged);
}

void AppModel::addBatchListItem(const QString& id, const QString& item)
{
    requireMainThread("addBatchListItem");
    QStringList items = m_batchLists.value(id);
    if (item.isEmpty() || items.contains(item))
        return;
    m_batchLists.insert(id, items << item);
    announce(&AppModel::batchListsChanged);
}

void AppModel::removeBatchListItem(const QString& id, const QString& item)
{
    requireMainThread("removeBatchListItem");
    QStringList items = m_batchLists.value(id);
    if (items.removeAll(item) == 0)
        return;
    m_batchLists.insert(id, items);
    announce(&AppModel::batchListsChanged);
}

void AppModel::clearBatchList(const QString& id)
{
    requireMainThread("clearBatchList");
    if (m_batchLists.remove(id) > 0)
        announce(&AppModel::batchListsChanged);
}

void AppModel::toggleBatchCustom(const QString& name)
{
    requireMainThread("toggleBatchCustom");
    QList<CustomValue> customs = m_batchCustoms;
    if (customs.removeIf([&name](const CustomValue& custom) { return custom.name == name; }) == 0)
        customs.append({ name, QString() });
    assign(m_batchCustoms, customs, &AppModel::batchCustomsChanged);
}

void AppModel::clearBatch()
{
    const Update update(*this);
    assign(m_batchInclude, {}, &AppModel::batchIncludeChanged);
    assign(m_batchValues, {}, &AppModel::batchValuesChanged);
    assign(m_batchLists, {}, &AppModel::batchListsChanged);
    assign(m_batchCustoms, {}, &AppModel::batchCustomsChanged);
}

/// All but one of the selected photos disappeared: what was typed for all of them becomes that one's edits.
void AppModel::foldBatchIntoDraft()
{
    const Update update(*this);
    for (const QString& id : std::as_const(m_batchInclude))
        setSingle(id, m_batchValues.value(id));
    for (auto list = m_batchLists.cbegin(); list != m_batchLists.cend(); ++list)
        for (const QString& item : list.value())
            addSingleListItem(list.key(), item);
    for (const CustomValue& custom : std::as_const(m_batchCustoms))
        setCustom(custom.name, custom.value);
    clearBatch();
}

}  // namespace Quorbel
