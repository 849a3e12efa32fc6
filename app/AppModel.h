// The one observable state object: what is open, what is selected, what is being edited, and what is running.
// Thread: the main thread only; every public operation checks it, in release builds too. Reads and writes run in
// background tasks that capture values and hand their result back here; a destroyed model receives nothing.
// Knows no widget: views read its properties and call its operations.
#pragma once

#include "core/Coordinates.h"
#include "core/ExternalRefresh.h"
#include "core/FieldSchema.h"
#include "core/ImageRecord.h"
#include "core/LocationFill.h"
#include "core/MetadataService.h"
#include "core/RecordSortOrder.h"

#include <QDateTime>
#include <QObject>
#include <QSet>
#include <QSettings>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

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
    std::function<void()> endEditing{};                   ///< makes the field being typed into commit its text
    std::function<void(const QUrl&)> openUrl{};           ///< opens a file in the user's default application
    std::function<QDateTime()> now{};                     ///< local wall clock; the system's when empty
    std::function<void()> quit{};                         ///< ends the program; called by requestQuit()
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
    Q_PROPERTY(QString renamePattern READ renamePattern WRITE setRenamePattern NOTIFY renamePatternChanged)
    Q_PROPERTY(bool stripSpecialChars READ stripSpecialChars WRITE setStripSpecialChars NOTIFY stripSpecialCharsChanged)
    Q_PROPERTY(std::optional<ColorScheme> colorOverride READ colorOverride WRITE setColorOverride NOTIFY
            colorOverrideChanged)
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
    QString folderCountText() const;

    void openPanel();
    void load(const QList<QUrl>& urls);
    void tap(const QUrl& url, bool shift, bool command);
    void selectAllPhotos();
    void closeFolder();
    /// Compares the open folder with the records and re-reads what differs. Needs an open folder.
    void refresh();
    bool canRefresh() const;
    /// load(), closeFolder() and the end of the program, through the save dialog when there are unsaved edits.
    void requestLoad(const QList<QUrl>& urls);
    void requestClose();
    void requestQuit();
    void openFile(const QUrl& url);
    /// Ends a read that runs; what was open stays.
    void cancelRead();

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
    void renamePatternChanged();
    void stripSpecialCharsChanged();
    void colorOverrideChanged();
    void recentPathsChanged();
    /// The photos that pass the search, or their order, changed: visibleRows() has a new answer.
    void visibleRowsChanged();

private:
    // Completed by whoever implements it: see AppModel*.cpp.
    AppModelServices m_services;
    QList<ImageRecord> m_records;
    QString m_folderName;
    std::optional<QUrl> m_folderURL;
    QString m_search;
    RecordSortOrder m_sortOrder = RecordSortOrder::nameAsc;
    QSet<QUrl> m_selection;
    std::optional<QUrl> m_primary;
    std::optional<QUrl> m_anchor;
    bool m_isWorking = false;
    bool m_isSaving = false;
    std::optional<Progress> m_progress;
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
    QString m_renamePattern;
    bool m_stripSpecialChars = true;
    std::optional<ColorScheme> m_colorOverride;
    QStringList m_recentPaths;
    std::unique_ptr<FolderWatcher> m_watcher;
};

}  // namespace Quorbel
