#include "core/schema/LocationFill.h"

#include "core/schema/FieldID.h"
#include "core/text/Coordinates.h"

namespace Quorbel::LocationFill {

using namespace Qt::StringLiterals;

QList<Assignment> assignments(const Result& result, const std::function<bool(const QString&)>& isFieldEmpty)
{
    QList<Assignment> filled{ { FieldID::coords, Coordinates::displayString({ result.latitude, result.longitude }) } };
    const QString place = result.locality.isEmpty() ? result.name : result.locality;
    if (!place.isEmpty())
        filled.append({ FieldID::place, place });

    const auto fillEmpty = [&](const QString& id, const QString& value) {
        if (!value.isEmpty() && isFieldEmpty(id))
            filled.append({ id, value });
    };
    if (result.name != place)
        fillEmpty(FieldID::sublocation, result.name);
    fillEmpty(FieldID::state, result.administrativeArea);
    fillEmpty(FieldID::country, result.country);
    return filled;
}

}  // namespace Quorbel::LocationFill
