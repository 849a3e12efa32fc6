// What hands on the keys ask for: the next photo, its stars, the same as before.
#include "app/model/AppModel.h"

namespace Quorbel {

bool AppModel::canStep(int) const
{
    return false;
}

void AppModel::step(int) { }

void AppModel::rate(int) { }

bool AppModel::hasPhotoBefore() const
{
    return false;
}

void AppModel::takeFromPhotoBefore(const QString&) { }

void AppModel::saveAndGoOn() { }

}  // namespace Quorbel
