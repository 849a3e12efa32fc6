#include "ui/ToolTips.h"
