// Which photos are selected: clicks, the guard that holds a change back while edits are unsaved, and what becomes of
// the selection when photos disappear.
#include "app/model/AppModel.h"

#include "app/model/MainThread.h"

#include <algorithm>

namespace Quorbel {

namespace {

/// Records mostly share the texts of their keys, and then nothing has to be compared.
bool isSameText(const QString& a, const QString& b)
{
    return a.constData() == b.constData() ? a.size() == b.size() : a == b;
}

}  // namespace

QList<ImageRecord> AppModel::selectedRecords() const
{
    const QList<int>& rows = selectedRows();
    QList<ImageRecord> selected;
    selected.reserve(rows.size());
    for (const int row : rows)
        selected.append(m_records.at(row));
    return selected;
}

const QList<int>& AppModel::selectedRows() const
{
    requireMainThread("selectedRows");
    if (m_selectedRows)
        return *m_selectedRows;
    QList<int> rows;
    rows.reserve(m_selection.size());
    for (const QUrl& url : m_selection)
        if (const int position = m_index.position(url); position >= 0)
            rows.append(position);
    std::sort(rows.begin(), rows.end());
    m_selectedRows = std::move(rows);
    return *m_selectedRows;
}

void AppModel::tap(const QUrl& url, bool shift, bool command)
{
    requireMainThread("tap");
    if (m_services.endEditing)
        m_services.endEditing();
    if (m_index.position(url) < 0)
        return;
    if (!shift && !command && m_primary == url && m_selection.size() == 1 && m_selection.contains(url)) {
        // Back to where we are: a change that still waits for a save to end is taken back.
        m_waiting = nullptr;
        return;
    }
    changeSelection(selectionAfterTap(url, shift, command));
}

AppModel::PendingSelection AppModel::selectionAfterTap(const QUrl& url, bool shift, bool command) const
{
    if (command) {
        QSet<QUrl> toggled = m_selection;
        if (!toggled.remove(url))
            toggled.insert(url);
        if (toggled.isEmpty())
            toggled.insert(url);
        return { toggled, url, url };
    }
    const std::optional<QUrl>& base = m_anchor ? m_anchor : m_primary;
    if (shift && base)
        if (const auto range = visibleRange(*base, url))
            return { *range, m_anchor, url };
    return { { url }, url, url };
}

/// The visible photos from one to the other; nothing when either is not visible.
std::optional<QSet<QUrl>> AppModel::visibleRange(const QUrl& from, const QUrl& to) const
{
    const qsizetype first = m_visibleRows.indexOf(m_index.position(from));
    const qsizetype last = m_visibleRows.indexOf(m_index.position(to));
    if (first < 0 || last < 0)
        return std::nullopt;
    QSet<QUrl> range;
    range.reserve(std::abs(last - first) + 1);
    for (qsizetype i = std::min(first, last); i <= std::max(first, last); ++i)
        range.insert(m_records.at(m_visibleRows.at(i)).url);
    return range;
}

void AppModel::selectAllPhotos()
{
    requireMainThread("selectAllPhotos");
    PendingSelection next{ {}, m_anchor, m_primary };
    next.selection.reserve(m_visibleRows.size());
    for (const int row : m_visibleRows)
        next.selection.insert(m_records.at(row).url);
    if (next.selection.isEmpty())
        return;
    if (!next.primary)
        next.primary = m_records.at(m_visibleRows.constFirst()).url;
    changeSelection(next);
}

void AppModel::changeSelection(const PendingSelection& next)
{
    const bool losesEdits = m_selection.size() == 1 && unsavedCount() > 0 && next.primary != m_primary;
    if (!losesEdits)
        return commitSelection(next);
    holdBack([this, next] {
        // Photos may have disappeared while the question was open.
        PendingSelection remaining = next;
        remaining.selection.removeIf([this](const QUrl& url) { return m_index.position(url) < 0; });
        if (remaining.primary && remaining.selection.contains(*remaining.primary))
            changeSelection(remaining);
    });
}

void AppModel::commitSelection(const PendingSelection& next)
{
    const Update update(*this);
    m_lastSaveFailed = false;
    ++m_selectionSerial;
    m_anchor = next.anchor;
    if (assign(m_selection, next.selection, &AppModel::selectionChanged)) {
        m_selectedRows.reset();
        m_selectionSummary.reset();
    }
    assign(m_primary, next.primary, &AppModel::primaryChanged);
    clearBatch();
    reinitializeDrafts();
}

/// The first photo on screen becomes the whole selection; none where none is on screen.
void AppModel::selectFirstVisible()
{
    if (m_visibleRows.isEmpty())
        return commitSelection({});
    const QUrl first = m_records.at(m_visibleRows.constFirst()).url;
    commitSelection({ { first }, first, first });
}

/// Saves first, or asks whether to, and asks for the action again when the edits are saved or discarded. While a
/// save runs its end is waited for: usually nothing is left to ask about then.
void AppModel::holdBack(std::function<void()> action)
{
    m_waiting = std::move(action);
    if (m_isSaving)
        return;
    // Edits that cannot be saved need the question all the same: else there would be no way to leave them.
    if (m_saveDontAsk && !isBatch() && !m_lastSaveFailed)
        saveSingle();
    else
        assign(m_saveOpen, true, &AppModel::saveOpenChanged);
}

void AppModel::goOn()
{
    if (const auto action = std::exchange(m_waiting, nullptr))
        action();
}

/// Of the selected photos that stay, the one closest to the primary on screen, the later one of two; where the
/// primary is hidden by the search, the first.
std::optional<QUrl> AppModel::nearestSelected(const QSet<QUrl>& gone) const
{
    const auto stays = [&](qsizetype i) {
        if (i < 0 || i >= m_visibleRows.size())
            return false;
        const QUrl& url = m_records.at(m_visibleRows.at(i)).url;
        return m_selection.contains(url) && !gone.contains(url);
    };
    const qsizetype from = m_primary ? std::max<qsizetype>(m_visibleRows.indexOf(m_index.position(*m_primary)), 0) : 0;
    for (qsizetype distance = 0; distance < m_visibleRows.size(); ++distance)
        for (const qsizetype i : { from + distance, from - distance })
            if (stays(i))
                return m_records.at(m_visibleRows.at(i)).url;
    return std::nullopt;
}

/// After photos disappeared. `heir` becomes the primary where the primary is among them.
void AppModel::pruneSelectionToRecords(const std::optional<QUrl>& heir)
{
    const Update update(*this);
    const auto isGone = [this](const QUrl& url) { return m_index.position(url) < 0; };
    const bool wasBatch = isBatch();
    QSet<QUrl> remaining = m_selection;
    remaining.removeIf(isGone);
    if (remaining.isEmpty())
        return selectFirstVisible();
    if (assign(m_selection, remaining, &AppModel::selectionChanged)) {
        m_selectedRows.reset();
        m_selectionSummary.reset();
    }
    if (m_anchor && isGone(*m_anchor))
        m_anchor.reset();
    if (!m_primary || isGone(*m_primary)) {
        const QUrl any = m_records.at(selectedRows().constFirst()).url;
        assign(m_primary, heir && m_selection.contains(*heir) ? *heir : any, &AppModel::primaryChanged);
        reinitializeDrafts();
    }
    if (wasBatch && !isBatch())
        foldBatchIntoDraft();
}

/// Takes one more record's scalar values into the fields. Both sides are sorted by id, so one pass compares them.
void AppModel::mergeFields(
    std::vector<SelectionSummary::Field>& fields, const QMap<QString, QString>& values, bool isFirst)
{
    auto field = fields.begin();
    for (auto value = values.cbegin(); value != values.cend(); ++value, ++field) {
        while (field != fields.end() && !isSameText(field->id, value.key()) && field->id < value.key()) {
            field->isShared = field->isShared && field->value.isEmpty();
            ++field;
        }
        if (field == fields.end() || !isSameText(field->id, value.key()))
            field = fields.insert(field, { value.key(), value.value(), isFirst || value->isEmpty() });
        else if (field->isShared)
            field->isShared = isSameText(field->value, value.value());
    }
    for (; field != fields.end(); ++field)
        field->isShared = field->isShared && field->value.isEmpty();
}

const AppModel::SelectionSummary& AppModel::selectionSummary() const
{
    if (m_selectionSummary)
        return *m_selectionSummary;
    SelectionSummary summary;
    QStringList heldLists;
    QSet<QString> customNames;
    bool isFirst = true;
    for (const int row : selectedRows()) {
        const ImageRecord& record = m_records.at(row);
        mergeFields(summary.fields, record.values, isFirst);
        for (auto list = record.lists.cbegin(); list != record.lists.cend(); ++list)
            if (!list->isEmpty() && !heldLists.contains(list.key()))
                heldLists.append(list.key());
        for (const CustomValue& custom : record.custom)
            customNames.insert(custom.name);
        isFirst = false;
    }
    summary.heldIDs = QSet<QString>(heldLists.cbegin(), heldLists.cend());
    for (const SelectionSummary::Field& field : summary.fields)
        summary.heldIDs.insert(field.id);
    summary.customNames = customNames.values();
    summary.customNames.sort();
    m_selectionSummary = std::move(summary);
    return *m_selectionSummary;
}

}  // namespace Quorbel
