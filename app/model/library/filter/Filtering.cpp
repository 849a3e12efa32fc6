#include "app/model/library/filter/Filtering.h"

#include "app/model/AppModel.h"

namespace Quorbel {

Filtering::Filtering(AppModel& model)
    : m_model(model)
{
}

Filtering::~Filtering() = default;

}  // namespace Quorbel
