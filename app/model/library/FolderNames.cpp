#include "app/model/library/FolderNames.h"

#include "app/model/Background.h"

#include <QFile>

#include <chrono>
#include <filesystem>
#include <limits>

#include <sys/stat.h>

namespace Quorbel {

namespace {

// So many names are listed at once: that takes a millisecond or two.
constexpr qsizetype mostAtOnce = 2000;
constexpr qsizetype all = std::numeric_limits<qsizetype>::max();
// Two changes of a folder within this time, in nanoseconds, may bear the same date.
constexpr qint64 dateStep = 100'000'000;

qint64 changeDate(const QString& folder)
{
    struct stat status { };
    if (stat(QFile::encodeName(folder).constData(), &status) != 0)
        return 0;
    return qint64(status.st_mtim.tv_sec) * 1'000'000'000 + status.st_mtim.tv_nsec;
}

qint64 now()
{
    return std::chrono::nanoseconds(std::chrono::system_clock::now().time_since_epoch()).count();
}

// Null when there are more names than `limit`.
std::shared_ptr<const FolderNames::Listing> list(const QString& folder, qsizetype limit)
{
    namespace fs = std::filesystem;
    FolderNames::Listing listing{ folder, changeDate(folder), now(), {} };
    std::error_code error;
    fs::directory_iterator entry(QFile::encodeName(folder).toStdString(), error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        if (--limit < 0)
            return nullptr;
        ++listing.uses[QFile::decodeName(entry->path().filename().c_str()).toLower()];
    }
    return std::make_shared<const FolderNames::Listing>(std::move(listing));
}

}  // namespace

bool FolderNames::Listing::isTaken(const QString& name, const QString& own) const
{
    const QString lower = name.toLower();
    if (uses.value(lower) > (own.toLower() == lower ? 1 : 0))
        return true;
    struct stat status { };
    return lower != own.toLower() && lstat(QFile::encodeName(folder + u'/' + name).constData(), &status) == 0;
}

const FolderNames::Listing& FolderNames::known(const QString& folder)
{
    const bool isKnown = m_listing->folder == folder;
    if (isKnown && m_listing->changedAt == changeDate(folder))
        return *m_listing;
    if (auto listing = isKnown && m_listing->uses.size() > mostAtOnce ? nullptr : list(folder, mostAtOnce)) {
        m_listing = std::move(listing);
        return *m_listing;
    }
    if (!isKnown)
        m_listing = std::make_shared<const Listing>(Listing{ folder, 0, 0, {} });
    listInBackground(folder);
    return *m_listing;
}

const FolderNames::Listing& FolderNames::current(const QString& folder)
{
    const qint64 changedAt = changeDate(folder);
    const bool isSettled = m_listing->listedAt - changedAt > dateStep;
    if (m_listing->folder != folder || m_listing->changedAt != changedAt || !isSettled)
        m_listing = list(folder, all);
    return *m_listing;
}

void FolderNames::listInBackground(const QString& folder)
{
    if (std::exchange(m_isListing, true))
        return;
    runInBackground(
        this, [folder] { return list(folder, all); },
        [this](const std::shared_ptr<const Listing>& listing) {
            m_isListing = false;
            m_listing = listing;
            emit changed();
        });
}

}  // namespace Quorbel
