#include "core/tool/IptcEncoding.h"

#include "core/text/CodePage1252.h"

#include <QUtf8StringView>

#include <algorithm>

namespace Quorbel::IptcEncoding {

using namespace Qt::StringLiterals;

namespace {

// The value of CodedCharacterSet.
const QByteArray utf8("\x1b%G");

}  // namespace

QString blockTag()
{
    return u"IPTC:IPTC"_s;
}

bool needsUtf8(const QList<Assignment>& assignments)
{
    return std::any_of(assignments.cbegin(), assignments.cend(), [](const Assignment& assignment) {
        return assignment.tag.startsWith(u"IPTC:"_s) && assignment.tag != blockTag()
            && !std::all_of(assignment.value.cbegin(), assignment.value.cend(), CodePage1252::has);
    });
}

QStringList readArgs()
{
    // Told that undeclared texts are UTF-8, the tool passes their bytes on as they are.
    return TagDump::options() << u"-charset"_s << u"iptc=UTF8"_s << u"-IPTC:all"_s;
}

Stored storedIn(const FileTags& tags)
{
    QMap<QString, bool> isDeclared;  // by block: "IPTC", "IPTC2"
    for (auto it = tags.cbegin(); it != tags.cend(); ++it)
        if (it.key().startsWith(u"IPTC"_s))
            isDeclared[it.key().section(u':', 0, 0)] |=
                it.key().endsWith(u":CodedCharacterSet"_s) && it->contains(utf8);
    if (isDeclared.isEmpty())
        return Stored::none;
    if (!isDeclared.values().contains(false))
        return Stored::declaredUtf8;
    if (isDeclared.size() > 1)
        return Stored::severalBlocks;
    bool isAscii = true;
    for (const auto& values : tags)
        for (const auto& value : values) {
            const bool fitsAscii = std::all_of(value.cbegin(), value.cend(), [](char c) { return uchar(c) < 0x80; });
            if (!fitsAscii && !QUtf8StringView(value).isValidUtf8())
                return Stored::latin1;
            isAscii = isAscii && fitsAscii;
        }
    return isAscii ? Stored::latin1 : Stored::undeclaredUtf8;
}

WriteCommand conversion(Stored stored)
{
    if (stored == Stored::declaredUtf8 || stored == Stored::severalBlocks)
        return {};
    const Assignment declaration{ .tag = u"IPTC:CodedCharacterSet"_s, .value = u"UTF8"_s };
    // The tool fails where it finds nothing to copy and the file has a tag called Error.
    if (stored == Stored::none)
        return { .assignments = { declaration } };
    // Times are left out: the tool would give those without a zone the one of this computer.
    WriteCommand command{ .options = { u"-tagsfromfile"_s, u"@"_s, u"-iptc:all"_s, u"--iptc:TimeSent"_s,
                              u"--iptc:ReleaseTime"_s, u"--iptc:ExpirationTime"_s, u"--iptc:TimeCreated"_s,
                              u"--iptc:DigitalCreationTime"_s },
        .assignments = { declaration } };
    if (stored == Stored::undeclaredUtf8)
        command.options = QStringList{ u"-charset"_s, u"iptc=UTF8"_s } + command.options;
    return command;
}

}  // namespace Quorbel::IptcEncoding
