#include "core/save/journal/SaveJournal.h"

#include "core/save/Companions.h"
#include "core/tool/TemporaryFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QSet>
#include <QUtf8StringView>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// A string of JSON, or, for bytes that are no text, their Base64 in an object.
QJsonValue toJson(const QByteArray& value)
{
    if (QUtf8StringView(value).isValidUtf8())
        return QString::fromUtf8(value);
    return QJsonObject{ { u"base64"_s, QString::fromLatin1(value.toBase64()) } };
}

QByteArray bytesFrom(const QJsonValue& value)
{
    return value.isObject() ? QByteArray::fromBase64(value[u"base64"_s].toString().toLatin1())
                            : value.toString().toUtf8();
}

QJsonObject toJson(const FileStamp& stamp)
{
    return { { u"modified"_s, stamp.modified }, { u"size"_s, stamp.size } };
}

FileStamp stampFrom(const QJsonValue& value)
{
    return { .modified = value[u"modified"_s].toInteger(), .size = value[u"size"_s].toInteger() };
}

QJsonValue toJson(const JournalSidecar& sidecar)
{
    if (sidecar.path.isEmpty())
        return QJsonValue::Undefined;
    QJsonObject object{ { u"path"_s, sidecar.path },
        { u"text"_s, QString::fromLatin1(qCompress(sidecar.text).toBase64()) } };
    if (sidecar.before)
        object.insert(u"before"_s, toJson(*sidecar.before));
    if (sidecar.after)
        object.insert(u"after"_s, toJson(*sidecar.after));
    return object;
}

JournalSidecar sidecarFrom(const QJsonValue& value)
{
    JournalSidecar sidecar{ .path = value[u"path"_s].toString() };
    if (value[u"before"_s].isObject())
        sidecar.before = stampFrom(value[u"before"_s]);
    if (value[u"after"_s].isObject())
        sidecar.after = stampFrom(value[u"after"_s]);
    if (!sidecar.path.isEmpty())
        sidecar.text = qUncompress(QByteArray::fromBase64(value[u"text"_s].toString().toLatin1()));
    return sidecar;
}

QJsonObject toJson(const JournalFile& file)
{
    QJsonObject tags;
    for (auto it = file.tags.cbegin(); it != file.tags.cend(); ++it) {
        QJsonArray values;
        for (const auto& value : *it)
            values.append(toJson(value));
        tags.insert(it.key(), values);
    }
    QJsonObject object{ { u"path"_s, file.path }, { u"before"_s, toJson(file.before) },
        { u"after"_s, toJson(file.after) }, { u"tags"_s, tags }, { u"sidecar"_s, toJson(file.sidecar) } };
    if (!file.link.isEmpty())
        object.insert(u"link"_s, file.link);
    if (!file.writtenTags.isEmpty())
        object.insert(u"writtenTags"_s, QJsonArray::fromStringList(file.writtenTags));
    return object;
}

QStringList stringsFrom(const QJsonValue& value)
{
    QStringList strings;
    for (const auto& item : value.toArray())
        strings.append(item.toString());
    return strings;
}

JournalFile fileFrom(const QJsonValue& value)
{
    JournalFile file{ .path = value[u"path"_s].toString(),
        .link = value[u"link"_s].toString(),
        .before = stampFrom(value[u"before"_s]),
        .after = stampFrom(value[u"after"_s]),
        .writtenTags = stringsFrom(value[u"writtenTags"_s]),
        .sidecar = sidecarFrom(value[u"sidecar"_s]) };
    const QJsonObject tags = value[u"tags"_s].toObject();
    for (auto it = tags.begin(); it != tags.end(); ++it)
        for (const auto& value : it->toArray())
            file.tags[it.key()].append(bytesFrom(value));
    return file;
}

QJsonObject toJson(const JournalEntry& entry)
{
    QJsonArray files;
    for (const auto& file : entry.files)
        files.append(toJson(file));
    QJsonObject object{ { u"savedAt"_s, entry.savedAt.toString(Qt::ISODateWithMs) },
        { u"writtenTags"_s, QJsonArray::fromStringList(entry.writtenTags) },
        { u"customNames"_s, QJsonArray::fromStringList(entry.customNames) }, { u"files"_s, files } };
    if (entry.isTimeShift)
        object.insert(u"isTimeShift"_s, true);
    return object;
}

JournalEntry entryFrom(const QJsonValue& value)
{
    JournalEntry entry{ .savedAt = QDateTime::fromString(value[u"savedAt"_s].toString(), Qt::ISODateWithMs),
        .writtenTags = stringsFrom(value[u"writtenTags"_s]),
        .customNames = stringsFrom(value[u"customNames"_s]),
        .isTimeShift = value[u"isTimeShift"_s].toBool() };
    for (const auto& file : value[u"files"_s].toArray())
        entry.files.append(fileFrom(file));
    return entry;
}

