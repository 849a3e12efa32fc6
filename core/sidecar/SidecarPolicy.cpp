#include "core/sidecar/SidecarPolicy.h"

#include "core/schema/ImageTypes.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

#include <unistd.h>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// The photo's path as far as "photo.xmp" has the same.
QString baseOf(const QString& photo)
{
    const qsizetype nameAt = photo.lastIndexOf(u'/') + 1;
    const qsizetype dot = photo.lastIndexOf(u'.');
    return dot > nameAt ? photo.left(dot) : photo;
}

// A link that leads nowhere is none.
bool isThere(const QString& path)
{
    return access(QFile::encodeName(path).constData(), F_OK) == 0;
}

}  // namespace

const QList<std::pair<SidecarNaming, QString>>& RawValues<SidecarNaming>::table()
{
    static const QList<std::pair<SidecarNaming, QString>> table{
        { SidecarNaming::base, u"base"_s },
        { SidecarNaming::full, u"full"_s },
    };
    return table;
}

bool SidecarPolicy::isBeside(const QUrl& photo) const
{
    if (!isInUse())
        return false;
    const QString name = photo.fileName();
    return ImageTypes::isDng(name) ? isDngBeside : isRawBeside && ImageTypes::isRaw(name);
}

QString SidecarPolicy::existing(const QUrl& photo) const
{
    if (!isBeside(photo))
        return {};
    const QString path = photo.toLocalFile();
    QString folder;
    for (const QString& stem : { path, baseOf(path) })
        for (const QString& suffix : { u".xmp"_s, u".XMP"_s }) {
            const QString one = stem + suffix;
            if (!isThere(one))
                continue;
            if (!QFileInfo(one).isDir())
                return one;
            if (folder.isEmpty())
                folder = one;
        }
    return folder;
}

bool SidecarPolicy::sharesBase(const QUrl& photo) const
{
    const QString path = photo.toLocalFile();
    const QString base = baseOf(path);
    QStringList extensions = isRawBeside ? ImageTypes::rawExtensions().values() : QStringList();
    if (isDngBeside)
        extensions.append(u"dng"_s);
    return std::any_of(extensions.cbegin(), extensions.cend(), [&](const QString& extension) {
        const QStringList others{ base + u'.' + extension, base + u'.' + extension.toUpper() };
        return std::any_of(
            others.cbegin(), others.cend(), [&path](const QString& other) { return other != path && isThere(other); });
    });
}

QString SidecarPolicy::path(const QUrl& photo) const
{
    if (const QString found = existing(photo); !found.isEmpty())
        return found;
    const QString file = photo.toLocalFile();
    const bool isFull = naming == SidecarNaming::full || sharesBase(photo);
    return (isFull ? file : baseOf(file)) + u".xmp"_s;
}

QList<QUrl> SidecarPolicy::filesToWrite(const QList<QUrl>& photos) const
{
    if (!isInUse())
        return photos;
    QList<QUrl> files;
    files.reserve(photos.size());
    for (const QUrl& photo : photos)
        files.append(isBeside(photo) ? QUrl::fromLocalFile(path(photo)) : photo);
    return files;
}

}  // namespace Quorbel
