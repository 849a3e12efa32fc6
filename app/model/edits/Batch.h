// The edits of several photos at once: only what is ticked, added or taken away is written. A ticked field has one text
// for all of them, or texts that differ from photo to photo.
// Thread: any. A plain value.
#pragma once

#include "core/renaming/NewNames.h"
#include "core/save/Edits.h"

#include <optional>

namespace Quorbel {

struct Batch {
    Edits edits{};  ///< what will be written: nothing is replaced as a whole list
    /// Field id, or CustomFields::key(), to a text whose tick was taken out; the next tick brings it back.
    QMap<QString, QString> unticked{};
    /// The same for texts that differ from photo to photo: those whose tick was taken out, and those in whose place a
    /// common one was typed.
    QMap<QString, QHash<QUrl, QString>> setAside{};
    QStringList customNames{};  ///< custom fields that were edited, ticked or not, in the order of their rows

    QSet<QString> include() const;
    /// The common texts of all fields of the schema, ticked or not.
    QMap<QString, QString> values() const;

    void setScalar(const QString& id, const QString& value);
    /// Takes a field out of what will be written, or puts it in with what it has: the text, or the texts, whose tick
    /// was taken out, else what one sees (`seen`).
    void toggle(const QString& id, const QString& seen = {});
    /// An item that is there already changes nothing.
    void addItem(const QString& id, const QString& item);
    /// Keyword paths that lead to the item go with it.
    void removeItem(const QString& id, const QString& item);
    /// Just these items are added.
    void setAdded(const QString& id, const QStringList& items);
    /// The keyword that it leads to, too.
    void addPath(const QString& path);
    /// The item is taken away from all photos, or no longer.
    void takeItemAway(const QString& id, const QString& item);
    void keepItem(const QString& id, const QString& item);
    /// Nothing is added to the list and nothing taken away from it, of no photo.
    void clearList(const QString& id);
    void setCustom(const QString& name, const QString& value);
    /// Puts the custom field at the end, in the place of the one with its name.
    void addCustom(const CustomValue& custom);
    /// The same as toggle().
    void toggleCustom(const QString& name, const QString& seen = {});
    /// Puts the texts that differ from photo to photo back in the place of the common one that was typed over them.
    /// False where there are none.
    bool bringBackOwn(const QString& key);
    /// A custom field's common text, ticked or not; nothing when it was not edited.
    std::optional<QString> customText(const QString& name) const;
    /// Forgets a field of the schema, or one language of it, ticked or not; a field with all its languages.
    void forget(const QString& id);

    /// These edits become the batch's, on screen and ticked.
    void take(const Edits& newEdits);

    /// Only these photos are left of those that it is of.
    void keepOnly(const QSet<QUrl>& photos);
    void rename(const NewNames& names);

    /// After a save of `saved`: what Edits::minus leaves, and no text that was unticked when it began.
    Batch afterSave(const Batch& saved, const QSet<QString>& differing) const;

    bool operator==(const Batch&) const = default;

private:
    bool putAside(const QString& key);
};

}  // namespace Quorbel
