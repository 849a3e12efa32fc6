#include "app/model/renaming/PhotosRenaming.h"

#include "app/model/AppModel.h"
#include "app/model/Background.h"
#include "app/model/library/cache/RecordCache.h"
#include "app/model/pairs/Pairing.h"
#include "core/language/Texts.h"
#include "core/text/Text.h"

#include <QFileInfo>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// While photos change one after the other, names are worked out anew no more often than this.
constexpr std::chrono::milliseconds rest{ 150 };

RenameHistory::Tell tellTo(const std::shared_ptr<SaveHistory>& saves)
{
    if (!saves)
        return {};
    return [saves](const QString& id, const RenameHistory::Paths& photos) { saves->noteRenamesTogether(id, photos); };
}

NewNames namesOf(const RenameHistory::Outcome& outcome)
{
    QList<std::pair<QUrl, QUrl>> names;
    for (const auto& [from, to] : outcome.photos)
        names.append({ QUrl::fromLocalFile(from), QUrl::fromLocalFile(to) });
    return NewNames(names);
}

// Where a shot is one photo, all of its files go along.
std::shared_ptr<const RenameSet> setOf(const QList<ImageRecord>& photos, bool isPairing)
{
    QHash<QString, FolderListing> folders;
    for (const ImageRecord& photo : photos)
        if (const QString folder = QFileInfo(photo.url.toLocalFile()).path(); !folders.contains(folder))
            folders.insert(folder, FolderListing::of(folder));
    using Kind = CompanionNames::Kind;
    return std::make_shared<const RenameSet>(photos, folders, isPairing ? Kind::all : Kind::ofMetadata);
}

// "3 of 12 photos keep their names.", where some do not.
QString keptText(qsizetype kept, qsizetype all)
{
    if (kept == all)
        return all == 1 ? Texts::tr("It keeps its name.") : Texts::tr("All photos keep their names.");
    return Texts::tr("%1 of %n photo(s) keep their names.", nullptr, all).arg(kept);
}

}  // namespace

PhotosRenaming::PhotosRenaming(AppModel& model, Parts parts)
    : pattern(model.preferences(), "renamePhotosPattern", u"%Date%_%Title%_%Counter%"_s)
    , counterStart(model.preferences(), "renamePhotosStart", 1)
    , counterStep(model.preferences(), "renamePhotosStep", 1)
    , counterDigits(model.preferences(), "renamePhotosDigits", 4)
    , m_model(model)
    , m_parts(std::move(parts))
    , m_history(std::make_shared<RenameHistory>(m_parts.journalPath, tellTo(m_parts.saving.history())))
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(rest);
    connect(&m_soon, &QTimer::timeout, this, &PhotosRenaming::prepare);
    connect(&model, &AppModel::selectionChanged, this, &PhotosRenaming::followSelection);
    connect(&model, &AppModel::recordsChanged, this, [this] {
        if (m_isOpen && !isRunning() && !m_soon.isActive())
            m_soon.start();
    });
    connect(&model.preferences(), &Preferences::changed, this, &PhotosRenaming::workOut);
    connect(&model, &AppModel::progressChanged, this, [this] {
        if (isRunning())
            emit progressChanged();
    });
    for (const auto change : { &AppModel::isSavingChanged, &AppModel::isWorkingChanged })
        connect(&model, change, this, &PhotosRenaming::undoChanged);
    connect(&m_parts.saving, &Saving::ended, this, &PhotosRenaming::goOn);
    connect(&m_parts.tasks, &RunningTasks::busyChanged, this, [this] {
        if (m_undoesSoon && !m_parts.tasks.isBusy())
            undo();
    });
    if (!m_parts.journalPath.isEmpty())
        runInBackground(
            this, [history = m_history] { return history->open(); },
            [this](const RenameHistory::Undoable& last) {
                if (!isRunning() && m_undoable.number <= last.number)
                    setUndoable(last);
            });
}

PhotosRenaming::~PhotosRenaming() = default;

// --- The sheet ---

bool PhotosRenaming::canOpen() const
{
    return m_model.isBatch() && !isRunning();
}

void PhotosRenaming::open()
{
    requireMainThread("PhotosRenaming::open");
    if (m_parts.endEditing)
        m_parts.endEditing();
    if (!canOpen() || m_isOpen)
        return;
    if (m_model.unsavedCount() > 0 || m_model.isSaving())
        return m_parts.holdBack([this] { open(); });
    m_isOpen = true;
    m_selected = m_model.selection();
    prepare();
    emit openChanged();
}

