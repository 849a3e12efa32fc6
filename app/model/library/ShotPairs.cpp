#include "app/model/library/ShotPairs.h"

#include "core/schema/ImageTypes.h"

#include <algorithm>
#include <optional>

namespace Quorbel {

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

QString baseOf(const QString& path)
{
    return path.left(path.lastIndexOf(u'.'));
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
    const auto role = roleOf(url.fileName());
    if (!role)
        return;
    QList<File>& shot = m_shots[baseOf(url.path())];
    part(shot);
    const File file{ photo, role->rank, role->isRaw };
    shot.insert(
        std::upper_bound(shot.cbegin(), shot.cend(), file,
            [](const File& a, const File& b) { return std::pair(a.rank, a.photo) < std::pair(b.rank, b.photo); }),
        file);
    pair(shot);
}

void ShotPairs::remove(int photo, const QUrl& url)
{
    const auto shot = m_shots.find(baseOf(url.path()));
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
