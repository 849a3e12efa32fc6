// What a place service of the Photon kind answers, as suggestions. Thread: any. Pure.
#pragma once

#include "platform/places/search/PlaceProvider.h"

namespace Quorbel {

/// The places of a GeoJSON answer, in its order; those without a name or a position are left out. Nothing when it is no
/// such answer at all.
std::optional<QList<PlaceSuggestion>> readPhotonAnswer(const QByteArray& json);

/// How many seconds to leave a service alone that answered "too many requests" (429): what its Retry-After header says,
/// in seconds or as a date; without one 30 s, doubled by each refusal in a row. At least a second, at most an hour.
int secondsToWait(const QByteArray& retryAfter, int refusals, const QDateTime& now);

}  // namespace Quorbel
