// The model's beginning and end, what is open, and what other programs do to it.
#include "app/model/AppModel.h"

#include "app/model/AppModelTools.h"
#include "app/model/library/PhotoListing.h"
#include "app/model/library/cache/RecordCache.h"
#include "app/model/templates/Templates.h"
#include "app/model/timeshift/TimeShifting.h"
#include "core/language/Texts.h"
#include "core/schema/RecentItems.h"
#include "core/text/Text.h"

#include <QFileInfo>
#include <QPointer>

#include <algorithm>
#include <map>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

std::shared_ptr<RecordCache> cacheFor(const AppModelServices& services)
{
    if (!services.service || services.recordCachePath.isEmpty())
        return {};
    return std::make_shared<RecordCache>(
        RecordCache::Options{ .folder = services.recordCachePath }, services.service->runner);
}

DetailsReader::Ask detailsFrom(const AppModelServices& services)
{
    if (services.details || !services.service)
        return services.details;
    return [service = *services.service](const QList<ImageRecord>& photos, const ReadControl& control) {
        return service.details(photos, control);
    };
}

}  // namespace

AppModel::AppModel(AppModelServices services, QObject* parent)
    : QObject(parent)
    , m_services(std::move(services))
    , m_announcer([this](Change change) { tell(change); })
    , m_preferences(m_services.preferences)
    , m_tasks(m_announcer, m_services.stallInterval)
    , m_cache(cacheFor(m_services))
    , m_library(m_announcer, m_tasks, m_services.service, m_preferences.sortOrder(), m_cache)
    , m_selected(m_announcer, m_library.photos())
    , m_selectedDetails(m_library.photos(), m_selected,
          { [this](const QUrl& photo) { return details(photo); },
              [this] { return m_library.details().store().known(); },
              [this](const QUrl& photo) { return m_library.details().failure(photo).has_value(); } })
    , m_selectedKeywords(m_announcer, m_library.photos(), m_selected)
    , m_left(m_announcer, m_services.leftEditsPath, m_services.keepInterval)
    , m_editing(m_announcer, m_library.photos(), m_selected, m_selectedDetails, m_left)
    , m_saving(m_announcer, m_tasks, m_library.refresh(), m_services.service, m_services.journalPath,
          m_services.stallInterval, m_cache)
{
    requireMainThread("AppModel");
    m_library.refresh().setLooks({ m_services.fileSystemOf, m_services.lookInterval });
    m_library.details().setAsking(detailsFrom(m_services), m_services.detailsDelay);
    followSidecarSettings();
    connectParts();
    makeTools();
    if (!m_services.service)
        m_errorMessage =
            Texts::tr("ExifTool could not be found in the app bundle. Metadata cannot be read or written.");
}

AppModel::~AppModel() = default;

void AppModel::connectParts()
{
    connect(&m_library, &Library::problem, this, &AppModel::setErrorMessage);
    connect(&m_library, &Library::listed, this, [this](const QList<QUrl>& given) {
        QStringList paths;
        for (const QUrl& url : given)
            paths.append(url.toLocalFile());
        m_preferences.recentPaths.set(RecentItems::updated(m_preferences.recentPaths(), paths, RecentItems::limit));
    });
    connect(&m_library, &Library::arrived, this, &AppModel::showArrived);
    connect(&m_library, &Library::opened, this, &AppModel::takeOpened);
    connect(&m_library, &Library::added, this, &AppModel::selectWhereNone);
    connect(&m_library, &Library::read, this, &AppModel::takeRead);
    connect(&m_library, &Library::unreadable, this, &AppModel::takeVanished);
    connect(&m_library, &Library::nothingReadable, this, &AppModel::closeFolder);
    connect(&m_folderNames, &FolderNames::changed, this, &AppModel::renamePreviewChanged);
    connectDetails();
    FolderRefresh& refresh = m_library.refresh();
    connect(&refresh, &FolderRefresh::problem, this, &AppModel::setErrorMessage);
    connect(&refresh, &FolderRefresh::vanished, this, &AppModel::takeVanished);
    connect(&refresh, &FolderRefresh::reread, this, &AppModel::takeReread);
    connect(&refresh, &FolderRefresh::filesChanged, this, [this](const QList<QUrl>& photos) {
        if (onImagesModified)
            onImagesModified(photos);
    });
    connect(&refresh, &FolderRefresh::added, this, &AppModel::selectWhereNone);
    connect(this, &AppModel::selectionChanged, this, &AppModel::updateUnread);
    connect(this, &AppModel::recordsChanged, this, &AppModel::updateUnread);
    for (const auto signal : { &AppModel::selectionChanged, &AppModel::recordsChanged })
        connect(this, signal, &m_selectedKeywords, &SelectedKeywords::update);
    connect(this, &AppModel::detailsChanged, this, [this] {
        m_selectedDetails.forget();
        m_editing.takeDetails();
        goOnAgreeing();
    });
    connect(this, &AppModel::primaryChanged, this, [this] {
        m_library.setFirst(primary());
        if (m_sheets.rename && primary() != m_sheets.renamed)
            setRenameOpen(false);
    });
    for (const auto signal : { &AppModel::editsChanged, &AppModel::unsavedCountChanged, &AppModel::selectionChanged })
        connect(this, signal, this, &AppModel::lookAhead);
    connect(&refresh, &FolderRefresh::reread, this, &AppModel::lookAhead);
    connect(&m_saving, &Saving::reread, this,
        [this](const QList<ImageRecord>& some) { m_library.photos().putSaved(some); });
    connect(&m_saving, &Saving::saved, this, &AppModel::takeSaved);
    connect(&m_saving, &Saving::undone, this, &AppModel::takeUndone);
    connect(&m_saving, &Saving::ended, this, [this](bool isGood) {
        m_lastSave.hasFailed = !isGood;
        if (m_isEnding)
            return quitKeepingEdits();
        // After a failure what waits is dropped: nobody leaves edits that could not be saved.
        if (isGood)
            resumeWaiting();
        else
            dropWaiting();
        goOnAgreeing();
    });
    connect(&m_saving, &Saving::ended, this, &AppModel::lookAhead);
    connect(&m_preferences, &Preferences::changed, this, &AppModel::followSidecarSettings);
    connect(&m_saving, &Saving::ended, this, &AppModel::followSidecarSettings);
}

