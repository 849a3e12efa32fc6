// Positions as texts, "48.858370, 2.294481", in signed decimal degrees. Thread: any. Pure.
#pragma once

#include "core/tool/WriteCommand.h"

#include <QString>

#include <optional>

namespace Quorbel::Coordinates {

struct Point {
    double latitude = 0;  ///< degrees, north positive
    double longitude = 0;  ///< degrees, east positive
    bool operator==(const Point&) const = default;
};

/// Two decimal numbers with a comma between, each with an optional N, S, E or W behind. No range check.
std::optional<Point> parse(const QString& text);
/// Six decimals, comma and space.
QString displayString(const Point& point);
/// The four GPS assignments; four deletions for a blank text; none for a text that does not parse.
QList<Assignment> writeArgs(const QString& text);
/// The assignments with those of a position, if there are any, bound for one home alone.
QList<Assignment> inExif(QList<Assignment> assignments);
QList<Assignment> inXmp(const QList<Assignment>& assignments);
/// What a write of these assignments has to be followed by. ExifTool takes a position that names no group for XMP too,
/// where no reference stands beside the number: south and west need its sign. Changes only tags that exist. Empty when
/// the assignments hold no position or one whose numbers have no sign.
WriteCommand signCommand(const QList<Assignment>& assignments);

}  // namespace Quorbel::Coordinates
