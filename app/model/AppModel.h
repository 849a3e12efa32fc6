// The one observable state object: what is open, what is selected, what is being edited, and what is running.
// Thread: the main thread only; every public operation checks it, in release builds too. Reads and writes run in
// background tasks that capture values and hand their result back here; a destroyed model receives nothing.
// Knows no widget: views read its properties and call its operations.
#pragma once

#include "core/MetadataService.h"
#include "core/save/ExternalRefresh.h"
#include "core/schema/FieldSchema.h"
#include "core/schema/ImageRecord.h"
#include "core/schema/LocationFill.h"
#include "core/schema/RecordSortOrder.h"
#include "core/text/Coordinates.h"

#include "app/model/library/FolderScan.h"
#include "app/model/library/PhotoReader.h"
#include "app/model/library/RecordIndex.h"
#include "app/model/library/StallWatch.h"
#include "app/model/saving/SaveHistory.h"
#include "app/model/saving/SaveJob.h"

#include <QDateTime>
#include <QObject>
#include <QSet>
#include <QSettings>
#include <QStringList>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <type_traits>
#include <vector>

namespace Quorbel {

class FolderWatcher;

/// The appearance that the user chose over the system's.
enum class ColorScheme { light, dark };

/// How far a read or a write has come, in files.
struct Progress {
    qsizetype done = 0;
    qsizetype total = 0;
    bool operator==(const Progress&) const = default;
};

/// What the model needs from outside. The shell passes the real things, tests pass lambdas; an empty function is
/// simply not called.
struct AppModelServices {
    std::optional<MetadataService> service{};  ///< absent: the tool was not found
    std::shared_ptr<QSettings> preferences{};  ///< required
    /// Shows the open panel (files and directories, several); calls back with the chosen URLs, none on cancel.
    std::function<void(std::function<void(const QList<QUrl>&)>)> openPanel{};
    std::function<void()> endEditing{};  ///< makes the field being typed into commit its text
    std::function<void(const QUrl&)> openUrl{};  ///< opens a file in the user's default application
    std::function<QDateTime()> now{};  ///< local wall clock; the system's when empty
    QString journalPath{};  ///< file of the saves that can be undone; empty: none can
    /// How long a read may be at one file before the user is offered to skip it.
    std::chrono::milliseconds stallInterval{ 10000 };
    std::function<void()> quit{};  ///< ends the program; called by requestQuit()
};

class AppModel final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AppModel)
    // Library and selection
    Q_PROPERTY(QList<ImageRecord> records READ records NOTIFY recordsChanged)
    Q_PROPERTY(QString folderName READ folderName NOTIFY folderNameChanged)
    Q_PROPERTY(std::optional<QUrl> folderURL READ folderURL NOTIFY folderURLChanged)
    Q_PROPERTY(QString search READ search WRITE setSearch NOTIFY searchChanged)
    Q_PROPERTY(RecordSortOrder sortOrder READ sortOrder WRITE setSortOrder NOTIFY sortOrderChanged)
    Q_PROPERTY(QSet<QUrl> selection READ selection NOTIFY selectionChanged)
    Q_PROPERTY(std::optional<QUrl> primary READ primary NOTIFY primaryChanged)
    Q_PROPERTY(bool isWorking READ isWorking NOTIFY isWorkingChanged)
    Q_PROPERTY(bool isSaving READ isSaving NOTIFY isSavingChanged)
    Q_PROPERTY(std::optional<Progress> progress READ progress NOTIFY progressChanged)
    Q_PROPERTY(std::optional<QString> stalledFile READ stalledFile NOTIFY stalledFileChanged)
    Q_PROPERTY(bool canUndoSave READ canUndoSave NOTIFY canUndoSaveChanged)
    Q_PROPERTY(std::optional<QString> errorMessage READ errorMessage WRITE setErrorMessage NOTIFY errorMessageChanged)
    // Sheets
    Q_PROPERTY(bool saveOpen READ saveOpen WRITE setSaveOpen NOTIFY saveOpenChanged)
    Q_PROPERTY(bool addOpen READ addOpen WRITE setAddOpen NOTIFY addOpenChanged)
    Q_PROPERTY(bool renameOpen READ renameOpen WRITE setRenameOpen NOTIFY renameOpenChanged)
    // Drafts of one photo
    Q_PROPERTY(QMap<QString, QString> draftValues READ draftValues NOTIFY draftValuesChanged)
    Q_PROPERTY(QMap<QString, QStringList> draftLists READ draftLists NOTIFY draftListsChanged)
    Q_PROPERTY(QList<CustomValue> draftCustoms READ draftCustoms NOTIFY draftCustomsChanged)
    Q_PROPERTY(QSet<QString> editedSingle READ editedSingle NOTIFY editedSingleChanged)
    Q_PROPERTY(QSet<QString> sessionAddedKnownIDs READ sessionAddedKnownIDs NOTIFY sessionAddedKnownIDsChanged)
    // Batch
    Q_PROPERTY(QSet<QString> batchInclude READ batchInclude NOTIFY batchIncludeChanged)
    Q_PROPERTY(QMap<QString, QString> batchValues READ batchValues NOTIFY batchValuesChanged)
    Q_PROPERTY(QMap<QString, QStringList> batchLists READ batchLists NOTIFY batchListsChanged)
    Q_PROPERTY(QList<CustomValue> batchCustoms READ batchCustoms NOTIFY batchCustomsChanged)
    Q_PROPERTY(bool batchDontAskSession READ batchDontAskSession WRITE setBatchDontAskSession NOTIFY
            batchDontAskSessionChanged)
    // Preferences
    Q_PROPERTY(bool showNamespace READ showNamespace WRITE setShowNamespace NOTIFY showNamespaceChanged)
    Q_PROPERTY(bool backupOriginals READ backupOriginals WRITE setBackupOriginals NOTIFY backupOriginalsChanged)
    Q_PROPERTY(bool writeSidecar READ writeSidecar WRITE setWriteSidecar NOTIFY writeSidecarChanged)
    Q_PROPERTY(bool confirmMassEdit READ confirmMassEdit WRITE setConfirmMassEdit NOTIFY confirmMassEditChanged)
    Q_PROPERTY(bool saveDontAsk READ saveDontAsk WRITE setSaveDontAsk NOTIFY saveDontAskChanged)
    Q_PROPERTY(QString placeService READ placeService WRITE setPlaceService NOTIFY placeServiceChanged)
    Q_PROPERTY(QString renamePattern READ renamePattern WRITE setRenamePattern NOTIFY renamePatternChanged)
    Q_PROPERTY(bool stripSpecialChars READ stripSpecialChars WRITE setStripSpecialChars NOTIFY stripSpecialCharsChanged)
    Q_PROPERTY(
        std::optional<ColorScheme> colorOverride READ colorOverride WRITE setColorOverride NOTIFY colorOverrideChanged)
    Q_PROPERTY(QStringList recentPaths READ recentPaths NOTIFY recentPathsChanged)

