#pragma once

#include "CoreTypes.h"

struct CORE_API FPlatformTLS
{
	/** The system's number for the calling thread, never 0. */
	static uint32 GetCurrentThreadId();
};
