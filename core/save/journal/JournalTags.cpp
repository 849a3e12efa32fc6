#include "core/save/journal/JournalTags.h"

#include "core/save/EditPlan.h"
#include "core/schema/FieldSchema.h"
#include "core/tool/IptcEncoding.h"
#include "core/tool/MetadataWriter.h"

#include <QUtf8StringView>

#include <algorithm>
#include <cmath>

namespace Quorbel::JournalTags {

using namespace Qt::StringLiterals;

namespace {

QString customGroupPrefix()
{
    return MetadataWriter::customNamespacePrefix() + u':';
}

// Tags whose values may come in several languages.
const QStringList& languageTags()
{
    static const QStringList tags{ u"XMP-dc:Title"_s, u"XMP-dc:Description"_s, u"XMP-dc:Rights"_s,
        u"XMP-iptcExt:Event"_s, u"XMP-xmpRights:UsageTerms"_s };
    return tags;
}

// Where ExifTool may find a position that was assigned without a group.
bool isPosition(const QString& tag)
{
    return tag.startsWith(u"GPS"_s) && !tag.contains(u':');
}

// What is asked for, to know what those tags hold: "XMP-dc:Title", "XMP-dc:Title-*".
QStringList selection(const QStringList& writtenTags)
{
    QStringList wanted;
    for (const auto& tag : writtenTags) {
        if (tag.startsWith(customGroupPrefix()))
            continue;  // all of the group are read at once, below
        if (isPosition(tag))
            wanted << u"GPS:"_s + tag << u"XMP:"_s + tag;
        else
            wanted << tag;
        if (languageTags().contains(tag))
            wanted << tag + u"-*"_s;
        if (tag == IptcEncoding::blockTag())
            wanted << u"IPTC:CodedCharacterSet"_s;  // tells what became of several blocks
    }
    if (std::any_of(writtenTags.cbegin(), writtenTags.cend(),
            [](const QString& tag) { return tag.startsWith(customGroupPrefix()); }))
        wanted << customGroupPrefix() + u"all"_s;
    return wanted;
}

// Whether a tag of this group, as the tool names the exact one in its answers, is of the group that was asked for.
bool isOf(QStringView group, QStringView found)
{
    const bool isXmp = found.startsWith(u"XMP");
    const bool isIptc = found.startsWith(u"IPTC");  // "IPTC2" is the second block
    if (group == u"XMP")
        return isXmp;
    if (group == u"IPTC")
        return isIptc;
    return group == u"EXIF" ? !isXmp && !isIptc : group == found;
}

// Whether the tool answers with this tag ("IFD0:Artist") when it is asked for that one ("EXIF:Artist").
bool selects(const QString& wanted, const QString& tag)
{
    const QStringView name = QStringView(wanted).sliced(wanted.indexOf(u':') + 1);
    const QStringView found = QStringView(tag).sliced(tag.indexOf(u':') + 1);
    if (!isOf(QStringView(wanted).first(wanted.indexOf(u':')), QStringView(tag).first(tag.indexOf(u':'))))
        return false;
    if (name == u"all")
        return true;
    return name.endsWith(u'*') ? found.startsWith(name.chopped(1), Qt::CaseInsensitive)
                               : found.compare(name, Qt::CaseInsensitive) == 0;
}

// As the tool's option "-ec" reads it: whatever an argument cannot hold (NUL, bytes that are no text) as "\xHH".
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

// The custom group is read as a whole, with fields that the save did not touch. Names in it come back with a capital
// first letter.
bool isConcerned(const JournalEntry& entry, const QString& tag)
{
    return !tag.startsWith(customGroupPrefix()) || entry.writtenTags.contains(tag, Qt::CaseInsensitive);
}

// Written once by mistake, it would take every custom field away now.
bool isWholeCustomGroup(const QString& tag)
{
    return tag.compare(customGroupPrefix() + u"All"_s, Qt::CaseInsensitive) == 0;
}

bool isSame(const QByteArray& a, const QByteArray& b)
{
    constexpr double rounding = 1e-8;  // degrees: a millimetre
    bool areNumbers[2] = {};
    const double difference = a.toDouble(&areNumbers[0]) - b.toDouble(&areNumbers[1]);
    return a == b || (areNumbers[0] && areNumbers[1] && std::abs(difference) < rounding);
}

bool hasSeveralBlocks(const JournalFile& file)
{
    return std::any_of(file.tags.keyBegin(), file.tags.keyEnd(), [](const QString& key) {
        return key.startsWith(u"IPTC"_s) && !key.startsWith(u"IPTC:"_s);  // "IPTC2:City"
    });
}

// How a file's IPTC is put back.
enum class Iptc {
    byTags,
    asABlock,  // it was re-encoded, also where no edit named a tag
    notAtAll,  // it was left alone
};

Iptc iptcOf(const JournalEntry& entry, const JournalFile& file)
{
    constexpr qsizetype longest = 100 * 1024;  // of an argument, with room to its limit
    if (!entry.writtenTags.contains(IptcEncoding::blockTag()))
        return Iptc::byTags;
    if (IptcEncoding::storedIn(file.tags) == IptcEncoding::Stored::severalBlocks)
        return Iptc::notAtAll;
    const QList<QByteArray> block = file.tags.value(IptcEncoding::blockTag());
    const bool fits = block.isEmpty() || escaped(block.constFirst()).size() <= longest;
    return fits && !hasSeveralBlocks(file) ? Iptc::asABlock : Iptc::byTags;
}

}  // namespace

QStringList writtenTags(const EditPlan& plan)
{
    QStringList tags;
    const auto assignments = MetadataWriter::assignments(plan);
    for (const auto& assignment : assignments)
        if (!tags.contains(assignment.tag))
            tags.append(assignment.tag);
    if (IptcEncoding::needsUtf8(assignments))
        tags.append(IptcEncoding::blockTag());
    return tags;
}

const QStringList& allTags()
{
    static const QStringList tags = [] {
        EditPlan plan{ .customs = { { u"Any"_s, {} } } };
        for (const FieldSpec& field : FieldSchema::all()) {
            if (field.isList())
                plan.lists.insert(field.id, {});
            else
                plan.scalars.insert(field.id, {});
        }
        return writtenTags(plan) << IptcEncoding::blockTag();
    }();
    return tags;
}

QStringList readArgs(const QStringList& writtenTags)
{
    QStringList args = TagDump::options();
    for (const QString& tag : selection(writtenTags))
        args << u'-' + tag;
    return args;
}

FileTags among(const FileTags& tags, const QStringList& writtenTags)
{
    const QStringList wanted = selection(writtenTags);
    FileTags found;
    for (auto it = tags.cbegin(); it != tags.cend(); ++it)
        if (std::any_of(wanted.cbegin(), wanted.cend(), [&](const QString& one) { return selects(one, it.key()); }))
            found.insert(it.key(), *it);
    return found;
}

WriteCommand restoreCommand(const JournalEntry& entry, const JournalFile& file)
{
    const Iptc iptc = iptcOf(entry, file);
    const auto isLeftOut = [&](const QString& tag) {
        return homeOf(tag) == u"IPTC"
            && (iptc != Iptc::byTags || tag == IptcEncoding::blockTag() || tag == u"IPTC:CodedCharacterSet");
    };
    WriteCommand command{ .options = { u"-ec"_s } };
    for (const auto& tag : entry.writtenTags)
        if (!isLeftOut(tag) && !isWholeCustomGroup(tag))
            command.assignments.append({ .tag = tag });
    for (auto it = file.tags.cbegin(); it != file.tags.cend(); ++it)
        if (isConcerned(entry, it.key()) && !isLeftOut(it.key()) && !isWholeCustomGroup(it.key()))
            for (const auto& value : *it)
                command.assignments.append({ it.key(), Assignment::Operation::restore, escaped(value) });
    if (iptc == Iptc::asABlock) {
        const QList<QByteArray> block = file.tags.value(IptcEncoding::blockTag());
        command.assignments.append(block.isEmpty()
                ? Assignment{ .tag = IptcEncoding::blockTag() }
                : Assignment{ IptcEncoding::blockTag(), Assignment::Operation::restore, escaped(block.constFirst()) });
    }
    return command;
}

bool isRestored(const JournalEntry& entry, const JournalFile& file, const FileTags& tags)
{
    // Of several blocks each may have its tags in another order than before.
    const bool hasBlocks = hasSeveralBlocks(file);
    const QStringList keys = file.tags.keys() + tags.keys();
    return std::all_of(keys.cbegin(), keys.cend(), [&](const QString& key) {
        const QList<QByteArray> before = file.tags.value(key);
        const QList<QByteArray> now = tags.value(key);
        return !isConcerned(entry, key) || (hasBlocks && key.endsWith(u":IPTC"_s))
            || std::equal(before.cbegin(), before.cend(), now.cbegin(), now.cend(), isSame);
    });
}

}  // namespace Quorbel::JournalTags
