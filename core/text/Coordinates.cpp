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

QString latitudeTag()
{
    return u"GPSLatitude"_s;
}

QString longitudeTag()
{
    return u"GPSLongitude"_s;
}

// Of an assignment that writeArgs made.
bool isPosition(const QString& tag)
{
    return tag.startsWith(u"GPS"_s);
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

QList<Assignment> writeArgs(const QString& text)
{
    const bool isDeleted = Text::trimmed(text).isEmpty();
    const std::optional<Point> point = parse(text);
    if (!point && !isDeleted)
        return {};
    QList<Assignment> assignments;
    const auto add = [&](const QString& tag, double degrees, QChar positive, QChar negative) {
        assignments.append({ .tag = tag, .value = isDeleted ? QString() : sixDecimals(std::abs(degrees)) });
        assignments.append(
            { .tag = tag + u"Ref"_s, .value = isDeleted ? QString() : QString(degrees >= 0 ? positive : negative) });
    };
    const Point written = point.value_or(Point());
    add(latitudeTag(), written.latitude, u'N', u'S');
    add(longitudeTag(), written.longitude, u'E', u'W');
    return assignments;
}

QList<Assignment> inExif(QList<Assignment> assignments)
{
    for (auto& assignment : assignments)
        if (isPosition(assignment.tag))
            assignment.tag.prepend(u"EXIF:"_s);
    return assignments;
}

QList<Assignment> inXmp(const QList<Assignment>& assignments)
{
    QList<Assignment> bound;
    for (const auto& assignment : assignments) {
        if (!isPosition(assignment.tag))
            bound.append(assignment);
        else if (assignment.tag.endsWith(u"Ref"_s) && !assignment.value.isEmpty())
            bound.last().value += u' ' + assignment.value;  // writeArgs puts it behind its number
        else if (!assignment.tag.endsWith(u"Ref"_s))
            bound.append({ .tag = u"XMP-exif:"_s + assignment.tag, .value = assignment.value });
    }
    return bound;
}

WriteCommand signCommand(const QList<Assignment>& assignments)
{
    WriteCommand command{ .options = { u"-n"_s, u"-wm"_s, u"w"_s } };
    bool isSigned = false;
    for (const auto& [tag, negative] : { std::pair(latitudeTag(), u"S"_s), std::pair(longitudeTag(), u"W"_s) }) {
        const auto number =
            std::find_if(assignments.cbegin(), assignments.cend(), [&tag = tag](const Assignment& assignment) {
                return assignment.tag == tag && !assignment.value.isEmpty();
            });
        if (number == assignments.cend())
            return {};
        const bool isNegative = assignments.contains({ .tag = tag + u"Ref"_s, .value = negative });
        command.assignments.append(
            { .tag = u"XMP:"_s + tag, .value = isNegative ? u'-' + number->value : number->value });
        isSigned |= isNegative;
    }
    return isSigned ? command : WriteCommand();
}

}  // namespace Quorbel::Coordinates
