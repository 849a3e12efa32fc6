#include "app/model/words/FieldPasting.h"

#include "app/model/AppModel.h"

namespace Quorbel {

FieldPasting::FieldPasting(AppModel& model)
    : m_model(model)
{
}

FieldPasting::~FieldPasting() = default;

}  // namespace Quorbel