void PhotosRenaming::close()
{
    requireMainThread("PhotosRenaming::close");
    if (!m_isOpen || isRunning())
        return;
    m_isOpen = false;
    m_soon.stop();
    ++m_generation;
    if (m_working)
        m_working->request_stop();
    m_renamesSoon.reset();
    // Of many photos even that takes its time.
    discardInBackground(std::exchange(m_set, {}));
    discardInBackground(std::exchange(m_plan, {}));
    m_planned.reset();
    m_unread.clear();
    emit openChanged();
}

// It is about these photos; another selection, or none, is another matter.
void PhotosRenaming::followSelection()
{
    if (!m_isOpen || isRunning() || m_model.selection() == m_selected)
        return;
    if (!m_model.isBatch())
        return close();
    m_selected = m_model.selection();
    m_renamesSoon.reset();
    prepare();
}

RenameOrder PhotosRenaming::order() const
{
    return { pattern(), { counterStart(), counterStep(), counterDigits() }, m_model.preferences().stripSpecialChars() };
}

bool PhotosRenaming::hasCounter() const
{
    return TokenText::parse(pattern()).has(TokenKind::counter);
}

bool PhotosRenaming::isCurrent() const
{
    return m_plan && m_planned == order() && m_plannedGeneration == m_generation && !m_soon.isActive()
        && m_unread.isEmpty();
}

// As on screen; those that search or filter hide come last.
QList<ImageRecord> PhotosRenaming::selectedInOrder() const
{
    QList<ImageRecord> photos;
    photos.reserve(m_selected.size());
    QSet<int> hidden(m_model.selectedRows().cbegin(), m_model.selectedRows().cend());
    const auto add = [&](int row) {
        if (hidden.remove(row))
            photos.append(m_model.records().at(row));
    };
    for (const int row : m_model.visibleRows())
        add(row);
    for (const int row : m_model.selectedRows())
        add(row);
    return photos;
}

void PhotosRenaming::prepare()
{
    m_soon.stop();
    const QList<ImageRecord> photos = selectedInOrder();
    m_photos = photos.size();
    m_unread.clear();
    for (const ImageRecord& photo : photos)
        if (photo.isUnread)
            m_unread.insert(photo.url);
    if (!m_unread.isEmpty())
        m_parts.library.require(m_unread.values());
    emit planChanged();
    runInBackground(
        this, [photos, isPairing = m_model.pairing().isOn()] { return setOf(photos, isPairing); },
        [this, generation = ++m_generation](const std::shared_ptr<const RenameSet>& set) {
            if (m_isOpen && generation == m_generation)
                takeSet(set);
        });
}

void PhotosRenaming::takeSet(const std::shared_ptr<const RenameSet>& set)
{
    discardInBackground(std::exchange(m_set, set));
    m_planned.reset();
    requireUnread(set->along());
    workOut();
}

// What goes along is renamed in the list, too: not while it is being read under its old name.
void PhotosRenaming::requireUnread(const QList<QUrl>& along)
{
    QList<QUrl> unread;
    for (const QUrl& photo : along)
        if (const ImageRecord* record = m_model.record(photo); record && record->isUnread)
            unread.append(photo);
    if (unread.isEmpty())
        return;
    m_unread += QSet<QUrl>(unread.cbegin(), unread.cend());
    m_parts.library.require(unread);
}

void PhotosRenaming::workOut()
{
    if (!m_isOpen || isRunning())
        return;
    const RenameOrder wanted = order();
    if (m_renamesSoon != wanted)
        m_renamesSoon.reset();
    if (!m_set) {
        // It comes, and asks again.
    } else if (m_working) {
        // What is worked out now answers no one.
        m_working->request_stop();
    } else if (m_planned != wanted) {
        m_working.emplace();
        runInBackground(
            this,
            [set = m_set, wanted, stop = m_working->get_token()] {
                return std::make_shared<const RenamePlan>(set->plan(wanted, stop));
            },
            [this, set = m_set, wanted, stop = m_working->get_token()](const std::shared_ptr<const RenamePlan>& plan) {
                m_working.reset();
                if (stop.stop_requested() || set != m_set || !m_isOpen)
                    workOut();
                else
                    takePlan(plan, wanted);
            });
    }
    emit planChanged();
}

void PhotosRenaming::takePlan(const std::shared_ptr<const RenamePlan>& plan, const RenameOrder& order)
{
    discardInBackground(std::exchange(m_plan, plan));
    m_planned = order;
    m_plannedGeneration = m_generation;
    emit planChanged();
    if (m_renamesSoon)
        rename();
}

