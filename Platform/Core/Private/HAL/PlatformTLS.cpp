#include "HAL/PlatformTLS.h"

#include <unistd.h>

uint32 FPlatformTLS::GetCurrentThreadId()
{
	static thread_local const uint32 ThreadId = static_cast<uint32>(gettid());
	return ThreadId;
}
