// What is being edited now: the draft of the one selected photo or the batch of several, and which fields are on
// screen for it.
// One photo that was not read yet has no draft to edit: what concerns it alone does nothing until then.
// Thread: the main thread. Saves nothing: it says what is unsaved, and takes back what a save could not write.
#pragma once

#include "app/model/edits/Batch.h"
#include "app/model/edits/Draft.h"
#include "app/model/edits/LeftBehind.h"
#include "app/model/edits/OwnSummary.h"
#include "app/model/fieldsets/FieldFill.h"
#include "app/model/library/PhotoList.h"
#include "app/model/selection/SelectedDetails.h"
#include "core/schema/FieldSchema.h"
#include "core/schema/LocationFill.h"

namespace Quorbel {

class Editing final {
public:
    Editing(Announcer& announcer, const PhotoList& photos, SelectedPhotos& selected, const SelectedDetails& details,
        LeftBehind& left);
    Q_DISABLE_COPY_MOVE(Editing)

    const Draft& draft() const { return m_draft; }
    const Batch& batch() const { return m_batch; }
    /// Keys of the draft's edits, ticked ids and all texts of the batch; made once a change, for many to ask.
    const QSet<QString>& editedSingle() const { return m_told.edited; }
    const QSet<QString>& batchInclude() const { return m_told.batchInclude; }
    const QMap<QString, QString>& batchValues() const { return m_told.batchValues; }
    /// What of the batch differs from photo to photo, by key; ticked, too.
    const QMap<QString, OwnSummary>& batchOwn() const { return m_told.batchOwn; }
    /// Ids of fields that were added to the screen since the selection.
    const QSet<QString>& sessionAddedKnownIDs() const { return m_added; }
    /// The edits of the selected photos that wait to be saved, with these photos.
    Edits unsaved() const;
    int unsavedCount() const { return m_unsavedCount; }
    /// What of it is not being saved either.
    Edits typed() const;
    /// These edits of photos as they would be left behind.
    LeftEdits leftOf(const Edits& edits, bool returns = false) const;
    /// What a save that runs was given, with its photos; empty while none runs.
    Edits sending() const { return m_sent.isRunning ? m_sent.batch.edits : Edits(); }

    void setSingle(const QString& id, const QString& value);
    void addSingleListItem(const QString& id, const QString& item);
    void removeSingleListItem(const QString& id, const QString& item);
    /// See AppModel.
    void setItems(const QString& id, const QStringList& items);
    void setBatch(const QString& id, const QString& value);
    void toggleBatchInclude(const QString& id);
    void addBatchListItem(const QString& id, const QString& item);
    void removeBatchListItem(const QString& id, const QString& item);
    void takeBatchItemAway(const QString& id, const QString& item);
    void keepBatchItem(const QString& id, const QString& item);
    void clearBatchList(const QString& id);
    void toggleBatchCustom(const QString& name);
    void setCustom(const QString& name, const QString& value);
    /// The name as it is stored. Here and above, a name that cannot be written changes nothing.
    void addCustom(const QString& name, const QString& value);
    /// See AppModel.
    void addLanguage(const QString& id, const QString& code);
    void removeLanguage(const QString& id, const QString& code);
    void useHome(const QString& id, const FieldHome& home);
    void addKnownField(const QString& id);
    void removeAddedField(const QString& id);
    void assignPlace(const LocationFill::Result& result, bool withPosition);
    /// See AppModel::layEdits. Names of the fields that are left as they are (isOutOfReach()).
    QStringList lay(const Edits& edits);

    /// Of the fields that hold nothing only these are on screen, and those that were added or are edited; nothing:
    /// those that are always shown.
    void showOnly(const std::optional<QSet<QString>>& fields);
    FieldFill fill(const QString& id) const;
    bool isRemovableAddedField(const QString& id) const;
    QStringList visibleFieldIDs(FieldSection section) const;
    QList<FieldSpec> addableKnownFields() const;
    QList<FieldSpec> addableIptcFields() const;
    QList<CustomValue> visibleCustomFields() const;
    /// The name under which a custom field of this typed name would be stored: as it is spelled on screen already, if
    /// it is. Nothing for a name that is refused; CustomFields::nameProblem() says why.
    std::optional<QString> storedCustomName(const QString& typed) const;
    bool isFieldEmpty(const QString& id) const;
    /// Whether anybody has looked at what the one selected photo holds beside its record.
    bool knowsDetails() const { return !m_known.now.url.isEmpty(); }
    /// Whether nobody can know what the one selected photo holds under this key: it takes no edits.
    bool isOutOfReach(const QString& key) const;
    QStringList languages(const QString& id) const;
    QStringList pathsOf(const QString& keyword) const;
    const QStringList& typedPaths() const { return (isBatch() ? m_batch.edits : m_draft.edits).paths; }
    QList<FieldHome> differingHomes(const QString& id) const;

