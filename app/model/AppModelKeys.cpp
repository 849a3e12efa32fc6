// What hands on the keys ask for: the next photo, its stars, the same as before.
#include "app/model/AppModel.h"

#include "app/model/selection/ShownPhotos.h"
#include "core/schema/CustomFields.h"
#include "core/schema/FieldID.h"
#include "core/schema/KeywordPath.h"

#include <algorithm>

namespace Quorbel {

namespace {

constexpr int mostStars = 5;

qsizetype rowOf(const PhotoList& list, const std::optional<QUrl>& photo)
{
    return photo ? list.visibleRows().indexOf(list.position(*photo)) : -1;
}

// The rows on screen of the first and of the last of these positions, ascending; -1 where none of them is there.
qsizetype firstRowOf(const QList<int>& rows, const QList<int>& positions)
{
    const auto first = std::find_if(rows.cbegin(), rows.cend(),
        [&](int row) { return std::binary_search(positions.cbegin(), positions.cend(), row); });
    return first == rows.cend() ? -1 : first - rows.cbegin();
}

qsizetype lastRowOf(const QList<int>& rows, const QList<int>& positions)
{
    const auto last = std::find_if(rows.crbegin(), rows.crend(),
        [&](int row) { return std::binary_search(positions.cbegin(), positions.cend(), row); });
    return last == rows.crend() ? -1 : rows.crend() - last - 1;
}

// The photo so many seen ones away from this row.
std::optional<QUrl> shownFrom(const PhotoList& list, qsizetype row, int places)
{
    return ShownPhotos::from(list.records(), list.visibleRows(), list.groups().list(), row, places);
}

}  // namespace

// --- From photo to photo ---

bool AppModel::canStep(int places) const
{
    return shownFrom(photos(), rowOf(photos(), primary()), places).has_value();
}

void AppModel::step(int places)
{
    requireMainThread("step");
    if (const auto next = shownFrom(photos(), rowOf(photos(), primary()), places))
        tap(*next, false, false);
}

// The next photo comes as soon as the save has begun: the edits are with it. What could not be saved comes back as it
// does for whoever goes on during a save.
void AppModel::saveAndGoOn()
{
    requireMainThread("saveAndGoOn");
    if (m_services.endEditing)
        m_services.endEditing();
    const auto next = shownFrom(photos(), lastRowOf(visibleRows(), selectedRows()), 1);
    const auto goOn = [this, next] {
        if (next && photos().contains(*next))
            commitSelection(Selection::of(*next));
    };
    if (m_editing.typed().isEmpty()) {
        goOn();
    } else if (isSaving()) {
        // What was typed since a save began is saved by the next one.
        m_waiting = [this] { saveAndGoOn(); };
    } else if (next && m_saving.isPossible()) {
        // Who is asked whether to save may answer otherwise, and what waits may be dropped: this goes with it.
        const auto asked = std::make_shared<QObject>();
        m_waiting = [goOn, asked] { goOn(); };
        connect(this, &AppModel::isSavingChanged, asked.get(), [this] {
            if (const auto action = isSaving() ? std::exchange(m_waiting, nullptr) : nullptr)
                action();
        });
        requestSave();
    } else {
        requestSave();
    }
}

// --- Stars ---

void AppModel::rate(int stars)
{
    requireMainThread("rate");
    const QString text = QString::number(std::clamp(stars, 0, mostStars));
    const bool isTicked = batchInclude().contains(FieldID::rating);
    const std::optional<QString> shown = !isBatch() ? draftValues().value(FieldID::rating)
        : isTicked                                  ? batchValues().value(FieldID::rating)
                                                    : sharedValue(FieldID::rating);
    // Who takes stars away where none are wants nothing written.
    const bool isShown = shown && (*shown == text || (stars <= 0 && shown->isEmpty() && unreadSelected() == 0));
    if (isShown || selection().isEmpty())
        return;
    if (!isBatch())
        return setSingle(FieldID::rating, text);
    Edits edits;
    edits.scalars.insert(FieldID::rating, text);
    layEdits(edits);
}

// --- The same as the photo before ---

bool AppModel::hasPhotoBefore() const
{
    const qsizetype row = firstRowOf(visibleRows(), selectedRows());
    const auto before = row < 0 ? std::nullopt : shownFrom(photos(), row, -1);
    return before && !isUnread(*before);
}

void AppModel::takeFromPhotoBefore(const QString& key)
{
    requireMainThread("takeFromPhotoBefore");
    if (!hasPhotoBefore())
        return;
    const ImageRecord& before = *record(*shownFrom(photos(), firstRowOf(visibleRows(), selectedRows()), -1));
    const PhotoDetails* known = details(before.url);
    const Edits sending = m_editing.sending();
    const Edits sent = sending.subjects.contains(before.url) ? sending.of(before.url) : Edits();
    const auto shown = sent.onto(before, known ? *known : PhotoDetails());
    const Announcer::Together together(m_announcer);
    if (const auto name = CustomFields::nameIn(key)) {
        const qsizetype i = CustomFields::indexOf(shown.customs, *name);
        if (i >= 0 && !shown.customs.at(i).value.isEmpty())
            setCustom(*name, shown.customs.at(i).value);
    } else if (const QString text = shown.values.value(key); !text.isEmpty()) {
        isBatch() ? setBatch(key, text) : setSingle(key, text);
    } else if (const QStringList items = shown.lists.value(key); !items.isEmpty()) {
        const QStringList here = isBatch() ? QStringList() : draftLists().value(key);
        for (const QString& item : here)
            if (!items.contains(item))
                removeSingleListItem(key, item);
        // They bring their keywords with them.
        QStringList newPaths =
            key == FieldID::keywords ? sent.paths + (known ? known->paths : QStringList()) : QStringList();
        newPaths.removeIf([&](const QString& path) {
            const QString keyword = KeywordPath::keyword(path);
            return !items.contains(keyword) || pathsOf(keyword).contains(path);
        });
        for (const QString& item : items + newPaths)
            isBatch() ? addBatchListItem(key, item) : addSingleListItem(key, item);
    }
}

}  // namespace Quorbel
