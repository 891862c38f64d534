#pragma once

#include "Logging/LogMacros.h"

/** Making, naming and finding objects. */
DECLARE_LOG_CATEGORY_EXTERN(LogObj, Log, All);
/** Classes and structures. */
DECLARE_LOG_CATEGORY_EXTERN(LogClass, Log, All);
/** Finding objects that are not in memory. */
DECLARE_LOG_CATEGORY_EXTERN(LogUObjectGlobals, Log, All);
/** Calls of reflected functions. */
DECLARE_LOG_CATEGORY_EXTERN(LogScriptCore, Log, All);
DECLARE_LOG_CATEGORY_EXTERN(LogGarbage, Log, All);
