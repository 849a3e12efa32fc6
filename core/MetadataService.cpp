#include "core/MetadataService.h"
