#include "core/save/EditPlan.h"

#include "core/schema/FieldSchema.h"
#include "core/sidecar/SidecarSchema.h"

namespace Quorbel {

const FieldSpec* EditPlan::spec(const QString& id) const
{
    return sidecar ? SidecarSchema::spec(id) : FieldSchema::spec(id);
}

QList<QUrl> WriteOptions::mirrored(QList<QUrl> images) const
{
    if (!writeSidecar)
        return {};
    images.removeIf([this](const QUrl& image) { return unmirrored.contains(image); });
    return images;
}

}  // namespace Quorbel
