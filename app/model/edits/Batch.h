// The edits of several photos at once: only what is ticked or added is written, and lists only gain items.
// Thread: any. A plain value.
#pragma once

#include "core/save/Edits.h"

namespace Quorbel {

struct Batch {
    Edits edits{};  ///< what will be written: nothing is replaced as a whole list
    QMap<QString, QString> unticked{};  ///< field id to a text whose tick was taken out; the next tick brings it back

    QSet<QString> include() const;
    /// The texts of all fields, ticked or not.
    QMap<QString, QString> values() const;

    void setScalar(const QString& id, const QString& value);
    void toggle(const QString& id);
    /// An item that is there already changes nothing.
    void addItem(const QString& id, const QString& item);
    void removeItem(const QString& id, const QString& item);
    void clearList(const QString& id);
    void setCustom(const QString& name, const QString& value);
    /// Puts the custom field at the end, in the place of the one with its name.
    void addCustom(const CustomValue& custom);
    /// Takes a custom field out of what will be written, or puts it in, empty.
    void toggleCustom(const QString& name);
    /// Forgets a field of the schema, ticked or not.
    void forget(const QString& id);

    /// After a save of `saved`: what Edits::minus leaves, and no text that was unticked when it began.
    Batch afterSave(const Batch& saved, const QSet<QString>& differing) const;

    bool operator==(const Batch&) const = default;
};

}  // namespace Quorbel
