#include "app/model/iptc/FieldNotes.h"

#include "app/model/AppModel.h"
#include "core/iptc/FieldAdvice.h"
#include "core/schema/FieldSchema.h"

namespace Quorbel::FieldNotes {

namespace {

// What several photos hold in lists nobody sums up: it counts as something.
bool isEmpty(const AppModel& model, const QString& id)
{
    const FieldSpec* field = FieldSchema::spec(id);
    if (field->isList())
        return !model.isBatch() && model.knowsDetails() && model.draftLists().value(id).isEmpty();
    return (model.isBatch() || model.knowsDetails()) && model.isFieldEmpty(id);
}

}  // namespace

QString of(const AppModel& model, const QString& key)
{
    const QString value = model.isBatch() ? model.batchValues().value(key) : model.draftValues().value(key);
    return FieldAdvice::note(key, value, [&model](const QString& id) { return isEmpty(model, id); });
}

}  // namespace Quorbel::FieldNotes
