#include "core/renaming/RenameJournal.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

#include <sys/stat.h>
#include <unistd.h>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView suffix(".rename.jsonl");

QByteArray lineOf(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

// Numbers of 64 bits do not fit a number of JSON.
QJsonArray toJson(const FileRenaming& file, const FileMark& mark)
{
    return { file.from, file.to, file.isPhoto, QString::number(mark.inode), QString::number(mark.size),
        QString::number(mark.modified) };
}

QJsonObject toJson(const RenameEntry::Folder& folder)
{
    QJsonArray files;
    for (qsizetype i = 0; i < folder.renaming.files.size(); ++i)
        files.append(toJson(folder.renaming.files.at(i), folder.marks.value(i)));
    return { { u"folder"_s, folder.renaming.folder }, { u"files"_s, files } };
}

RenameEntry::Folder folderFrom(const QJsonObject& object)
{
    RenameEntry::Folder folder{ .renaming = { .folder = object[u"folder"_s].toString() } };
    for (const auto& file : object[u"files"_s].toArray()) {
        folder.renaming.files.append({ file[0].toString(), file[1].toString(), file[2].toBool() });
        folder.marks.append(
            { file[3].toString().toULongLong(), file[4].toString().toLongLong(), file[5].toString().toLongLong() });
    }
    return folder;
}

void take(RenameEntry& entry, const QJsonObject& line)
{
    const auto folder = [&](const QString& key) -> RenameEntry::Folder* {
        const int at = line[key].toInt(-1);
        return at >= 0 && at < entry.folders.size() ? &entry.folders[at] : nullptr;
    };
    if (line.contains(u"folder"_s))
        entry.folders.append(folderFrom(line));
    if (RenameEntry::Folder* moved = folder(u"moved"_s))
        moved->isMoved = true;
    if (RenameEntry::Folder* undone = folder(u"undone"_s))
        undone->isUndone = true;
    entry.isDone = entry.isDone || line[u"done"_s].toBool();
}

}  // namespace

FileMark FileMark::of(const QString& path)
{
    struct stat status { };
    if (lstat(QFile::encodeName(path).constData(), &status) != 0)
        return {};
    return { status.st_ino, status.st_size, qint64(status.st_mtim.tv_sec) * 1'000'000'000 + status.st_mtim.tv_nsec };
}

qsizetype RenameEntry::photosIn(const Folder& folder)
{
    if (!folder.isMoved || folder.isUndone)
        return 0;
    return std::count_if(folder.renaming.files.cbegin(), folder.renaming.files.cend(),
        [](const FileRenaming& file) { return file.isPhoto; });
}

qsizetype RenameEntry::photos() const
{
    qsizetype count = 0;
    for (const Folder& folder : folders)
        count += photosIn(folder);
    return count;
}

QString RenameJournal::pathOf(qint64 number) const
{
    return m_folder + u'/' + QString::number(number).rightJustified(10, u'0') + suffix;
}

QList<qint64> RenameJournal::numbers() const
{
    QList<qint64> found;
    const QStringList names = QDir(m_folder).entryList({ u'*' + suffix }, QDir::Files);
    for (const QString& name : names) {
        bool isNumber = false;
        const qint64 number = name.chopped(suffix.size()).toLongLong(&isNumber);
        if (isNumber)
            found.append(number);
    }
    std::sort(found.begin(), found.end());
    return found;
}

// A line that a kill left half written is the last one.
std::optional<RenameEntry> RenameJournal::load(qint64 number) const
{
    QFile file(pathOf(number));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QJsonObject head = QJsonDocument::fromJson(file.readLine()).object();
    RenameEntry entry{ .mark = head[u"mark"_s].toString(), .undoes = head[u"undoes"_s].toInteger() };
    if (entry.mark.isEmpty())
        return std::nullopt;
    while (!file.atEnd())
        take(entry, QJsonDocument::fromJson(file.readLine()).object());
    return entry;
}

std::optional<qint64> RenameJournal::begin(const QString& mark, qint64 undoes) const
{
    constexpr QFile::Permissions ownerOnly = QFile::ReadOwner | QFile::WriteOwner;
    if (!QDir().mkpath(m_folder))
        return std::nullopt;
    const QList<qint64> kept = numbers();
    qint64 number = kept.isEmpty() ? 0 : kept.constLast();
    QFile file;
    do {
        file.setFileName(pathOf(++number));
        if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly, ownerOnly))
            break;
        if (!file.exists())
            return std::nullopt;
    } while (true);
    file.close();
    QJsonObject head{ { u"mark"_s, mark } };
    if (undoes > 0)
        head.insert(u"undoes"_s, undoes);
    if (!add(number, lineOf(head))) {
        remove(number);
        return std::nullopt;
    }
    // One that is not done is still to be dealt with.
    for (qsizetype i = 0; i + limit <= kept.size(); ++i)
        if (const auto entry = load(kept.at(i)); !entry || entry->isDone)
            remove(kept.at(i));
    return number;
}

bool RenameJournal::add(qint64 number, const QByteArray& line, bool isPrecious) const
{
    QFile file(pathOf(number));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::ExistingOnly))
        return false;
    // What a kill left half written must not swallow what is added behind it.
    const QByteArray bytes = file.size() > 0 ? '\n' + line : line;
    return file.write(bytes) == bytes.size() && file.flush() && (!isPrecious || fsync(file.handle()) == 0);
}

bool RenameJournal::noteFolder(qint64 number, const RenameEntry::Folder& folder) const
{
    return add(number, lineOf(toJson(folder)), true);
}

bool RenameJournal::noteMoved(qint64 number, qsizetype folder) const
{
    return add(number, lineOf({ { u"moved"_s, folder } }));
}

bool RenameJournal::noteUndone(qint64 number, qsizetype folder) const
{
    return add(number, lineOf({ { u"undone"_s, folder } }));
}

bool RenameJournal::noteDone(qint64 number) const
{
    return add(number, lineOf({ { u"done"_s, true } }));
}

void RenameJournal::remove(qint64 number) const
{
    QFile::remove(pathOf(number));
}

}  // namespace Quorbel
