#include "ui/FlowLayout.h"
