#include "core/FileNaming.h"
