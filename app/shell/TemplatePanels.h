// Asks which template files to import, and where one is to be exported to. Thread: the main thread.
#pragma once

#include "app/model/templates/Templates.h"

class QWidget;

namespace Quorbel {

/// The window must outlive the panels.
Templates::Panels templatePanels(QWidget* window);

}  // namespace Quorbel
