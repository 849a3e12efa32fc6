// A date as a photo holds it, as precisely as it says, in the form that somebody asks for.
// Thread: any. Pure. Names of months and days are English; nothing is ever converted from one zone to another.
#pragma once

#include <QString>

#include <optional>

namespace Quorbel {

struct PhotoDate {
    int year = 0;
    int month = 0;  ///< 1 to 12; 0: not said
    int day = 0;  ///< 0: not said
    int hour = -1;  ///< -1: no time is said
    int minute = 0;
    int second = 0;

    /// "2024", "2024-05", "2024:05:06", "2024-05-06 14:30", "2024:05:06T14:30:15.5+02:00": fractions and offsets play
    /// no part. Nothing when there is no such day or time.
    static std::optional<PhotoDate> parse(const QString& text);
    bool operator==(const PhotoDate&) const = default;
};

namespace DateForm {

/// The date in the form: d dd ddd dddd, M MM MMM MMMM, yy yyyy, H HH, h hh, m mm, s ss, AP ap, alone or several in one
/// word ("yyyyMMdd"); other words, signs, and what stands in '…' are taken as they are. Nothing when the form asks for
/// what the date does not say.
std::optional<QString> apply(const QString& form, const PhotoDate& date);

}  // namespace DateForm

}  // namespace Quorbel
