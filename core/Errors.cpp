#include "core/Errors.h"
