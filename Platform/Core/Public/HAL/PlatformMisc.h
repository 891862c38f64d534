#pragma once

#include "Containers/UnrealString.h"

/** Odds and ends of the operating system. */
struct CORE_API FPlatformMisc
{
	/** The value of an environment variable; empty when it is not set. */
	static FString GetEnvironmentVariable(const TCHAR* VariableName);
	static void SetEnvironmentVar(const TCHAR* VariableName, const TCHAR* Value);

	/** Ends the process: at once when forced, otherwise by asking the main loop. */
	static void RequestExit(bool Force);

	/** As RequestExit, with the status for the parent process. */
	static void RequestExitWithStatus(bool Force, uint8 ReturnCode);

	/** The status that was asked for with RequestExitWithStatus, 0 before. */
	static uint8 GetRequestedReturnCode();

	/**
	 * From now on a signal that tells of a fault (SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT) leaves a line and a call stack in the log
	 * files and on the standard error output, and kills the process after that. To be called on the main thread, whose stack may
	 * be full then; on others it may not. Without effect under the address sanitizer, which reports such signals itself.
	 */
	static void SetCrashHandler();
};
