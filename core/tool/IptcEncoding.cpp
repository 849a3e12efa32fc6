#include "core/tool/IptcEncoding.h"

#include <algorithm>
#include <array>

namespace Quorbel::IptcEncoding {

using namespace Qt::StringLiterals;

namespace {

// What code page 1252 holds at 0x80…0x9F, by Unicode's mapping table; the rest of the page is Latin 1. Ascending.
constexpr std::array<char16_t, 27> extraCharacters{ 0x0152, 0x0153, 0x0160, 0x0161, 0x0178, 0x017D, 0x017E, 0x0192,
    0x02C6, 0x02DC, 0x2013, 0x2014, 0x2018, 0x2019, 0x201A, 0x201C, 0x201D, 0x201E, 0x2020, 0x2021, 0x2022, 0x2026,
    0x2030, 0x2039, 0x203A, 0x20AC, 0x2122 };

bool fits(QChar c)
{
    const char16_t code = c.unicode();
    return code < 0x80 || (code >= 0xA0 && code <= 0xFF)
        || std::binary_search(extraCharacters.begin(), extraCharacters.end(), code);
}

}  // namespace

bool needsUtf8(const QList<Assignment>& assignments)
{
    return std::any_of(assignments.cbegin(), assignments.cend(), [](const Assignment& assignment) {
        return assignment.tag.startsWith(u"IPTC:"_s)
            && !std::all_of(assignment.value.cbegin(), assignment.value.cend(), fits);
    });
}

WriteCommand conversion()
{
    // Times are left out: the tool would give those without a zone the one of this computer.
    return { .options = { u"-tagsfromfile"_s, u"@"_s, u"-iptc:all"_s, u"--iptc:TimeSent"_s, u"--iptc:ReleaseTime"_s,
                 u"--iptc:ExpirationTime"_s, u"--iptc:TimeCreated"_s, u"--iptc:DigitalCreationTime"_s },
        .assignments = { { .tag = u"IPTC:CodedCharacterSet"_s, .value = u"UTF8"_s } } };
}

}  // namespace Quorbel::IptcEncoding
