// What a photo's record alone says of its traits: what it lacks, and its stars.
// Thread: any. Pure functions.
#pragma once

#include "app/model/library/filter/PhotoFilter.h"
#include "core/schema/ImageRecord.h"

#include <QStringMatcher>

namespace Quorbel {

/// A field without which a photo is not done.
struct Gap {
    PhotoTrait trait{};
    QString field{};  ///< its id
};

namespace Gaps {

/// In the order in which the form shows the fields.
const QList<Gap>& all();
/// The traits of all of them.
PhotoTraits traits();

}  // namespace Gaps

struct RecordTraits {
    PhotoTraits traits{};
    int stars = 0;  ///< 0…5
    bool operator==(const RecordTraits&) const = default;

    /// Of an unread photo nothing but that is known.
    static RecordTraits of(const ImageRecord& record);
    /// All that it says something about.
    static PhotoTraits mask();
};

/// Whether one of the values that are on screen when the photo is selected (fields, items of lists, custom fields,
/// details of the camera) matches. Its name is none of them.
bool holdsText(const ImageRecord& record, const QStringMatcher& text);

}  // namespace Quorbel
