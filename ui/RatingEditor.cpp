#include "ui/RatingEditor.h"
