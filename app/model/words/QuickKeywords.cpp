#include "app/model/words/QuickKeywords.h"

#include "app/model/AppModel.h"

namespace Quorbel {

QuickKeywords::QuickKeywords(AppModel& model)
    : m_model(model)
{
}

QuickKeywords::~QuickKeywords() = default;

}  // namespace Quorbel
