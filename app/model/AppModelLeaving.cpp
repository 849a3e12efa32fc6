// Leaving photos: clicks, other photos to open, the end of the program; and the question that comes first while edits
// are unsaved.
#include "app/model/AppModel.h"

#include "core/language/Texts.h"

#include <QFileInfo>
#include <QTimer>

#include <algorithm>
#include <chrono>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Reading that takes no longer than this needs no word.
constexpr std::chrono::milliseconds unnoticed{ 600 };

QString waitingText()
{
    return Texts::tr("The unsaved changes come back as soon as their photos are read.");
}

}  // namespace

QList<ImageRecord> AppModel::selectedRecords() const
{
    QList<ImageRecord> found;
    found.reserve(selectedRows().size());
    for (const int row : selectedRows())
        found.append(records().at(row));
    return found;
}

void AppModel::tap(const QUrl& url, bool shift, bool command)
{
    requireMainThread("tap");
    if (m_services.endEditing)
        m_services.endEditing();
    if (!photos().contains(url))
        return;
    if (!shift && !command && primary() == url && selection() == QSet<QUrl>{ url }) {
        // Back to where we are: a change that still waits for a save to end is taken back.
        m_waiting = nullptr;
        return;
    }
    changeSelection(m_selected.selection().afterClick(photos(), url, shift, command));
}

void AppModel::selectAllPhotos()
{
    requireMainThread("selectAllPhotos");
    const Selection next = m_selected.selection().withAllVisible(photos());
    if (!next.photos.isEmpty())
        changeSelection(next);
}

void AppModel::changeSelection(const Selection& next)
{
    const bool losesEdits = selection().size() == 1 && unsavedCount() > 0 && next.primary != primary();
    if (!losesEdits)
        return commitSelection(next);
    holdBack([this, next] {
        // Photos may have disappeared while the question was open.
        Selection remaining = next;
        remaining.photos.removeIf([this](const QUrl& url) { return !photos().contains(url); });
        if (remaining.primary && remaining.photos.contains(*remaining.primary))
            changeSelection(remaining);
    });
}

void AppModel::commitSelection(const Selection& next)
{
    m_lastSave.hasFailed = false;
    if (!m_toBringBack && m_errorMessage == waitingText())
        setErrorMessage(std::nullopt);
    if (next.photos != selection())
        giveUpAgreeing();
    m_editing.leave();
    m_editing.select(next);
}

void AppModel::requestLoad(const QList<QUrl>& urls, bool withSubfolders)
{
    requireMainThread("requestLoad");
    if (m_services.endEditing)
        m_services.endEditing();
    if (unsavedCount() > 0)
        return holdBack([this, urls, withSubfolders] { requestLoad(urls, withSubfolders); });
    load(urls, withSubfolders);
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
    if (unsavedCount() > 0 || isSaving())
        return holdBack([this] { requestQuit(); });
    m_library.dropArrived();
    m_left.flush();
    if (m_services.quit)
        m_services.quit();
}

void AppModel::quitKeepingEdits()
{
    requireMainThread("quitKeepingEdits");
    if (m_services.endEditing)
        m_services.endEditing();
    giveUpAwaited();
    m_isEnding = true;
    m_left.flush();
    if (!isSaving() && m_services.quit)
        m_services.quit();
}

// Saves first, or asks whether to, and asks for the action again when the edits are saved or discarded. While a
// save runs its end is waited for: usually nothing is left to ask about then.
void AppModel::holdBack(std::function<void()> action)
{
    m_waiting = std::move(action);
    saveOrAsk();
}

void AppModel::saveOrAsk()
{
    if (isSaving() || m_sheets.save)
        return;
    // Edits that cannot be saved need the question all the same: else there would be no way to leave them.
    if (m_preferences.saveDontAsk() && !isBatch() && !m_lastSave.hasFailed)
        save();
    else
        m_announcer.assign(m_sheets.save, true, Change::saveOpen);
}

void AppModel::resumeWaiting()
{
    if (const auto action = std::exchange(m_waiting, nullptr))
        action();
    showArrived();
}

