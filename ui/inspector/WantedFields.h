// What the form says of the fields that the chosen set wants. Thread: the main thread. Reads the sets, changes nothing,
// knows no widget.
#pragma once

#include "core/schema/FieldSpec.h"

namespace Quorbel {

class FieldSets;
struct FieldRowState;

namespace WantedFields {

/// An empty field that is wanted says so in its place.
void show(const FieldSets& sets, const QString& id, FieldRowState& state);
/// "5 of 7 filled · next gap F8", in the line of a section's title. Of the section that comes first always, of the
/// others where something is missing; "" where there is nothing to say.
QString line(const FieldSets& sets, FieldSection section);

}  // namespace WantedFields

}  // namespace Quorbel
