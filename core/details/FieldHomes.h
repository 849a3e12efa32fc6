// The homes of a field in one photo, picked out of what the details run found.
// Thread: any. Pure.
#pragma once

#include "core/details/HomeComparison.h"
#include "core/schema/FieldSpec.h"
#include "core/text/JSONValue.h"

namespace Quorbel::FieldHomes {

/// The tags to be asked for, of all groups where another standard's may be taken for the field's own.
QStringList readTags();

/// A home that the photo has.
struct Home {
    HomeComparison::Held held{};
    /// The group under which the reader finds it ("XMP"); "" for one that is not read for the field.
    QString readGroup{};
    bool isForeign = false;  ///< another standard's, which the reader cannot tell from the field's own
    bool isStructure = false;  ///< the reader makes no text of it
};

/// In the order in which they are written, then the companions that other programs read, then other standards'. Two
/// places of one tag come one after the other.
QList<Home> of(const FieldSpec& field, const JSONObject& tags);

}  // namespace Quorbel::FieldHomes