public:
    explicit AppModel(AppModelServices services, QObject* parent = nullptr);
    ~AppModel() override;

    // --- Library and selection ---
    const QList<ImageRecord>& records() const { return m_records; }
    const QString& folderName() const { return m_folderName; }
    const std::optional<QUrl>& folderURL() const { return m_folderURL; }
    const QString& search() const { return m_search; }
    void setSearch(const QString& text);
    RecordSortOrder sortOrder() const { return m_sortOrder; }
    void setSortOrder(RecordSortOrder order);
    const QSet<QUrl>& selection() const { return m_selection; }
    const std::optional<QUrl>& primary() const { return m_primary; }
    bool isWorking() const { return m_isWorking; }
    bool isSaving() const { return m_isSaving; }
    /// Set while a read or a write runs; nothing otherwise.
    const std::optional<Progress>& progress() const { return m_progress; }
    /// Name of the file that a read does not get done with; nothing while it gets on.
    const std::optional<QString>& stalledFile() const { return m_stalledFile; }
    const std::optional<QString>& errorMessage() const { return m_errorMessage; }
    void setErrorMessage(const std::optional<QString>& message);
    bool hasService() const;

    /// Positions in records() of the photos that pass the search, in sort order. Memoised: cheap to read again
    /// until the records, the search or the sort order change. For a list of any length.
    const QList<int>& visibleRows() const;
    QList<ImageRecord> visibleRecords() const;
    /// The record of the primary photo; null when there is none. Valid until the records change.
    const ImageRecord* primaryRecord() const;
    /// The record with this URL; null when there is none. Valid until the records change.
    const ImageRecord* record(const QUrl& url) const;
    QList<ImageRecord> selectedRecords() const;
    /// Positions in records() of the selected photos, ascending. Memoised like visibleRows().
    const QList<int>& selectedRows() const;
    QString folderCountText() const;

    void openPanel();
    void load(const QList<QUrl>& urls);
    void tap(const QUrl& url, bool shift, bool command);
    void selectAllPhotos();
    void closeFolder();
    /// Compares the open folder with the records and re-reads what differs. Needs an open folder.
    void refresh();
    bool canRefresh() const;
    /// load(), closeFolder() and the end of the program, through the save dialog when there are unsaved edits: they
    /// happen after its save or discard, or not at all. One photo's edits are saved without asking where the user
    /// chose so. A save that runs is waited for.
    void requestLoad(const QList<QUrl>& urls);
    void requestClose();
    void requestQuit();
    void openFile(const QUrl& url);
    /// Ends a read that runs; what was open stays.
    void cancelRead();
    /// Begins the read again without the file that it is stuck at. The file is named when the read ends.
    void skipStalledFile();

    // --- Drafts of one photo ---
    const QMap<QString, QString>& draftValues() const { return m_draftValues; }
    const QMap<QString, QStringList>& draftLists() const { return m_draftLists; }
    const QList<CustomValue>& draftCustoms() const { return m_draftCustoms; }
    const QSet<QString>& editedSingle() const { return m_editedSingle; }
    const QSet<QString>& sessionAddedKnownIDs() const { return m_sessionAddedKnownIDs; }
    int unsavedCount() const;
    bool isBatch() const { return m_selection.size() >= 2; }
    void setSingle(const QString& id, const QString& value);
    /// Adds an item to a list field of the one photo; an item that is already there changes nothing.
    void addSingleListItem(const QString& id, const QString& item);
    void removeSingleListItem(const QString& id, const QString& item);
    /// A custom field's value, in the draft or, with several photos selected, in the batch.
    void setCustom(const QString& name, const QString& value);
    void addCustomField(const QString& name, const QString& value);
    /// Shows a field of the schema that was not shown, and closes the add-field sheet.
    void addKnownField(const QString& id);
    void removeAddedField(const QString& id);
    bool isRemovableAddedField(const QString& id) const;
    QStringList visibleFieldIDs(FieldSection section) const;
    QList<FieldSpec> addableKnownFields() const;
    QList<CustomValue> visibleCustomFields() const;
    /// Lays a picked place into the place fields of the draft or the batch.
    void applyLocation(const LocationFill::Result& result);
    /// The same without the position: names for coordinates that are there already.
    void fillPlaceNames(const LocationFill::Result& result);
    /// Whether a field of one value holds nothing but blanks now, in the draft or the batch. One whose photos differ
    /// is not empty.
    bool isFieldEmpty(const QString& id) const;
    /// Keywords of the open photos that begin with the text (any case), the most used first; at most `limit`.
    QStringList keywordCompletions(const QString& prefix, int limit) const;

    // --- Batch ---
    const QSet<QString>& batchInclude() const { return m_batchInclude; }
    const QMap<QString, QString>& batchValues() const { return m_batchValues; }
    const QMap<QString, QStringList>& batchLists() const { return m_batchLists; }
    const QList<CustomValue>& batchCustoms() const { return m_batchCustoms; }
    QMap<QString, QStringList> nonEmptyBatchLists() const;
    /// The scalar value that all selected photos share ("" when none holds one); nothing when they differ.
    std::optional<QString> sharedValue(const QString& id) const;
    void setBatch(const QString& id, const QString& value);
    void toggleBatchInclude(const QString& id);
    void addBatchListItem(const QString& id, const QString& item);
    void removeBatchListItem(const QString& id, const QString& item);
    /// Empties a list field's batch entry (its tick taken out).
    void clearBatchList(const QString& id);
    /// Takes a custom field out of what will be written, or puts it in, empty.
    void toggleBatchCustom(const QString& name);

    // --- Saving ---
    bool saveOpen() const { return m_saveOpen; }
    void setSaveOpen(bool open);
    bool addOpen() const { return m_addOpen; }
    void setAddOpen(bool open);
    bool batchDontAskSession() const { return m_batchDontAskSession; }
    void setBatchDontAskSession(bool on);
    void requestSave();
    /// The save dialog's three answers. Each closes it; then whatever waited (another selection, a load, a close,
    /// the end of the program) goes on after a save or a discard, and is dropped by cancel or by a failed save.
    void confirmSaveDialog();
    void discardSaveDialog();
    void cancelSaveDialog();
    /// Whether something waits for the save dialog's answer: the dialog then stands in the way of leaving.
    bool isLeaving() const { return m_waiting != nullptr; }

    /// Whether the last save, perhaps of an earlier run of the program, can be taken back now.
    bool canUndoSave() const { return m_canUndoSave; }
    /// Puts back, in the background, what the last save replaced. Unsaved edits stay. Files that somebody else changed
    /// since are left alone and named.
    void undoSave();

    // --- Renaming ---
    bool renameOpen() const { return m_renameOpen; }
    void setRenameOpen(bool open);
    bool canRename() const;
    void insertRenameToken(const QString& token);
    QString renamePreview() const;
    void performRename();

    // --- Preferences ---
    bool showNamespace() const { return m_showNamespace; }
    void setShowNamespace(bool on);
    bool backupOriginals() const { return m_backupOriginals; }
    void setBackupOriginals(bool on);
    bool writeSidecar() const { return m_writeSidecar; }
    void setWriteSidecar(bool on);
    bool confirmMassEdit() const { return m_confirmMassEdit; }
    void setConfirmMassEdit(bool on);
    bool saveDontAsk() const { return m_saveDontAsk; }
    void setSaveDontAsk(bool on);
    /// Address of an online place service that the user turned on; empty: places are looked up on this machine alone.
    const QString& placeService() const { return m_placeService; }
    void setPlaceService(const QString& address);
    const QString& renamePattern() const { return m_renamePattern; }
    void setRenamePattern(const QString& pattern);
    bool stripSpecialChars() const { return m_stripSpecialChars; }
    void setStripSpecialChars(bool on);
    std::optional<ColorScheme> colorOverride() const { return m_colorOverride; }
    void setColorOverride(std::optional<ColorScheme> scheme);
    const QStringList& recentPaths() const { return m_recentPaths; }
    QList<QUrl> recentURLs() const;
    void openRecent(const QUrl& url);
    void clearRecents();
    /// The store behind the preferences, for the views' own few settings.
    QSettings& preferences() const { return *m_services.preferences; }
    QDateTime now() const;

    /// Set by the view layer: told the URLs of photos whose file changed, so that their images are rebuilt.
    std::function<void(const QList<QUrl>&)> onImagesModified{};

