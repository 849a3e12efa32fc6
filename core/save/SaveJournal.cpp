#include "core/save/SaveJournal.h"

#include "core/save/Companions.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QUtf8StringView>

#include <algorithm>

namespace Quorbel::SaveJournal {

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

}  // namespace Quorbel::SaveJournal
