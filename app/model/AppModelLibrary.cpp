// What is open: the model's beginning and end, loading, the list of photos, what runs, and the folder's watcher.
#include "app/model/AppModel.h"

#include "app/model/Background.h"
#include "app/model/MainThread.h"
#include "app/model/library/FolderWatcher.h"
#include "core/text/Text.h"

#include <QFileInfo>
#include <QPointer>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

/// How often `progress` is brought up to date while something runs.
constexpr int progressInterval = 50;  // ms

}  // namespace

AppModel::Update::Update(AppModel& model)
    : m_model(model)
{
    ++m_model.m_updateDepth;
}

AppModel::Update::~Update()
{
    if (--m_model.m_updateDepth > 0)
        return;
    // An observer may destroy the model.
    const QPointer<AppModel> model(&m_model);
    const auto announcements = std::exchange(m_model.m_announcements, {});
    for (const Signal changed : announcements)
        if (model)
            emit(model->*changed)();
}

void AppModel::announce(Signal changed)
{
    if (m_updateDepth == 0)
        emit(this->*changed)();
    else if (std::find(m_announcements.cbegin(), m_announcements.cend(), changed) == m_announcements.cend())
        m_announcements.push_back(changed);
}

AppModel::AppModel(AppModelServices services, QObject* parent)
    : QObject(parent)
    , m_services(std::move(services))
    , m_stallWatch(m_services.stallInterval)
{
    requireMainThread("AppModel");
    m_progressTimer.setInterval(progressInterval);
    connect(&m_progressTimer, &QTimer::timeout, this, &AppModel::publishProgress);
    connect(&m_progressTimer, &QTimer::timeout, this, &AppModel::publishStall);
    readPreferences();
    openHistory();
    if (!m_services.service)
        m_errorMessage = u"ExifTool could not be found in the app bundle. Metadata cannot be read or written."_s;
}

/// Reads are given up, a write goes on to its end; neither finds the model again.
AppModel::~AppModel()
{
    for (std::vector<Task>* tasks : { &m_tasks, &m_quietReads })
        for (Task& task : *tasks)
            if (task.kind != Task::Kind::write)
                task.stop.request_stop();
}

bool AppModel::hasService() const
{
    return m_services.service.has_value();
}

void AppModel::setErrorMessage(const std::optional<QString>& message)
{
    requireMainThread("setErrorMessage");
    assign(m_errorMessage, message, &AppModel::errorMessageChanged);
}

void AppModel::setSearch(const QString& text)
{
    requireMainThread("setSearch");
    const Update update(*this);
    if (!assign(m_search, text, &AppModel::searchChanged))
        return;
    const QString needle = Text::trimmed(text).toLower();
    if (needle == m_needle)
        return;
    m_needle = needle;
    updateVisibleRows(false);
}

void AppModel::setSortOrder(RecordSortOrder order)
{
    requireMainThread("setSortOrder");
    const Update update(*this);
    if (!assign(m_sortOrder, order, &AppModel::sortOrderChanged))
        return;
    m_services.preferences->setValue(u"sortOrder"_s, rawValue(order));
    updateVisibleRows(false);
}

const QList<int>& AppModel::visibleRows() const
{
    requireMainThread("visibleRows");
    return m_visibleRows;
}

QList<ImageRecord> AppModel::visibleRecords() const
{
    requireMainThread("visibleRecords");
    QList<ImageRecord> visible;
    visible.reserve(m_visibleRows.size());
    for (const int row : m_visibleRows)
        visible.append(m_records.at(row));
    return visible;
}

const ImageRecord* AppModel::primaryRecord() const
{
    return m_primary ? record(*m_primary) : nullptr;
}

const ImageRecord* AppModel::record(const QUrl& url) const
{
    requireMainThread("record");
    const int position = m_index.position(url);
    return position < 0 ? nullptr : &m_records.at(position);
}

QString AppModel::folderCountText() const
{
    requireMainThread("folderCountText");
    QString text = QString::number(m_records.size()) + u" photo"_s;
    if (m_records.size() != 1)
        text += u's';
    if (m_selection.size() >= 2)
        text += u" \u00B7 %1 selected"_s.arg(m_selection.size());
    return text;
}

void AppModel::openPanel()
{
    requireMainThread("openPanel");
    if (!m_services.openPanel)
        return;
    m_services.openPanel([model = QPointer(this)](const QList<QUrl>& urls) {
        if (model && !urls.isEmpty())
            model->requestLoad(urls);
    });
}

void AppModel::openFile(const QUrl& url)
{
    requireMainThread("openFile");
    if (m_services.openUrl)
        m_services.openUrl(url);
}

