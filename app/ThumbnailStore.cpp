#include "app/ThumbnailStore.h"
