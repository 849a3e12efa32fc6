#include "platform/places/search/PlaceSearch.h"

#include <cmath>
#include <limits>

namespace Quorbel {

namespace {

// Farther from a town than this, a picture was not taken in it.
constexpr double townDistance = 25;  // km

// A large town reaches farther: 25 km for ten million people.
double reach(const PlaceRow& town)
{
    return 0.25 * std::sqrt(double(town.population) / 1000);
}

// So near its middle, a town says more than borders drawn cell by cell: in states as small as a cell, and at borders
// that run through towns.
constexpr double surelyInTown = 1;  // km

// The town of the country with the least distance, less a share of its reach; any country when it is negative.
const PlaceRow* nearest(const QList<PlaceRow>& towns, const GeoPoint& point, int country, double shareOfReach)
{
    const PlaceRow* best = nullptr;
    double least = std::numeric_limits<double>::max();
    for (const auto& town : towns) {
        const double distance = kilometersBetween(point, town.point);
        const double seeming = distance - shareOfReach * reach(town);
        if (distance <= townDistance && (country < 0 || town.country == country) && seeming < least) {
            least = seeming;
            best = &town;
        }
    }
    return best;
}

}  // namespace

std::optional<Placemark> placeAt(PlaceDatabase& database, const GeoPoint& point)
{
    const auto towns = database.townsAround(point, townDistance);
    auto area = database.areaAt(point);
    const auto* const closest = nearest(towns, point, -1, 0);
    if (area && closest && closest->country != area->country && kilometersBetween(point, closest->point) < surelyInTown)
        area = PlaceDatabase::Area{ closest->country, closest->state };
    const auto* const town = nearest(towns, point, area ? area->country : -1, 1);
    if (!town && !area)
        return std::nullopt;
    PlaceRow row = town ? *town : PlaceRow();
    if (area) {
        row.country = area->country;
        row.state = area->state;
    }
    row.point = point;
    return placemarkOf(database, row);
}

}  // namespace Quorbel