signals:
    void recordsChanged();
    void folderNameChanged();
    void folderURLChanged();
    void searchChanged();
    void sortOrderChanged();
    void selectionChanged();
    void primaryChanged();
    void isWorkingChanged();
    void isSavingChanged();
    void progressChanged();
    void errorMessageChanged();
    void stalledFileChanged();
    void canUndoSaveChanged();
    void saveOpenChanged();
    void addOpenChanged();
    void renameOpenChanged();
    void draftValuesChanged();
    void draftListsChanged();
    void draftCustomsChanged();
    void editedSingleChanged();
    void sessionAddedKnownIDsChanged();
    void batchIncludeChanged();
    void batchValuesChanged();
    void batchListsChanged();
    void batchCustomsChanged();
    void batchDontAskSessionChanged();
    void showNamespaceChanged();
    void backupOriginalsChanged();
    void writeSidecarChanged();
    void confirmMassEditChanged();
    void saveDontAskChanged();
    void placeServiceChanged();
    void renamePatternChanged();
    void stripSpecialCharsChanged();
    void colorOverrideChanged();
    void recentPathsChanged();
    /// The photos that pass the search, or their order, changed: visibleRows() has a new answer, or the same
    /// positions hold other photos. Not announced when photos were only read again.
    void visibleRowsChanged();

