// How a counter counts: where it begins, by how much it grows, how many digits it has. Thread: any. A plain value.
#pragma once

#include <QString>

#include <optional>

namespace Quorbel {

struct CounterForm {
    static constexpr int mostDigits = 12;

    qint64 start = 1;
    qint64 step = 1;
    int digits = 1;  ///< at least so many, with zeros in front

    /// "0001": from 1 with four digits; "0010+10": by ten. Nothing for any other text.
    static std::optional<CounterForm> parse(const QString& form);
    /// The shortest such text; "" for a counter from 1.
    QString text() const;
    /// The number of the photo at this place, counted from 0.
    QString number(qint64 position) const;

    bool operator==(const CounterForm&) const = default;
};

}  // namespace Quorbel
