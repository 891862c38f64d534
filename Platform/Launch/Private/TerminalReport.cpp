#include "TroubleReport.h"

#include "Containers/StringConv.h"
#include "Containers/UnrealString.h"
#include "Misc/OutputDeviceHelper.h"

#include <cstdio>

void FTroubleReport::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category)
{
	if (Verbosity <= ELogVerbosity::Warning)
	{
		std::fprintf(stderr, "%s\n", TCHAR_TO_UTF8(*FOutputDeviceHelper::FormatLogLine(Verbosity, Category, V)));
	}
}
