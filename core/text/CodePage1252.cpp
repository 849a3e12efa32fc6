#include "core/text/CodePage1252.h"

#include <algorithm>
#include <array>

namespace Quorbel::CodePage1252 {

namespace {

// What the page holds at 0x80…0x9F, by Unicode's mapping table; the rest of it is Latin 1. Zero: nothing.
constexpr std::array<char16_t, 32> upperControls{ 0x20AC, 0, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6,
    0x2030, 0x0160, 0x2039, 0x0152, 0, 0x017D, 0, 0, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x02DC,
    0x2122, 0x0161, 0x203A, 0x0153, 0, 0x017E, 0x0178 };

// Programs of old count a character beyond the first plane twice.
QString withQuestionMarks(const QString& text, bool twiceBeyondFirstPlane)
{
    QString form;
    for (const QChar c : text)
        if (has(c))
            form += c;
        else if (twiceBeyondFirstPlane || !c.isLowSurrogate())
            form += u'?';
    return form;
}

}  // namespace

bool has(QChar c)
{
    const char16_t code = c.unicode();
    return code < 0x80 || (code >= 0xA0 && code <= 0xFF)
        || std::find(upperControls.begin(), upperControls.end(), code) != upperControls.end();
}

std::optional<QByteArray> encoded(const QString& text)
{
    QByteArray bytes;
    bytes.reserve(text.size());
    for (const QChar c : text) {
        const auto control = std::find(upperControls.begin(), upperControls.end(), c.unicode());
        if (c <= QChar(0xFF) && !c.isNull())
            bytes += char(c.unicode());
        else if (control != upperControls.end() && !c.isNull())
            bytes += char(0x80 + (control - upperControls.begin()));
        else
            return std::nullopt;
    }
    return bytes;
}

QString decoded(const QByteArray& bytes)
{
    QString text = QString::fromLatin1(bytes);
    for (QChar& c : text)
        if (c >= QChar(0x80) && c < QChar(0xA0) && upperControls.at(c.unicode() - 0x80) != 0)
            c = upperControls.at(c.unicode() - 0x80);
    return text;
}

QStringList damagedForms(const QString& text)
{
    QStringList forms{ withQuestionMarks(text, false), withQuestionMarks(text, true),
        QString::fromLatin1(text.toUtf8()), decoded(text.toUtf8()) };
    forms.removeDuplicates();
    forms.removeAll(text);
    return forms;
}

}  // namespace Quorbel::CodePage1252
