// New names for several photos at once, from a pattern and what is saved in them: what the sheet shows, the rename
// itself, and taking it back.
// Thread: the main thread; names are worked out and files moved in the background. Knows no widget.
#pragma once

#include "app/model/Preferences.h"
#include "core/renaming/NewNames.h"
#include "core/renaming/RenameHistory.h"
#include "core/renaming/RenameSet.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <stop_token>

namespace Quorbel {

class Announcer;
class AppModel;
class Editing;
class Library;
class RecordCache;
class RunningTasks;
class Saving;

class PhotosRenaming final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PhotosRenaming)

public:
    /// What is needed of the model's own parts. All outlive this.
    struct Parts {
        Announcer& announcer;
        RunningTasks& tasks;
        Library& library;
        Editing& editing;
        Saving& saving;
        std::shared_ptr<RecordCache> cache{};
        QString journalPath{};  ///< folder of the renames that can be taken back; empty: none can
        std::function<void()> endEditing{};
        /// Asked for again once edits are saved or discarded, and no save runs; not at all after a cancel.
        std::function<void(std::function<void()>)> holdBack{};
        std::function<void(const QList<int>& positions)> takeVanished{};
    };

    PhotosRenaming(AppModel& model, Parts parts);
    ~PhotosRenaming() override;

    // --- The sheet ---
    /// Whether several photos are selected.
    bool canOpen() const;
    /// Shows the sheet about the selected photos, after a question while edits of them are unsaved.
    void open();
    void close();
    bool isOpen() const { return m_isOpen; }
    Setting<QString> pattern;
    /// Of the counter: what it begins with, by how much it grows, how many digits it has at least.
    Setting<int> counterStart;
    Setting<int> counterStep;
    Setting<int> counterDigits;
    RenameOrder order() const;
    bool hasCounter() const;
    qsizetype photos() const { return m_photos; }
    /// What the last pattern gave that was worked out; null before the first one was. isCurrent(): it is the pattern's.
    const std::shared_ptr<const RenamePlan>& plan() const { return m_plan; }
    bool isCurrent() const;
    /// How many photos are still to be read before names can be told.
    qsizetype unread() const { return m_unread.size(); }

    // --- The rename ---
    bool canRename() const;
    /// Once the names of the pattern are worked out and no save runs; not at all after a save that failed, or with
    /// another pattern by then. Closes the sheet at its end, unless it is given up.
    void rename();
    /// Gives the files of one shot this base name, or one with a number behind it that is free for all of them, with
    /// all that goes along: all or nothing, and it can be taken back. Nothing may be being saved.
    void renameShot(const QList<ImageRecord>& files, const QString& base);
    /// Whether it begins as soon as a save has ended.
    bool isWaiting() const;
    bool isRunning() const { return m_stop.has_value(); }
    /// How far it is.
    qsizetype done() const;
    qsizetype total() const { return m_total; }
    /// Gives up what runs: the folder that it is at gets its old names back.
    void cancel();
    /// Whether the last rename, perhaps of an earlier run of the program, can be taken back now.
    bool canUndo() const;
    /// "Undo Rename of 40 Photos": which rename that is.
    QString undoText() const { return RenameHistory::name(m_undoable); }
    void undo();
    /// A photo was renamed elsewhere: perhaps the last rename cannot be taken back any more.
    void lookAgain();

    /// Set by the view layer: photos got other names, before the records say so.
    std::function<void(const NewNames&)> onImagesRenamed{};

signals:
    void openChanged();
    /// plan(), isCurrent(), unread(), isWaiting() or what they are made of.
    void planChanged();
    /// isRunning() or done().
    void progressChanged();
    /// canUndo() or undoText().
    void undoChanged();

private:
    void followSelection();
    void prepare();
    void takeSet(const std::shared_ptr<const RenameSet>& set);
    void requireUnread(const QList<QUrl>& along);
    void workOut();
    void takePlan(const std::shared_ptr<const RenamePlan>& plan, const RenameOrder& order);
    void run(const std::shared_ptr<const RenamePlan>& plan);
    using Job = std::function<RenameHistory::Outcome(RenameHistory&, const RenameHistory::GoesOn&)>;
    void run(qsizetype photos, const Job& job, const std::function<QString(const RenameHistory::Outcome&)>& textOf);
    struct Result {
        RenameHistory::Outcome outcome{};
        NewNames names{};
    };
    void goOn(bool isGood);
    void finish(const Result& result, const QString& message);
    void takeNames(const NewNames& names);
    void keepInCache(const NewNames& names);
    void setUndoable(const RenameHistory::Undoable& undoable);
    QList<ImageRecord> selectedInOrder() const;

    AppModel& m_model;
    Parts m_parts;
    std::shared_ptr<RenameHistory> m_history;
    RenameHistory::Undoable m_undoable;
    bool m_isOpen = false;
    QSet<QUrl> m_selected;  ///< what the sheet is about
    qsizetype m_photos = 0;
    QSet<QUrl> m_unread;
    QTimer m_soon;
    int m_generation = 0;  ///< counts the sets; what was worked out for an earlier one is dropped
    std::shared_ptr<const RenameSet> m_set;
    std::shared_ptr<const RenamePlan> m_plan;
    std::optional<RenameOrder> m_planned;  ///< what m_plan answers
    int m_plannedGeneration = 0;  ///< and of which set
    std::optional<std::stop_source> m_working;  ///< while names are worked out
    std::optional<RenameOrder> m_renamesSoon{};  ///< as soon as they are and no save runs
    std::optional<std::stop_source> m_stop;  ///< while files are moved
    int m_task = 0;
    qsizetype m_total = 0;
    bool m_undoesSoon = false;  ///< as soon as nothing is read
};

}  // namespace Quorbel
