#include "app/FolderWatcher.h"
