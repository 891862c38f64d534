#include "CoreGlobals.h"

#include "HAL/PlatformMisc.h"
#include "HAL/PlatformTLS.h"

DEFINE_LOG_CATEGORY(LogTemp);
DEFINE_LOG_CATEGORY(LogInit);
DEFINE_LOG_CATEGORY(LogCore);
DEFINE_LOG_CATEGORY(LogConsoleResponse);

FConfigCacheIni* GConfig = nullptr;
FString GEngineIni;
FString GEditorIni;
FString GEditorPerProjectIni;
uint64 GFrameCounter = 0;
bool GIsEditor = false;
uint32 GGameThreadId = FPlatformTLS::GetCurrentThreadId();

namespace
{
bool GIsExitRequested = false;
}

bool IsInGameThread()
{
	// Until Core's own globals are ready there is only one thread.
	return GGameThreadId == 0 || FPlatformTLS::GetCurrentThreadId() == GGameThreadId;
}

bool IsEngineExitRequested()
{
	return GIsExitRequested;
}

void RequestEngineExit(const TCHAR* ReasonString)
{
	UE_LOG(LogCore, Log, TEXT("Engine exit requested (reason: %s%s)"), ReasonString,
		GIsExitRequested ? TEXT("; note: exit was already requested") : TEXT(""));
	GIsExitRequested = true;
}
