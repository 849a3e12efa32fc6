// Edits that somebody made elsewhere: pasted, of a template, of the photo before.
#include "app/model/edits/Editing.h"

#include "core/language/Texts.h"
#include "core/schema/CustomFields.h"
#include "core/schema/FieldLanguages.h"

namespace Quorbel {

QStringList Editing::lay(const Edits& edits)
{
    if (isUnread() || m_selected.selection().photos.isEmpty())
        return {};
    QStringList left;
    const Announcer::Together together(m_announcer);
    if (isBatch()) {
        const Edits laid = withoutWholeLists(withoutUnread(edits.onlyOf(m_selected.selection().photos)));
        showFieldsOf(laid);
        m_batch.take(withCommonTexts(m_batch.edits.merged(laid, m_selected.urls())));
    } else if (const ImageRecord* record = m_selected.primaryRecord()) {
        const Edits laid = withoutOutOfReach(edits.of(record->url), left);
        showFieldsOf(laid);
        m_draft.lay(laid, m_known.said ? &m_known.now : m_details.of(record->url));
    }
    changed();
    return left;
}

// `left` gains their names.
Edits Editing::withoutOutOfReach(Edits edits, QStringList& left) const
{
    for (const QString& key : edits.keys()) {
        if (!isOutOfReach(key))
            continue;
        edits.scalars.remove(key);
        for (auto* lists : { &edits.lists, &edits.added, &edits.removed })
            lists->remove(key);
        const QString language = FieldLanguages::label(key);
        left.append(language.isEmpty() ? Texts::shown(FieldSchema::spec(key)->label) : language);
    }
    left.sort();
    return edits;
}

// What the photos' own edits were made of is not known of a photo that was not read.
Edits Editing::withoutUnread(Edits edits) const
{
    if (m_selected.unreadCount() > 0)
        edits.own.removeIf([this](const auto& entry) {
            const ImageRecord* record = m_photos.record(entry.key());
            return !record || record->isUnread;
        });
    return edits;
}

// A batch replaces no list. A photo that is to hold just these items gains them, and loses what else it holds: known of
// those that were read.
Edits Editing::withoutWholeLists(Edits edits) const
{
    const QMap<QString, QStringList> lists = std::exchange(edits.lists, {});
    edits.givenUp.clear();
    for (auto list = lists.cbegin(); list != lists.cend(); ++list) {
        for (const int row : m_selected.rows()) {
            const ImageRecord& photo = m_photos.records().at(row);
            QStringList lost = heldItems(photo, list.key()).value_or(QStringList());
            lost.removeIf([&list](const QString& item) { return list->contains(item); });
            if (!lost.isEmpty())
                edits.own[photo.url].removed.insert(list.key(), lost);
        }
        if (!list->isEmpty())
            edits.addItems(list.key(), *list);
    }
    return edits;
}

// Texts that are the same for all selected photos are one text, which one sees in its field.
Edits Editing::withCommonTexts(Edits edits) const
{
    if (edits.own.isEmpty())
        return edits;
    QMap<QString, OwnSummary> own = summaryOf(edits.own);
    QStringList common;
    for (auto field = own.cbegin(); field != own.cend(); ++field) {
        if (field->texts != 1 || field->photos != m_selected.selection().photos.size())
            continue;
        common.append(field.key());
        if (const auto name = CustomFields::nameIn(field.key()))
            CustomFields::put(edits.customs, { *name, field->text });
        else
            edits.scalars.insert(field.key(), field->text);
    }
    if (common.isEmpty())
        return edits;
    for (const QString& key : std::as_const(common))
        edits.forgetOwn(key);
    own.removeIf([&common](const auto& field) { return common.contains(field.key()); });
    m_summarized = { edits.own, own };
    return edits;
}

}  // namespace Quorbel
