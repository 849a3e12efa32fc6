#include "app/model/library/FolderWalk.h"

#include "app/model/library/sidecars/SeenSidecars.h"
#include "core/language/Texts.h"
#include "core/save/originals/OriginalsFolder.h"
#include "core/schema/ImageTypes.h"
#include "core/text/Text.h"

#include <QElapsedTimer>
#include <QFile>
#include <QSet>

#include <algorithm>
#include <filesystem>
#include <utility>
#include <vector>

#include <sys/stat.h>

namespace Quorbel {

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace {

using Identity = std::pair<quint64, quint64>;  // device and inode

constexpr qint64 interval = 100;  // ms
constexpr qint64 firstInterval = 20;
constexpr qsizetype most = 500;
constexpr qsizetype mostAtFirst = 50;

struct Name {
    QCollatorSortKey key;
    QString text{};
    bool isLink = false;
    bool operator<(const Name& other) const
    {
        const int order = key.compare(other.key);
        return order != 0 ? order < 0 : text < other.text;
    }
};

struct Entries {
    bool isListed = false;
    bool hasOriginals = false;  ///< a save is half done, or was
    std::vector<Name> photos{};
    std::vector<Name> folders{};
    SeenSidecars sidecars;
};

std::optional<Identity> identity(const QString& path)
{
    struct stat status { };
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return std::nullopt;
    return Identity{ status.st_dev, status.st_ino };
}

// Where the links of a path lead; empty where they lead nowhere.
fs::path target(const QString& path)
{
    std::error_code error;
    const fs::path found = fs::canonical(QFile::encodeName(path).toStdString(), error);
    return error ? fs::path() : found;
}

// The way from one to the other; nothing where `inner` is neither `outer` nor in it.
std::optional<fs::path> way(const fs::path& outer, const fs::path& inner)
{
    const auto [rest, at] = std::mismatch(outer.begin(), outer.end(), inner.begin(), inner.end());
    if (rest != outer.end())
        return std::nullopt;
    fs::path left;
    for (auto step = at; step != inner.end(); ++step)
        left /= *step;
    return left;
}

bool isHidden(const fs::path& name)
{
    return name.native().starts_with('.');
}

bool isPhoto(const fs::path& path)
{
    return ImageTypes::isImage(QUrl::fromLocalFile(QFile::decodeName(path.c_str())));
}

void sortIn(Entries& entries, const fs::directory_entry& entry)
{
    const std::string bytes = entry.path().filename().native();
    const QString name = QFile::decodeName(bytes.c_str());
    std::error_code error;
    const bool isLink = entry.is_symlink(error);
    if (entry.is_directory(error)) {
        entries.hasOriginals = entries.hasOriginals || OriginalsFolder::isName(name);
        if (!isHidden(bytes))
            entries.folders.push_back({ Text::naturalSortKey(name), name, isLink });
    } else if (isPhoto(entry.path())) {
        entries.photos.push_back({ Text::naturalSortKey(name), name, isLink });
    } else if (entries.sidecars.isWanted(name)) {
        entries.sidecars.add(QFile::decodeName(entry.path().c_str()));
    }
}

Entries entriesOf(const QString& folder, const SidecarPolicy& sidecars)
{
    Entries entries{ .sidecars = SeenSidecars(sidecars) };
    std::error_code error;
    fs::directory_iterator entry(QFile::encodeName(folder).toStdString(), error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error))
        sortIn(entries, *entry);
    entries.isListed = !error;
    std::sort(entries.photos.begin(), entries.photos.end());
    std::sort(entries.folders.begin(), entries.folders.end());
    return entries;
}

class Walk final {
public:
    Walk(const SidecarPolicy& sidecars, const std::stop_token& stop, const std::function<void(FolderWalk::Found)>& take,
        const std::function<void(const QString& folder)>& entering)
        : m_sidecars(sidecars)
        , m_stop(stop)
        , m_take(take)
        , m_entering(entering)
    {
        m_sinceLast.start();
    }

    void enter(QList<QUrl> tops);

private:
    void enter(const QString& folder);
    void list(const QString& folder, const Entries& entries);
    bool isReachedAnyway(const fs::path& found) const;
    bool isWorthFollowing(const QString& folder, const QString& path) const;
    void add(const QString& path, const Entries& entries, bool isLink);
    void handOver(bool isLast = false);

