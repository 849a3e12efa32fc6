#include "core/text/FileNaming.h"

#include "core/language/Texts.h"
#include "core/text/Text.h"

#include <QRegularExpression>
#include <QTextBoundaryFinder>

namespace Quorbel::FileNaming {

using namespace Qt::StringLiterals;

namespace {

// Separators and reserved characters of the common desktop file systems.
constexpr QStringView forbiddenCharacters = u"/\\:*?\"<>|";

QString withoutAtEnds(const QString& text, QStringView characters)
{
    qsizetype from = 0;
    qsizetype to = text.size();
    while (from < to && characters.contains(text[from]))
        ++from;
    while (to > from && characters.contains(text[to - 1]))
        --to;
    return text.sliced(from, to - from);
}

// Controls, and what acts unseen like one: format characters (direction overrides, joiners) and half surrogates.
bool isControl(char32_t c)
{
    const QChar::Category category = QChar::category(c);
    return category == QChar::Other_Control || category == QChar::Other_Format || category == QChar::Other_Surrogate;
}

bool isForbidden(char32_t c)
{
    return c < 0x80 && forbiddenCharacters.contains(QChar(static_cast<char16_t>(c)));
}

QString relaxedComponent(const QString& trimmed)
{
    static const QRegularExpression spaces(u"\\s+"_s, QRegularExpression::UseUnicodePropertiesOption);
    QString kept;
    const QList<uint> codePoints = trimmed.toUcs4();
    for (const char32_t c : codePoints)
        if (!isForbidden(c) && !isControl(c))
            kept += QChar::fromUcs4(c);
    return kept.replace(spaces, u"-"_s);
}

bool isAsciiLetterOrDigit(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9');
}

// What strict naming makes of one user-perceived character: itself, "-", or nothing.
QStringView strictCharacter(QStringView cluster)
{
    const QChar first = cluster.front();
    if (first.isSpace())
        return u"-";
    const bool kept = cluster.size() == 1 && (isAsciiLetterOrDigit(first) || first == u'-' || first == u'_');
    return kept ? cluster : QStringView();
}

QString strictComponent(const QString& trimmed)
{
    static const QRegularExpression hyphens(u"-+"_s);
    const QString folded = Text::foldingDiacritics(trimmed);
    QString kept;
    // By clusters, so that the digit under an emoji's key cap goes with the key cap.
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, folded);
    for (qsizetype from = 0, to = finder.toNextBoundary(); to > from; from = to, to = finder.toNextBoundary())
        kept += strictCharacter(QStringView(folded).sliced(from, to - from));
    return withoutAtEnds(kept.replace(hyphens, u"-"_s), u"-");
}

}  // namespace

const QList<Token>& tokens()
{
    static const QList<Token> table{
        { Texts::mark("Date taken"), u"%Date%"_s },
        { Texts::mark("Time"), u"%Time%"_s },
        { Texts::mark("Title"), u"%Title%"_s },
        { Texts::mark("Creator"), u"%Creator%"_s },
        { Texts::mark("Place"), u"%Place%"_s },
        { Texts::mark("Original name"), u"%Original%"_s },
    };
    return table;
}

QString render(const QString& pattern, const QMap<QString, QString>& values, bool strict)
{
    QString name = pattern;
    for (const Token& token : tokens())
        name.replace(token.placeholder, sanitizeComponent(values.value(token.placeholder), strict));
    return tidied(name);
}

QString tidied(QString name)
{
    static const QRegularExpression underscores(u"_+"_s);
    name = withoutAtEnds(name.replace(underscores, u"_"_s), u"_-. ");
    return name.isEmpty() ? u"untitled"_s : name;
}

QString sanitizeComponent(const QString& value, bool strict)
{
    const QString trimmed = Text::trimmedWithNewlines(value);
    return strict ? strictComponent(trimmed) : relaxedComponent(trimmed);
}

QString uniqueFileName(const QString& base, const QString& ext, const std::function<bool(const QString&)>& isTaken)
{
    const QString suffix = ext.isEmpty() ? QString() : u'.' + ext;
    QString name = base + suffix;
    for (qint64 number = 2; isTaken(name); ++number)
        name = base + u'-' + QString::number(number) + suffix;
    return name;
}

}  // namespace Quorbel::FileNaming
