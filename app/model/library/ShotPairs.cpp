#include "app/model/library/ShotPairs.h"

#include "core/schema/ImageTypes.h"

#include <algorithm>
#include <optional>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

struct Role {
    int rank = 0;
    bool isRaw = false;
};

// Nothing for files that are not among those that cameras write of one shot.
std::optional<Role> roleOf(const QString& name)
{
    if (ImageTypes::isJpeg(name))
        return Role{ 0, false };
    if (ImageTypes::isHeic(name))
        return Role{ 1, false };
    if (ImageTypes::isRaw(name))
        return Role{ 0, true };
    if (ImageTypes::isDng(name))
        return Role{ 1, true };
    return std::nullopt;
}

// By extension in small letters, asked once for each of them: a list has many names.
const QHash<QString, Role>& roles()
{
    static const QHash<QString, Role> known = [] {
        QHash<QString, Role> found;
        for (const QString& extension : ImageTypes::extensions())
            if (const auto role = roleOf(u"a."_s + extension))
                found.insert(extension, *role);
        return found;
    }();
    return known;
}

// What the files of a shot share, and the role of this one; nothing for one that has none. A leading dot hides a file;
// it begins no extension.
std::optional<std::pair<QString, Role>> placeOf(const QUrl& url)
{
    QString path = url.path();
    const qsizetype dot = path.lastIndexOf(u'.');
    if (dot <= path.lastIndexOf(u'/') + 1)
        return std::nullopt;
    const auto role = roles().constFind(path.sliced(dot + 1).toLower());
    if (role == roles().cend())
        return std::nullopt;
    path.truncate(dot);
    return std::pair(path, *role);
}

}  // namespace

void ShotPairs::reserve(qsizetype photos)
{
    m_shots.reserve(photos);
    m_pictureOf.reserve(size_t(photos));
    m_rawOf.reserve(size_t(photos));
}

void ShotPairs::clear()
{
    *this = {};
}

void ShotPairs::put(std::vector<int>& others, int photo, int other)
{
    if (others.size() <= size_t(photo))
        others.resize(size_t(photo) + 1, -1);
    others[size_t(photo)] = other;
}

void ShotPairs::add(int photo, const QUrl& url)
{
    const auto place = placeOf(url);
    if (!place)
        return;
    const auto& [base, role] = *place;
    QList<File>& shot = m_shots[base];
    part(shot);
    const File file{ photo, role.rank, role.isRaw };
    shot.insert(
        std::upper_bound(shot.cbegin(), shot.cend(), file,
            [](const File& a, const File& b) { return std::pair(a.rank, a.photo) < std::pair(b.rank, b.photo); }),
        file);
    pair(shot);
}

void ShotPairs::remove(int photo, const QUrl& url)
{
    const auto place = placeOf(url);
    const auto shot = place ? m_shots.find(place->first) : m_shots.end();
    if (shot == m_shots.end())
        return;
    part(*shot);
    shot->removeIf([photo](const File& file) { return file.photo == photo; });
    if (shot->isEmpty())
        m_shots.erase(shot);
    else
        pair(*shot);
}

void ShotPairs::part(const QList<File>& shot)
{
    for (const File& file : shot)
        for (std::vector<int>* others : { &m_pictureOf, &m_rawOf })
            if (size_t(file.photo) < others->size())
                (*others)[size_t(file.photo)] = -1;
}

void ShotPairs::pair(const QList<File>& shot)
{
    const auto raw = std::find_if(shot.cbegin(), shot.cend(), [](const File& file) { return file.isRaw; });
    const auto picture = std::find_if(shot.cbegin(), shot.cend(), [](const File& file) { return !file.isRaw; });
    if (raw == shot.cend() || picture == shot.cend())
        return;
    put(m_pictureOf, raw->photo, picture->photo);
    put(m_rawOf, picture->photo, raw->photo);
}

}  // namespace Quorbel
