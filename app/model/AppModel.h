// The one observable state object: what is open, what is selected, what is being edited, and what is running. A façade
// over parts that can be read alone: library/, selection/, edits/, saving/, Preferences and RunningTasks. What is
// decided here is what concerns several of them: when to ask before edits are left, and what waits for the answer.
// Thread: the main thread only; every operation checks it, in release builds too. A destroyed model receives nothing
// from the background.
// Knows no widget: views read its properties and call its operations.
#pragma once

#include "app/model/AppModelServices.h"
#include "app/model/MainThread.h"
#include "app/model/Preferences.h"
#include "app/model/RunningTasks.h"
#include "app/model/edits/Editing.h"
#include "app/model/library/FolderNames.h"
#include "app/model/library/Library.h"
#include "app/model/saving/Saving.h"
#include "app/model/selection/SelectedKeywords.h"
#include "app/model/selection/SelectedPhotos.h"
#include "core/schema/PhotoDetails.h"

namespace Quorbel {

struct AppModelTools;
struct DetailsFailure;
class CodeReplacements;
class FieldPasting;
class FieldSets;
class Filtering;
class Pairing;
class PhotosRenaming;
class QuickKeywords;
class RememberedCards;
class MovingOver;
class SelectedSidecars;
class Templates;
class TimeShifting;

class AppModel final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AppModel)

