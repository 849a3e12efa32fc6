// Saving and taking saves back: one at a time, in the background, from the write to the read that proves it.
// Thread: the main thread; SaveJob and SaveHistory do the work elsewhere. Knows no selection: a save carries the edits
// of its photos, and says at its end which photos still need which of them.
#pragma once

#include "app/model/RunningTasks.h"
#include "app/model/library/FolderRefresh.h"
#include "app/model/saving/SaveHistory.h"
#include "app/model/saving/SaveJob.h"
#include "core/save/Edits.h"

#include <functional>
#include <memory>

namespace Quorbel {

namespace ShiftJob {
struct Looked;
struct Order;
struct Written;
}  // namespace ShiftJob

/// What a save, or taking one back, came to.
struct SaveOutcome {
    QList<ImageRecord> records{};  ///< photos as they are now
    /// Of a save: what could not be saved, with the photos that still wait for it: those that failed, with all edits,
    /// or all photos with the fields of which some file holds something else. Empty: all is saved.
    Edits unsaved{};
    QSet<QString> differing{};  ///< keys of those fields
    QList<QUrl> failed{};  ///< photos that were not saved
    std::optional<QString> message{};  ///< for the banner
    QStringList homesToLeaveOut{};  ///< of a save: without these homes, photos that failed could be saved
    bool isGood = false;  ///< nothing is left to do
    /// Which photos were written beside, whatever the settings say; nothing: those that the settings name.
    std::optional<SidecarPolicy> sidecars{};
};

class Saving final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Saving)

public:
    /// `journalPath`: folder of the saves that can be taken back; empty: none can.
    /// `patience`: how long a look ahead may take before a save does without. `cache`: what is read after a write is
    /// put into it; null where there is none.
    Saving(Announcer& announcer, RunningTasks& tasks, FolderRefresh& refresh, std::optional<MetadataService> service,
        const QString& journalPath, std::chrono::milliseconds patience, std::shared_ptr<RecordCache> cache = {});
    ~Saving() override;

    /// Which photos keep their edits beside them, from now on. Needs that nothing is being saved.
    void setSidecars(const SidecarPolicy& policy);
    /// False without the tool.
    bool isPossible() const { return m_service.has_value(); }
    bool isSaving() const { return m_isSaving; }
    /// Whether the last save, perhaps of an earlier run of the program, can be taken back now.
    bool canUndo() const { return m_undo.isPossible; }
    /// "Undo Save of 12 photos": which save that is (SaveHistory::name).
    QString undoText() const { return SaveHistory::name(m_undo.save); }
    /// A save will follow, or release(): until then it counts as being saved.
    void reserve();
    /// No save follows, or what was reserved for was no save, and went well.
    void release(bool isGood = false);
    /// These photos are selected. As soon as they are edited, what a save of them would replace is read, so that the
    /// save need not; other photos make an end of that.
    void lookAhead(const QSet<QUrl>& photos, bool areEdited);
    /// Writes the edits to their subjects. Needs some of both, and that nothing is being saved. `seen`: what was on
    /// screen of the lists that the edits replace.
    void save(const Edits& edits, const WriteOptions& options, const SaveJob::SeenLists& seen);
    /// Writes to each of these photos what makes its homes agree (Agreement::plan()). Nothing of it is an edit: what
    /// could not be saved is only told.
    void makeAgree(const QHash<QUrl, EditPlan>& plans, const WriteOptions& options);
    /// Writes to each of these photos what its sidecar, or its file, holds (MovePlan). Nothing of it is an edit: what
    /// could not be saved is only told.
    void moveOver(const SaveJob::Order& order);
    /// Moves the times of these photos, or sets their zones (ShiftJob), proves it and keeps it for undoing. Needs some,
    /// and that nothing is being saved. What was not done is only told.
    void shiftTimes(const ShiftJob::Order& order, const ShiftJob::Looked& looked);
    /// Puts back what the last save replaced. Asks which photos of that save are open, once it knows what they are:
    /// these are read again.
    void undo(const std::function<QList<QUrl>(const QList<QUrl>& saved)>& open);
    /// A photo got another name: what can be taken back follows it.
    void noteRename(const QUrl& from, const QUrl& to);
    /// What can be taken back is called otherwise: the journal knows of other names by now.
    void nameAgain();
    /// For renames that tell it of themselves, in the background; null when no save can be taken back.
    const std::shared_ptr<SaveHistory>& history() const { return m_history; }

signals:
    /// Some photos as they are after a write, before either of the next two: many come in pieces, in turns of their
    /// own.
    void reread(const QList<ImageRecord>& some);
    /// The write has ended and its files were read again; still `isSaving`.
    void saved(const SaveOutcome& outcome);
    void undone(const SaveOutcome& outcome);
    /// After either: the next one may begin.
    void ended(bool isGood);

private:
    void begin(const QList<QUrl>& photos);
    void write(const Edits& edits, const SaveJob::Order& order);
    void end(bool isGood);
    void check(const Edits& edits, const SaveJob::Order& order, const SaveJob::Written& written,
        const QSet<QUrl>& tooSlow = {});
    void checkShift(const ShiftJob::Order& order, const ShiftJob::Written& written, const QSet<QUrl>& tooSlow = {});
    void finish(const SaveOutcome& outcome);
    void tell(const SaveOutcome& outcome, void (Saving::*what)(const SaveOutcome&), qsizetype from = 0);
    void openHistory(const QString& journalPath);
    void putBack(qint64 save, const QList<QUrl>& open);
    void setUndoable(const SaveHistory::Undoable& save);
    void takeUndoable(const SaveJob::Written& written);
    void dropLook();

    Announcer& m_announcer;
    RunningTasks& m_tasks;
    FolderRefresh& m_refresh;
    std::optional<MetadataService> m_service;
    std::shared_ptr<RecordCache> m_cache;
    std::shared_ptr<SaveHistory> m_history;  ///< null when no save can be taken back
    std::shared_ptr<EarlyLook> m_look;  ///< at the selected photos; null without one
    std::chrono::milliseconds m_patience;
    struct Undo {
        SaveHistory::Undoable save{};
        bool isPossible = false;
        bool operator==(const Undo&) const = default;
    };
    Undo m_undo;
    bool m_isSaving = false;
};

}  // namespace Quorbel
