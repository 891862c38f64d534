#include "UObject/Stack.h"

#include "Logging/LogMacros.h"

DEFINE_LOG_CATEGORY_STATIC(LogScript, Log, All);

namespace
{
FString GExecutionError;
}

void FFrame::KismetExecutionMessage(const TCHAR* Message, ELogVerbosity::Type Verbosity)
{
	if (Verbosity <= ELogVerbosity::Error)
	{
		GExecutionError = Message;
	}
	else
	{
		UE_LOG(LogScript, Warning, TEXT("%s"), Message);
	}
}

bool FFrame::TakeExecutionError(FString& OutMessage)
{
	if (GExecutionError.IsEmpty())
	{
		return false;
	}
	OutMessage = MoveTemp(GExecutionError);
	GExecutionError.Reset();
	return true;
}
