// Whether a typed text is what its field can hold, and the line that says so when it is not.
// Thread: any. Pure. Stops nothing: what is written is ExifTool's to judge.
#pragma once

#include <QString>

namespace Quorbel {

struct FieldSpec;

namespace FieldCheck {

/// What somebody is told who typed no date, position or offset into a field of that kind ("Not a date: YYYY-MM-DD
/// HH:MM"). Empty when the text is one, for a blank text, which clears the field, and for all other fields.
QString note(const FieldSpec& field, const QString& text);

}  // namespace FieldCheck

}  // namespace Quorbel
