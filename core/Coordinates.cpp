#include "core/Coordinates.h"
