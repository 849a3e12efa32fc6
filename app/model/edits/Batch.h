// The edits of several photos at once: only what is ticked or added is written, and lists only gain items.
// Thread: any. A plain value.
#pragma once

#include "core/save/Edits.h"

#include <optional>

namespace Quorbel {

struct Batch {
    Edits edits{};  ///< what will be written: nothing is replaced as a whole list
    /// Field id, or CustomFields::key(), to a text whose tick was taken out; the next tick brings it back.
    QMap<QString, QString> unticked{};
    QStringList customNames{};  ///< custom fields that were edited, ticked or not, in the order of their rows

    QSet<QString> include() const;
    /// The texts of all fields of the schema, ticked or not.
    QMap<QString, QString> values() const;

    void setScalar(const QString& id, const QString& value);
    /// Takes a field out of what will be written, or puts it in with the text that it has: the one whose tick was taken
    /// out, else what one sees (`seen`).
    void toggle(const QString& id, const QString& seen = {});
    /// An item that is there already changes nothing.
    void addItem(const QString& id, const QString& item);
    /// Keyword paths that lead to the item go with it.
    void removeItem(const QString& id, const QString& item);
    /// The keyword that it leads to, too.
    void addPath(const QString& path);
    void clearList(const QString& id);
    void setCustom(const QString& name, const QString& value);
    /// Puts the custom field at the end, in the place of the one with its name.
    void addCustom(const CustomValue& custom);
    /// The same as toggle().
    void toggleCustom(const QString& name, const QString& seen = {});
    /// A custom field's text, ticked or not; nothing when it was not edited.
    std::optional<QString> customText(const QString& name) const;
    /// Forgets a field of the schema, or one language of it, ticked or not; a field with all its languages.
    void forget(const QString& id);

    /// These edits become the batch's, on screen and ticked.
    void take(const Edits& newEdits);

    /// After a save of `saved`: what Edits::minus leaves, and no text that was unticked when it began.
    Batch afterSave(const Batch& saved, const QSet<QString>& differing) const;

    bool operator==(const Batch&) const = default;
};

}  // namespace Quorbel
