#include "core/LocationFill.h"