// What happened to photos since some save: other names, and files that an undo has put back.
struct Note {
    QList<std::pair<QString, QString>> renames{};
    bool areTogether = false;  ///< all renames at once, not one after the other
    QString id{};  ///< of such: a note that is there twice counts once
    QList<JournalFile> restored{};  ///< `before`: as the undone save had found it; `after`: as it is now; no tags
};

QJsonObject toJson(const Note& note)
{
    QJsonArray renames;
    for (const auto& [from, to] : note.renames)
        renames.append(QJsonArray{ from, to });
    QJsonArray restored;
    for (const JournalFile& file : note.restored)
        restored.append(toJson(file));
    if (note.areTogether)
        return { { u"together"_s, renames }, { u"id"_s, note.id } };
    return { { u"renames"_s, renames }, { u"restored"_s, restored } };
}

Note noteFrom(const QJsonValue& value)
{
    Note note{ .areTogether = value[u"together"_s].isArray(), .id = value[u"id"_s].toString() };
    for (const auto& rename : value[note.areTogether ? u"together"_s : u"renames"_s].toArray())
        note.renames.append({ rename[0].toString(), rename[1].toString() });
    for (const auto& file : value[u"restored"_s].toArray())
        note.restored.append(fileFrom(file));
    return note;
}

void follow(JournalFile& file, const QHash<QString, QString>& names)
{
    for (QString* path : { &file.path, &file.link, &file.sidecar.path })
        *path = names.value(*path, *path);
}

// A sidecar that was saved for itself goes with its photo alone; one that mirrors a photo also with any other of its
// base name.
void follow(JournalFile& file, const std::pair<QString, QString>& rename)
{
    const auto& [from, to] = rename;
    const bool isItself = file.path == from || file.link == from;
    const bool isForItself = !file.path.isEmpty() && file.path == file.sidecar.path;
    QHash<QString, QString> names{ { from, to } };
    const auto sidecars = Companions::sidecarMoves(from, to);
    for (const auto& [old, now] : isItself ? sidecars : sidecars.first(isForItself ? 0 : 1))
        names.insert(old, now);
    follow(file, names);
}

void followTogether(QList<JournalFile>& files, const QList<std::pair<QString, QString>>& renames)
{
    QHash<QString, QString> names;
    for (const auto& [from, to] : renames) {
        names.insert(from, to);
        // Of photos that share a sidecar the first one takes it along.
        for (const auto& [old, now] : Companions::sidecarMoves(from, to))
            if (!names.contains(old))
                names.insert(old, now);
    }
    for (JournalFile& file : files)
        follow(file, names);
}

// A file that an undo has put back is again what the earlier save left, where the undone save had found it so.
void takeBack(JournalFile& earlier, const JournalFile& restored)
{
    if (earlier.after == restored.before)
        earlier.after = restored.after;
    JournalSidecar& sidecar = earlier.sidecar;
    if (sidecar.after && sidecar.path == restored.sidecar.path && sidecar.after == restored.sidecar.before)
        sidecar.after = restored.sidecar.after;
}

void apply(const Note& note, JournalEntry& entry)
{
    QHash<QString, const JournalFile*> restored;
    for (const JournalFile& file : note.restored)
        restored.insert(file.path, &file);
    if (note.areTogether)
        return followTogether(entry.files, note.renames);
    for (JournalFile& file : entry.files) {
        for (const auto& rename : note.renames)
            follow(file, rename);
        if (const JournalFile* back = restored.value(file.path))
            takeBack(file, *back);
    }
}

constexpr QLatin1StringView saveSuffix(".save.json");
constexpr QLatin1StringView noteSuffix(".note.json");

// The numbers of the files of one kind, ascending.
QList<qint64> numbers(const QString& folder, QLatin1StringView suffix)
{
    QList<qint64> found;
    const QStringList names = QDir(folder).entryList({ u'*' + suffix }, QDir::Files);
    for (const QString& name : names) {
        bool isNumber = false;
        const qint64 number = name.chopped(suffix.size()).toLongLong(&isNumber);
        if (isNumber)
            found.append(number);
    }
    std::sort(found.begin(), found.end());
    return found;
}

QString pathOf(const QString& folder, qint64 number, QLatin1StringView suffix)
{
    return folder + u'/' + QString::number(number).rightJustified(10, u'0') + suffix;
}

