// The draft of one photo: what it holds, and over that what the user typed and did not save yet.
// Thread: any. A plain value.
#pragma once

#include "core/save/Edits.h"

namespace Quorbel {

struct Draft {
    Edits edits{};  ///< of the one photo: lists are replaced, none are added to
    ExternalRefresh::Drafts shown{};  ///< what one sees

    /// The draft without an edit. `languages`: what the photo holds in further languages, by FieldLanguages::key().
    static Draft of(const ImageRecord& photo, const PhotoDetails& details = {});

    void setScalar(const QString& id, const QString& value);
    /// An item that is there already changes nothing.
    void addItem(const QString& id, const QString& item);
    /// Keyword paths that lead to the item go with it.
    void removeItem(const QString& id, const QString& item);
    /// The list is just these.
    void setItems(const QString& id, const QStringList& items);
    /// The keyword that it leads to, too.
    void addPath(const QString& path);
    /// An edit even where the field holds just that: it is to be written.
    void confirmScalar(const QString& id, const QString& value);
    /// The same for a list, which alone is left of what the photo's homes hold.
    void confirmList(const QString& id, const QStringList& items, const QStringList& givenUp);
    void setCustom(const QString& name, const QString& value);
    /// These edits of the photo, as if somebody typed them: what one sees already is no edit, and earlier edits stay.
    /// `details`: what is known of it; without, it may lack any text in a further language, and any path.
    void lay(const Edits& laid, const PhotoDetails* details);
    /// Forgets a field of the schema: what was typed, and what one sees of it.
    void forget(const QString& id);

    /// The photo was read again: it is what these edits now lie over.
    void rebase(const ImageRecord& photo, const PhotoDetails& details = {});
    /// These edits become the draft's, laid over the photo.
    void take(const Edits& newEdits, const ImageRecord& photo, const PhotoDetails& details = {});

    bool operator==(const Draft&) const = default;

private:
    void addUnseenItem(const QString& id, const QString& item);
    void takeUnseen(const PhotoDetails& details);
};

}  // namespace Quorbel
