// A date and time to the letter, as a photo holds it: "2024:05:06 14:30:15.050+02:00". Thread: any. A plain value.
#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

namespace Quorbel {

struct StoredTime {
    QDateTime clock{};  ///< what the camera's clock showed; in UTC merely to stay clear of summer time
    bool hasSeconds = true;
    QString fraction{};  ///< of a second, ".050"
    QString zone{};  ///< "+02:00", "Z"
    bool operator==(const StoredTime&) const = default;

    /// The whole text, in just that form; seconds and what follows them may be missing. Nothing where there is no such
    /// day or time.
    static std::optional<StoredTime> from(const QString& text);
    /// The text again.
    QString text() const;
    /// Later by so much, negative: earlier. Nothing beyond the years 1 to 9999.
    std::optional<StoredTime> shifted(qint64 seconds) const;
};

}  // namespace Quorbel
