#include "core/ExifToolRunner.h"
