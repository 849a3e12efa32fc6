#include "app/model/timeshift/TimeShifting.h"

#include "app/model/AppModel.h"

namespace Quorbel {

TimeShifting::TimeShifting(AppModel& model)
    : m_model(model)
{
}

TimeShifting::~TimeShifting() = default;

}  // namespace Quorbel
