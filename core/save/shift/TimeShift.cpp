#include "core/save/shift/TimeShift.h"

#include <cstdlib>

namespace Quorbel {

using namespace Qt::StringLiterals;

QString TimeShift::forTool(qint64 seconds)
{
    constexpr qint64 minute = 60;
    constexpr qint64 hour = 60 * minute;
    constexpr qint64 day = 24 * hour;
    const qint64 size = std::abs(seconds);
    return u"0:0:%1 %2:%3:%4"_s.arg(size / day).arg(size % day / hour).arg(size % hour / minute).arg(size % minute);
}

}  // namespace Quorbel
