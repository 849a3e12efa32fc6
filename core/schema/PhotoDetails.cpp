#include "core/schema/PhotoDetails.h"

#include "core/iptc/IptcSchema.h"
#include "core/schema/FieldLanguages.h"

namespace Quorbel {

bool PhotoDetails::hold(const QString& key)
{
    return IptcSchema::isId(key) || FieldLanguages::languageIn(key);
}

}  // namespace Quorbel