    const SidecarPolicy& m_sidecars;
    const std::stop_token& m_stop;
    const std::function<void(FolderWalk::Found)>& m_take;
    const std::function<void(const QString& folder)>& m_entering;
    std::vector<fs::path> m_tops;
    QSet<Identity> m_folders;
    QSet<Identity> m_files;
    QSet<Identity> m_linkedFiles;  ///< listed under the name of a link
    FolderWalk::Found m_found;
    QElapsedTimer m_sinceLast;
    bool m_isFirst = true;
};

void Walk::enter(QList<QUrl> tops)
{
    std::stable_sort(tops.begin(), tops.end(),
        [](const QUrl& a, const QUrl& b) { return Text::naturalCompare(a.fileName(), b.fileName()) < 0; });
    for (const QUrl& top : std::as_const(tops))
        m_tops.push_back(target(top.toLocalFile()));
    for (const QUrl& top : std::as_const(tops))
        enter(top.toLocalFile());
    handOver(true);
}

void Walk::enter(const QString& folder)
{
    if (m_stop.stop_requested())
        return;
    const auto id = identity(folder);
    if (id && m_folders.contains(*id))
        return;
    if (id)
        m_folders.insert(*id);
    if (m_entering)
        m_entering(folder);
    Entries entries = entriesOf(folder, m_sidecars);
    // A photo that a killed save left without its name has it again.
    if (entries.hasOriginals && OriginalsFolder::clearAbandoned(folder) > 0)
        entries = entriesOf(folder, m_sidecars);
    list(folder, entries);
}

void Walk::list(const QString& folder, const Entries& entries)
{
    const QString prefix = folder.endsWith(u'/') ? folder : folder + u'/';
    for (const Name& photo : entries.photos) {
        if (m_stop.stop_requested())
            break;
        add(prefix + photo.text, entries, photo.isLink);
    }
    m_found.folders.append({ QUrl::fromLocalFile(folder), entries.isListed && !m_stop.stop_requested() });
    handOver();
    for (const Name& inner : entries.folders) {
        const QString path = prefix + inner.text;
        // Qt holds a name as text, and a byte that is none as this character: the name does not lead back.
        if (inner.text.contains(QChar::ReplacementCharacter) && !identity(path))
            m_found.photos.append({ QUrl::fromLocalFile(path), { {}, Texts::tr("its name is not UTF-8") } });
        else if (!inner.isLink || isWorthFollowing(folder, path))
            enter(path);
    }
}

// Whether a walk without links comes past.
bool Walk::isReachedAnyway(const fs::path& found) const
{
    return std::any_of(m_tops.cbegin(), m_tops.cend(), [&found](const fs::path& top) {
        const auto inside = top.empty() ? std::nullopt : way(top, found);
        return inside && std::none_of(inside->begin(), inside->end(), isHidden);
    });
}

bool Walk::isWorthFollowing(const QString& folder, const QString& path) const
{
    const fs::path found = target(path);
    return !found.empty() && !isReachedAnyway(found) && !way(found, target(folder));
}

void Walk::add(const QString& path, const Entries& entries, bool isLink)
{
    const QUrl url = QUrl::fromLocalFile(path);
    if (const fs::path found = isLink ? target(path) : fs::path(); isPhoto(found) && isReachedAnyway(found))
        return;
    FolderWalk::Photo photo{ url, PhotoFile::at(url, m_sidecars, entries.sidecars.of(url)) };
    if (const auto& file = photo.look.file) {
        const Identity id{ file->device, file->inode };
        if (isLink ? m_files.contains(id) : m_linkedFiles.contains(id))
            return;
        m_files.insert(id);
        if (isLink)
            m_linkedFiles.insert(id);
    }
    m_found.photos.append(std::move(photo));
    handOver();
}

void Walk::handOver(bool isLast)
{
    const bool isEnough = m_found.photos.size() >= (m_isFirst ? mostAtFirst : most);
    const bool isTime = m_sinceLast.elapsed() >= (m_isFirst ? firstInterval : interval);
    const bool isAny = !m_found.photos.isEmpty() || (!m_isFirst && !m_found.folders.isEmpty());
    if (!isLast && !(isAny && (isEnough || isTime)))
        return;
    m_isFirst = m_isFirst && m_found.photos.isEmpty();
    m_sinceLast.restart();
    m_found.isLast = isLast;
    m_take(std::exchange(m_found, {}));
}

}  // namespace

bool FolderWalk::through(const QList<QUrl>& tops, const SidecarPolicy& sidecars, const std::stop_token& stop,
    const std::function<void(Found)>& take, const std::function<void(const QString& folder)>& entering)
{
    Walk walk(sidecars, stop, take, entering);
    walk.enter(tops);
    return !stop.stop_requested();
}

}  // namespace Quorbel
