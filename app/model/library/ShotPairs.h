// Which photos of a list are two files of one shot: a raw file, and the finished picture (JPEG or HEIC) that has its
// name in its folder. Photos are numbers here.
// Thread: one at a time. Goes by addresses alone, and asks no file system.
#pragma once

#include <QHash>
#include <QList>
#include <QUrl>

#include <vector>

namespace Quorbel {

class ShotPairs final {
public:
    /// Each photo once; numbers need not be without gaps.
    void add(int photo, const QUrl& url);
    /// Under the address that it was added with.
    void remove(int photo, const QUrl& url);
    void clear();
    void reserve(qsizetype photos);

    /// The finished picture of this raw file's shot; -1 where there is none. Of several raw files of one name the
    /// camera's goes before DNG, of several pictures JPEG before HEIC: the others are shots of their own.
    int pictureOf(int raw) const { return find(m_pictureOf, raw); }
    /// The raw file of this picture's shot; -1 where there is none.
    int rawOf(int picture) const { return find(m_rawOf, picture); }

private:
    struct File {
        int photo = -1;
        int rank = 0;  ///< what goes first in its shot
        bool isRaw = false;
    };

    static int find(const std::vector<int>& others, int photo)
    {
        return photo >= 0 && size_t(photo) < others.size() ? others[size_t(photo)] : -1;
    }
    static void put(std::vector<int>& others, int photo, int other);
    void part(const QList<File>& shot);
    void pair(const QList<File>& shot);

    QHash<QString, QList<File>> m_shots;  ///< by path without extension
    std::vector<int> m_pictureOf;
    std::vector<int> m_rawOf;
};

}  // namespace Quorbel
