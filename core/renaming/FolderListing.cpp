#include "core/renaming/FolderListing.h"

#include "core/schema/ImageTypes.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

QString extensionOf(const QString& name)
{
    return name.sliced(CompanionNames::baseOf(name).size()).toLower();
}

bool isRaw(const QString& name)
{
    return ImageTypes::isRaw(name) || ImageTypes::isDng(name);
}

// What cameras write beside a raw file.
bool isFinished(const QString& extension)
{
    static const QSet<QString> finished{ u".jpg"_s, u".jpeg"_s, u".heic"_s, u".heif"_s, u".hif"_s };
    return finished.contains(extension);
}

bool isWritable(const QByteArray& folder)
{
    struct stat status { };
    if (stat(folder.constData(), &status) != 0)
        return false;
    // The administrator may write to anything; a folder without any write bit is still meant to stay as it is.
    constexpr mode_t anyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
    return (status.st_mode & anyWrite) != 0 && faccessat(AT_FDCWD, folder.constData(), W_OK | X_OK, AT_EACCESS) == 0;
}

}  // namespace

FolderListing FolderListing::of(const QString& folder)
{
    namespace fs = std::filesystem;
    const QByteArray path = QFile::encodeName(folder);
    FolderListing listing{ .isWritable = Quorbel::isWritable(path) };
    std::error_code error;
    for (fs::directory_iterator entry(path.toStdString(), error); !error && entry != fs::directory_iterator();
         entry.increment(error))
        listing.names.append(QFile::decodeName(entry->path().filename().c_str()));
    return listing;
}

CompanionNames::CompanionNames(const QStringList& names)
{
    for (const QString& name : names)
        m_byBase[baseOf(name)].append(name);
}

QString CompanionNames::baseOf(const QString& photo)
{
    const qsizetype dot = photo.lastIndexOf(u'.');
    // A leading dot hides a file; it begins no extension.
    return dot > 0 ? photo.left(dot) : photo;
}

QStringList CompanionNames::of(const QString& photo) const
{
    QStringList found;
    for (const QString& base : { photo, baseOf(photo) })
        for (const QString& name : m_byBase.value(base))
            if ((extensionOf(name) == u".xmp" && name != photo) || name == photo + u"_original"_s)
                found.append(name);
    found.removeDuplicates();
    return found;
}

QStringList CompanionNames::shotWith(const QString& photo) const
{
    const QString own = extensionOf(photo);
    if (!isRaw(photo) && !isFinished(own))
        return {};
    QStringList shot;
    bool isAnyRaw = isRaw(photo);
    for (const QString& name : m_byBase.value(baseOf(photo))) {
        const QString extension = extensionOf(name);
        isAnyRaw = isAnyRaw || isRaw(name);
        if (name != photo && (isRaw(name) || isFinished(extension)))
            shot.append(name);
    }
    return isAnyRaw ? shot : QStringList();
}

}  // namespace Quorbel
