#include "app/model/saving/Saving.h"

#include "app/model/Background.h"
#include "app/model/saving/SaveReasons.h"
#include "core/language/Texts.h"
#include "core/save/Agreement.h"

#include <QPointer>
#include <QTimer>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

QString couldNotSave(const QString& reason)
{
    return Texts::tr("Could not save: %1").arg(reason);
}

std::optional<QString> messageOf(
    const SaveJob::Checked& checked, const SaveJob::Written& written, qsizetype targetCount)
{
    if (checked.error && written.error)
        return couldNotSave(*written.error);
    if (checked.error)
        return Texts::tr("Could not read metadata: %1").arg(*checked.error);
    QStringList texts;
    if (!checked.failures.isEmpty())
        texts.append(SaveJob::failuresText(checked.failures, targetCount));
    if (!checked.differences.isEmpty())
        texts.append(SaveReasons::differencesText(checked.differences, written));
    if (const QString notes = SaveReasons::notesText(written.notes); !notes.isEmpty())
        texts.append(notes);
    if (!checked.joined.isEmpty())
        texts.append(SaveJob::joinedText(checked.joined));
    return texts.isEmpty() ? std::nullopt : std::optional(texts.join(u". "_s));
}

// What is asked of the photos that have edits of their own.
SaveJob::Order withOwnPlans(SaveJob::Order order, const Edits& edits)
{
    for (const QUrl& photo : std::as_const(order.targets))
        if (edits.own.contains(photo))
            order.own.insert(photo, edits.of(photo).plan());
    return order;
}

// Dates are shown to the minute: homes that are made to agree get back the seconds that the photos hold.
SaveJob::Order withSeconds(const MetadataService& service, SaveJob::Order order)
{
    QList<QUrl> dated;
    QStringList tags;
    for (const QUrl& photo : std::as_const(order.targets))
        if (const QStringList own = Agreement::dateTags(order.own.value(photo), service.sidecars.isBeside(photo));
            !own.isEmpty()) {
            dated.append(photo);
            tags += own;
        }
    tags.removeDuplicates();
    if (dated.isEmpty())
        return order;
    try {
        const QHash<QUrl, FileTags> stored = service.stored(tags, dated);
        for (auto held = stored.cbegin(); held != stored.cend(); ++held)
            order.own[held.key()] =
                Agreement::withSeconds(order.own.value(held.key()), *held, service.sidecars.isBeside(held.key()));
    } catch (const std::exception&) {
        // What cannot be read cannot be written either.
    }
    return order;
}

SaveOutcome outcomeOf(const SaveJob::Checked& checked, const SaveJob::Written& written, const Edits& edits)
{
    SaveOutcome outcome{ .records = checked.records, .message = messageOf(checked, written, edits.subjects.size()) };
    outcome.differing = QSet<QString>(checked.differences.cbegin(), checked.differences.cend());
    for (const FileFailure& failure : checked.failures)
        outcome.failed.append(failure.file);
    // Nobody knows what files hold that could not be read again.
    if (checked.error)
        outcome.failed = edits.subjects;
    if (!outcome.failed.isEmpty()) {
        outcome.unsaved = edits.onlyOf(QSet<QUrl>(outcome.failed.cbegin(), outcome.failed.cend()));
    } else if (!outcome.differing.isEmpty()) {
        outcome.unsaved = edits.minus(edits, outcome.differing);
    }
    outcome.homesToLeaveOut = SaveReasons::homesToLeaveOut(written.refusedHomes);
    outcome.isGood = outcome.failed.isEmpty() && outcome.differing.isEmpty();
    return outcome;
}

// So many records are put into the list in one turn.
constexpr qsizetype pieceSize = 250;

}  // namespace

Saving::Saving(Announcer& announcer, RunningTasks& tasks, FolderRefresh& refresh,
    std::optional<MetadataService> service, const QString& journalPath, std::chrono::milliseconds patience,
    std::shared_ptr<RecordCache> cache)
    : m_announcer(announcer)
    , m_tasks(tasks)
    , m_refresh(refresh)
    , m_service(std::move(service))
    , m_cache(std::move(cache))
    , m_patience(patience)
{
    connect(&m_refresh, &FolderRefresh::reread, this, [this](const QList<QUrl>& photos) {
        const auto isLookedAt = [this](const QUrl& photo) { return m_look->photos().contains(photo); };
        if (m_look && std::any_of(photos.cbegin(), photos.cend(), isLookedAt))
            dropLook();
    });
    if (m_service && !journalPath.isEmpty())
        openHistory(journalPath);
}

