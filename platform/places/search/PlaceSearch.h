// Finds places by what was typed, the likeliest first.
// Thread: that of the database. Knows the database, not how its answers are shown elsewhere.
#pragma once

#include "platform/places/search/PlaceDatabase.h"

namespace Quorbel {

struct PlaceHit {
    PlaceRow row{};
    double score = 0;
    QString matched{};  ///< the other name that was found; empty when it was the place's own
};

/// At most `query.limit`, none twice.
QList<PlaceHit> findPlaces(PlaceDatabase& database, const PlaceQuery& query);

/// The town, state and country at a point; nothing in open sea. Its name is the town's.
std::optional<Placemark> placeAt(PlaceDatabase& database, const GeoPoint& point);

/// A row as the values of a picked place.
Placemark placemarkOf(const PlaceDatabase& database, const PlaceRow& row);

}  // namespace Quorbel
