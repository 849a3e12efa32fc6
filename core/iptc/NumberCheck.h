// Whether what a field of numbers is to hold are numbers: the tool would take "abc" for a hexadecimal one, and leave a
// member that is none out of its structure, with the value that it had. Such a field is not written.
// Thread: any. Pure.
#pragma once

#include "core/schema/FieldSpec.h"

namespace Quorbel::NumberCheck {

/// "not a whole number: “abc”", of the first of these texts (numbers, or structures as StructureText has them) that is
/// none, or has one that is none; "" where all is well, and for fields of other kinds.
QString problem(const FieldSpec& field, const QStringList& texts);

}  // namespace Quorbel::NumberCheck
