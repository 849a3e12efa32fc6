#include "core/schema/LocationFill.h"

#include "core/text/Coordinates.h"

namespace Quorbel::LocationFill {

using namespace Qt::StringLiterals;

QList<Assignment> assignments(const Result& result, const std::function<bool(const QString&)>& isFieldEmpty)
{
    QList<Assignment> filled{ { u"coords"_s, Coordinates::displayString({ result.latitude, result.longitude }) } };
    const QString place = result.locality.isEmpty() ? result.name : result.locality;
    if (!place.isEmpty())
        filled.append({ u"place"_s, place });

    const auto fillEmpty = [&](const QString& id, const QString& value) {
        if (!value.isEmpty() && isFieldEmpty(id))
            filled.append({ id, value });
    };
    if (result.name != place)
        fillEmpty(u"sublocation"_s, result.name);
    fillEmpty(u"state"_s, result.administrativeArea);
    fillEmpty(u"country"_s, result.country);
    return filled;
}

}  // namespace Quorbel::LocationFill