// --- The rename ---

bool PhotosRenaming::canRename() const
{
    return m_isOpen && !isRunning() && m_plan && m_plan->isPossible && m_plan->renamed > 0 && m_unread.isEmpty()
        && !Text::trimmed(pattern()).isEmpty();
}

void PhotosRenaming::rename()
{
    requireMainThread("PhotosRenaming::rename");
    if (!m_isOpen || isRunning())
        return;
    m_renamesSoon = order();
    if (!isCurrent() || m_model.isSaving()) {
        emit planChanged();
        return;
    }
    m_renamesSoon.reset();
    if (!canRename()) {
        emit planChanged();
        return;
    }
    run(m_plan);
}

void PhotosRenaming::renameShot(const QList<ImageRecord>& files, const QString& base)
{
    requireMainThread("PhotosRenaming::renameShot");
    if (isRunning() || m_model.isSaving() || files.isEmpty())
        return;
    // It is a text, whatever tokens it looks like.
    const RenameOrder order{ .pattern = TokenText{ .pieces = { { base } } }.pattern(), .strict = false };
    const auto plan = std::make_shared<const RenamePlan>(setOf(files, true)->plan(order));
    for (const RenameRow& row : plan->rows)
        if (row.obstacle != RenameRow::Obstacle::none)
            //: %1 is the photo, %2 why
            return m_model.setErrorMessage(Texts::tr("Could not rename: %1: %2.").arg(row.oldName, row.words()));
    if (plan->renamed > 0)
        run(plan);
}

void PhotosRenaming::run(const std::shared_ptr<const RenamePlan>& plan)
{
    qsizetype photos = 0;
    for (const FolderRenaming& folder : plan->folders)
        photos += std::count_if(
            folder.files.cbegin(), folder.files.cend(), [](const FileRenaming& file) { return file.isPhoto; });
    run(
        photos,
        [plan](RenameHistory& history, const RenameHistory::GoesOn& goesOn) {
            return history.rename(plan->folders, goesOn);
        },
        [photos](const RenameHistory::Outcome& outcome) {
            const qsizetype kept = photos - outcome.photos.size();
            if (!outcome.problems.isEmpty())
                //: %1 is why, %2 says how many photos keep their names
                return Texts::tr("Could not rename: %1. %2")
                    .arg(Text::listed(outcome.problems), keptText(kept, photos));
            return outcome.isGivenUp && kept < photos ? keptText(kept, photos) : QString();
        });
}

// A save has ended. One that failed is told of: who sees that decides anew.
void PhotosRenaming::goOn(bool isGood)
{
    if (!m_renamesSoon)
        return;
    if (isGood)
        return rename();
    m_renamesSoon.reset();
    emit planChanged();
}

bool PhotosRenaming::isWaiting() const
{
    return m_renamesSoon && m_model.isSaving();
}

bool PhotosRenaming::canUndo() const
{
    return m_undoable.photos > 0 && !isRunning() && !m_undoesSoon && !m_model.isSaving() && !m_model.isWorking();
}

void PhotosRenaming::undo()
{
    requireMainThread("PhotosRenaming::undo");
    m_undoesSoon = false;
    if (!canUndo())
        return;
    // What is being read would not be found any more.
    if (m_parts.tasks.isBusy()) {
        m_undoesSoon = true;
        emit undoChanged();
        return;
    }
    run(
        m_undoable.photos,
        [number = m_undoable.number](
            RenameHistory& history, const RenameHistory::GoesOn& goesOn) { return history.undo(number, goesOn); },
        [photos = m_undoable.photos](const RenameHistory::Outcome& outcome) {
            const qsizetype kept = photos - outcome.photos.size();
            if (!outcome.problems.isEmpty())
                //: %1 is why, %2 says how many photos keep their names
                return Texts::tr("Could not undo the rename: %1. %2")
                    .arg(Text::listed(outcome.problems), keptText(kept, photos));
            return outcome.isGivenUp && kept < photos ? keptText(kept, photos) : QString();
        });
}