// What is read, shown and written is of one policy. A save that runs goes first: it reads again what it wrote.
void AppModel::followSidecarSettings()
{
    const SidecarPolicy wanted{ m_preferences.rawBeside(), m_preferences.dngBeside(), m_preferences.sidecarNaming() };
    if (m_saving.isSaving() || m_sidecarPolicy == wanted)
        return;
    const Announcer::Together together(m_announcer);
    m_announcer.assign(m_sidecarPolicy, wanted, Change::sidecarPolicy);
    if (!m_services.service)
        return;
    m_services.service->sidecars = wanted;
    m_saving.setSidecars(wanted);
    m_library.details().setAsking(detailsFrom(m_services), m_services.detailsDelay);
    m_library.setSidecars(wanted);
    lookAhead();
}

void AppModel::tell(Change change)
{
    using Signal = void (AppModel::*)();
    static const std::map<Change, Signal> signalOf{
        { Change::records, &AppModel::recordsChanged },
        { Change::visibleRows, &AppModel::visibleRowsChanged },
        { Change::folderGroups, &AppModel::folderGroupsChanged },
        { Change::folder, &AppModel::folderChanged },
        { Change::watching, &AppModel::watchingChanged },
        { Change::opened, &AppModel::photosOpened },
        { Change::sidecarPolicy, &AppModel::sidecarPolicyChanged },
        { Change::search, &AppModel::searchChanged },
        { Change::sortOrder, &AppModel::sortOrderChanged },
        { Change::selection, &AppModel::selectionChanged },
        { Change::primary, &AppModel::primaryChanged },
        { Change::unreadSelected, &AppModel::unreadSelectedChanged },
        { Change::selectedKeywords, &AppModel::selectedKeywordsChanged },
        { Change::edits, &AppModel::editsChanged },
        { Change::unsavedCount, &AppModel::unsavedCountChanged },
        { Change::details, &AppModel::detailsChanged },
        { Change::disagreements, &AppModel::disagreementsChanged },
        { Change::leftEdits, &AppModel::leftEditsChanged },
        { Change::isWorking, &AppModel::isWorkingChanged },
        { Change::isSaving, &AppModel::isSavingChanged },
        { Change::progress, &AppModel::progressChanged },
        { Change::stalledFile, &AppModel::stalledFileChanged },
        { Change::canUndoSave, &AppModel::canUndoSaveChanged },
        { Change::errorMessage, &AppModel::errorMessageChanged },
        { Change::saveOpen, &AppModel::saveOpenChanged },
        { Change::addOpen, &AppModel::addOpenChanged },
        { Change::renameOpen, &AppModel::renameOpenChanged },
        { Change::batchDontAskSession, &AppModel::batchDontAskSessionChanged },
    };
    emit(this->*signalOf.at(change))();
}