    /// Selects these photos, without an edit but those that wait for just these: they come back.
    void select(const Selection& selection);
    /// Nothing is edited any more: what is unsaved, and not being saved, is left behind.
    void leave();
    /// The same for the photos among these, which are about to disappear; the edits of the others stay.
    void leave(const QSet<QUrl>& gone);
    /// Selects the photos of edits that were left behind and lays them over what is edited there; what they replace,
    /// and edits of other photos, are left behind in their place. The photos must be open.
    void bringBack(const LeftEdits& left);
    /// Photos of the selection disappeared: its edits stay, as those of the photos that remain.
    void follow(const Selection& selection);
    /// These photos are about to disappear, and others, which must be open, stand for them: their edits, as far as they
    /// are not being saved, become those of these.
    void passTo(const NewNames& heirs);
    /// Photos have other names: all edits of them stay.
    void rename(const NewNames& names);
    /// The photos were read again: the draft stands on what the primary one holds now.
    void rebase();
    /// The same for photos that were unread: edits that waited for them come back.
    void takeRead();
    /// Something else may be known of the photos beside their records.
    void takeDetails();

    /// Begins a save of unsaved(): until takeSaved, these edits stay and count.
    void send();
    /// The save has ended. What was saved is no edit any more; the rest goes back to its photos, wherever the
    /// selection is by then: at once, or when just they are selected again. `unsaved` is empty when all was saved.
    void takeSaved(const Edits& unsaved, const QList<QUrl>& failed, const QSet<QString>& differing);

private:
    /// What a save that runs was given.
    struct Sent {
        Batch batch{};  ///< of one photo: its edits alone
        QSet<QString> added{};
        QSet<QString> languages{};
        int selectionSerial = 0;
        bool isRunning = false;
        bool isLeft = false;  ///< the user went on: these edits are not what is edited any more
    };

    /// What observers were told of last.
    struct Told {
        ExternalRefresh::Drafts shown{};
        QSet<QString> edited{};
        Batch batch{};  ///< without what differs from photo to photo, which is compared once
        int ownSerial = 0;
        QSet<QString> batchInclude{};
        QMap<QString, QString> batchValues{};
        QMap<QString, OwnSummary> batchOwn{};
        QSet<QString> added{};
        QSet<QString> languages{};
        std::optional<QSet<QString>> only{};
        bool operator==(const Told&) const = default;
    };

    /// What the draft's photo holds beside its record.
    struct Known {
        PhotoDetails now{};  ///< with what was saved since
        std::optional<PhotoDetails> said{};  ///< what `now` came from; nothing where it may be anything by now
    };

    static QSet<QUrl> setOf(const QList<QUrl>& photos);
    bool isBatch() const { return m_selected.isBatch(); }
    bool isUnread() const;
    Edits batchOfOne() const;
    bool noteOwn();
    QMap<QString, OwnSummary> summaryOf(const QHash<QUrl, OwnEdits>& own) const;
    int unsavedNow() const;
    Edits withoutOutOfReach(Edits edits, QStringList& left) const;
    Edits withoutUnread(Edits edits) const;
    Edits withoutWholeLists(Edits edits) const;
    Edits withCommonTexts(Edits edits) const;
    void takeReturning();
    bool isShown(const FieldSpec& field) const;
    bool isTouched(const QString& id) const;
    bool isLacking(const QString& id) const;
    bool isCalledFor(const QString& id, const QString& other) const;
    QString shownCustom(const QString& name) const;
    void changed();
    bool isSending() const;
    QList<LeftEdits> standing() const;
    std::optional<QStringList> heldItems(const ImageRecord& photo, const QString& id) const;
    void restart();
    void beginDraft();
    void layDraft();
    void noteSavedItems(const Edits& saved, const QString& id);
    void noteSaved(const Edits& written, const QSet<QString>& differing);
    QStringList heldLanguages(const QString& id) const;
    QString languageKey(const QString& id, const QString& code) const;
    void forgetText(const QString& key);
    bool isTakenAway(const QString& keyword) const;
    void addItem(const QString& id, const QString& item);
    void showFieldsOf(const Edits& edits);
    void foldBatchIntoDraft();
    void narrow(const QList<QUrl>& photos);
    void giveBack(Edits edits);
    void put(const LeftEdits& left);

    Announcer& m_announcer;
    const PhotoList& m_photos;
    SelectedPhotos& m_selected;
    const SelectedDetails& m_details;
    LeftBehind& m_left;
    Draft m_draft;
    Known m_known;
    Batch m_batch;
    QSet<QString> m_added;
    std::optional<QSet<QString>> m_only;  ///< as showOnly() was told
    QSet<QString> m_languages;  ///< keys of languages whose rows were added or typed in since the selection
    Sent m_sent;
    Edits m_noted;  ///< what stood when it was last told to what keeps it, without what differs from photo to photo
    bool m_isNothingNoted = true;
    QHash<QUrl, OwnEdits> m_toldOwn;
    /// What was summarized last, and its summary: of many photos that takes its time.
    mutable std::pair<QHash<QUrl, OwnEdits>, QMap<QString, OwnSummary>> m_summarized;
    Told m_told;
    int m_unsavedCount = 0;
};

}  // namespace Quorbel
