#include "core/JSONValue.h"
