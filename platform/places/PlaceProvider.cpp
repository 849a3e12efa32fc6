#include "platform/places/PlaceProvider.h"