private:
    using Signal = void (AppModel::*)();
    /// While one lives, announcements are collected; the outermost one makes them at its end, each once. So an
    /// observer never sees half of a change.
    class Update {
    public:
        explicit Update(AppModel& model);
        ~Update();
        Q_DISABLE_COPY_MOVE(Update)

    private:
        AppModel& m_model;
    };
    struct PendingSelection {
        QSet<QUrl> selection{};
        std::optional<QUrl> anchor{};
        std::optional<QUrl> primary{};
    };
    /// A read or a write that the user waits for.
    struct Task {
        enum class Kind {
            load,
            write,
            check,  ///< the read that follows a write: it cannot be cancelled, though a file of it can be skipped
            refresh,  ///< not shown unless it stalls
        };
        int id = 0;
        Kind kind = Kind::load;
        QList<QUrl> files{};  ///< of a read
        std::optional<QUrl> skipped{};  ///< ended because of this file
        std::shared_ptr<TaskProgress> progress{};
        std::stop_source stop{};
    };
    /// What was unsaved when a save began: what differs from it afterwards was typed meanwhile.
    struct SaveSnapshot {
        EditPlan plan{};
        QList<QUrl> urls{};
        int selectionSerial = 0;
        std::optional<QUrl> primary{};
        ExternalRefresh::Drafts drafts{};
        QSet<QString> edited{};
        QSet<QString> added{};
        QSet<QString> batchInclude{};
        QMap<QString, QString> batchValues{};
        QMap<QString, QStringList> batchLists{};
        QList<CustomValue> batchCustoms{};
    };
    /// What the selected photos hold together; see selectionSummary().
    struct SelectionSummary {
        struct Field {
            QString id{};
            QString value{};
            bool isShared = true;
        };
        std::vector<Field> fields{};  ///< every scalar field that a selected photo holds, by id
        QSet<QString> heldIDs{};  ///< the same, and the list fields
        QStringList customNames{};  ///< ascending
    };

    template <typename T>
    bool assign(T& member, std::type_identity_t<T> value, Signal changed)
    {
        if (member == value)
            return false;
        member = std::move(value);
        announce(changed);
        return true;
    }
    void announce(Signal changed);

    // Library
    void reload(const PhotoListing& listing, const QSet<QUrl>& tooSlow = {});
    void finishReload(const PhotoListing& listing, const QSet<QUrl>& tooSlow, PhotoReader::Result result);
    Task* watchedRead();
    void publishStall();
    void publishRecords(QList<ImageRecord> records);
    bool replaceRecords(const QList<ImageRecord>& fresh);
    void recordContentChanged();
    void updateVisibleRows(bool photosChanged);
    Task beginTask(qsizetype total, Task::Kind kind, const QList<QUrl>& files = {});
    void showTask(const Task& task);
    std::optional<Task> endTask(int id);
    void publishProgress();
    void beginGeneration();
    void startWatching();
    // Selection
    PendingSelection selectionAfterTap(const QUrl& url, bool shift, bool command) const;
    std::optional<QSet<QUrl>> visibleRange(const QUrl& from, const QUrl& to) const;
    void changeSelection(const PendingSelection& next);
    void commitSelection(const PendingSelection& next);
    void selectFirstVisible();
    void holdBack(std::function<void()> action);
    void goOn();
    std::optional<QUrl> nearestSelected(const QSet<QUrl>& gone) const;
    void pruneSelectionToRecords(const std::optional<QUrl>& heir = std::nullopt);
    static void mergeFields(
        std::vector<SelectionSummary::Field>& fields, const QMap<QString, QString>& values, bool isFirst);
    const SelectionSummary& selectionSummary() const;
    // Refresh
    void applyScan(const FolderScan& scan);
    void removeRecords(const QList<int>& positions);
    void readChanged(const QList<QUrl>& urls);
    void readAdded(const QList<QUrl>& urls);
    void readForRefresh(const QList<QUrl>& urls, const std::function<void(const QList<ImageRecord>&)>& take);
    void takeChanged(const QList<ImageRecord>& fresh);
    void takeAdded(const QList<ImageRecord>& fresh);
    void endRefreshStep();
    // Drafts and batch
    ExternalRefresh::Drafts drafts() const;
    void setDrafts(ExternalRefresh::Drafts drafts);
    void reinitializeDrafts();
    void clearBatch();
    void foldBatchIntoDraft();
    bool isShown(const FieldSpec& field) const;
    void assignPlace(const LocationFill::Result& result, bool withPosition);
    // Saving
    void saveSingle();
    void saveBatch();
    void runWrite(const EditPlan& plan, const QList<QUrl>& urls);
    void checkSave(const SaveSnapshot& saved, const SaveJob::Written& written, const QSet<QUrl>& tooSlow = {});
    void takeSaved(const SaveJob::Checked& checked, const SaveSnapshot& saved);
    void reportSave(const SaveJob::Checked& checked, const SaveSnapshot& saved, const SaveJob::Written& written);
    bool selectUnsaved(const QList<QUrl>& urls, const SaveSnapshot& saved);
    void dropSavedBatch(const SaveSnapshot& saved, const QSet<QString>& differing);
    QSet<QString> editsSince(const SaveSnapshot& saved, const QSet<QString>& differing) const;
    void endSave(bool succeeded);
    void openHistory();
    void updateCanUndoSave();
    void finishUndo(const SaveHistory::Undone& undone);
    // Renaming
    QMap<QString, QString> renameValues(const ImageRecord& record) const;
    QString newFileName(const ImageRecord& record) const;
    void takeRenamed(const QUrl& source, const QUrl& destination);
    // Preferences
    void readPreferences();
    template <typename T>
    void setPreference(T& member, const T& value, Signal changed, const QString& key);
    void recordRecent(const QList<QUrl>& urls);
    void storeRecents(const QStringList& paths);

    AppModelServices m_services;
    QList<ImageRecord> m_records;
    RecordIndex m_index;
    QList<int> m_visibleRows;
    QString m_folderName;
    std::optional<QUrl> m_folderURL;
    QString m_search;
    QString m_needle;  ///< the search as it is compared: trimmed, lower case
    RecordSortOrder m_sortOrder = RecordSortOrder::nameAsc;
    QSet<QUrl> m_selection;
    std::optional<QUrl> m_primary;
    std::optional<QUrl> m_anchor;
    mutable std::optional<QList<int>> m_selectedRows;
    mutable std::optional<SelectionSummary> m_selectionSummary;
    mutable std::optional<QStringList> m_keywordsByUse;
    bool m_isWorking = false;
    bool m_isSaving = false;
    std::optional<Progress> m_progress;
    std::optional<QString> m_stalledFile;
    std::optional<QUrl> m_stalledURL;
    StallWatch m_stallWatch;
    QSet<QUrl> m_tooSlow;  ///< files of the open folder that the user skipped
    std::shared_ptr<SaveHistory> m_history;  ///< null when no save can be undone
    bool m_hasUndo = false;
    bool m_canUndoSave = false;
    std::optional<QString> m_errorMessage;
    bool m_saveOpen = false;
    bool m_addOpen = false;
    bool m_renameOpen = false;
    QMap<QString, QString> m_draftValues;
    QMap<QString, QStringList> m_draftLists;
    QList<CustomValue> m_draftCustoms;
    QSet<QString> m_editedSingle;
    QSet<QString> m_sessionAddedKnownIDs;
    QSet<QString> m_batchInclude;
    QMap<QString, QString> m_batchValues;
    QMap<QString, QStringList> m_batchLists;
    QList<CustomValue> m_batchCustoms;
    bool m_batchDontAskSession = false;
    bool m_showNamespace = false;
    bool m_backupOriginals = true;
    bool m_writeSidecar = false;
    bool m_confirmMassEdit = true;
    bool m_saveDontAsk = false;
    QString m_placeService;
    QString m_renamePattern;
    bool m_stripSpecialChars = true;
    std::optional<ColorScheme> m_colorOverride;
    QStringList m_recentPaths;
    std::unique_ptr<FolderWatcher> m_watcher;

    std::vector<Task> m_tasks;
    std::vector<Task> m_quietReads;  ///< reads of a refresh that are not shown
    int m_lastTaskID = 0;
    QTimer m_progressTimer;
    std::function<void()> m_waiting;  ///< asked for again after a save or a discard
    QSet<QUrl> m_beingWritten;
    int m_selectionSerial = 0;  ///< counts committed selections
    int m_generation = 0;  ///< counts what was opened; results for an earlier one are dropped
    int m_diskSerial = 0;  ///< counts our own doings that make a look at the folder out of date
    bool m_lastSaveFailed = false;  ///< some of its edits are still unsaved
    int m_saveSerial = 0;  ///< counts beginnings and ends of saves
    bool m_isRefreshing = false;
    bool m_refreshAgain = false;
    int m_refreshReads = 0;
    bool m_passedOverWritten = false;  ///< a refresh left out photos that were being written
    int m_updateDepth = 0;
    std::vector<Signal> m_announcements;
};

}  // namespace Quorbel
