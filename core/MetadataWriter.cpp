#include "core/MetadataWriter.h"
