// A vocabulary of the standard as what a picker of codes offers. Thread: the main thread.
#pragma once

#include "ui/controls/pickers/CodeSource.h"

namespace Quorbel {

/// `id` is that of a Vocabulary; one that offers nothing for an unknown one.
CodeSource vocabularySource(const QString& id);

}  // namespace Quorbel
