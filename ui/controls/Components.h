// The shared controls, all at once.
#pragma once

#include "ui/controls/Buttons.h"
#include "ui/controls/Labels.h"
#include "ui/controls/OverlayScrollBar.h"
#include "ui/controls/ResizeHandle.h"
#include "ui/controls/ThemedMenu.h"
#include "ui/controls/Toggles.h"
#include "ui/controls/ToolTips.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/SymbolText.h"
#include "ui/controls/theme/Theme.h"
#include "ui/sidebar/ThumbnailView.h"
