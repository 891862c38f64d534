#pragma once

#include "Containers/UnrealString.h"
#include "Logging/LogVerbosity.h"

class FName;

/** Which time a formatted line begins with. */
namespace ELogTimes
{
enum Type
{
	None,
	UTC,
	Local,
};
}

struct CORE_API FOutputDeviceHelper
{
	/** The word that stands in a log line, "Warning"; VeryVerbose for anything unknown. */
	static const TCHAR* VerbosityToString(ELogVerbosity::Type Verbosity);

	/**
	 * A line as it stands in a log file: "[YYYY.MM.DD-HH.MM.SS:mmm][fff]Category: Verbosity: Message".
	 * The bracketed parts are there unless LogTime is None, fff being GFrameCounter modulo 1000. The verbosity is
	 * left out for Log, the category for NAME_None.
	 *
	 * @param Message  May be null: the prefix alone.
	 * @param Time     Seconds of FPlatformTime::Seconds() at which the line was written, -1 for now.
	 */
	static FString FormatLogLine(ELogVerbosity::Type Verbosity, const FName& Category, const TCHAR* Message = nullptr,
		ELogTimes::Type LogTime = ELogTimes::None, double Time = -1.0);
};
