#include "app/model/templates/Templates.h"

#include "app/model/AppModel.h"

namespace Quorbel {

Templates::Templates(AppModel& model)
    : m_model(model)
{
}

Templates::~Templates() = default;

}  // namespace Quorbel
