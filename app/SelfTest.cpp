#include "app/SelfTest.h"
