#include "core/FieldSchema.h"
