#pragma once

#include "Logging/LogMacros.h"

JSON_API DECLARE_LOG_CATEGORY_EXTERN(LogJson, Log, All);

/** Says what is wrong with a text that could not be read, and where. */
JSON_API DECLARE_LOG_CATEGORY_EXTERN(LogJsonReader, Log, All);
