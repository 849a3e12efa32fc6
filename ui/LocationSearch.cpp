#include "ui/LocationSearch.h"
