#include "ui/OffsetPicker.h"
