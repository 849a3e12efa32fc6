#include "ui/Theme.h"
