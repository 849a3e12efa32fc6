// Dates and times as a camera's clock shows them: without a zone, and nothing is ever converted.
// Thread: any. Pure. A QDateTime here is in UTC merely to stay clear of hours that a change to summer time skips.
#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

namespace Quorbel::WallClock {

/// "2024-5-6", "2024-05-06 14:30", "2024-05-06 14:30:15", with "-" or ":" between the parts of the day. The whole text;
/// nothing when there is no such day or time.
std::optional<QDateTime> fromTyped(const QString& text);
/// "2024:05:06 14:30:15" or "2024:05:06 14:30", as photos hold them. The whole text.
std::optional<QDateTime> fromStored(const QString& text);

/// "2024:05:06 14:30:15".
QString stored(const QDateTime& date);
/// "2024-05-06 14:30".
QString shown(const QDateTime& date);

}  // namespace Quorbel::WallClock
