#include "ui/OverlayScrollBar.h"
