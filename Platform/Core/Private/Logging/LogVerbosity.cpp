#include "Logging/LogVerbosity.h"

#include "Containers/UnrealString.h"

namespace
{
struct FVerbosityName
{
	const TCHAR* Name;
	ELogVerbosity::Type Verbosity;
};

// clang-format off
/** The first name of a verbosity is the one that is printed. */
const FVerbosityName GVerbosityNames[] = {
	{ TEXT("NoLogging"),   ELogVerbosity::NoLogging },
	{ TEXT("Fatal"),       ELogVerbosity::Fatal },
	{ TEXT("Error"),       ELogVerbosity::Error },
	{ TEXT("Warning"),     ELogVerbosity::Warning },
	{ TEXT("Display"),     ELogVerbosity::Display },
	{ TEXT("Log"),         ELogVerbosity::Log },
	{ TEXT("Verbose"),     ELogVerbosity::Verbose },
	{ TEXT("VeryVerbose"), ELogVerbosity::VeryVerbose },
	{ TEXT("All"),         ELogVerbosity::All },
	{ TEXT("Off"),         ELogVerbosity::NoLogging },
};
// clang-format on
}

const TCHAR* ToString(ELogVerbosity::Type Verbosity)
{
	for (const FVerbosityName& Row : GVerbosityNames)
	{
		if (Row.Verbosity == (Verbosity & ELogVerbosity::VerbosityMask))
		{
			return Row.Name;
		}
	}
	return TEXT("UnknownVerbosity");
}

bool ParseLogVerbosityFromString(const FString& VerbosityString, ELogVerbosity::Type& OutVerbosity)
{
	for (const FVerbosityName& Row : GVerbosityNames)
	{
		if (VerbosityString == Row.Name)
		{
			OutVerbosity = Row.Verbosity;
			return true;
		}
	}
	return false;
}