void AppModel::setErrorMessage(const std::optional<QString>& message)
{
    requireMainThread("setErrorMessage");
    m_lastSave.refused = {};
    m_announcer.assign(m_errorMessage, message, Change::errorMessage);
}

QDateTime AppModel::now() const
{
    return m_services.now ? m_services.now() : QDateTime::currentDateTime();
}

// --- Library ---

void AppModel::setSortOrder(RecordSortOrder order)
{
    photos().setOrder(order);
    m_preferences.sortOrder.set(order);
}

QList<ImageRecord> AppModel::visibleRecords() const
{
    QList<ImageRecord> visible;
    visible.reserve(visibleRows().size());
    for (const int row : visibleRows())
        visible.append(records().at(row));
    return visible;
}

QString AppModel::folderCountText() const
{
    const int count = photos().index().photos();
    QStringList texts{ Texts::tr("%n photo(s)", nullptr, count) };
    if (photos().folders().isOrdering())
        //: %1 is a number of photos: "12 photos in 3 folders"
        texts[0] = Texts::tr("%1 in %n folder(s)", nullptr, photos().folders().holding()).arg(texts[0]);
    if (photos().filter().isLimiting())
        //: %n is a number of photos
        texts.append(Texts::tr("%n shown", nullptr, visibleRows().size()));
    if (isBatch())
        //: %n is a number of photos
        texts.append(Texts::tr("%n selected", nullptr, selection().size()));
    return texts.join(u" · "_s);
}

void AppModel::setInView(const QList<QUrl>& photos)
{
    requireMainThread("setInView");
    m_library.setInView(photos);
}

void AppModel::readAgain()
{
    requireMainThread("readAgain");
    m_library.readAgain();
}

