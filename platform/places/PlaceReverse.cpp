#include "platform/places/PlaceSearch.h"

#include <cmath>
#include <limits>

namespace Quorbel {

namespace {

/// Farther from a town than this, a picture was not taken in it.
constexpr double townDistance = 25;  // km

/// A large town reaches farther: 25 km for ten million people.
double reach(const PlaceRow& town)
{
    return 0.25 * std::sqrt(double(town.population) / 1000);
}

std::optional<PlaceRow> townAt(PlaceDatabase& database, const GeoPoint& point, int country)
{
    std::optional<PlaceRow> best;
    double least = std::numeric_limits<double>::max();
    for (const auto& town : database.townsAround(point, townDistance)) {
        const double distance = kilometresBetween(point, town.point);
        if (distance > townDistance || (country >= 0 && town.country != country))
            continue;
        if (distance - reach(town) < least) {
            least = distance - reach(town);
            best = town;
        }
    }
    return best;
}

}  // namespace

std::optional<Placemark> placeAt(PlaceDatabase& database, const GeoPoint& point)
{
    const auto area = database.areaAt(point);
    auto town = townAt(database, point, area ? area->country : -1);
    if (!town && !area)
        return std::nullopt;
    PlaceRow row = town.value_or(PlaceRow());
    if (area) {
        row.country = area->country;
        row.state = area->state;
    }
    row.point = point;
    return placemarkOf(database, row);
}

}  // namespace Quorbel
