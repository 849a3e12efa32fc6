#include "core/tokens/DateForm.h"

#include <QDate>
#include <QLocale>
#include <QRegularExpression>
#include <QTime>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

QString padded(int number, qsizetype digits)
{
    return QString::number(number).rightJustified(digits, u'0');
}

std::optional<QString> yearPart(const PhotoDate& date, qsizetype length)
{
    return length == 2 ? padded(date.year % 100, 2) : padded(date.year, 4);
}

std::optional<QString> monthPart(const PhotoDate& date, qsizetype length)
{
    if (date.month == 0)
        return std::nullopt;
    if (length <= 2)
        return padded(date.month, length);
    return QLocale::c().monthName(date.month, length == 3 ? QLocale::ShortFormat : QLocale::LongFormat);
}

std::optional<QString> dayPart(const PhotoDate& date, qsizetype length)
{
    if (date.day == 0)
        return std::nullopt;
    if (length <= 2)
        return padded(date.day, length);
    return QLocale::c().dayName(
        QDate(date.year, date.month, date.day).dayOfWeek(), length == 3 ? QLocale::ShortFormat : QLocale::LongFormat);
}

std::optional<QString> timePart(const PhotoDate& date, QChar letter, qsizetype length)
{
    if (date.hour < 0)
        return std::nullopt;
    if (letter == u'm')
        return padded(date.minute, length);
    if (letter == u's')
        return padded(date.second, length);
    return padded(letter == u'H' ? date.hour : (date.hour + 11) % 12 + 1, length);
}

// One run of the same letter.
std::optional<QString> part(const PhotoDate& date, QStringView run)
{
    const QChar letter = run.front();
    if (letter == u'y')
        return yearPart(date, run.size());
    if (letter == u'M')
        return monthPart(date, run.size());
    if (letter == u'd')
        return dayPart(date, run.size());
    return timePart(date, letter, run.size());
}

// A word of the form; one that says nothing of dates stays.
std::optional<QString> word(const PhotoDate& date, const QString& text)
{
    static const QRegularExpression parts(u"d{1,4}|M{1,4}|yyyy|yy|HH?|hh?|mm?|ss?"_s);
    static const QRegularExpression whole(u"^(?:d{1,4}|M{1,4}|yyyy|yy|HH?|hh?|mm?|ss?)+$"_s);
    if (text.compare(u"ap"_s, Qt::CaseInsensitive) == 0) {
        if (date.hour < 0)
            return std::nullopt;
        const QString half = date.hour < 12 ? u"am"_s : u"pm"_s;
        return text.front().isUpper() ? half.toUpper() : half;
    }
    if (!whole.match(text).hasMatch())
        return text;
    QString out;
    for (auto run = parts.globalMatch(text); run.hasNext();) {
        const std::optional<QString> filled = part(date, run.next().capturedView());
        if (!filled)
            return std::nullopt;
        out += *filled;
    }
    return out;
}

}  // namespace

std::optional<PhotoDate> PhotoDate::parse(const QString& text)
{
    static const QRegularExpression form(u"^\\s*([0-9]{4})(?:[:-]([0-9]{1,2})(?:[:-]([0-9]{1,2})"
                                         "(?:[ T]+([0-9]{1,2}):([0-9]{2})(?::([0-9]{2})(?:[.,][0-9]+)?)?"
                                         "\\s*(?:Z|(?:GMT|UTC)?[+-][0-9]{1,2}:?[0-9]{2})?)?)?)?[:-]?\\s*$"_s);
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const auto number = [&match](
                            int i, int without) { return match.hasCaptured(i) ? match.captured(i).toInt() : without; };
    PhotoDate date{ number(1, 0), number(2, 0), number(3, 0), number(4, -1), number(5, 0), number(6, 0) };
    const bool isDay = !match.hasCaptured(3) || QDate::isValid(date.year, date.month, date.day);
    const bool isMonth = !match.hasCaptured(2) || (date.month >= 1 && date.month <= 12);
    const bool isTime = date.hour < 0 || QTime::isValid(date.hour, date.minute, date.second);
    if (date.year == 0 || !isMonth || !isDay || !isTime)
        return std::nullopt;
    return date;
}

std::optional<QString> DateForm::apply(const QString& form, const PhotoDate& date)
{
    // Quoted text, then words of letters, then single signs.
    static const QRegularExpression pieces(
        u"'([^']*)'|([A-Za-z]+)|."_s, QRegularExpression::DotMatchesEverythingOption);
    QString out;
    for (auto piece = pieces.globalMatch(form); piece.hasNext();) {
        const QRegularExpressionMatch match = piece.next();
        if (!match.hasCaptured(2)) {
            out += match.hasCaptured(1) ? match.captured(1) : match.captured(0);
            continue;
        }
        const std::optional<QString> filled = word(date, match.captured(2));
        if (!filled)
            return std::nullopt;
        out += *filled;
    }
    return out;
}

}  // namespace Quorbel
