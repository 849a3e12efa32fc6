// Whether two homes of a field say the same, in the normal form of the field's kind: what standards and programs do to
// a value on its way into a home is no difference.
// Thread: any. Pure.
//
// No differences are: texts that IPTC cut off at its limit; texts damaged by an encoding that the home does not
// declare; several creators in one text; dates of less precision, with fractions or zones; positions as near as EXIF's
// fractions; another order of a list.
#pragma once

#include "core/schema/FieldSpec.h"

namespace Quorbel::HomeComparison {

/// What one home holds, as it is stored.
struct Held {
    QString tag{};  ///< as it is written: "IPTC:By-line"; of a position or a date in two tags the first
    QStringList items{};  ///< several in tags that are lists
    bool declaresEncoding = true;  ///< not so in most IPTC, whose texts are then read as Windows Latin 1
    bool operator==(const Held&) const = default;
};

bool isSame(const FieldSpec& field, const Held& a, const Held& b);
/// Holds nothing to see: white space alone, a date of zeros.
bool isBlank(const FieldSpec& field, const Held& held);
/// As the field is shown and edited: one text, but of lists.
QStringList shown(const FieldSpec& field, const Held& held);

}  // namespace Quorbel::HomeComparison
