#include "core/text/WallClock.h"

#include <QStringView>

#include <array>
#include <span>

namespace Quorbel::WallClock {

using namespace Qt::StringLiterals;

namespace {

struct Pattern {
    QChar dateSeparator{};
    int timeFields = 0;  // 0: date only; 2: hours and minutes; 3: with seconds
};

// Takes a number of one to `maximumDigits` ASCII digits off the front; nothing when there is no digit.
std::optional<int> takeNumber(QStringView& text, int maximumDigits)
{
    int number = 0;
    int digits = 0;
    while (digits < maximumDigits && digits < text.size() && text[digits] >= u'0' && text[digits] <= u'9')
        number = number * 10 + (text[digits++].unicode() - u'0');
    if (digits == 0)
        return std::nullopt;
    text = text.sliced(digits);
    return number;
}

bool takeSeparator(QStringView& text, QChar separator)
{
    if (!text.startsWith(separator))
        return false;
    text = text.sliced(1);
    return true;
}

// The whole text in this pattern. Not QDateTime::fromString: that insists on two digits a field.
std::optional<QDateTime> parse(QStringView text, const Pattern& pattern)
{
    constexpr int dateFields = 3;
    std::array<int, 6> fields{};
    for (int i = 0; i < dateFields + pattern.timeFields; ++i) {
        const QChar separator = i < dateFields ? pattern.dateSeparator : i == dateFields ? u' ' : u':';
        if (i > 0 && !takeSeparator(text, separator))
            return std::nullopt;
        const std::optional<int> number = takeNumber(text, i == 0 ? 4 : 2);
        if (!number)
            return std::nullopt;
        fields.at(i) = *number;
    }
    const QDate date(fields[0], fields[1], fields[2]);
    const QTime time(fields[3], fields[4], fields[5]);
    if (!text.isEmpty() || !date.isValid() || !time.isValid())
        return std::nullopt;
    return QDateTime(date, time, Qt::UTC);
}

std::optional<QDateTime> parseAny(const QString& text, std::span<const Pattern> patterns)
{
    for (const Pattern& pattern : patterns)
        if (const std::optional<QDateTime> date = parse(text, pattern))
            return date;
    return std::nullopt;
}

}  // namespace

std::optional<QDateTime> fromTyped(const QString& text)
{
    static constexpr std::array<Pattern, 6> patterns{ { { u':', 3 }, { u'-', 3 }, { u':', 2 }, { u'-', 2 }, { u':', 0 },
        { u'-', 0 } } };
    return parseAny(text, patterns);
}

std::optional<QDateTime> fromStored(const QString& text)
{
    static constexpr std::array<Pattern, 2> patterns{ { { u':', 3 }, { u':', 2 } } };
    return parseAny(text, patterns);
}

QString stored(const QDateTime& date)
{
    return date.toString(u"yyyy:MM:dd HH:mm:ss"_s);
}

QString shown(const QDateTime& date)
{
    return date.toString(u"yyyy-MM-dd HH:mm"_s);
}

}  // namespace Quorbel::WallClock
