#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Logging/LogMacros.h"
#include "Misc/OutputDeviceRedirector.h"

class FConfigCacheIni;

CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogTemp, Log, All);
CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogInit, Log, All);
CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogCore, Log, All);
CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogConsoleResponse, Log, All);

/** The configuration of the process; null until FConfigCacheIni::InitializeConfigSystem. */
extern CORE_API FConfigCacheIni* GConfig;

/** Full names of the ini files that lie over the project's defaults; empty until FConfigCacheIni::InitializeConfigSystem. */
extern CORE_API FString GEngineIni;
extern CORE_API FString GEditorIni;
extern CORE_API FString GEditorPerProjectIni;

/** Number of frames that the main loop has begun. */
extern CORE_API uint64 GFrameCounter;

/** Whether the process is the editor. */
extern CORE_API bool GIsEditor;

/** FPlatformTLS::GetCurrentThreadId() of the thread that runs the main loop: the one that loaded Core, unless another takes over. */
extern CORE_API uint32 GGameThreadId;

CORE_API bool IsInGameThread();

/** Whether the main loop was asked to end. */
CORE_API bool IsEngineExitRequested();

/** Asks the main loop to end after the current frame; the reason goes to the log. */
CORE_API void RequestEngineExit(const TCHAR* ReasonString);
