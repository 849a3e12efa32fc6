#include "app/model/sidecars/MovingOver.h"

#include "app/model/AppModel.h"
#include "app/model/Background.h"
#include "core/language/Texts.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype slice = 250;  // a few seconds of camera files

SaveJob::Order orderFor(const MoveLook::Order& asked, const MovePreview& preview, const WriteOptions& options)
{
    SaveJob::Order order{ .options = options, .sidecars = MoveLook::policyOf(asked.way, asked.naming) };
    for (const MoveLook::Asked& one : asked.photos)
        if (const auto plan = preview.plans.constFind(one.photo); plan != preview.plans.cend()) {
            order.targets.append(one.photo);
            order.own.insert(one.photo, plan->plan);
            order.seen.insert(one.photo, plan->seen);
        }
    return order;
}

}  // namespace

MovingOver::MovingOver(AppModel& model, Access access)
    : m_model(model)
    , m_access(std::move(access))
{
    connect(&model, &AppModel::selectionChanged, this, &MovingOver::close);
    connect(&model, &AppModel::photosOpened, this, &MovingOver::close);
    connect(&model, &AppModel::isSavingChanged, this, [this] {
        if (m_isOpen)
            emit changed();
    });
}

MovingOver::~MovingOver() = default;

bool MovingOver::isPossible() const
{
    return m_access.service && m_lastLook == 0 && !m_model.isSaving() && !m_model.selection().isEmpty();
}

void MovingOver::request(MoveWay way)
{
    if (!isPossible() || m_isOpen || m_model.saveOpen())
        return;
    if (m_model.unsavedCount() > 0)
        return m_access.holdBack([this, way] { request(way); });
    m_isOpen = true;
    ++m_opened;
    m_way = way;
    m_problem.clear();
    for (const int row : m_model.selectedRows())
        m_photos.append(m_model.records().at(row).url);
    emit openChanged();
    lookOn();
}

void MovingOver::close()
{
    if (!std::exchange(m_isOpen, false))
        return;
    if (m_look != 0)
        m_access.tasks.stop(m_look);
    m_photos.clear();
    m_tooSlow.clear();
    m_looked = 0;
    discardInBackground(std::exchange(m_preview, {}));
    emit openChanged();
}

MoveLook::Order MovingOver::orderOf(const QList<QUrl>& photos) const
{
    MoveLook::Order order{ .way = m_way, .naming = m_model.sidecarPolicy().naming };
    for (const QUrl& photo : photos)
        if (const ImageRecord* record = m_model.record(photo); record && !m_tooSlow.contains(photo))
            order.photos.append({ photo, *record });
    return order;
}

// Slice by slice, so that a file that the tool does not get done with costs the others little.
void MovingOver::lookOn()
{
    const QList<QUrl> photos = m_photos.mid(m_looked, slice);
    if (photos.isEmpty() || m_look != 0)
        return;
    const RunningTasks::Task task = m_access.tasks.begin(RunningTasks::Kind::details, photos.size(), photos);
    m_look = task.id;
    runInBackground(
        this,
        [service = *m_access.service, order = orderOf(photos), progress = task.progress, stop = task.stop.get_token()] {
            return MoveLook::look(service, order, *progress, stop);
        },
        [this, photos, id = task.id, opened = m_opened](const MoveLook::Found& found) {
            m_look = 0;
            const std::optional<RunningTasks::Task> ended = m_access.tasks.end(id);
            if (m_isOpen && opened == m_opened)
                takeSlice(photos, found, ended ? ended->skipped : std::nullopt);
            else if (m_isOpen)
                lookOn();
        });
}

void MovingOver::takeSlice(const QList<QUrl>& photos, const MoveLook::Found& found, const std::optional<QUrl>& skipped)
{
    if (skipped) {
        m_tooSlow.insert(*skipped);
        //: %1 is a photo
        m_preview.unreadable.append(Texts::tr("%1 (reading took too long)").arg(skipped->fileName()));
        return lookOn();
    }
    if (found.error) {
        m_problem = Texts::tr("Could not read metadata: %1").arg(*found.error);
        emit changed();
        return;
    }
    m_preview.add(found.preview);
    m_looked += photos.size();
    emit changed();
    lookOn();
}

bool MovingOver::canMove() const
{
    return m_isOpen && m_looked == m_photos.size() && !m_preview.plans.isEmpty() && isPossible();
}

void MovingOver::move()
{
    if (!canMove())
        return;
    QList<QUrl> photos = m_photos;
    photos.removeIf([this](const QUrl& photo) { return !m_preview.plans.contains(photo); });
    const MoveLook::Order order = orderOf(photos);
    // The sidecars stay as they are: nobody asked for a mirror.
    const WriteOptions options{ .backupOriginals = m_model.preferences().backupOriginals() };
    const RunningTasks::Task task = m_access.tasks.begin(RunningTasks::Kind::check, photos.size(), photos);
    m_lastLook = task.id;
    runInBackground(
        this,
        [service = *m_access.service, order, preview = m_preview, options, progress = task.progress,
            stop = task.stop.get_token()] {
            const MoveLook::Found found = MoveLook::again(service, order, preview, *progress, stop);
            return Ready{ orderFor(order, found.preview, options), found.error, found.isCancelled };
        },
        [this](const Ready& ready) { begin(ready); });
    close();
}

void MovingOver::begin(const Ready& ready)
{
    // The save begins in the same breath: no observer sees a pause.
    const Announcer::Together together(m_access.announcer);
    m_access.tasks.end(std::exchange(m_lastLook, 0));
    if (ready.error)
        return m_model.setErrorMessage(Texts::tr("Could not read metadata: %1").arg(*ready.error));
    SaveJob::Order order = ready.order;
    // What was closed meanwhile is not meant any more.
    order.targets.removeIf([this](const QUrl& photo) { return !m_model.record(photo); });
    if (!ready.isCancelled && !m_model.isSaving() && !order.targets.isEmpty())
        m_access.move(order);
}

}  // namespace Quorbel
