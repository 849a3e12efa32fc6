#include "app/model/saving/EarlyLook.h"

#include "core/save/SaveGuard.h"
#include "core/save/together/PhotoPlans.h"
#include "platform/files/FileSystem.h"

#include <QFile>

#include <algorithm>

namespace Quorbel {

namespace {

using std::chrono::steady_clock;

// Whether a later look at the file's dates tells of every change since now.
class Trust {
public:
    bool isDue(const PhotoFile& file)
    {
        const auto known = m_fileSystems.constFind(file.device);
        const FileSystem system = known == m_fileSystems.cend() ? FileSystem::of(file.url.toLocalFile()) : *known;
        m_fileSystems.insert(file.device, system);
        // What other machines change may be told late: dates are kept for a while.
        return system.tellsOfOthers && std::max(file.changed, file.modified) + system.clockStep.count() < m_now;
    }

private:
    QHash<quint64, FileSystem> m_fileSystems;
    qint64 m_now = std::chrono::nanoseconds(std::chrono::system_clock::now().time_since_epoch()).count();
};

}  // namespace

EarlyLook::EarlyLook(const QSet<QUrl>& photos, std::chrono::milliseconds patience)
    : m_photos(photos)
    , m_latest(steady_clock::now() + patience)
{
}

void EarlyLook::look(const MetadataService& service)
{
    std::optional<Found> found;
    try {
        found = find(service);
    } catch (const std::exception&) {
        // The save looks again, and says what there is to say.
    }
    const std::scoped_lock lock(m_mutex);
    m_found = std::move(found);
    m_hasEnded = true;
    m_wake.notify_all();
}

std::optional<EarlyLook::Found> EarlyLook::find(const MetadataService& service) const
{
    Found found;
    Trust trust;
    // The edits of the others go beside them: their own files are not replaced.
    QList<QUrl> replaced = m_photos.values();
    replaced.removeIf([&service](const QUrl& photo) { return service.sidecars.isBeside(photo); });
    const QList<QUrl> files = SaveGuard::filesBehindLinks(replaced);
    for (const QUrl& file : files) {
        const PhotoFile::Look look = PhotoFile::at(file);
        if (!look.file || !trust.isDue(*look.file))
            return std::nullopt;
        found.files.insert(file, *look.file);
    }
    found.values =
        service.oldValues(PhotoPlans::allTags(), files, { .progress = {}, .stop = m_stop.get_token(), .started = {} });
    const bool isWhole = std::all_of(files.cbegin(), files.cend(),
        [&found](const QUrl& file) { return found.values.contains(QFile::encodeName(file.toLocalFile())); });
    return isWhole ? std::optional(std::move(found)) : std::nullopt;
}

void EarlyLook::giveUp()
{
    m_stop.request_stop();
}

bool EarlyLook::isOf(const QList<QUrl>& targets) const
{
    return std::all_of(
        targets.cbegin(), targets.cend(), [this](const QUrl& target) { return m_photos.contains(target); });
}

std::optional<OldValues> EarlyLook::values(const QList<QUrl>& targets)
{
    std::unique_lock lock(m_mutex);
    const bool isUsable = isOf(targets) && m_wake.wait_until(lock, m_latest, [this] { return m_hasEnded; });
    if (!isUsable)
        giveUp();
    if (!isUsable || !m_found)
        return std::nullopt;
    for (const QUrl& file : SaveGuard::filesBehindLinks(targets)) {
        const auto before = m_found->files.constFind(file);
        if (before == m_found->files.cend() || PhotoFile::at(file).file != *before)
            return std::nullopt;
    }
    return m_found->values;
}

}  // namespace Quorbel
