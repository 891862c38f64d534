#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Logging/LogVerbosity.h"

class UFunction;
class UObject;

/** One call of a reflected function: what is called, on whom, and its block of parameters with the return value. */
struct FFrame
{
	UFunction* Node;
	UObject* Object;
	uint8* Locals;

	/**
	 * Says that the running function has failed. An Error becomes an exception in the script that called it; a lower verbosity
	 * is a line in the log.
	 */
	COREUOBJECT_API static void KismetExecutionMessage(const TCHAR* Message, ELogVerbosity::Type Verbosity);

	/**
	 * The Error that was said since the last call, for whoever runs scripts.
	 *
	 * @return False when there was none.
	 */
	COREUOBJECT_API static bool TakeExecutionError(FString& OutMessage);
};