void PhotosRenaming::run(
    qsizetype photos, const Job& job, const std::function<QString(const RenameHistory::Outcome&)>& textOf)
{
    const Announcer::Together together(m_parts.announcer);
    m_stop.emplace();
    m_total = photos;
    m_parts.saving.reserve();
    m_parts.library.refresh().beginRenaming();
    const RunningTasks::Task task = m_parts.tasks.begin(RunningTasks::Kind::write, photos);
    m_task = task.id;
    emit progressChanged();
    emit undoChanged();
    runInBackground(
        this,
        [history = m_history, job, stop = m_stop->get_token(), progress = task.progress] {
            const RenameHistory::Outcome outcome = job(*history, [stop, progress](qsizetype done) {
                progress->done = done;
                return !stop.stop_requested();
            });
            return Result{ outcome, namesOf(outcome) };
        },
        [this, textOf](const Result& result) { finish(result, textOf(result.outcome)); });
}

qsizetype PhotosRenaming::done() const
{
    return isRunning() && m_model.progress() ? m_model.progress()->done : 0;
}

void PhotosRenaming::cancel()
{
    requireMainThread("PhotosRenaming::cancel");
    if (m_stop)
        m_stop->request_stop();
}

void PhotosRenaming::finish(const Result& result, const QString& message)
{
    const NewNames& names = result.names;
    const bool isGivenUp = result.outcome.isGivenUp;
    {
        const Announcer::Together together(m_parts.announcer);
        m_stop.reset();
        m_parts.tasks.end(m_task);
        takeNames(names);
        m_parts.library.refresh().endRenaming(names);
        setUndoable(result.outcome.next);
        if (!message.isEmpty())
            m_model.setErrorMessage(message);
        if (!isGivenUp)
            close();
        m_parts.saving.nameAgain();
    }
    emit progressChanged();
    if (m_isOpen) {
        m_selected = m_model.selection();
        prepare();
    }
    // In a turn of its own.
    QTimer::singleShot(0, this, [this, names] { keepInCache(names); });
    // Last: what waited for it may be the end of the program.
    m_parts.saving.release(true);
}

// The drafts stay: they belong to the same photos.
void PhotosRenaming::takeNames(const NewNames& names)
{
    if (names.isEmpty())
        return;
    if (onImagesRenamed)
        onImagesRenamed(names);
    // A name was free: the photo that had it is gone, and nobody has told us yet.
    PhotoList& photos = m_parts.library.photos();
    QList<int> gone;
    for (const auto& [source, destination] : names.list())
        if (const int at = photos.position(destination); at >= 0 && names.isReplaced(destination))
            gone.append(at);
    std::sort(gone.begin(), gone.end());
    if (!gone.isEmpty())
        m_parts.takeVanished(gone);
    photos.rename(names);
    m_parts.library.details().rename(names);
    m_parts.editing.rename(names);
}

// What was read of them is known under their new names, too: else they would be read again when they are next opened.
void PhotosRenaming::keepInCache(const NewNames& names)
{
    if (!m_parts.cache || names.isEmpty())
        return;
    QList<ImageRecord> records;
    QHash<QUrl, PhotoDetails> details;
    for (const auto& [source, destination] : names.list()) {
        const ImageRecord* record = m_model.record(destination);
        if (!record || record->isUnread)
            continue;
        records.append(*record);
        if (const PhotoDetails* known = m_parts.library.details().store().find(destination)) {
            details.insert(destination, *known);
            details[destination].url = destination;
        }
    }
    runPatiently(
        this,
        [cache = m_parts.cache, sidecars = m_model.sidecarPolicy(), records, details] {
            QList<PhotoFile> files;
            QList<RecordCache::Read> reads;
            QList<RecordCache::DetailsRead> detailsReads;
            for (const ImageRecord& record : records) {
                const std::optional<PhotoFile> file = PhotoFile::at(record.url, sidecars).file;
                // As it was when it was read, and as the system tells it.
                if (!file || !file->isOf(record) || record.creationDate != file->creationDate()
                    || record.fileSize != file->size)
                    continue;
                files.append(*file);
                reads.append({ *file, record });
                if (const auto known = details.constFind(record.url); known != details.cend())
                    detailsReads.append({ *file, *known });
            }
            const RecordCache::Beginning beginning = cache->begin(files);
            cache->put(beginning, reads);
            cache->putDetails(beginning, detailsReads);
        },
        [] {});
}

void PhotosRenaming::setUndoable(const RenameHistory::Undoable& undoable)
{
    m_undoable = undoable;
    emit undoChanged();
}

void PhotosRenaming::lookAgain()
{
    if (m_undoable.photos == 0)
        return;
    runInBackground(
        this, [history = m_history] { return history->latest(); },
        [this](const RenameHistory::Undoable& last) {
            if (!isRunning())
                setUndoable(last);
        });
}

}  // namespace Quorbel
