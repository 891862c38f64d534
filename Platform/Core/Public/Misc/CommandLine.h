#pragma once

#include "Containers/UnrealString.h"

/** The command line of the process as one text, without the executable's name. */
struct CORE_API FCommandLine
{
	static const TCHAR* Get();
	static void Set(const TCHAR* NewCommandLine);
	static void Append(const TCHAR* AppendString);

	/**
	 * Joins arguments (UTF-8) to a command line; an argument with blanks gets quotes, behind the "=" if it has one.
	 *
	 * @param ArgV  All arguments including the executable's name, which is left out.
	 */
	static FString BuildFromArgV(int32 ArgC, const ANSICHAR* const* ArgV);
};
