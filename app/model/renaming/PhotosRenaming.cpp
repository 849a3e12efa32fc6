#include "app/model/renaming/PhotosRenaming.h"

#include "app/model/AppModel.h"

namespace Quorbel {

PhotosRenaming::PhotosRenaming(AppModel& model)
    : m_model(model)
{
}

PhotosRenaming::~PhotosRenaming() = default;

}  // namespace Quorbel
