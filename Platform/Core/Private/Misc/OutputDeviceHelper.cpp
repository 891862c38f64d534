#include "Misc/OutputDeviceHelper.h"

#include "CoreGlobals.h"
#include "HAL/PlatformTime.h"
#include "Misc/DateTime.h"

const TCHAR* FOutputDeviceHelper::VerbosityToString(ELogVerbosity::Type Verbosity)
{
	return ToString(Verbosity);
}

FString FOutputDeviceHelper::FormatLogLine(
	ELogVerbosity::Type Verbosity, const FName& Category, const TCHAR* Message, ELogTimes::Type LogTime, double Time)
{
	FString Line;
	if (LogTime != ELogTimes::None)
	{
		const FDateTime Now = LogTime == ELogTimes::UTC ? FDateTime::UtcNow() : FDateTime::Now();
		const FDateTime Written = Time < 0.0 ? Now : Now - FTimespan::FromSeconds(FPlatformTime::Seconds() - Time);
		Line = FString::Printf(TEXT("[%s][%3llu]"), *Written.ToString(TEXT("%Y.%m.%d-%H.%M.%S:%s")), GFrameCounter % 1000);
	}
	if (Category != NAME_None)
	{
		Line += Category.ToString();
		Line += TEXT(": ");
	}
	if (Verbosity != ELogVerbosity::Log)
	{
		Line += VerbosityToString(Verbosity);
		Line += TEXT(": ");
	}
	if (Message)
	{
		Line += Message;
	}
	return Line;
}