QDateTime AppModel::now() const
{
    return m_services.now ? m_services.now() : QDateTime::currentDateTime();
}

void AppModel::load(const QList<QUrl>& urls)
{
    requireMainThread("load");
    const PhotoListing listing = PhotoListing::of(urls);
    if (listing.files.isEmpty()) {
        setErrorMessage(u"No supported images were found."_s);
        return;
    }
    recordRecent(listing.existing);
    reload(listing);
}

/// What is open is replaced as a whole when the read has ended: photos, name and watched folder always come from
/// the same load, whichever of several ends last.
void AppModel::reload(const PhotoListing& listing, const QSet<QUrl>& tooSlow)
{
    if (!m_services.service)
        return;
    QList<QUrl> files = listing.files;
    files.removeIf([&tooSlow](const QUrl& file) { return tooSlow.contains(file); });
    const Task task = beginTask(files.size(), Task::Kind::load, files);
    runInBackground(
        this,
        [service = *m_services.service, files, progress = task.progress, stop = task.stop.get_token()] {
            return PhotoReader::read(service, files, *progress, stop);
        },
        [this, listing, tooSlow, id = task.id](PhotoReader::Result result) {
            const Update update(*this);
            const std::optional<Task> ended = endTask(id);
            if (ended && ended->skipped)
                return reload(listing, QSet(tooSlow) << *ended->skipped);
            finishReload(listing, tooSlow, std::move(result));
        });
}

void AppModel::finishReload(const PhotoListing& listing, const QSet<QUrl>& tooSlow, PhotoReader::Result result)
{
    if (result.isCancelled)
        return;
    if (result.error)
        return setErrorMessage(u"Could not read metadata: "_s + *result.error);
    for (const QUrl& file : listing.files)
        if (tooSlow.contains(file))
            result.leftOut.append({ file.fileName(), u"took too long"_s });
    if (!result.leftOut.isEmpty())
        setErrorMessage(PhotoReader::leftOutText(result.leftOut));
    else if (result.records.isEmpty())
        setErrorMessage(u"No supported images were found."_s);
    if (result.records.isEmpty())
        return;
    beginGeneration();
    m_tooSlow = tooSlow;
    publishRecords(std::move(result.records));
    assign(m_folderName, listing.label, &AppModel::folderNameChanged);
    assign(m_folderURL, listing.folder, &AppModel::folderURLChanged);
    selectFirstVisible();
    // A question about edits that are gone must not stay on screen.
    if (m_saveOpen)
        cancelSaveDialog();
    startWatching();
}

void AppModel::closeFolder()
{
    requireMainThread("closeFolder");
    const Update update(*this);
    cancelRead();
    beginGeneration();
    m_watcher.reset();
    publishRecords({});
    assign(m_folderName, {}, &AppModel::folderNameChanged);
    assign(m_folderURL, std::nullopt, &AppModel::folderURLChanged);
    setSearch({});
    commitSelection({});
    setAddOpen(false);
    setSaveOpen(false);
    setRenameOpen(false);
}

void AppModel::requestLoad(const QList<QUrl>& urls)
{
    requireMainThread("requestLoad");
    if (m_services.endEditing)
        m_services.endEditing();
    if (unsavedCount() > 0)
        return holdBack([this, urls] { requestLoad(urls); });
    load(urls);
}

void AppModel::requestClose()
{
    requireMainThread("requestClose");
    if (m_services.endEditing)
        m_services.endEditing();
    if (unsavedCount() > 0)
        return holdBack([this] { requestClose(); });
    closeFolder();
}

void AppModel::requestQuit()
{
    requireMainThread("requestQuit");
    if (m_services.endEditing)
        m_services.endEditing();
    if (unsavedCount() > 0 || m_isSaving)
        return holdBack([this] { requestQuit(); });
    if (m_services.quit)
        m_services.quit();
}

void AppModel::cancelRead()
{
    requireMainThread("cancelRead");
    for (Task& task : m_tasks)
        if (task.kind == Task::Kind::load || task.kind == Task::Kind::refresh)
            task.stop.request_stop();
}

void AppModel::skipStalledFile()
{
    requireMainThread("skipStalledFile");
    Task* read = watchedRead();
    if (!read || !m_stalledURL)
        return;
    read->skipped = m_stalledURL;
    read->stop.request_stop();
    assign(m_stalledFile, std::nullopt, &AppModel::stalledFileChanged);
}

/// The task that is shown, if it is a read that goes on; where nothing is shown, a read of a refresh.
AppModel::Task* AppModel::watchedRead()
{
    std::vector<Task>& tasks = m_tasks.empty() ? m_quietReads : m_tasks;
    if (tasks.empty() || tasks.back().kind == Task::Kind::write || tasks.back().stop.stop_requested())
        return nullptr;
    return &tasks.back();
}