public:
    explicit AppModel(AppModelServices services, QObject* parent = nullptr);
    ~AppModel() override;

    // --- Library ---
    const QList<ImageRecord>& records() const { return photos().records(); }
    const QString& folderName() const { return library().folderName(); }
    const std::optional<QUrl>& folderURL() const { return library().folderURL(); }
    const QString& search() const { return photos().search(); }
    void setSearch(const QString& text) { photos().setSearch(text); }
    RecordSortOrder sortOrder() const { return photos().order(); }
    void setSortOrder(RecordSortOrder order);
    /// Positions in records() of the photos that pass search and filter, in sort order; where subfolders are open, by
    /// folder first, and folded ones too. For a list of any length.
    const QList<int>& visibleRows() const { return photos().visibleRows(); }
    /// The runs of visibleRows() that lie in one folder; none where no subfolders are open.
    const QList<FolderGroup>& folderGroups() const { return photos().groups().list(); }
    /// Folded photos stay selected, and are part of "Select all", but not of a range. Until other folders are opened.
    void setFolded(const QUrl& folder, bool on) { photos().setFolded({ folder }, on); }
    void setAllFolded(bool on) { photos().setFolded(photos().folders().urls(), on); }
    QList<ImageRecord> visibleRecords() const;
    /// The record with this URL; null when there is none. Valid until the records change.
    const ImageRecord* record(const QUrl& url) const { return photos().record(url); }
    QString folderCountText() const;
    /// The photos that are on screen now: such as were not read yet are read next.
    void setInView(const QList<QUrl>& photos);
    void openPanel();
    void openPanelWithSubfolders();
    /// Where it is not said whether folders are opened with those in them, the setting decides.
    void load(const QList<QUrl>& urls) { load(urls, m_preferences.openSubfolders()); }
    void load(const QList<QUrl>& urls, bool withSubfolders);
    void closeFolder();
    /// Reads all open photos again, whatever is known of them.
    void readAgain();
    /// Compares the open folder with the records and re-reads what differs. Needs an open folder.
    void refresh();
    bool canRefresh() const { return library().refresh().canRefresh() || library().canResume(); }
    /// How changes that others make in the open folders become known.
    const Watching& watching() const { return library().refresh().watching(); }
    /// While the photos are not on screen, one looks at their folders only when the system tells of a change.
    void setOnScreen(bool on) { checked(m_library).refresh().setOnScreen(on); }
    /// load(), closeFolder() and the end of the program, through the save dialog when there are unsaved edits: they
    /// happen after its save or discard, or not at all. One photo's edits are saved without asking where the user
    /// chose so. A save that runs is waited for.
    void requestLoad(const QList<QUrl>& urls) { requestLoad(urls, m_preferences.openSubfolders()); }
    void requestLoad(const QList<QUrl>& urls, bool withSubfolders);
    void requestClose();
    void requestQuit();
    /// Ends the program without a question: unsaved edits are kept for the next start, and a save that runs is waited
    /// for.
    void quitKeepingEdits();
    /// Writes what is unsaved, and what was left behind, to where the next start finds it; waits for that.
    void keepEdits() { checked(m_left).flush(); }
    /// Whether a selection, a load, a close or the end of the program waits for an answer or for a save.
    bool isHoldingBack() const { return m_waiting || library().hasArrived(); }
    void openFile(const QUrl& url);
    /// Which photos keep their edits beside them: as the settings say, but for a save that runs: it ends as it began.
    const SidecarPolicy& sidecarPolicy() const { return m_sidecarPolicy; }
    QList<QUrl> recentURLs() const;
    void openRecent(const QUrl& url);
    void clearRecents();

    // --- Selection ---
    const QSet<QUrl>& selection() const { return selected().selection().photos; }
    const std::optional<QUrl>& primary() const { return selected().selection().primary; }
    bool isBatch() const { return selected().isBatch(); }
    /// The record of the primary photo; null when there is none. Valid until the records change.
    const ImageRecord* primaryRecord() const { return selected().primaryRecord(); }
    QList<ImageRecord> selectedRecords() const;
    /// Positions in records() of the selected photos, ascending.
    const QList<int>& selectedRows() const { return selected().rows(); }
    /// How many of the selected photos were not read yet.
    int unreadSelected() const { return selected().unreadCount(); }
    void tap(const QUrl& url, bool shift, bool command);
    void selectAllPhotos();
    /// Selects the photo so many places behind the primary one on screen alone, negative: in front of it; whether there
    /// is one. The guard of unsaved edits may come before it.
    bool canStep(int places) const;
    void step(int places);

    // --- Running tasks ---
    bool isWorking() const { return tasks().isWorking(); }
    bool isSaving() const { return saving().isSaving(); }
    /// A save that was asked for, and waits until all of its photos have been read. It is being saved, too.
    bool isAwaitingRecords() const { return m_awaited.has_value(); }
    /// Set while a read or a write runs; nothing otherwise.
    const std::optional<Progress>& progress() const { return tasks().progress(); }
    /// Name of the file that a read does not get done with; nothing while it gets on.
    const std::optional<QString>& stalledFile() const { return tasks().stalledFile(); }
    /// Ends a read that runs: what was open stays; of open photos only those that are selected are read from now on. A
    /// save that waits for a read is given up, and its edits stay.
    void cancelRead();
    /// Begins the read again without the file that it is stuck at. The file is named when the read ends.
    void skipStalledFile() { checked(m_tasks).skipStalledFile(); }
    const std::optional<QString>& errorMessage() const { return m_errorMessage; }
    void setErrorMessage(const std::optional<QString>& message);

    // --- Edits ---
    int unsavedCount() const { return editing().unsavedCount(); }
    const QSet<QString>& sessionAddedKnownIDs() const { return editing().sessionAddedKnownIDs(); }
    const QMap<QString, QString>& draftValues() const { return editing().draft().shown.values; }
    const QMap<QString, QStringList>& draftLists() const { return editing().draft().shown.lists; }
    const QList<CustomValue>& draftCustoms() const { return editing().draft().shown.customs; }
    const QSet<QString>& editedSingle() const { return editing().editedSingle(); }
    const QSet<QString>& batchInclude() const { return editing().batchInclude(); }
    const QMap<QString, QString>& batchValues() const { return editing().batchValues(); }
    const QMap<QString, QStringList>& batchLists() const { return editing().batch().edits.added; }
    const QList<CustomValue>& batchCustoms() const { return editing().batch().edits.customs; }
    QMap<QString, QStringList> nonEmptyBatchLists() const;
    /// The scalar value that all selected photos share ("" when none holds one); nothing when they differ.
    /// Of a text in a further language nothing, too, before all of them were looked at.
    std::optional<QString> sharedValue(const QString& id) const { return selectedDetails().sharedValue(id); }
    /// The same for a custom field.
    std::optional<QString> sharedCustom(const QString& name) const { return selected().sharedCustom(name); }
    /// Whether a field of one value holds nothing but blanks now, in the draft or the batch. One whose photos differ
    /// is not empty.
    bool isFieldEmpty(const QString& id) const { return editing().isFieldEmpty(id); }
    /// Edits that were left behind unsaved, the newest first; those of an earlier run of the program are among them
    /// soon after the start.
    const QList<LeftEdits>& leftEdits() const { return checked(m_left).kept(); }
    /// What was left behind last, until the next edit.
    const std::optional<LeftNotice>& leftNotice() const { return checked(m_left).notice(); }
    /// Selects the photos of these edits (a position in leftEdits()) again and puts the edits back, over what the
    /// photos hold by now; opens their folder where they are not open. Unsaved edits of other photos are left behind
    /// in their place. Edits of photos that are gone stay where they are.
    void bringBack(int position);
    bool isRemovableAddedField(const QString& id) const { return editing().isRemovableAddedField(id); }
    QStringList visibleFieldIDs(FieldSection section) const { return editing().visibleFieldIDs(section); }
    QList<FieldSpec> addableKnownFields() const { return editing().addableKnownFields(); }
    /// The fields of IptcSchema that are not on screen.
    QList<FieldSpec> addableIptcFields() const { return editing().addableIptcFields(); }
    QList<CustomValue> visibleCustomFields() const { return editing().visibleCustomFields(); }
    /// The name that addCustomField() would give a field; nothing for one that it refuses.
    std::optional<QString> storedCustomName(const QString& typed) const { return editing().storedCustomName(typed); }
    /// Keywords of the open photos that begin with the text (any case), the most used first; at most `limit`.
    QStringList keywordCompletions(const QString& prefix, int limit) const
    {
        return photos().keywordCompletions(prefix, limit);
    }
    void setSingle(const QString& id, const QString& value) { editing().setSingle(id, value); }
    /// Adds an item to a list field of the one photo; an item that is already there changes nothing.
    void addSingleListItem(const QString& id, const QString& item) { editing().addSingleListItem(id, item); }
    void removeSingleListItem(const QString& id, const QString& item) { editing().removeSingleListItem(id, item); }
    /// The items of a list, in their order: of one photo the list itself, of several what it gains. Of one photo's list
    /// of IptcSchema nothing before it is known what the photo holds (knowsDetails()).
    void setItems(const QString& id, const QStringList& items) { editing().setItems(id, items); }
    /// Whether it is known what the one selected photo holds beside its record.
    bool knowsDetails() const { return editing().knowsDetails(); }
    void setBatch(const QString& id, const QString& value) { editing().setBatch(id, value); }
    /// Takes a field out of what will be written, or puts it in with the text that it shows: a tick alone clears
    /// nothing that one sees.
    void toggleBatchInclude(const QString& id) { editing().toggleBatchInclude(id); }
    void addBatchListItem(const QString& id, const QString& item) { editing().addBatchListItem(id, item); }
    void removeBatchListItem(const QString& id, const QString& item) { editing().removeBatchListItem(id, item); }
    /// Empties a list field's batch entry (its tick taken out).
    void clearBatchList(const QString& id) { editing().clearBatchList(id); }
    /// The same for a custom field.
    void toggleBatchCustom(const QString& name) { editing().toggleBatchCustom(name); }
    /// A custom field's value, in the draft or, with several photos selected, in the batch.
    void setCustom(const QString& name, const QString& value) { editing().setCustom(name, value); }
    /// Adds it and closes the add-field sheet; nothing happens with a name that is refused.
    void addCustomField(const QString& name, const QString& value);
    /// Shows a field of the schema that was not shown, and closes the add-field sheet.
    void addKnownField(const QString& id);
    void removeAddedField(const QString& id) { editing().removeAddedField(id); }
    /// Lays a picked place into the place fields of the draft or the batch.
    void applyLocation(const LocationFill::Result& result) { editing().assignPlace(result, true); }
    /// The same without the position: names for coordinates that are there already.
    void fillPlaceNames(const LocationFill::Result& result) { editing().assignPlace(result, false); }
    /// Lays these edits over the draft or the batch of the selected photos: unsaved edits like typed ones. Their own
    /// subjects play no part; edits that concern no selected photo are left out. Nothing of a photo that was not read.
    void layEdits(const Edits& edits);
    /// The stars of the selected photos, 0 to 5, as an edit.
    void rate(int stars);
    /// Whether there is a photo before the selected one on screen, before the first of several, and it was read.
    bool hasPhotoBefore() const;
    /// Fills a field (an id, or the key of a custom field) of the selected photos with what that photo shows;
    /// its unsaved edits do not count, but those that are being saved. What is empty there takes nothing away.
    void takeFromPhotoBefore(const QString& key);

    // --- Keywords of many photos ---
    using KeywordCount = Quorbel::KeywordCount;
    /// Keywords that the selected photos hold, where several are selected: the most frequent first, those of equal
    /// frequency by name. Of many photos they come a moment later, with selectedKeywordsChanged().
    const QList<KeywordCount>& selectedKeywords() const;
    /// Of how many of the selected photos these are: of those that were read by then.
    int selectedKeywordPhotos() const;
    /// What of the batch differs from photo to photo, by key (a field's id, the key of a language or of a custom
    /// field).
    const QMap<QString, OwnSummary>& batchOwn() const { return editing().batchOwn(); }
    /// Items that the batch takes away, by field id.
    const QMap<QString, QStringList>& batchRemoved() const { return editing().batch().edits.removed; }
    /// The item is taken away from all selected photos with the next save.
    void takeBatchItemAway(const QString& id, const QString& item);
    void keepBatchItem(const QString& id, const QString& item);

    // --- Words for many photos, and their names and times: tools over this model, each with a header of its own ---
    FieldPasting& pasting();
    Templates& templates();
    CodeReplacements& codes();
    QuickKeywords& quickKeywords();
    RememberedCards& rememberedCards();
    PhotosRenaming& renaming();
    TimeShifting& timeShifting();
    Filtering& filtering();
    Pairing& pairing() const;
    FieldSets& fieldSets();
    SelectedSidecars& selectedSidecars();
    MovingOver& movingOver();

    // --- What photos hold beside their records ---
    /// Null before it was looked at. Valid until the details change.
    const PhotoDetails* details(const QUrl& photo) const;
    /// Why that of the one selected photo could not be read; nothing while it is known, or may be. Until then it can
    /// neither be edited nor be replaced.
    std::optional<DetailsFailure> detailsFailure() const;
    void readDetailsAgain();
    /// Codes of the languages in which this field of the selected photos is on screen beside its own text, ascending:
    /// those that some of them hold, and those that were added since the selection. Their texts are fields of their
    /// own, under FieldLanguages::key(), in drafts, batches and shared values.
    QStringList languages(const QString& id) const { return editing().languages(id); }
    /// Shows an empty text in this language, or brings back one that was taken away.
    void addLanguage(const QString& id, const QString& code) { editing().addLanguage(id, code); }
    /// Takes the language away from the selected photos with the next save; one that was only added, at once.
    void removeLanguage(const QString& id, const QString& code) { editing().removeLanguage(id, code); }
    /// Paths of this keyword in the selected photos, those that were typed and not saved yet among them.
    QStringList pathsOf(const QString& keyword) const { return editing().pathsOf(keyword); }
    /// Those that were typed and not saved yet, of all keywords.
    const QStringList& typedPaths() const { return editing().typedPaths(); }
    /// Paths known from the open photos whose keyword begins with the text (any case); of a text with a bar in it,
    /// those that begin so as a whole. At most `limit`.
    QStringList pathCompletions(const QString& prefix, int limit) const;
    /// Where the homes of a field of the one selected photo disagree: what each holds, the shown one first. None where
    /// they agree, where that is not known, and while the field is edited.
    QList<FieldHome> differingHomes(const QString& id) const { return editing().differingHomes(id); }
    /// Makes what this home holds an edit of the one selected photo, even where that is what is shown: then the others
    /// are to hold it, too.
    void useHome(const QString& id, const FieldHome& home) { editing().useHome(id, home); }
    /// How many of the selected photos are known to have homes that disagree.
    int selectedDisagreements() const { return selectedDetails().disagreeing(); }
    /// Not where all is known, and nothing is to be written: what another standard's tag says stays.
    bool canMakeAgree() const;
    /// Writes the shown values of the selected photos to all homes of their fields that disagree, after a question. Of
    /// photos that were not looked at yet it looks at them before.
    void requestMakeAgree();
    /// What the save dialog asks about then.
    struct AgreementQuestion {
        int photos = 0;  ///< that would be written
        QMap<QString, int> fields{};  ///< of so many of them, by id
        bool operator==(const AgreementQuestion&) const = default;
    };
    /// Nothing while the dialog, if it is open, asks about edits.
    std::optional<AgreementQuestion> agreementQuestion() const;
    /// Of the open photos.
    struct Disagreements {
        qsizetype photos = 0;  ///< that have homes that disagree
        qsizetype unknown = 0;  ///< that were not looked at yet
        bool isLooking = false;  ///< at all of them, one after the other
        bool operator==(const Disagreements&) const = default;
    };
    Disagreements disagreements() const;
    /// Whether only photos with homes that disagree are listed; those that were not looked at yet are looked at then.
    bool showsDisagreements() const;
    void setShowDisagreements(bool on);
    /// Looks no further; cancelRead() does it too.
    void cancelDisagreements();

    // --- Saving ---
    void requestSave();
    /// Saves, and selects the next photo on screen once that is done; goes on at once where nothing is unsaved.
    void saveAndGoOn();
    /// The save dialog's three answers. Each closes it; then whatever waited (another selection, a load, a close,
    /// the end of the program) goes on after a save or a discard, and is dropped by cancel or by a failed save.
    void confirmSaveDialog();
    void discardSaveDialog();
    void cancelSaveDialog();
    /// How many of the photos that a save would write into now, or that the dialog asks about, are known to have
    /// Content Credentials.
    int credentialsAtStake() const;
    /// "Save without EXIF", while the message tells of selected photos that refused their edits for that alone; ""
    /// else.
    QString partialSaveText() const;
    /// Saves the edits of those photos to their other homes. Needs the offer.
    void savePartially();
    bool batchDontAskSession() const { return m_batchDontAskSession; }
    void setBatchDontAskSession(bool on);
    /// Whether the last save, perhaps of an earlier run of the program, can be taken back now.
    bool canUndoSave() const { return saving().canUndo(); }
    /// "Undo Save of 12 photos": which save that is; changes with canUndoSaveChanged().
    QString undoSaveText() const { return saving().undoText(); }
    /// Puts back, in the background, what the last save replaced. Unsaved edits stay. Files that somebody else changed
    /// since are left alone and named.
    void undoSave();

    // --- Renaming ---
    bool canRename() const;
    void insertRenameToken(const QString& token);
    QString renamePreview() const;
    /// Why the name that the pattern gives cannot be a file's; nothing when it can.
    std::optional<QString> renameProblem() const;
    void performRename();

    // --- Sheets ---
    bool saveOpen() const { return m_sheets.save; }
    void setSaveOpen(bool open);
    bool addOpen() const { return m_sheets.add; }
    void setAddOpen(bool open);
    bool renameOpen() const { return m_sheets.rename; }
    /// The sheet is about the photo that is the primary one now, and closes when that is another one.
    void setRenameOpen(bool open);

    Preferences& preferences() { return m_preferences; }
    const Preferences& preferences() const { return m_preferences; }
    QDateTime now() const;

    /// Set by the view layer: told the URLs of photos whose file changed, so that their images are rebuilt.
    std::function<void(const QList<QUrl>&)> onImagesModified{};
    /// The same: a photo got another name here, before the records say so.
    std::function<void(const QUrl& from, const QUrl& to)> onImageRenamed{};
    /// The same: metadata is about to be written into these files.
    std::function<void(const QList<QUrl>&)> onWriteBegins{};
    /// The same, once for each beginning: of which of them new metadata was read, before the records say so.
    std::function<void(const QList<QUrl>& written)> onWriteEnds{};

