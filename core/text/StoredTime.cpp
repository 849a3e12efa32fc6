#include "core/text/StoredTime.h"

#include <QRegularExpression>

namespace Quorbel {

using namespace Qt::StringLiterals;

std::optional<StoredTime> StoredTime::from(const QString& text)
{
    static const QRegularExpression form(
        uR"(\A(\d{4}):(\d\d):(\d\d) (\d\d):(\d\d)(?::(\d\d)(\.\d+)?)?(Z|[+-]\d\d:\d\d)?\z)"_s);
    const QRegularExpressionMatch match = form.match(text);
    const auto number = [&match](int i) { return match.captured(i).toInt(); };
    const QDate day(number(1), number(2), number(3));
    const QTime time(number(4), number(5), number(6));
    if (!match.hasMatch() || !day.isValid() || !time.isValid())
        return std::nullopt;
    return StoredTime{ QDateTime(day, time, Qt::UTC), match.hasCaptured(6), match.captured(7), match.captured(8) };
}

QString StoredTime::text() const
{
    return clock.toString(hasSeconds ? u"yyyy:MM:dd HH:mm:ss"_s : u"yyyy:MM:dd HH:mm"_s) + fraction + zone;
}

std::optional<StoredTime> StoredTime::shifted(qint64 seconds) const
{
    StoredTime moved = *this;
    moved.clock = clock.addSecs(seconds);
    const int year = moved.clock.date().year();
    return moved.clock.isValid() && year >= 1 && year <= 9999 ? std::optional(moved) : std::nullopt;
}

}  // namespace Quorbel
