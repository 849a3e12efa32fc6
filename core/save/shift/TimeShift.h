// By how much the times of a photo are to be moved, or which time zone they are to carry. Thread: any. A plain value.
#pragma once

#include <QString>

#include <optional>

namespace Quorbel {

struct TimeShift {
    /// The longest, either way: a century.
    static constexpr qint64 mostSeconds = 36525LL * 24 * 60 * 60;

    qint64 seconds = 0;  ///< later; negative: earlier
    /// Minutes ahead of UTC: instead of that, the photo's times get this zone.
    std::optional<int> zone{};
    bool keepsClock = true;  ///< of a zone: otherwise the moment stays, and the clock moves
    bool operator==(const TimeShift&) const = default;

    /// "0:0:1 2:03:30": days, hours, minutes and seconds of so many seconds, as the tool's "+=" and "-=" read them.
    static QString forTool(qint64 seconds);
};

}  // namespace Quorbel
