// The draft of one photo: what it holds, and over that what the user typed and did not save yet.
// Thread: any. A plain value.
#pragma once

#include "core/save/Edits.h"

namespace Quorbel {

struct Draft {
    Edits edits{};  ///< of the one photo: lists are replaced, none are added to
    ExternalRefresh::Drafts shown{};  ///< what one sees

    /// The draft without an edit.
    static Draft of(const ImageRecord& photo);

    void setScalar(const QString& id, const QString& value);
    /// An item that is there already changes nothing.
    void addItem(const QString& id, const QString& item);
    void removeItem(const QString& id, const QString& item);
    void setCustom(const QString& name, const QString& value);
    /// Forgets a field of the schema: what was typed, and what one sees of it.
    void forget(const QString& id);

    /// The photo was read again: it is what these edits now lie over.
    void rebase(const ImageRecord& photo);
    /// These edits become the draft's, laid over the photo.
    void take(const Edits& newEdits, const ImageRecord& photo);

    bool operator==(const Draft&) const = default;
};

}  // namespace Quorbel