QJsonObject objectIn(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

// Private: it holds what the user wrote.
constexpr QFile::Permissions ownerOnly = QFile::ReadOwner | QFile::WriteOwner;

bool store(const QString& path, const QJsonObject& object)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.setPermissions(ownerOnly)
        && file.write(QJsonDocument(object).toJson(QJsonDocument::Compact)) >= 0 && file.commit();
}

// Under the next number. It is taken by creating the file, which one program alone can do.
std::optional<qint64> append(const QString& folder, QLatin1StringView suffix, const QJsonObject& object)
{
    if (!QDir().mkpath(folder))
        return std::nullopt;
    qint64 number = 0;
    for (const QLatin1StringView known : { saveSuffix, noteSuffix })
        if (const QList<qint64> taken = numbers(folder, known); !taken.isEmpty())
            number = std::max(number, taken.constLast());
    QFile place;
    do {
        place.setFileName(pathOf(folder, ++number, suffix));
        if (place.open(QIODevice::WriteOnly | QIODevice::NewOnly, ownerOnly))
            break;
        if (!place.exists())
            return std::nullopt;
    } while (true);
    place.close();
    if (store(place.fileName(), object))
        return number;
    place.remove();
    return std::nullopt;
}

}  // namespace

QList<qint64> SaveJournal::saves() const
{
    return numbers(m_folder, saveSuffix);
}

std::optional<JournalEntry> SaveJournal::load(qint64 number) const
{
    const QJsonObject object = objectIn(pathOf(m_folder, number, saveSuffix));
    if (object.isEmpty())
        return std::nullopt;
    JournalEntry entry = entryFrom(object);
    QSet<QString> applied;
    for (const qint64 later : numbers(m_folder, noteSuffix)) {
        const Note note = later > number ? noteFrom(objectIn(pathOf(m_folder, later, noteSuffix))) : Note();
        if (!note.id.isEmpty() && applied.contains(note.id))
            continue;
        applied.insert(note.id);
        apply(note, entry);
    }
    return entry;
}

std::optional<qint64> SaveJournal::add(const JournalEntry& entry) const
{
    const auto number = append(m_folder, saveSuffix, toJson(entry));
    const QList<qint64> kept = saves();
    for (const qint64 old : kept.first(std::max<qsizetype>(0, kept.size() - limit)))
        QFile::remove(pathOf(m_folder, old, saveSuffix));
    forgetOldNotes();
    return number;
}

bool SaveJournal::noteRenames(const QList<std::pair<QString, QString>>& renames) const
{
    return saves().isEmpty() || append(m_folder, noteSuffix, toJson(Note{ .renames = renames }));
}

bool SaveJournal::noteRenamesTogether(const QString& id, const QList<std::pair<QString, QString>>& renames) const
{
    return saves().isEmpty()
        || append(m_folder, noteSuffix, toJson(Note{ .renames = renames, .areTogether = true, .id = id }));
}

bool SaveJournal::removeUndone(qint64 number, const JournalEntry& undone, const JournalEntry& rest) const
{
    Note note;
    for (const JournalFile& file : undone.files) {
        JournalFile now{ .path = file.path, .before = file.before };
        now.after = FileStamp::of(file.path).value_or(file.after);
        now.sidecar.path = file.sidecar.path;
        now.sidecar.before = file.sidecar.before;
        now.sidecar.after = FileStamp::of(file.sidecar.path);
        note.restored.append(now);
    }
    const bool isFirst = saves().value(0) == number;
    const bool isNoted = note.restored.isEmpty() || isFirst || append(m_folder, noteSuffix, toJson(note));
    const QString path = pathOf(m_folder, number, saveSuffix);
    const bool isDone = rest.files.isEmpty() ? QFile::remove(path) : store(path, toJson(rest));
    forgetOldNotes();
    return isNoted && isDone;
}

// A note tells of the saves before it.
void SaveJournal::forgetOldNotes() const
{
    const QList<qint64> left = saves();
    for (const qint64 note : numbers(m_folder, noteSuffix))
        if (left.isEmpty() || note < left.constFirst())
            QFile::remove(pathOf(m_folder, note, noteSuffix));
}

void SaveJournal::takeOver(const QString& oldJournal) const
{
    QFile file(oldJournal);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QJsonArray saved = QJsonDocument::fromJson(file.readAll()).array();
    // Its saves are older than any that lies here.
    bool isComplete = saves().isEmpty();
    for (const auto& entry : saved)
        isComplete = isComplete && add(entryFrom(entry));
    if (isComplete || !saves().isEmpty())
        file.remove();
}

void SaveJournal::tidy() const
{
    TemporaryFiles::clearHalfWritten(m_folder);
}

}  // namespace Quorbel
