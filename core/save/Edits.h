// What somebody wants to change, and of which photos: the edits of one photo or of many, what a save carries, what a
// save that failed gives back.
// Thread: any. A plain value with pure functions. Knows neither selection nor window.
#pragma once

#include "core/save/EditPlan.h"
#include "core/save/ExternalRefresh.h"
#include "core/schema/PhotoDetails.h"

namespace Quorbel {

/// What is edited of one photo alone, beside the edits that it shares with others; keys as in Edits.
struct OwnEdits {
    QMap<QString, QString> scalars{};  ///< an empty text clears the field
    QMap<QString, QStringList> added{};  ///< items that its list gains
    QMap<QString, QStringList> removed{};  ///< items that its list loses
    QList<CustomValue> customs{};

    bool isEmpty() const { return scalars.isEmpty() && added.isEmpty() && removed.isEmpty() && customs.isEmpty(); }
    bool operator==(const OwnEdits&) const = default;
};

/// Keys are field ids, FieldLanguages::key() of texts in further languages, and CustomFields::key() of custom fields. A
/// field has its edit in one of the maps only.
struct Edits {
    QMap<QString, QString> scalars{};  ///< field id to new text; an empty text clears the field
    QMap<QString, QStringList> lists{};  ///< field id to the items that replace each photo's own
    QMap<QString, QStringList>
        added{};  ///< field id to items that each photo's own list gains; an empty list is no edit
    /// Field id to items that each photo's own list loses. No item is in both; a list that is replaced has neither.
    QMap<QString, QStringList> removed{};
    /// Keyword paths that the photos gain, beside the keywords that they lead to: an edit of the keywords.
    QStringList paths{};
    /// Field id to items that only other homes than the shown one held when one home's list was taken for all: they
    /// leave the photo with the list that replaces them.
    QMap<QString, QStringList> givenUp{};
    QList<CustomValue> customs{};  ///< in the order in which they were first edited, one a name
    /// Texts that differ from photo to photo, by photo; none without an edit. A text that some photo has here is not
    /// among the common ones, for no photo; of lists both hold.
    QHash<QUrl, OwnEdits> own{};
    QList<QUrl> subjects{};  ///< the photos; none: whichever photos one likes

    /// Nothing is to be changed; the subjects play no part.
    bool isEmpty() const;
    /// How many fields are to be changed.
    int count() const;
    bool edited(const QString& key) const;
    QSet<QString> keys() const;

    /// All that is edited of this photo, its own edits among the common ones.
    Edits of(const QUrl& photo) const;
    /// The same edits, of these photos alone.
    Edits onlyOf(const QSet<QUrl>& photos) const;
    /// What a save of the common edits is asked to do; of(photo).plan() is that of one photo with its own. Lists of
    /// the fixed catalogue are replaced where there are any to replace, else items are added: one save cannot do both,
    /// so what is to be added is folded into a photo first (foldedInto).
    EditPlan plan() const;

    /// What is still unsaved after a save of `saved`: what was typed since it began, and the fields of which the files
    /// hold something else (`differing`, by key).
    Edits minus(const Edits& saved, const QSet<QString>& differing) const;
    /// The same for this photo alone: items to add become its whole list, and what it holds already is no edit. Texts
    /// in further languages, fields of IptcSchema, and paths, that it may hold stay edits where its details are not
    /// known.
    Edits foldedInto(const ImageRecord& photo, const PhotoDetails* details = nullptr) const;
    /// What one sees of the photo: its contents with these edits laid over them.
    ExternalRefresh::Drafts onto(const ImageRecord& photo, const PhotoDetails& details = {}) const;
    /// These edits, and over them the other ones; the subjects stay. `photos`: those that both are of; a text that only
    /// some of them are given leaves the others the one that they shared. Without photos nobody can be left it.
    Edits merged(const Edits& other, const QList<QUrl>& photos = {}) const;

    /// Without what goes with a keyword that is no longer among those to be written: its paths.
    void dropStrayPaths();
    /// A photo that gains a path has the keyword that it leads to: where it is not among those that it holds, it is
    /// gained, too.
    void addKeywordsOfPaths(const QStringList& held);
    /// These items of the list are gained, or lost, by all photos; an earlier edit that says otherwise, of all or of
    /// one, is dropped. A list that is replaced gains or loses them itself.
    void addItems(const QString& id, const QStringList& items);
    void removeItems(const QString& id, const QStringList& items);
    /// Whether some photo has an edit of its own of this key.
    bool hasOwn(const QString& key) const;
    /// No photo has an edit of its own of this key any more.
    void forgetOwn(const QString& key);
    /// The photo has another name; of one that had it before nothing is left.
    void rename(const QUrl& source, const QUrl& destination);
    /// The same for many at once, which may also swap their names.
    void rename(const QHash<QUrl, QUrl>& names);
    /// Nothing of this field is edited any more, in no language, of no photo.
    void forget(const QString& id);

    bool operator==(const Edits&) const = default;

private:
    void shareOut(const QHash<QUrl, OwnEdits>& others, const QList<QUrl>& photos);
    void dropOwnItems(const QString& id, const QStringList& items);
    void mergeOwn(const QHash<QUrl, OwnEdits>& others);
};

}  // namespace Quorbel