void AppModel::cancelRead()
{
    requireMainThread("cancelRead");
    const Announcer::Together together(m_announcer);
    m_library.cancelReads();
    timeShifting().cancel();
    templates().cancel();
    giveUpAwaited();
    if (m_agreeing && !m_agreeing->isAsking)
        giveUpAgreeing();
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

void AppModel::openPanelWithSubfolders()
{
    requireMainThread("openPanelWithSubfolders");
    if (!m_services.openFolderPanel)
        return;
    m_services.openFolderPanel([model = QPointer(this)](const QList<QUrl>& urls) {
        if (model && !urls.isEmpty())
            model->requestLoad(urls, true);
    });
}

void AppModel::openFile(const QUrl& url)
{
    requireMainThread("openFile");
    if (m_services.openUrl)
        m_services.openUrl(pairing().seenFile(url));
}

void AppModel::load(const QList<QUrl>& urls, bool withSubfolders)
{
    requireMainThread("load");
    m_toBringBack.reset();
    if (PhotoListing::isWorthListing(urls))
        m_library.load(urls, withSubfolders);
    else
        setErrorMessage(Texts::tr("No supported images were found."));
}

void AppModel::closeFolder()
{
    requireMainThread("closeFolder");
    const Announcer::Together together(m_announcer);
    m_toBringBack.reset();
    giveUpAwaited();
    m_editing.leave();
    m_left.stopReturning();
    m_library.close();
    setSearch({});
    commitSelection({});
    setAddOpen(false);
    setSaveOpen(false);
    setRenameOpen(false);
}

void AppModel::refresh()
{
    requireMainThread("refresh");
    m_library.resumeReading();
    m_library.refresh().refresh();
}

QList<QUrl> AppModel::recentURLs() const
{
    QList<QUrl> urls;
    for (const QString& path : m_preferences.recentPaths())
        urls.append(QUrl::fromLocalFile(path));
    return urls;
}

void AppModel::openRecent(const QUrl& url)
{
    requireMainThread("openRecent");
    const QString path = url.toLocalFile();
    if (QFileInfo::exists(path))
        return requestLoad({ url });
    setErrorMessage(Texts::tr("“%1” could no longer be found.").arg(url.fileName()));
    QStringList remaining = m_preferences.recentPaths();
    remaining.removeAll(path);
    m_preferences.recentPaths.set(remaining);
}

void AppModel::clearRecents()
{
    m_preferences.recentPaths.set({});
}

// --- What other programs do to the photos ---

void AppModel::takeVanished(const QList<int>& positions)
{
    const Announcer::Together together(m_announcer);
    QSet<QUrl> gone;
    for (const int position : positions)
        gone.insert(records().at(position).url);
    m_library.noteRead({ gone.cbegin(), gone.cend() });
    passToHeirs(gone);
    const Selection before = m_selected.selection();
    const bool losesPrimary = before.primary && gone.contains(*before.primary);
    if (losesPrimary && !isBatch() && unsavedCount() > 0)
        setErrorMessage(
            Texts::tr("“%1” was removed by another program. Its unsaved changes are kept: Edit ▸ Bring Back Edits.")
                .arg(before.primary->fileName()));
    else if (m_sheets.rename && m_sheets.renamed && gone.contains(*m_sheets.renamed))
        setErrorMessage(Texts::tr("“%1” was removed by another program.").arg(m_sheets.renamed->fileName()));
    m_editing.leave(gone);
    const auto heir = losesPrimary ? before.nearestStaying(photos(), gone) : std::nullopt;
    photos().remove(positions);
    m_library.details().forget(gone);
    const Selection rest = before.withoutGone(photos(), heir);
    if (before.photos.intersects(rest.photos))
        m_editing.follow(rest);
    else
        commitSelection(rest);
    if (m_awaited) {
        m_awaited->unread.subtract(gone);
        saveAwaited();
    }
    goOnAgreeing();
}

// Of a shot whose raw file is gone, the picture is left.
void AppModel::passToHeirs(const QSet<QUrl>& gone)
{
    const NewNames heirs = pairing().heirsOf(gone);
    const auto isSelected = [this](const auto& names) { return selection().contains(names.first); };
    if (std::any_of(heirs.list().cbegin(), heirs.list().cend(), isSelected))
        m_editing.passTo(heirs);
}

void AppModel::selectWhereNone()
{
    if (selection().isEmpty())
        commitSelection(Selection::firstVisible(photos()));
}

void AppModel::takeReread(const QList<QUrl>& urls)
{
    const Announcer::Together together(m_announcer);
    if (primary() && urls.contains(*primary()))
        m_editing.rebase();
}

// --- What a load has read ---

void AppModel::takeRead(const QList<QUrl>& photos)
{
    const Announcer::Together together(m_announcer);
    m_selected.takeRead(photos);
    if (std::any_of(photos.cbegin(), photos.cend(), [this](const QUrl& photo) { return selection().contains(photo); }))
        m_editing.takeRead();
    if (m_awaited) {
        for (const QUrl& photo : photos)
            m_awaited->unread.remove(photo);
        saveAwaited();
    }
    goOnAgreeing();
    if (m_toBringBack && unreadOf(m_toBringBack->edits.subjects).isEmpty())
        bringBack(*std::exchange(m_toBringBack, std::nullopt));
}

void AppModel::updateUnread()
{
    m_announcer.assign(m_unreadSelected, unreadSelected(), Change::unreadSelected);
}

bool AppModel::isUnread(const QUrl& photo) const
{
    const ImageRecord* known = photos().record(photo);
    return known && known->isUnread;
}

QList<QUrl> AppModel::unreadOf(const QList<QUrl>& photos) const
{
    QList<QUrl> unread = photos;
    unread.removeIf([this](const QUrl& photo) { return !isUnread(photo); });
    return unread;
}

// --- Sheets ---

void AppModel::setAddOpen(bool open)
{
    requireMainThread("setAddOpen");
    m_announcer.assign(m_sheets.add, open, Change::addOpen);
}

void AppModel::setRenameOpen(bool open)
{
    requireMainThread("setRenameOpen");
    m_sheets.renamed = open ? primary() : std::nullopt;
    m_announcer.assign(m_sheets.rename, open, Change::renameOpen);
}

// --- Edits ---

QMap<QString, QStringList> AppModel::nonEmptyBatchLists() const
{
    QMap<QString, QStringList> lists = batchLists();
    lists.removeIf([](const auto& entry) { return entry.value().isEmpty(); });
    return lists;
}

void AppModel::layEdits(const Edits& edits)
{
    requireMainThread("layEdits");
    const Announcer::Together together(m_announcer);
    if (const QStringList left = m_editing.lay(edits); !left.isEmpty())
        setErrorMessage(Texts::tr("Left as they are, because they could not be read: %1").arg(Text::listed(left)));
}

void AppModel::addCustomField(const QString& name, const QString& value)
{
    requireMainThread("addCustomField");
    const auto stored = storedCustomName(name);
    if (!stored)
        return;
    const Announcer::Together together(m_announcer);
    m_editing.addCustom(*stored, value);
    setAddOpen(false);
}

void AppModel::addKnownField(const QString& id)
{
    requireMainThread("addKnownField");
    if (!FieldSchema::spec(id))
        return;
    const Announcer::Together together(m_announcer);
    m_editing.addKnownField(id);
    setAddOpen(false);
}

}  // namespace Quorbel