Saving::~Saving()
{
    dropLook();
}

// What was looked at may not be what is going to be written.
void Saving::setSidecars(const SidecarPolicy& policy)
{
    if (m_service)
        m_service->sidecars = policy;
    dropLook();
}

void Saving::dropLook()
{
    if (const auto look = std::exchange(m_look, nullptr))
        look->giveUp();
}

// Quiet: nothing waits for it but a save of just these photos.
void Saving::lookAhead(const QSet<QUrl>& photos, bool areEdited)
{
    if (m_look && m_look->photos() != photos)
        dropLook();
    if (m_look || m_isSaving || !m_history || !areEdited || photos.size() > EarlyLook::mostPhotos)
        return;
    m_look = std::make_shared<EarlyLook>(photos, m_patience);
    runInBackground(
        this, [service = *m_service, look = m_look] { look->look(service); }, [] {});
}

// Whether there is anything to undo takes a look at the disk.
void Saving::openHistory(const QString& journalPath)
{
    m_history = std::make_shared<SaveHistory>(journalPath);
    runInBackground(
        this, [history = m_history] { return history->open(); },
        [this](const SaveHistory::Undoable& last) {
            // A save that has ended since then knows better.
            if (m_undo.save.number <= last.number)
                setUndoable(last);
        });
}

void Saving::setUndoable(const SaveHistory::Undoable& save)
{
    m_announcer.assign(m_undo, Undo{ save, save.photos > 0 && !m_isSaving }, Change::canUndoSave);
}

void Saving::reserve()
{
    m_announcer.assign(m_isSaving, true, Change::isSaving);
    setUndoable(m_undo.save);
}

void Saving::release(bool isGood)
{
    m_announcer.assign(m_isSaving, false, Change::isSaving);
    setUndoable(m_undo.save);
    emit ended(isGood);
}

void Saving::begin(const QList<QUrl>& photos)
{
    reserve();
    m_refresh.beginWriting(QSet<QUrl>(photos.cbegin(), photos.cend()));
}

void Saving::end(bool isGood)
{
    m_announcer.assign(m_isSaving, false, Change::isSaving);
    setUndoable(m_undo.save);
    // A failed write may have done some of its files.
    m_refresh.endWriting(isGood);
    emit ended(isGood);
}

void Saving::save(const Edits& edits, const WriteOptions& options, const SaveJob::SeenLists& seen)
{
    write(edits, { edits.plan(), edits.subjects, options, seen, std::exchange(m_look, nullptr) });
}

void Saving::makeAgree(const QHash<QUrl, EditPlan>& plans, const WriteOptions& options)
{
    dropLook();
    SaveJob::Order order{ .targets = plans.keys(), .options = options, .own = plans, .isAgreement = true };
    std::sort(order.targets.begin(), order.targets.end());
    for (auto plan = plans.cbegin(); plan != plans.cend(); ++plan)
        if (!plan->lists.isEmpty())
            order.seen.insert(plan.key(), plan->lists);
    write({ .subjects = order.targets }, order);
}

void Saving::moveOver(const SaveJob::Order& order)
{
    dropLook();
    write({ .subjects = order.targets }, order);
}

void Saving::write(const Edits& edits, const SaveJob::Order& order)
{
    const Announcer::Together together(m_announcer);
    begin(edits.subjects);
    const RunningTasks::Task task = m_tasks.begin(RunningTasks::Kind::write, edits.subjects.size());
    runInBackground(
        this,
        [service = *m_service, edits, order, history = m_history, progress = task.progress] {
            const SaveJob::Order whole = order.isAgreement ? withSeconds(service, order) : withOwnPlans(order, edits);
            return SaveJob::run(service, whole, history, *progress);
        },
        [this, edits, order, id = task.id](const SaveJob::Written& written) {
            {
                const Announcer::Together done(m_announcer);
                if (written.mayBeSaved)
                    check(edits, order, written);
                m_tasks.end(id);
            }
            if (written.mayBeSaved)
                return;
            takeUndoable(written);
            finish({ .unsaved = edits,
                .failed = edits.subjects,
                .message = couldNotSave(*written.error),
                .homesToLeaveOut = SaveReasons::homesToLeaveOut(written.refusedHomes) });
        });
}

