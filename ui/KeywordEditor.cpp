#include "ui/KeywordEditor.h"
