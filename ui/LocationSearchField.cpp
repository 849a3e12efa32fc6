#include "ui/LocationSearchField.h"
