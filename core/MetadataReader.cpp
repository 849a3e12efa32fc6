#include "core/MetadataReader.h"
