#include "core/save/EditPlan.h"

#include "core/schema/FieldSchema.h"
#include "core/sidecar/SidecarSchema.h"

namespace Quorbel {

const FieldSpec* EditPlan::spec(const QString& id) const
{
    return sidecar ? SidecarSchema::spec(id) : FieldSchema::spec(id);
}

}  // namespace Quorbel
