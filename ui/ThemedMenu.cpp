#include "ui/ThemedMenu.h"
