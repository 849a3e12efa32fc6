#include "core/RecentItems.h"
