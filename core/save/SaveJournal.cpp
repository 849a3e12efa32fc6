#include "core/save/SaveJournal.h"

#include "core/save/Companions.h"
#include "core/save/EditPlan.h"
#include "core/tool/MetadataWriter.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QUtf8StringView>

#include <algorithm>
#include <cmath>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

QString customGroupPrefix()
{
    return MetadataWriter::customNamespacePrefix() + u':';
}

/// Tags whose values may come in several languages.
const QStringList& languageTags()
{
    static const QStringList tags{ u"XMP-dc:Title"_s, u"XMP-dc:Description"_s, u"XMP-dc:Rights"_s,
        u"XMP-iptcExt:Event"_s, u"XMP-xmpRights:UsageTerms"_s };
    return tags;
}

/// Where ExifTool may find a position that was assigned without a group.
bool isPosition(const QString& tag)
{
    return tag.startsWith(u"GPS"_s) && !tag.contains(u':');
}

/// As the tool's option "-ec" reads it: whatever an argument cannot hold (NUL, bytes that are no text) as "\xHH".
QString escaped(const QByteArray& value)
{
    const bool isText = QUtf8StringView(value).isValidUtf8();
    QByteArray argument;
    for (const char c : value) {
        const auto code = uchar(c);
        const bool isPlain = c == '\t' || c == '\n' || (code >= ' ' && (code < 0x7F || (isText && code > 0x7F)));
        if (c == '\\')
            argument += "\\\\";
        else if (isPlain)
            argument += c;
        else
            argument += "\\x" + QByteArray(1, c).toHex();
    }
    return QString::fromUtf8(argument);
}

/// The custom group is read as a whole, with fields that the save did not touch. Names in it come back with a capital
/// first letter.
bool isConcerned(const JournalEntry& entry, const QString& tag)
{
    return !tag.startsWith(customGroupPrefix()) || entry.writtenTags.contains(tag, Qt::CaseInsensitive);
}

bool isSame(const QByteArray& a, const QByteArray& b)
{
    constexpr double rounding = 1e-8;  // degrees: a millimetre
    bool areNumbers[2] = {};
    const double difference = a.toDouble(&areNumbers[0]) - b.toDouble(&areNumbers[1]);
    return a == b || (areNumbers[0] && areNumbers[1] && std::abs(difference) < rounding);
}

/// A string of JSON, or, for bytes that are no text, their Base64 in an object.
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
    return { { u"path"_s, file.path }, { u"before"_s, toJson(file.before) }, { u"after"_s, toJson(file.after) },
        { u"tags"_s, tags }, { u"sidecar"_s, toJson(file.sidecar) } };
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
        .before = stampFrom(value[u"before"_s]),
        .after = stampFrom(value[u"after"_s]),
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
    return { { u"savedAt"_s, entry.savedAt.toString(Qt::ISODateWithMs) },
        { u"writtenTags"_s, QJsonArray::fromStringList(entry.writtenTags) },
        { u"customNames"_s, QJsonArray::fromStringList(entry.customNames) }, { u"files"_s, files } };
}

JournalEntry entryFrom(const QJsonValue& value)
{
    JournalEntry entry{ .savedAt = QDateTime::fromString(value[u"savedAt"_s].toString(), Qt::ISODateWithMs),
        .writtenTags = stringsFrom(value[u"writtenTags"_s]),
        .customNames = stringsFrom(value[u"customNames"_s]) };
    for (const auto& file : value[u"files"_s].toArray())
        entry.files.append(fileFrom(file));
    return entry;
}

}  // namespace

std::optional<FileStamp> FileStamp::of(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return std::nullopt;
    return FileStamp{ .modified = info.lastModified().toMSecsSinceEpoch(), .size = info.size() };
}

JournalSidecar JournalSidecar::of(const QString& path)
{
    JournalSidecar sidecar{ .path = path, .before = FileStamp::of(path) };
    QFile file(path);
    if (sidecar.before && file.open(QIODevice::ReadOnly))
        sidecar.text = file.readAll();
    // What could not be read whole is not written back either.
    if (sidecar.before && sidecar.text.size() != sidecar.before->size)
        return {};
    return sidecar;
}