void AppModel::dropWaiting()
{
    m_waiting = nullptr;
    m_library.dropArrived();
}

// Photos that were read come on screen only when nothing that was typed meanwhile is lost by it.
void AppModel::showArrived()
{
    if (!m_library.hasArrived() || m_awaited)
        return;
    if (m_services.endEditing)
        m_services.endEditing();
    if (unsavedCount() > 0)
        return saveOrAsk();
    m_library.open();
}

void AppModel::takeOpened()
{
    m_left.stopReturning();
    commitSelection(Selection::firstVisible(photos()));
    m_announcer.announce(Change::opened);
    // A question about edits that are gone must not stay on screen.
    if (m_sheets.save)
        cancelSaveDialog();
    if (m_toBringBack)
        awaitBringBack(*std::exchange(m_toBringBack, std::nullopt));
}

// Edits are laid over what the photos hold, so that has to be known.
void AppModel::awaitBringBack(const LeftEdits& left)
{
    const QList<QUrl> unread = unreadOf(left.edits.subjects);
    if (unread.isEmpty())
        return bringBack(left);
    m_toBringBack = left;
    m_library.require(unread);
    QTimer::singleShot(unnoticed, this, [this] {
        if (m_toBringBack)
            setErrorMessage(waitingText());
    });
}

// --- Edits that were left behind ---

void AppModel::bringBack(int position)
{
    requireMainThread("bringBack");
    if (m_services.endEditing)
        m_services.endEditing();
    if (position < 0 || position >= leftEdits().size())
        return;
    const LeftEdits left = leftEdits().at(position);
    const QList<QUrl>& subjects = left.edits.subjects;
    if (std::any_of(subjects.cbegin(), subjects.cend(), [this](const QUrl& photo) { return photos().contains(photo); }))
        awaitBringBack(left);
    else
        openAndBringBack(left);
}

// Those whose photos are not open keep their edits where they are.
void AppModel::bringBack(const LeftEdits& left)
{
    const Announcer::Together together(m_announcer);
    if (m_errorMessage == waitingText())
        setErrorMessage(std::nullopt);
    QSet<QUrl> open;
    QSet<QUrl> gone;
    for (const QUrl& photo : left.edits.subjects)
        (photos().contains(photo) ? open : gone).insert(photo);
    LeftEdits here = left;
    LeftEdits away = left;
    here.edits = left.edits.onlyOf(open);
    away.edits = left.edits.onlyOf(gone);
    if (!away.edits.subjects.isEmpty())
        //: %1 names photos
        setErrorMessage(Texts::tr("Not here any more: %1. The unsaved changes are kept.").arg(away.names()));
    if (here.edits.subjects.isEmpty())
        return;
    m_waiting = nullptr;
    m_lastSave.hasFailed = false;
    setSearch({});
    m_left.forget(left);
    m_left.keep(away);
    m_editing.bringBack(here);
    // What is brought back is to be seen.
    if (primary())
        setFolded(primary()->adjusted(QUrl::RemoveFilename | QUrl::StripTrailingSlash), false);
}

void AppModel::openAndBringBack(const LeftEdits& left)
{
    if (unsavedCount() > 0)
        return holdBack([this, left] { openAndBringBack(left); });
    QSet<QString> folders;
    for (const QUrl& photo : left.edits.subjects)
        folders.insert(QFileInfo(photo.toLocalFile()).path());
    folders.removeIf([](const QString& folder) { return !QFileInfo(folder).isDir(); });
    const QList<QUrl>& subjects = left.edits.subjects;
    const bool isAny = !folders.isEmpty() && std::any_of(subjects.cbegin(), subjects.cend(), [](const QUrl& photo) {
        return QFileInfo::exists(photo.toLocalFile());
    });
    if (!isAny)
        return setErrorMessage(
            //: %1 names photos
            Texts::tr("%1 could no longer be found. The unsaved changes are kept.").arg(left.names()));
    QList<QUrl> urls;
    for (const QString& folder : folders)
        urls.append(QUrl::fromLocalFile(folder));
    // Their own folders and no others.
    load(urls, false);
    m_toBringBack = left;
}

}  // namespace Quorbel
