// The shared controls, all at once.
#pragma once

#include "ui/Buttons.h"
#include "ui/FocusRing.h"
#include "ui/Icon.h"
#include "ui/Labels.h"
#include "ui/Marks.h"
#include "ui/Metrics.h"
#include "ui/OverlayScrollBar.h"
#include "ui/ResizeHandle.h"
#include "ui/SymbolText.h"
#include "ui/Theme.h"
#include "ui/ThemedMenu.h"
#include "ui/ThumbnailView.h"
#include "ui/ToolTips.h"
