#pragma once

#include "Containers/UnrealString.h"
#include "Delegates/Delegate.h"

/** Hooks into the life of the process. */
class CORE_API FCoreDelegates
{
public:
	DECLARE_DELEGATE_RetVal_OneParam(bool, FShouldLaunchUrl, const FString& /* Url */);

	/** If bound, decides whether FPlatformProcess::LaunchURL may open an address. */
	static FShouldLaunchUrl ShouldLaunchUrl;

	/** A failure is about to end the process: the message is in the log, unsaved work can still be written. */
	static FSimpleMulticastDelegate OnHandleSystemError;

	/** The editor is up: the modules of all loading phases are started and its main window is there. */
	static FSimpleMulticastDelegate OnPostEngineInit;

	/** The main loop goes to sleep until there is something to do, and has come back from it. */
	static FSimpleMulticastDelegate OnMainLoopSleep;
	static FSimpleMulticastDelegate OnMainLoopWake;

	/** The main loop has ended; windows are closed, everything else is still alive. */
	static FSimpleMulticastDelegate OnEnginePreExit;
};
