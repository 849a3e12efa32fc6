// The editors of single values, all at once.
#pragma once

#include "ui/controls/FlowLayout.h"
#include "ui/controls/KeywordEditor.h"
#include "ui/controls/OffsetPicker.h"
#include "ui/controls/RatingEditor.h"
#include "ui/controls/TextFields.h"
