// FieldAdvice about what the model shows of a field: in the draft of one photo, or in the batch of several.
// Thread: the main thread.
#pragma once

#include <QString>

namespace Quorbel {

class AppModel;

namespace FieldNotes {

/// In one line; "" when there is nothing to say, or when it is not known yet what photos hold. `key`: a field's id, or
/// the key of one of its languages.
QString of(const AppModel& model, const QString& key);

}  // namespace FieldNotes

}  // namespace Quorbel
