#include "core/text/Text.h"

#include "core/language/Texts.h"

#include <QCollator>
#include <QLocale>

#include <charconv>
#include <cmath>

namespace Quorbel::Text {

using namespace Qt::StringLiterals;

namespace {

bool isBlank(QChar c)
{
    return c == u'\t' || c.category() == QChar::Separator_Space;
}

// One collator a thread: QCollator is reentrant, not thread-safe, and costly to make.
const QCollator& naturalCollator()
{
    static thread_local const QCollator collator = [] {
        // ICU has no numeric mode in the "C" locale.
        const QLocale user = QLocale().collation();
        QCollator made(user.language() == QLocale::C ? QLocale(QLocale::English, QLocale::UnitedStates) : user);
        made.setNumericMode(true);
        made.setCaseSensitivity(Qt::CaseInsensitive);
        return made;
    }();
    return collator;
}

// from_chars takes "-" but no "+", so one "+" is taken off first, and "+-" stays an error.
template <typename Number>
std::optional<Number> parseWhole(const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    const char* first = bytes.constData();
    const char* const last = first + bytes.size();
    if (bytes.startsWith('+') && !bytes.startsWith("+-"))
        ++first;
    Number number{};
    const auto [end, error] = std::from_chars(first, last, number);
    if (error != std::errc{} || end != last)
        return std::nullopt;
    return number;
}

}  // namespace

QString trimmed(const QString& text)
{
    qsizetype from = 0;
    qsizetype to = text.size();
    while (from < to && isBlank(text[from]))
        ++from;
    while (to > from && isBlank(text[to - 1]))
        --to;
    return text.sliced(from, to - from);
}

QString trimmedWithNewlines(const QString& text)
{
    return text.trimmed();
}

int naturalCompare(const QString& a, const QString& b)
{
    return naturalCollator().compare(a, b);
}

QCollatorSortKey naturalSortKey(const QString& text)
{
    return naturalCollator().sortKey(text);
}

QString listed(const QStringList& names, qsizetype most)
{
    const QString text = names.mid(0, most).join(u", "_s);
    //: %1 is a list: "a.jpg, b.jpg and 3 more"
    return names.size() > most ? Texts::tr("%1 and %n more", nullptr, names.size() - most).arg(text) : text;
}

QString foldingDiacritics(const QString& text)
{
    QString folded;
    folded.reserve(text.size());
    const QList<uint> codePoints = text.normalized(QString::NormalizationForm_D).toUcs4();
    for (const char32_t c : codePoints)
        if (QChar::category(c) != QChar::Mark_NonSpacing)
            folded += QChar::fromUcs4(c);
    return folded.normalized(QString::NormalizationForm_C);
}

std::optional<double> parseDouble(const QString& text)
{
    return parseWhole<double>(text);
}

std::optional<qint64> parseInteger(const QString& text)
{
    return parseWhole<qint64>(text);
}

QString shortestForm(double value)
{
    // Left to itself to_chars takes whichever form is shorter, and 0.0001 would read "1e-04".
    const double magnitude = std::abs(value);
    const bool plain = magnitude == 0 || (magnitude >= 1e-4 && magnitude < 1e15);
    char buffer[64];
    const auto result = plain ? std::to_chars(std::begin(buffer), std::end(buffer), value, std::chars_format::fixed)
                              : std::to_chars(std::begin(buffer), std::end(buffer), value);
    return QString::fromLatin1(buffer, result.ptr - buffer);
}

}  // namespace Quorbel::Text
