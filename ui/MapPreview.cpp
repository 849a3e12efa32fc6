#include "ui/MapPreview.h"
