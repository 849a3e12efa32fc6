#include "app/model/thumbnails/ThumbnailDiskCache.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QLockFile>
#include <QSaveFile>
#include <QUrl>

#include <algorithm>
#include <array>
#include <utility>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// A thumbnail of these bytes was made by this store, or it is not worth reading.
constexpr qint64 largestFile = 8LL * 1024 * 1024;
constexpr int mostPixelsOnASide = 4096;

QImage readSmallImage(const QString& file, const char* format)
{
    if (QFileInfo(file).size() > largestFile)
        return {};
    QImageReader reader(file, format);
    const QSize size = reader.size();
    if (size.isEmpty() || qMax(size.width(), size.height()) > mostPixelsOnASide)
        return {};
    return reader.read();
}

// What such a thumbnail says of its photo is exact to the second only. So it must also be younger than the photo has
// its name: another photo of the same second may have been moved there since.
bool isOfThisVersion(const QImage& thumbnail, const QFileInfo& file, const QFileInfo& photo)
{
    const QString size = thumbnail.text(u"Thumb::Size"_s);
    return thumbnail.text(u"Thumb::MTime"_s).toLongLong() == photo.lastModified().toSecsSinceEpoch()
        && (size.isEmpty() || size.toLongLong() == photo.size()) && file.lastModified() >= photo.metadataChangeTime();
}

}  // namespace

ThumbnailDiskCache::ThumbnailDiskCache(QString folder)
    : m_folder(std::move(folder))
{
}

QString ThumbnailDiskCache::key(const QString& path, const FileVersion& version, int longSide) const
{
    if (m_folder.isEmpty() || version.size < 0)
        return {};
    const QString name = u"%1\n%2\n%3.%4\n%5\n%6"_s.arg(path)
                             .arg(version.size)
                             .arg(version.seconds)
                             .arg(version.nanoseconds)
                             .arg(version.inode)
                             .arg(longSide);
    const QByteArray hash = QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Sha1).toHex();
    return QString::fromLatin1(hash.left(2) + '/' + hash.mid(2));
}

QImage ThumbnailDiskCache::load(const QString& key) const
{
    if (key.isEmpty())
        return {};
    const QString stem = m_folder + u'/' + key;
    if (QFileInfo::exists(stem + u".jpg"_s))
        return readSmallImage(stem + u".jpg"_s, "jpeg").convertToFormat(QImage::Format_RGB32);
    if (QFileInfo::exists(stem + u".png"_s))
        return readSmallImage(stem + u".png"_s, "png").convertToFormat(QImage::Format_ARGB32_Premultiplied);
    return {};
}

void ThumbnailDiskCache::save(const QString& key, const QImage& image) const
{
    constexpr int jpegQuality = 85, fastDeflate = 80;
    const QString name = m_folder + u'/' + key + (image.hasAlphaChannel() ? u".png"_s : u".jpg"_s);
    const QString parent = QFileInfo(name).path();
    if (key.isEmpty() || image.isNull() || !QDir().mkpath(parent))
        return;
    QFile::setPermissions(m_folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    // Written beside and renamed: a reader, or a second window, never sees half a file.
    QSaveFile file(name);
    if (!file.open(QIODevice::WriteOnly))
        return;
    QImageWriter writer(&file, image.hasAlphaChannel() ? "png" : "jpeg");
    writer.setQuality(image.hasAlphaChannel() ? fastDeflate : jpegQuality);
    if (writer.write(image))
        file.commit();
}

void ThumbnailDiskCache::carry(const QString& from, const QString& to) const
{
    if (from.isEmpty() || to.isEmpty() || from == to)
        return;
    for (const QString& extension : { u".jpg"_s, u".png"_s }) {
        const QString source = m_folder + u'/' + from + extension, destination = m_folder + u'/' + to + extension;
        if (!QFileInfo::exists(source) || !QDir().mkpath(QFileInfo(destination).path()))
            continue;
        QFile::remove(destination);
        QFile::rename(source, destination);
    }
}

void ThumbnailDiskCache::prune(qint64 mostBytes) const
{
    if (m_folder.isEmpty())
        return;
    // Two programs that counted at once would both remove the rest of the way.
    QLockFile lock(m_folder + u".lock"_s);
    lock.setStaleLockTime(0);
    if (!lock.tryLock())
        return;
    QFileInfoList files;
    qint64 total = 0;
    for (QDirIterator it(m_folder, { u"*.jpg"_s, u"*.png"_s }, QDir::Files, QDirIterator::Subdirectories);
         it.hasNext();) {
        it.next();
        files.append(it.fileInfo());
        total += files.last().size();
    }
    if (total <= mostBytes)
        return;
    std::ranges::sort(files, {}, [](const QFileInfo& file) { return file.lastModified(); });
    for (const QFileInfo& file : std::as_const(files)) {
        if (total <= mostBytes)
            return;
        if (QFile::remove(file.filePath()))
            total -= file.size();
    }
}

QImage sharedThumbnail(const QString& folder, const QString& path, int longSide)
{
    static constexpr std::array sizes{ std::pair("normal", 128), std::pair("large", 256), std::pair("x-large", 512),
        std::pair("xx-large", 1024) };
    const QFileInfo info(path);
    if (folder.isEmpty() || !info.isFile())
        return {};
    // The desktop's own library escapes three characters that QUrl leaves alone.
    QByteArray uri = QUrl::fromLocalFile(path).toEncoded();
    uri.replace(';', "%3B").replace('[', "%5B").replace(']', "%5D");
    const QByteArray name = QCryptographicHash::hash(uri, QCryptographicHash::Md5).toHex() + ".png";
    for (const auto& [size, pixels] : sizes) {
        if (pixels < longSide)
            continue;
        const QString file = folder + u'/' + QLatin1StringView(size) + u'/' + QLatin1StringView(name);
        const QImage image = readSmallImage(file, "png");
        if (!image.isNull() && isOfThisVersion(image, QFileInfo(file), info))
            return image.convertToFormat(
                image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    }
    return {};
}

}  // namespace Quorbel
