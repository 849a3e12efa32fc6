#include "platform/places/search/PlaceText.h"

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Two letters of click languages that folding leaves alone and no place's name ends or begins with.
constexpr char16_t endMark = u'\u01C2';
constexpr char16_t contextMark = u'\u01C3';

// Letters that Unicode does not take apart, and how people type them instead.
QStringView plainSpelling(char16_t letter)
{
    switch (letter) {
    case u'æ':
        return u"ae";
    case u'œ':
        return u"oe";
    case u'ø':
        return u"o";
    case u'ß':
        return u"ss";
    case u'ł':
        return u"l";
    case u'đ':
    case u'ð':
        return u"d";
    case u'þ':
        return u"th";
    case u'ħ':
        return u"h";
    case u'ı':
        return u"i";
    case u'ə':
        return u"e";
    case u'ŋ':
        return u"n";
    default:
        return {};
    }
}

// Marks inside a word that people leave out: O’Fallon, St. Moritz.
bool isSilent(char16_t c)
{
    return c == u'\'' || c == u'.' || c == u'`' || (c >= u'\u2018' && c <= u'\u201B')
        || (c >= u'\u02B9' && c <= u'\u02BF');
}

bool isLetter(QChar c)
{
    return c.isLetterOrNumber() || c.isSurrogate() || c.category() == QChar::Mark_SpacingCombining;
}

void appendFolded(QString& out, QChar c)
{
    const auto category = c.category();
    if (category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing || isSilent(c.unicode()))
        return;
    if (const auto plain = plainSpelling(c.unicode()); !plain.isEmpty())
        out += plain;
    else if (isLetter(c))
        out += c;
    else if (!out.isEmpty() && !out.endsWith(u' '))
        out += u' ';
}

bool isAscii(QStringView text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

}  // namespace

QString foldPlaceName(QStringView name)
{
    QString folded;
    folded.reserve(name.size() + 4);
    if (isAscii(name)) {
        for (const QChar c : name)
            appendFolded(folded, c.toLower());
    } else {
        const QString apart = name.toString().normalized(QString::NormalizationForm_KD).toCaseFolded();
        for (const QChar c : apart)
            appendFolded(folded, c);
    }
    if (folded.endsWith(u' '))
        folded.chop(1);
    return folded;
}

QString markNameEnd(const QString& folded)
{
    return folded + u' ' + folded.mid(folded.lastIndexOf(u' ') + 1) + QChar(endMark);
}

QString countryWord(const QString& code)
{
    return QChar(contextMark) + u"c"_s + code.toLower();
}

QString stateWord(int state)
{
    return QChar(contextMark) + u"s"_s + QString::number(state);
}

QString initialsWord(const QString& initials)
{
    return QChar(contextMark) + u"i"_s + initials;
}

QString townWord(const QString& word)
{
    return QChar(contextMark) + u"t"_s + word;
}

QString codeWord(const QString& code)
{
    return QChar(contextMark) + u"k"_s + code.toLower();
}

bool isMisspeltStart(QByteArrayView typed, QByteArrayView name)
{
    const auto* const t = typed.data();
    const auto* const n = name.data();
    const auto typedSize = typed.size();
    const auto nameSize = name.size();
    if (nameSize < 2 || typedSize < 2 || nameSize < typedSize - 1)
        return false;
    // Nearly every name ends here.
    if (t[0] != n[0] && t[0] != n[1] && t[1] != n[0] && t[1] != n[1])
        return false;
    qsizetype same = 0;
    while (same < typedSize && same < nameSize && t[same] == n[same])
        ++same;
    // What is left of the typed text after its first `skipped` bytes, looked for at that place of the name.
    const auto restMatches = [&](qsizetype skipTyped, qsizetype skipName) {
        const auto rest = typedSize - skipTyped;
        return rest >= 0 && nameSize - skipName >= rest && std::equal(t + skipTyped, t + typedSize, n + skipName);
    };
    const bool swapped =
        same + 1 < typedSize && same + 1 < nameSize && t[same] == n[same + 1] && t[same + 1] == n[same];
    return restMatches(same, same + 1)  // left out
        || restMatches(same + 1, same)  // added
        || restMatches(same + 1, same + 1)  // replaced
        || (swapped && restMatches(same + 2, same + 2));
}

}  // namespace Quorbel
