#include "core/ImageRecord.h"
