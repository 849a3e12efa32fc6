#include "core/SaveJournal.h"

#include "core/EditPlan.h"
#include "core/MetadataWriter.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QXmlStreamReader>

namespace Quorbel {

namespace {

QString customGroupPrefix()
{
    return MetadataWriter::customNamespacePrefix() + u':';
}

/// "-XMP-dc:Title=x" and "-IPTC:Keywords+=x" give "XMP-dc:Title" and "IPTC:Keywords".
QString assignedTag(const QString& argument)
{
    auto end = argument.indexOf(u'=');
    if (end > 0 && (argument[end - 1] == u'+' || argument[end - 1] == u'-'))
        --end;
    return argument.sliced(1, end - 1);
}

/// Tags whose values may come in several languages.
const QStringList& languageTags()
{
    static const QStringList tags{ QStringLiteral("XMP-dc:Title"), QStringLiteral("XMP-dc:Description"),
        QStringLiteral("XMP-dc:Rights"), QStringLiteral("XMP-xmpRights:UsageTerms") };
    return tags;
}

/// Where ExifTool may find a position that was assigned without a group.
bool isPosition(const QString& tag)
{
    return tag.startsWith(QStringLiteral("GPS")) && !tag.contains(u':');
}

/// In Base64 where XML cannot hold the text.
bool isEncoded(const QXmlStreamReader& xml)
{
    return xml.attributes().value(QStringLiteral("rdf:datatype")).endsWith(u"base64Binary");
}

QString decoded(const QString& text, bool encoded)
{
    return encoded ? QString::fromUtf8(QByteArray::fromBase64(text.toLatin1())) : text;
}

QStringList itemsOf(QXmlStreamReader& xml)
{
    QStringList items;
    while (xml.readNextStartElement()) {
        if (xml.name() == QStringLiteral("li")) {
            const bool encoded = isEncoded(xml);
            items.append(decoded(xml.readElementText(QXmlStreamReader::IncludeChildElements), encoded));
        } else {
            items += itemsOf(xml);  // the bag around them
        }
    }
    return items;
}

/// One tag's element: a text or a bag of items.
QStringList valuesOf(QXmlStreamReader& xml)
{
    const bool encoded = isEncoded(xml);
    QString text;
    while (!xml.atEnd()) {
        switch (xml.readNext()) {
        case QXmlStreamReader::StartElement: {
            const QStringList items = itemsOf(xml);
            xml.skipCurrentElement();
            return items;
        }
        case QXmlStreamReader::Characters:
            text += xml.text();
            break;
        case QXmlStreamReader::EndElement:
            return { decoded(text, encoded) };
        default:
            break;
        }
    }
    return {};
}

/// A path as it is read in ExifTool's XML: there is no tab and no line break in an attribute, and no other control
/// character in XML at all.
QString printedPath(QString path)
{
    path.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (QChar& c : path)
        if (c < u' ')
            c = c == u'\t' || c == u'\n' || c == u'\r' ? u' ' : u'.';
    return path;
}

/// What was printed for files whose paths are printed alike, in the order of the answer.
QMap<QString, QList<FileTags>> answersByPrintedPath(const QByteArray& xml)
{
    QMap<QString, QList<FileTags>> answers;
    QXmlStreamReader reader(xml);
    // Tag names are used as they stand, group and colon included.
    reader.setNamespaceProcessing(false);
    QString path;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QString name = reader.qualifiedName().toString();
        if (name == QStringLiteral("rdf:Description")) {
            path = reader.attributes().value(QStringLiteral("rdf:about")).toString();
            answers[path].append(FileTags());
        } else if (auto known = answers.find(path); known != answers.end()) {
            known->last().insert(name, valuesOf(reader));
        }
    }
    return answers;
}

QJsonObject toJson(const FileStamp& stamp)
{
    return { { QStringLiteral("modified"), stamp.modified }, { QStringLiteral("size"), stamp.size } };
}

FileStamp stampFrom(const QJsonValue& value)
{
    return { .modified = value[QStringLiteral("modified")].toInteger(),
        .size = value[QStringLiteral("size")].toInteger() };
}

QJsonObject toJson(const JournalFile& file)
{
    QJsonObject tags;
    for (auto it = file.tags.cbegin(); it != file.tags.cend(); ++it)
        tags.insert(it.key(), QJsonArray::fromStringList(*it));
    return { { QStringLiteral("path"), file.path }, { QStringLiteral("before"), toJson(file.before) },
        { QStringLiteral("after"), toJson(file.after) }, { QStringLiteral("tags"), tags } };
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
    JournalFile file{ .path = value[QStringLiteral("path")].toString(),
        .before = stampFrom(value[QStringLiteral("before")]),
        .after = stampFrom(value[QStringLiteral("after")]) };
    const QJsonObject tags = value[QStringLiteral("tags")].toObject();
    for (auto it = tags.begin(); it != tags.end(); ++it)
        file.tags.insert(it.key(), stringsFrom(*it));
    return file;
}

QJsonObject toJson(const JournalEntry& entry)
{
    QJsonArray files;
    for (const auto& file : entry.files)
        files.append(toJson(file));
    return { { QStringLiteral("savedAt"), entry.savedAt.toString(Qt::ISODateWithMs) },
        { QStringLiteral("writtenTags"), QJsonArray::fromStringList(entry.writtenTags) },
        { QStringLiteral("customNames"), QJsonArray::fromStringList(entry.customNames) },
        { QStringLiteral("files"), files } };
}

JournalEntry entryFrom(const QJsonValue& value)
{
    JournalEntry entry{ .savedAt =
                            QDateTime::fromString(value[QStringLiteral("savedAt")].toString(), Qt::ISODateWithMs),
        .writtenTags = stringsFrom(value[QStringLiteral("writtenTags")]),
        .customNames = stringsFrom(value[QStringLiteral("customNames")]) };
    for (const auto& file : value[QStringLiteral("files")].toArray())
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

namespace SaveJournal {

QStringList writtenTags(const EditPlan& plan)
{
    QStringList tags;
    for (const auto& argument : MetadataWriter::assignments(plan))
        if (const QString tag = assignedTag(argument); !tags.contains(tag))
            tags.append(tag);
    return tags;
}

QStringList readArgs(const QStringList& writtenTags)
{
    QStringList args{ QStringLiteral("-X"), QStringLiteral("-n") };
    for (const auto& tag : writtenTags) {
        if (tag.startsWith(customGroupPrefix()))
            continue;  // all of the group are read at once, below
        if (isPosition(tag))
            args << QStringLiteral("-GPS:") + tag << QStringLiteral("-XMP-exif:") + tag;
        else
            args << u'-' + tag;
        if (languageTags().contains(tag))
            args << u'-' + tag + QStringLiteral("-*");
    }
    if (std::any_of(writtenTags.cbegin(), writtenTags.cend(),
            [](const QString& tag) { return tag.startsWith(customGroupPrefix()); }))
        args << u'-' + customGroupPrefix() + QStringLiteral("all");
    return args;
}

QList<std::optional<FileTags>> parseTags(const QByteArray& xml, const QStringList& paths)
{
    QMap<QString, QList<FileTags>> answers = answersByPrintedPath(xml);
    QMap<QString, qsizetype> asked;
    for (const auto& path : paths)
        ++asked[printedPath(path)];
    QList<std::optional<FileTags>> tags;
    tags.reserve(paths.size());
    for (const auto& path : paths) {
        const QString printed = printedPath(path);
        const auto alike = answers.constFind(printed);
        // The order tells alike ones apart, unless one of them gave no answer.
        const bool isKnown = alike != answers.cend() && alike->size() == asked.value(printed);
        tags.append(isKnown ? std::optional(alike->constFirst()) : std::nullopt);
        if (isKnown) {
            answers[printed].removeFirst();
            --asked[printed];
        }
    }
    return tags;
}

QStringList restoreArgs(const JournalEntry& entry, const JournalFile& file)
{
    QStringList args;
    for (const auto& tag : entry.writtenTags)
        args.append(u'-' + tag + u'=');
    for (auto it = file.tags.cbegin(); it != file.tags.cend(); ++it) {
        // Custom names come back with a capital first letter, and with fields that this save did not touch.
        if (it.key().startsWith(customGroupPrefix()) && !entry.writtenTags.contains(it.key(), Qt::CaseInsensitive))
            continue;
        for (const auto& value : *it)
            args.append(u'-' + it.key() + QStringLiteral("#=") + value);
    }
    return args;
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
        for (auto& file : entry.files)
            if (file.path == from)
                file.path = to;
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
        for (auto& entry : entries)
            for (auto& earlier : entry.files)
                if (now && earlier.path == file.path && earlier.after == file.before)
                    earlier.after = *now;
    }
}

}  // namespace SaveJournal

}  // namespace Quorbel
