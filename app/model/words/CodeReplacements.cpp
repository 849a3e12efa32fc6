#include "app/model/words/CodeReplacements.h"

#include "app/model/AppModel.h"

namespace Quorbel {

CodeReplacements::CodeReplacements(AppModel& model)
    : m_model(model)
{
}

CodeReplacements::~CodeReplacements() = default;

}  // namespace Quorbel
