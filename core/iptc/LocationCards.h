// A place as one of the standard's Location structures, made of the place fields or of a place that was looked up, and
// laid back into the place fields.
// Thread: any. Pure. Knows no photos: whoever asks says what the fields hold.
#pragma once

#include "core/schema/LocationFill.h"

#include <QString>

#include <functional>

namespace Quorbel::LocationCards {

/// Of the place fields, the country code and the position; the world region comes of the code. `value`: what a field
/// holds, by its id. "" when they hold nothing.
QString fromFields(const std::function<QString(const QString& id)>& value);
/// With all that is known of it, world region and country code included.
QString fromPlace(const LocationFill::Result& place);
/// The card as another place: what it said of where it is gives way as a whole. Its identifiers, its name and its
/// height stay only where it is the same place; members that nobody here knows stay.
QString moved(const QString& card, const QString& place);
/// The edits of the place fields that make them say what the card says; a town without a sub-location clears that of
/// the town before. The position and the country code stay where the card has none. Without what would change nothing.
QList<LocationFill::Assignment> toFields(const QString& card, const std::function<QString(const QString& id)>& value);

}  // namespace Quorbel::LocationCards
