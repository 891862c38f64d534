#pragma once

#include "CoreTypes.h"

class FString;

/** How important a log line is. A line is written when its verbosity is at or below that of its category. */
namespace ELogVerbosity
{
enum Type : uint8
{
	/** As the verbosity of a category: writes nothing. */
	NoLogging = 0,

	/** Ends the process after the line was written. */
	Fatal,
	Error,
	Warning,
	Display,
	Log,
	Verbose,
	VeryVerbose,

	All = VeryVerbose,
	NumVerbosity,

	VerbosityMask = 0xf,

	/** Tells a console device to change its colour; carries no text for a log. */
	SetColor = 0x40,
};
}

/** The name of a verbosity as the console command takes it, "VeryVerbose". */
CORE_API const TCHAR* ToString(ELogVerbosity::Type Verbosity);

/**
 * Reads the name of a verbosity in any case.
 *
 * @return False, with OutVerbosity left as it was, for an unknown name.
 */
CORE_API bool ParseLogVerbosityFromString(const FString& VerbosityString, ELogVerbosity::Type& OutVerbosity);
