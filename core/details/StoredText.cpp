#include "core/details/StoredText.h"

#include "core/text/CodePage1252.h"
#include "core/text/Text.h"

#include <QHash>
#include <QStringDecoder>
#include <QStringList>

#include <algorithm>
#include <array>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Bytes that the standard allows a dataset.
int longest(const QString& tag)
{
    static const QHash<QString, int> limits{ { u"IPTC:ObjectName"_s, 64 }, { u"IPTC:Urgency"_s, 1 },
        { u"IPTC:Category"_s, 3 }, { u"IPTC:Keywords"_s, 64 }, { u"IPTC:SpecialInstructions"_s, 256 },
        { u"IPTC:By-line"_s, 32 }, { u"IPTC:City"_s, 32 }, { u"IPTC:Sub-location"_s, 32 },
        { u"IPTC:Province-State"_s, 32 }, { u"IPTC:Country-PrimaryLocationName"_s, 64 },
        { u"IPTC:OriginalTransmissionReference"_s, 32 }, { u"IPTC:Headline"_s, 256 }, { u"IPTC:Credit"_s, 32 },
        { u"IPTC:Source"_s, 32 }, { u"IPTC:CopyrightNotice"_s, 128 }, { u"IPTC:Caption-Abstract"_s, 2000 },
        { u"IPTC:Writer-Editor"_s, 32 } };
    return limits.value(tag);
}

// Of which a limit may have taken a part, or white space at the end.
constexpr int longestCharacter = 4;

bool isFull(const QString& tag, const QString& text)
{
    const int limit = longest(tag);
    const auto reaches = [limit](qsizetype size) { return size > limit - longestCharacter && size <= limit; };
    // Some programs count characters.
    return limit > 1 && (reaches(text.size()) || reaches(text.toUtf8().size()));
}

// What the text may have been meant to be.
QStringList readings(const QString& stored, bool declaresEncoding)
{
    static constexpr std::array encodings{ "UTF-8", "macintosh", "windows-1250", "windows-1251", "windows-1253",
        "windows-1254", "IBM437", "IBM850", "Shift_JIS", "EUC-JP", "GB18030", "Big5", "EUC-KR" };
    QStringList texts{ StoredText::normal(stored) };
    const bool isAscii = std::all_of(stored.cbegin(), stored.cend(), [](QChar c) { return c < QChar(0x80); });
    const auto bytes = declaresEncoding || isAscii ? std::nullopt : CodePage1252::encoded(stored);
    if (!bytes)
        return texts;
    for (const char* encoding : encodings)
        if (QStringDecoder decoder(encoding); decoder.isValid()) {
            QString text = decoder(*bytes);
            while (text.endsWith(QChar::ReplacementCharacter))  // cut off within a character
                text.chop(1);
            texts.append(StoredText::normal(text));
        }
    texts.removeDuplicates();
    return texts;
}

bool isMarkOrForeign(QChar c)
{
    return c == u'?' || c >= QChar(0x80);
}

qsizetype runLength(QStringView text, qsizetype from)
{
    qsizetype end = from;
    while (end < text.size() && isMarkOrForeign(text[end]))
        ++end;
    return end - from;
}

// Whether the text is the other one with question marks for letters that its encoding lacks: one each, or one a byte.
bool isWithMarks(QStringView text, QStringView intact, bool mayEndEarly)
{
    qsizetype at = 0;
    qsizetype in = 0;
    while (at < text.size() && in < intact.size()) {
        const qsizetype marks = runLength(text, at);
        const qsizetype letters = runLength(intact, in);
        if (marks == 0 || letters == 0) {
            if (text[at++] != intact[in++])
                return false;
            continue;
        }
        const bool isMarked = text.sliced(at, marks).contains(u'?');
        const bool fits = isMarked ? marks <= longestCharacter * letters && letters <= 2 * marks
                                   : text.sliced(at, marks) == intact.sliced(in, letters);
        if (!fits)
            return false;
        at += marks;
        in += letters;
    }
    return at == text.size() && (mayEndEarly || in == intact.size());
}

}  // namespace

// What EXIF holds in another encoding than UTF-8, the tool prints with question marks.
StoredText::StoredText(const QString& tag, const QString& text, bool declaresEncoding)
    : m_readings(readings(text, declaresEncoding))
    , m_isCutOff(isFull(tag, text))
    , m_hasMarks((!declaresEncoding || tag.startsWith(u"EXIF:"_s)) && text.contains(u'?'))
{
}

bool StoredText::isSame(const StoredText& other) const
{
    return m_readings.constFirst() == other.m_readings.constFirst() || isFormOf(other) || other.isFormOf(*this);
}

QString StoredText::normal(const QString& text)
{
    QString lines = text;
    lines.replace(u"\r\n"_s, u"\n"_s);
    lines.replace(u'\r', u'\n');
    lines.replace(QChar::Null, u'\n');
    return Text::trimmedWithNewlines(lines);
}

bool StoredText::isFormOf(const StoredText& whole) const
{
    return std::any_of(whole.m_readings.cbegin(), whole.m_readings.cend(), [this](const QString& intact) {
        return std::any_of(m_readings.cbegin(), m_readings.cend(), [&](const QString& text) {
            return text == intact || (m_isCutOff && intact.startsWith(text))
                || (m_hasMarks && isWithMarks(text, intact, m_isCutOff));
        });
    });
}

}  // namespace Quorbel
