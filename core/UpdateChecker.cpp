#include "core/UpdateChecker.h"
