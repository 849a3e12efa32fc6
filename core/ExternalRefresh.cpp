#include "core/ExternalRefresh.h"
