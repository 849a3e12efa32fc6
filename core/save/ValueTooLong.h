// Values that cannot be handed to ExifTool, because the system limits one argument of a program.
// Thread: any. Pure.
#pragma once

#include "core/text/Errors.h"

namespace Quorbel {

struct EditPlan;

/// A field's value is longer than an argument may be. Nothing was run.
class ValueTooLong final : public Error {
public:
    explicit ValueTooLong(const QString& label);
};

/// Throws ValueTooLong with the label of the first such field, in the order of the plan.
void requireShortValues(const EditPlan& plan);

}  // namespace Quorbel