signals:
    void recordsChanged();
    /// The photos that pass the search, or their order, changed: visibleRows() has a new answer, or the same
    /// positions hold other photos. Not announced when photos were only read again.
    void visibleRowsChanged();
    /// folderGroups() has another answer: another folder, count or fold.
    void folderGroupsChanged();
    /// The name or the address of what is open.
    void folderChanged();
    void watchingChanged();
    /// Photos were opened: other ones, or the same ones read again.
    void photosOpened();
    /// The photos that it concerns are read again after that.
    void sidecarPolicyChanged();
    void searchChanged();
    void sortOrderChanged();
    void selectionChanged();
    void primaryChanged();
    void unreadSelectedChanged();
    void selectedKeywordsChanged();
    /// Something of the draft or the batch: values, marks, or which fields are on screen.
    void editsChanged();
    void unsavedCountChanged();
    /// Of some photos more, or something else, is known.
    void detailsChanged();
    /// disagreements() or showsDisagreements() has another answer.
    void disagreementsChanged();
    void leftEditsChanged();
    void isWorkingChanged();
    void isSavingChanged();
    void progressChanged();
    void stalledFileChanged();
    void canUndoSaveChanged();
    void errorMessageChanged();
    void saveOpenChanged();
    void addOpenChanged();
    void renameOpenChanged();
    void batchDontAskSessionChanged();
    /// renamePreview() may have another answer: the names in the photo's folder were found out.
    void renamePreviewChanged();

