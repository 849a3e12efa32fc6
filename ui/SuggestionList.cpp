#include "ui/SuggestionList.h"