bool JournalSidecar::restore() const
{
    if (path.isEmpty() || !after || FileStamp::of(path) != after)
        return true;
    if (!before)
        return QFile::remove(path);
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit();
}

namespace SaveJournal {

QStringList writtenTags(const EditPlan& plan)
{
    QStringList tags;
    for (const auto& assignment : MetadataWriter::assignments(plan))
        if (!tags.contains(assignment.tag))
            tags.append(assignment.tag);
    return tags;
}

QStringList readArgs(const QStringList& writtenTags)
{
    QStringList args = TagDump::options();
    for (const auto& tag : writtenTags) {
        if (tag.startsWith(customGroupPrefix()))
            continue;  // all of the group are read at once, below
        if (isPosition(tag))
            args << u"-GPS:"_s + tag << u"-XMP:"_s + tag;
        else
            args << u'-' + tag;
        if (languageTags().contains(tag))
            args << u'-' + tag + u"-*"_s;
    }
    if (std::any_of(writtenTags.cbegin(), writtenTags.cend(),
            [](const QString& tag) { return tag.startsWith(customGroupPrefix()); }))
        args << u'-' + customGroupPrefix() + u"all"_s;
    return args;
}

WriteCommand restoreCommand(const JournalEntry& entry, const JournalFile& file)
{
    WriteCommand command{ .options = { u"-ec"_s } };
    for (const auto& tag : entry.writtenTags)
        command.assignments.append({ .tag = tag });
    for (auto it = file.tags.cbegin(); it != file.tags.cend(); ++it)
        if (isConcerned(entry, it.key()))
            for (const auto& value : *it)
                command.assignments.append({ it.key(), Assignment::Operation::restore, escaped(value) });
    return command;
}

bool isRestored(const JournalEntry& entry, const JournalFile& file, const FileTags& tags)
{
    const QStringList keys = file.tags.keys() + tags.keys();
    return std::all_of(keys.cbegin(), keys.cend(), [&](const QString& key) {
        const QList<QByteArray> before = file.tags.value(key);
        const QList<QByteArray> now = tags.value(key);
        return !isConcerned(entry, key) || std::equal(before.cbegin(), before.cend(), now.cbegin(), now.cend(), isSame);
    });
}

QList<JournalEntry> load(const QString& journalPath)
{
    QFile file(journalPath);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<JournalEntry> entries;
    const QJsonArray saved = QJsonDocument::fromJson(file.readAll()).array();
    for (const auto& entry : saved)
        entries.append(entryFrom(entry));
    return entries;
}

bool store(const QString& journalPath, const QList<JournalEntry>& entries)
{
    if (!QDir().mkpath(QFileInfo(journalPath).path()))
        return false;
    QJsonArray saved;
    for (const auto& entry : entries.mid(std::max<qsizetype>(0, entries.size() - limit)))
        saved.append(toJson(entry));
    QSaveFile file(journalPath);
    // Private: it holds what the user wrote.
    return file.open(QIODevice::WriteOnly) && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner)
        && file.write(QJsonDocument(saved).toJson(QJsonDocument::Compact)) >= 0 && file.commit();
}

void rename(QList<JournalEntry>& entries, const QString& from, const QString& to)
{
    for (auto& entry : entries)
        for (auto& file : entry.files) {
            if (file.path == from)
                file.path = to;
            if (file.sidecar.path == Companions::sidecarPath(from))
                file.sidecar.path = Companions::sidecarPath(to);
        }
}

void removeUndone(QList<JournalEntry>& entries, const QStringList& restored)
{
    if (entries.isEmpty())
        return;
    const JournalEntry undone = entries.takeLast();
    for (const auto& file : undone.files) {
        if (!restored.contains(file.path))
            continue;
        const auto now = FileStamp::of(file.path);
        const auto sidecarNow = FileStamp::of(file.sidecar.path);
        for (auto& entry : entries)
            for (auto& earlier : entry.files) {
                if (now && earlier.path == file.path && earlier.after == file.before)
                    earlier.after = *now;
                auto& sidecar = earlier.sidecar;
                if (sidecar.after && sidecar.path == file.sidecar.path && sidecar.after == file.sidecar.before)
                    sidecar.after = sidecarNow;
            }
    }
}

}  // namespace SaveJournal

}  // namespace Quorbel