private:
    void tell(Change change);
    // Each part is reached through a check of the thread.
    template <typename Part>
    static Part& checked(Part& part)
    {
        requireMainThread("AppModel");
        return part;
    }
    const Library& library() const { return checked(m_library); }
    const PhotoList& photos() const { return library().photos(); }
    PhotoList& photos() { return checked(m_library).photos(); }
    const SelectedPhotos& selected() const { return checked(m_selected); }
    const SelectedDetails& selectedDetails() const { return checked(m_selectedDetails); }
    const Editing& editing() const { return checked(m_editing); }
    Editing& editing() { return checked(m_editing); }
    const RunningTasks& tasks() const { return checked(m_tasks); }
    const Saving& saving() const { return checked(m_saving); }
    void connectParts();
    void connectDetails();
    void makeTools();
    void followSidecarSettings();
    // What other programs do to the photos
    void takeVanished(const QList<int>& positions);
    void passToHeirs(const QSet<QUrl>& gone);
    void selectWhereNone();
    void takeReread(const QList<QUrl>& urls);
    // What a load has read
    void takeRead(const QList<QUrl>& photos);
    void updateUnread();
    bool isUnread(const QUrl& photo) const;
    QList<QUrl> unreadOf(const QList<QUrl>& photos) const;
    // Selection
    void changeSelection(const Selection& next);
    void commitSelection(const Selection& next);
    void holdBack(std::function<void()> action);
    void saveOrAsk();
    void resumeWaiting();
    void dropWaiting();
    void showArrived();
    void takeOpened();
    void awaitBringBack(const LeftEdits& left);
    void bringBack(const LeftEdits& left);
    void openAndBringBack(const LeftEdits& left);
    // Saving
    void lookAhead();
    void save(const QStringList& leftOut = {});
    void beginSave(const Edits& edits, const QStringList& leftOut);
    QList<QUrl> takeRefused();
    void saveAwaited();
    void giveUpAwaited();
    void takeSaved(const SaveOutcome& ofFiles);
    void tellWritten(const SaveOutcome& outcome);
    void noteRead(const QList<ImageRecord>& fresh);
    void noteWritten(const SaveOutcome& outcome);
    void takeUndone(const SaveOutcome& outcome);
    // Homes that disagree
    void goOnAgreeing();
    void giveUpAgreeing();
    QStringList namesWithoutDetails() const;
    QHash<QUrl, EditPlan> agreements() const;
    void makeAgree(const QHash<QUrl, EditPlan>& plans);
    // Renaming
    QMap<QString, QString> renameValues(const ImageRecord& record) const;
    QString renderedBase(const ImageRecord& record) const;
    QString newFileName(const ImageRecord& record, const FolderNames::Listing& names) const;
    void takeRenamed(const QUrl& source, const QUrl& destination);

    AppModelServices m_services;
    Announcer m_announcer;
    Preferences m_preferences;
    RunningTasks m_tasks;
    SidecarPolicy m_sidecarPolicy;
    std::shared_ptr<RecordCache> m_cache;
    Library m_library;
    SelectedPhotos m_selected;
    SelectedDetails m_selectedDetails;
    SelectedKeywords m_selectedKeywords;
    LeftBehind m_left;
    Editing m_editing;
    Saving m_saving;
    mutable FolderNames m_folderNames;  ///< of the folder of the photo to be renamed
    std::optional<QString> m_errorMessage;
    struct LastSave {
        bool hasFailed = false;  ///< some of its edits are still unsaved
        /// Photos that could be saved without some homes.
        struct Refused {
            QSet<QUrl> photos{};
            QStringList homes{};
        };
        Refused refused{};
    };
    LastSave m_lastSave;
    /// A save that waits until its photos have been read.
    struct Awaited {
        Edits edits{};
        QStringList leftOut{};
        QSet<QUrl> unread{};
    };
    std::optional<Awaited> m_awaited;
    /// Photos whose homes are to agree.
    struct Agreeing {
        QList<QUrl> photos{};
        bool isAsking = false;  ///< the save dialog is about them
        bool isConfirmed = false;
    };
    std::optional<Agreeing> m_agreeing;
    int m_unreadSelected = 0;  ///< as it was last told
    /// What is open over the window.
    struct Sheets {
        bool save = false;
        bool add = false;
        bool rename = false;
        std::optional<QUrl> renamed{};  ///< the photo that the rename sheet is about
    };
    Sheets m_sheets;
    bool m_batchDontAskSession = false;
    std::function<void()> m_waiting;  ///< asked for again after a save or a discard
    std::optional<LeftEdits> m_toBringBack;  ///< once their photos are open, and read
    std::unique_ptr<AppModelTools> m_tools;
    bool m_isEnding = false;  ///< as soon as no save runs
};

}  // namespace Quorbel
