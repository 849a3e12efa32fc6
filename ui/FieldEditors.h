// The editors of single values, all at once.
#pragma once

#include "ui/FlowLayout.h"
#include "ui/KeywordEditor.h"
#include "ui/OffsetPicker.h"
#include "ui/RatingEditor.h"
#include "ui/TextFields.h"
