#include "ui/TextFields.h"
