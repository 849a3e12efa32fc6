#include "core/RecordSortOrder.h"
