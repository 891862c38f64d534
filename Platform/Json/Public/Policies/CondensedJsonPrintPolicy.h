#pragma once

#include "Containers/UnrealString.h"

/** Nothing between the tokens. */
template <class CharType = TCHAR>
struct TCondensedJsonPrintPolicy
{
	static void WriteLineTerminator(FString&) {}
	static void WriteSpace(FString&) {}
	static void WriteTabs(FString&, int32) {}
};