void AppModel::publishStall()
{
    const Task* read = watchedRead();
    m_stallWatch.look(read ? read->progress->processID.load() : 0);
    const QSet<QString> stalled = m_stallWatch.stalled();
    m_stalledURL.reset();
    // The system tells paths without links, so the photos' must be looked up: only while something stalls.
    if (read && !stalled.isEmpty())
        for (const QUrl& file : read->files)
            if (stalled.contains(QFileInfo(file.toLocalFile()).canonicalFilePath()))
                m_stalledURL = file;
    if (m_stalledURL && m_tasks.empty()) {
        const Task quiet = m_quietReads.back();
        m_quietReads.pop_back();
        showTask(quiet);
    }
    const auto name = m_stalledURL ? std::optional(m_stalledURL->fileName()) : std::nullopt;
    assign(m_stalledFile, name, &AppModel::stalledFileChanged);
}

void AppModel::publishRecords(QList<ImageRecord> records)
{
    m_index.reset(records);
    assign(m_records, std::move(records), &AppModel::recordsChanged);
    recordContentChanged();
    updateVisibleRows(true);
}

/// Puts each record in the place of the one with its URL; one that is not open is ignored.
bool AppModel::replaceRecords(const QList<ImageRecord>& fresh)
{
    bool isChanged = false;
    for (const ImageRecord& record : fresh) {
        const int position = m_index.position(record.url);
        if (position < 0 || m_records.at(position) == record)
            continue;
        m_records[position] = record;
        m_index.replace(position, record);
        isChanged = true;
    }
    if (!isChanged)
        return false;
    announce(&AppModel::recordsChanged);
    recordContentChanged();
    updateVisibleRows(false);
    return true;
}

void AppModel::recordContentChanged()
{
    ++m_diskSerial;
    m_selectedRows.reset();
    m_selectionSummary.reset();
    m_keywordsByUse.reset();
}

void AppModel::updateVisibleRows(bool photosChanged)
{
    QList<int> rows = m_index.rows(m_needle, m_sortOrder);
    if (!assign(m_visibleRows, std::move(rows), &AppModel::visibleRowsChanged) && photosChanged)
        announce(&AppModel::visibleRowsChanged);
}

AppModel::Task AppModel::beginTask(qsizetype total, Task::Kind kind, const QList<QUrl>& files)
{
    Task task{ ++m_lastTaskID, kind, files, {}, std::make_shared<TaskProgress>(), {} };
    task.progress->total = total;
    m_progressTimer.start();
    if (kind == Task::Kind::refresh)
        m_quietReads.push_back(task);
    else
        showTask(task);
    return task;
}

void AppModel::showTask(const Task& task)
{
    m_tasks.push_back(task);
    assign(m_isWorking, true, &AppModel::isWorkingChanged);
    publishProgress();
}

/// The task as it was.
std::optional<AppModel::Task> AppModel::endTask(int id)
{
    std::optional<Task> ended;
    for (std::vector<Task>* tasks : { &m_tasks, &m_quietReads }) {
        for (const Task& task : *tasks)
            if (task.id == id)
                ended = task;
        std::erase_if(*tasks, [id](const Task& task) { return task.id == id; });
    }
    if (m_tasks.empty() && m_quietReads.empty())
        m_progressTimer.stop();
    assign(m_isWorking, !m_tasks.empty(), &AppModel::isWorkingChanged);
    publishProgress();
    publishStall();
    return ended;
}

/// Of several tasks the one that began last is shown.
void AppModel::publishProgress()
{
    std::optional<Progress> progress;
    if (!m_tasks.empty()) {
        const TaskProgress& latest = *m_tasks.back().progress;
        progress = Progress{ latest.done, latest.total };
    }
    assign(m_progress, progress, &AppModel::progressChanged);
}

/// Something else is open now: what was on its way for the old photos finds nobody.
void AppModel::beginGeneration()
{
    ++m_generation;
    for (std::vector<Task>* tasks : { &m_tasks, &m_quietReads })
        for (Task& task : *tasks)
            if (task.kind == Task::Kind::refresh)
                task.stop.request_stop();
    m_refreshReads = 0;
    m_isRefreshing = false;
    m_refreshAgain = false;
}

void AppModel::startWatching()
{
    m_watcher.reset();
    if (m_folderURL)
        m_watcher = std::make_unique<FolderWatcher>(*m_folderURL, [this] { refresh(); });
}

}  // namespace Quorbel