void Saving::takeUndoable(const SaveJob::Written& written)
{
    if (written.undoable.valid())
        setUndoable(written.undoable.get());
}

void Saving::check(
    const Edits& edits, const SaveJob::Order& order, const SaveJob::Written& written, const QSet<QUrl>& tooSlow)
{
    const RunningTasks::Task task = m_tasks.begin(RunningTasks::Kind::check, edits.subjects.size(), edits.subjects);
    runInBackground(
        this,
        [service = *m_service, cache = m_cache, order, written, tooSlow, progress = task.progress,
            stop = task.stop.get_token()] {
            return SaveJob::check(service, order, written, tooSlow, *progress, stop, cache);
        },
        [this, edits, order, written, tooSlow, id = task.id](const SaveJob::Checked& checked) {
            {
                const Announcer::Together done(m_announcer);
                const std::optional<RunningTasks::Task> ended = m_tasks.end(id);
                if (ended && ended->skipped)
                    return check(edits, order, written, QSet(tooSlow) << *ended->skipped);
                takeUndoable(written);
            }
            SaveJob::Checked told = checked;
            if (order.isAgreement)
                told.joined.clear();
            SaveOutcome outcome = outcomeOf(told, written, edits);
            outcome.sidecars = order.sidecars;
            finish(outcome);
        });
}

void Saving::finish(const SaveOutcome& outcome)
{
    tell(outcome, &Saving::saved);
}

// The records of thousands of photos in one turn would keep the window waiting.
void Saving::tell(const SaveOutcome& outcome, void (Saving::*what)(const SaveOutcome&), qsizetype from)
{
    // Who hears of it may destroy the model.
    const QPointer<Saving> self(this);
    {
        const Announcer::Together together(m_announcer);
        emit reread(outcome.records.mid(from, pieceSize));
        if (from + pieceSize < outcome.records.size()) {
            QTimer::singleShot(0, this, [=, this] { tell(outcome, what, from + pieceSize); });
            return;
        }
        emit(this->*what)(outcome);
    }
    if (self)
        end(outcome.isGood);
}

void Saving::undo(const std::function<QList<QUrl>(const QList<QUrl>&)>& open)
{
    if (!m_undo.isPossible)
        return;
    const Announcer::Together together(m_announcer);
    begin({});
    const RunningTasks::Task task = m_tasks.begin(RunningTasks::Kind::write, 0);
    runInBackground(
        this, [history = m_history, save = m_undo.save.number] { return history->photosOf(save); },
        [this, open, save = m_undo.save.number, id = task.id](const QList<QUrl>& saved) {
            const Announcer::Together begins(m_announcer);
            putBack(save, open(saved));
            m_tasks.end(id);
        });
}

void Saving::putBack(qint64 save, const QList<QUrl>& open)
{
    m_refresh.beginWriting(QSet<QUrl>(open.cbegin(), open.cend()));
    const RunningTasks::Task task = m_tasks.begin(RunningTasks::Kind::write, 0);
    runInBackground(
        this,
        [service = *m_service, cache = m_cache, history = m_history, save, open, progress = task.progress] {
            return history->undo(service, save, open, *progress, cache);
        },
        [this, id = task.id](const SaveHistory::Undone& result) {
            {
                const Announcer::Together done(m_announcer);
                m_tasks.end(id);
                setUndoable(result.next);
            }
            tell({ .records = result.records, .message = SaveHistory::text(result), .isGood = !result.error },
                &Saving::undone);
        });
}

void Saving::noteRename(const QUrl& from, const QUrl& to)
{
    if (!m_history)
        return;
    m_history->noteRename(from.toLocalFile(), to.toLocalFile());
    nameAgain();
}

void Saving::nameAgain()
{
    if (!m_history)
        return;
    runInBackground(
        this,
        [history = m_history] {
            history->storeRenames();
            return history->latest();
        },
        [this](const SaveHistory::Undoable& last) {
            if (m_undo.save.number == last.number)
                setUndoable(last);
        });
}

}  // namespace Quorbel
