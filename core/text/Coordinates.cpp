#include "core/text/Coordinates.h"

#include "core/text/Text.h"

#include <algorithm>
#include <cmath>

namespace Quorbel::Coordinates {

using namespace Qt::StringLiterals;

namespace {

QString sixDecimals(double degrees)
{
    return QString::asprintf("%.6f", degrees);
}

// "33.5 S" and "-33.5" alike; the letter's sign and the number's own multiply.
std::optional<double> parseComponent(const QString& piece, QChar positive, QChar negative)
{
    QString digits = piece;
    double sign = 1;
    for (const QChar letter : { positive, negative, positive.toLower(), negative.toLower() }) {
        if (!piece.endsWith(letter))
            continue;
        sign = letter.toUpper() == negative ? -1 : 1;
        digits = Text::trimmed(piece.chopped(1));
        break;
    }
    const std::optional<double> number = Text::parseDouble(digits);
    if (!number || !std::isfinite(*number))
        return std::nullopt;
    return sign * *number;
}

}  // namespace

std::optional<Point> parse(const QString& text)
{
    const QStringList pieces = Text::trimmed(text).split(u',', Qt::SkipEmptyParts);
    if (pieces.size() != 2)
        return std::nullopt;
    const std::optional<double> latitude = parseComponent(Text::trimmed(pieces[0]), u'N', u'S');
    const std::optional<double> longitude = parseComponent(Text::trimmed(pieces[1]), u'E', u'W');
    if (!latitude || !longitude)
        return std::nullopt;
    return Point{ *latitude, *longitude };
}

QString displayString(const Point& point)
{
    return sixDecimals(point.latitude) + u", "_s + sixDecimals(point.longitude);
}

QStringList writeArgs(const QString& text)
{
    if (Text::trimmed(text).isEmpty())
        return { u"-GPSLatitude="_s, u"-GPSLatitudeRef="_s, u"-GPSLongitude="_s, u"-GPSLongitudeRef="_s };
    const std::optional<Point> point = parse(text);
    if (!point)
        return {};
    return {
        u"-GPSLatitude="_s + sixDecimals(std::abs(point->latitude)),
        u"-GPSLatitudeRef="_s + (point->latitude >= 0 ? u'N' : u'S'),
        u"-GPSLongitude="_s + sixDecimals(std::abs(point->longitude)),
        u"-GPSLongitudeRef="_s + (point->longitude >= 0 ? u'E' : u'W'),
    };
}

QStringList signArgs(const QStringList& writeArgs)
{
    QStringList args;
    bool isSigned = false;
    for (const auto& [tag, negative] : { std::pair(u"-GPSLatitude"_s, u'S'), std::pair(u"-GPSLongitude"_s, u'W') }) {
        const QString number = tag + u'=';
        const auto written = std::find_if(writeArgs.cbegin(), writeArgs.cend(),
            [&number](const QString& arg) { return arg.startsWith(number) && arg.size() > number.size(); });
        if (written == writeArgs.cend())
            return {};
        const bool isNegative = writeArgs.contains(tag + u"Ref="_s + negative);
        args << u"-XMP:"_s + tag.sliced(1) + u'=' + (isNegative ? u"-"_s : QString()) + written->sliced(number.size());
        isSigned |= isNegative;
    }
    return isSigned ? QStringList{ u"-n"_s, u"-wm"_s, u"w"_s } + args : QStringList();
}

}  // namespace Quorbel::Coordinates
