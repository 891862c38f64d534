#include "Misc/OutputDeviceStdOutput.h"

#include <cstdio>

#include "HAL/NativePath.h"
#include "Misc/OutputDeviceHelper.h"

void FOutputDeviceStdOutput::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category)
{
	Serialize(V, Verbosity, Category, -1.0);
}

void FOutputDeviceStdOutput::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category, double Time)
{
	if (Verbosity == ELogVerbosity::SetColor)
	{
		return;
	}
	const FString Line = FOutputDeviceHelper::FormatLogLine(Verbosity, Category, V, ELogTimes::UTC, Time) + LINE_TERMINATOR;
	const std::string Bytes = ToUtf8(*Line);
	fwrite(Bytes.data(), 1, Bytes.size(), stdout);
	fflush(stdout);
}

void FOutputDeviceStdOutput::Flush()
{
	fflush(stdout);
}
