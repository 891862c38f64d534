#include "TerminalReport.h"

#include "Containers/StringConv.h"
#include "Containers/UnrealString.h"
#include "Misc/OutputDeviceHelper.h"

#include <cstdio>

void FTerminalReport::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category)
{
	static const FName Python("LogPython");
	if (Verbosity <= ELogVerbosity::Display)
	{
		std::fprintf(stderr, "%s\n", TCHAR_TO_UTF8(*FOutputDeviceHelper::FormatLogLine(Verbosity, Category, V)));
	}
	else if (Verbosity == ELogVerbosity::Log && Category == Python)
	{
		std::printf("%s\n", TCHAR_TO_UTF8(V));
		std::fflush(stdout);
	}
}
