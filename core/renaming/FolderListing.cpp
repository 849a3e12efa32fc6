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

// What cameras write beside a raw file.
bool isFinished(const QString& name)
{
    return ImageTypes::isJpeg(name) || ImageTypes::isHeic(name);
}

// What raw developers and cameras put beside a photo, and the backups of its sidecars.
bool isOfDevelopment(const QString& extension)
{
    static const QSet<QString> known{ u".pp3"_s, u".arp"_s, u".dop"_s, u".on1"_s, u".acr"_s, u".vrd"_s, u".dr4"_s,
        u".nksc"_s, u".aae"_s, u".thm"_s, u".wav"_s, u".xmp_original"_s };
    return known.contains(extension);
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

CompanionNames::CompanionNames(const QStringList& names, Kind kind)
    : m_kind(kind)
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

bool CompanionNames::isRaw(const QString& photo)
{
    return ImageTypes::isRaw(photo) || ImageTypes::isDng(photo);
}

bool CompanionNames::isCompanion(const QString& name, const QString& photo) const
{
    if (name == photo)
        return false;
    const QString extension = extensionOf(name);
    return extension == u".xmp" || name == photo + u"_original"_s
        || (m_kind == Kind::all && isOfDevelopment(extension));
}

QStringList CompanionNames::companionsWith(const QString& base, const QString& photo) const
{
    QStringList found = m_byBase.value(base);
    found.removeIf([&](const QString& name) { return !isCompanion(name, photo); });
    return found;
}

QStringList CompanionNames::of(const QString& photo) const
{
    QStringList found = withWholeName(photo);
    if (isRaw(photo) || isFinished(photo) || rawsBeside(photo).isEmpty())
        found += companionsWith(baseOf(photo), photo);
    found.removeDuplicates();
    return found;
}

QStringList CompanionNames::withWholeName(const QString& photo) const
{
    QStringList found = companionsWith(photo, photo);
    // "a.jpg_original": the last dot is the photo's.
    for (const QString& name : companionsWith(baseOf(photo), photo))
        if (name.startsWith(photo) && !found.contains(name))
            found.append(name);
    return found;
}

QStringList CompanionNames::rawsBeside(const QString& photo) const
{
    QStringList raws = m_byBase.value(baseOf(photo));
    raws.removeIf([&photo](const QString& name) { return name == photo || !isRaw(name); });
    return raws;
}

QStringList CompanionNames::shotWith(const QString& photo) const
{
    if (!isRaw(photo) && !isFinished(photo))
        return {};
    QStringList shot;
    bool isAnyRaw = isRaw(photo);
    for (const QString& name : m_byBase.value(baseOf(photo))) {
        isAnyRaw = isAnyRaw || isRaw(name);
        if (name != photo && (isRaw(name) || isFinished(name)))
            shot.append(name);
    }
    return isAnyRaw ? shot : QStringList();
}

}  // namespace Quorbel
