#include "core/save/journal/JournalTags.h"

#include "core/iptc/IptcSchema.h"
#include "core/save/EditPlan.h"
#include "core/save/together/DateCompanions.h"
#include "core/schema/FieldSchema.h"
#include "core/text/Coordinates.h"
#include "core/tool/IptcEncoding.h"
#include "core/tool/MetadataWriter.h"

#include <QSet>
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

// Whether its text may come in several languages.
bool isLanguageTag(const QString& tag)
{
    static const QSet<QString> tags = [] {
        QSet<QString> tags;
        for (const FieldSpec& field : FieldSchema::everyField())
            tags.insert(field.languageTag());
        return tags;
    }();
    return tags.contains(tag);
}

// "XMP-dc:Title" of "XMP-dc:Title-de": what the tool puts back whole, or not at all.
QString allLanguages(const QString& tag)
{
    return tag.first(tag.indexOf(u'-', tag.indexOf(u':')));
}

// Days and times as files hold them need not be such as the tool writes: IPTC goes back as it was.
bool touchesIptcDates(const QStringList& writtenTags)
{
    return std::any_of(writtenTags.cbegin(), writtenTags.cend(), DateCompanions::isIptcDateOrTime);
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
        if (isLanguageTag(tag))
            wanted << tag + u"-*"_s;
        if (tag == IptcEncoding::blockTag())
            wanted << u"IPTC:CodedCharacterSet"_s;  // tells what became of several blocks
    }
    if (touchesIptcDates(writtenTags) && !wanted.contains(IptcEncoding::blockTag()))
        wanted << IptcEncoding::blockTag();
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
bool isConcerned(const QStringList& writtenTags, const QString& tag)
{
    return !tag.startsWith(customGroupPrefix()) || writtenTags.contains(tag, Qt::CaseInsensitive);
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

// As an argument, with room to its limit.
bool fitsArgument(const QByteArray& value)
{
    constexpr qsizetype longest = 100 * 1024;
    return escaped(value).size() <= longest;
}

bool writesStructure(const EditPlan& plan)
{
    const auto isStructure = [](const QString& id) {
        const FieldSpec* field = IptcSchema::spec(id);
        return field && field->kind == FieldKind::structure;
    };
    return std::any_of(plan.scalars.keyBegin(), plan.scalars.keyEnd(), isStructure)
        || std::any_of(plan.iptcLists.keyBegin(), plan.iptcLists.keyEnd(), isStructure);
}

// Whether XMP goes back as a whole.
bool isXmpBlock(const JournalEntry& entry, const JournalFile& file)
{
    return writtenTags(entry, file).contains(xmpBlockTag());
}

// How a file's IPTC is put back.
enum class Iptc {
    byTags,
    asABlock,  // it was re-encoded, also where no edit named a tag
    notAtAll,  // it was left alone
};

Iptc iptcOf(const JournalEntry& entry, const JournalFile& file)
{
    const QStringList& written = writtenTags(entry, file);
    const bool isEncodedAnew = written.contains(IptcEncoding::blockTag());
    if (!isEncodedAnew && !touchesIptcDates(written))
        return Iptc::byTags;
    if (isEncodedAnew && IptcEncoding::storedIn(file.tags) == IptcEncoding::Stored::severalBlocks)
        return Iptc::notAtAll;
    const QList<QByteArray> block = file.tags.value(IptcEncoding::blockTag());
    const bool fits = block.isEmpty() || fitsArgument(block.constFirst());
    return fits && !hasSeveralBlocks(file) ? Iptc::asABlock : Iptc::byTags;
}

// A home as it was, byte for byte, or gone.
Assignment wholeOf(const QString& tag, const QList<QByteArray>& block)
{
    if (block.isEmpty())
        return { .tag = tag };
    return { tag, Assignment::Operation::restore, escaped(block.constFirst()) };
}

}  // namespace

QString xmpBlockTag()
{
    return u"XMP:XMP"_s;
}

std::optional<QByteArray> longXmp(const JournalEntry& entry, const JournalFile& file)
{
    const QList<QByteArray> block = file.tags.value(xmpBlockTag());
    if (!isXmpBlock(entry, file) || block.isEmpty() || fitsArgument(block.constFirst()))
        return std::nullopt;
    return block.constFirst();
}

QStringList writtenTags(const EditPlan& plan)
{
    QStringList tags;
    const WriteCommand command = MetadataWriter::command(plan);
    for (const auto& assignment : command.assignments)
        tags.append(assignment.tag);
    for (const auto& assignment : command.languages)
        tags.append(allLanguages(assignment.tag));
    tags.removeDuplicates();
    if (IptcEncoding::needsUtf8(command.assignments))
        tags.append(IptcEncoding::blockTag());
    if (!plan.leftOut.contains(u"XMP"_s) && writesStructure(plan))
        tags.append(xmpBlockTag());
    return tags;
}

const QStringList& writtenTags(const JournalEntry& entry, const JournalFile& file)
{
    return file.writtenTags.isEmpty() ? entry.writtenTags : file.writtenTags;
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
    const QStringList& written = writtenTags(entry, file);
    const Iptc iptc = iptcOf(entry, file);
    const bool isBlock = isXmpBlock(entry, file);
    const auto isLeftOut = [&](const QString& tag) {
        if (homeOf(tag) == u"XMP")
            return isBlock;
        return homeOf(tag) == u"IPTC"
            && (iptc != Iptc::byTags || tag == IptcEncoding::blockTag() || tag == u"IPTC:CodedCharacterSet");
    };
    WriteCommand command{ .options = { u"-ec"_s } };
    for (const auto& tag : written)
        if (!isLeftOut(tag) && !isWholeCustomGroup(tag))
            command.assignments.append({ .tag = tag });
    for (auto it = file.tags.cbegin(); it != file.tags.cend(); ++it)
        if (isConcerned(written, it.key()) && !isLeftOut(it.key()) && !isWholeCustomGroup(it.key()))
            for (const auto& value : *it)
                command.assignments.append({ it.key(), Assignment::Operation::restore, escaped(value) });
    if (iptc == Iptc::asABlock) {
        const QList<QByteArray> block = file.tags.value(IptcEncoding::blockTag());
        command.assignments.append(wholeOf(IptcEncoding::blockTag(), block));
    }
    if (!isBlock)
        return command;
    command.assignments = Coordinates::inExif(command.assignments);
    if (const QList<QByteArray> block = file.tags.value(xmpBlockTag()); block.isEmpty() || fitsArgument(block[0]))
        command.assignments.append(wholeOf(xmpBlockTag(), block));
    return command;
}

bool isRestored(const JournalEntry& entry, const JournalFile& file, const FileTags& found)
{
    const QStringList& written = writtenTags(entry, file);
    const FileTags tags = among(found, written);
    // Of several blocks each may have its tags in another order than before; so may one that went back by its tags.
    const bool hasOwnOrder =
        hasSeveralBlocks(file) || (!written.contains(IptcEncoding::blockTag()) && iptcOf(entry, file) == Iptc::byTags);
    const QStringList keys = file.tags.keys() + tags.keys();
    return std::all_of(keys.cbegin(), keys.cend(), [&](const QString& key) {
        const QList<QByteArray> before = file.tags.value(key);
        const QList<QByteArray> now = tags.value(key);
        return !isConcerned(written, key) || (hasOwnOrder && key.endsWith(u":IPTC"_s))
            || std::equal(before.cbegin(), before.cend(), now.cbegin(), now.cend(), isSame);
    });
}

}  // namespace Quorbel::JournalTags
