#include "JsonGlobals.h"

DEFINE_LOG_CATEGORY(LogJson);
DEFINE_LOG_CATEGORY(LogJsonReader);
