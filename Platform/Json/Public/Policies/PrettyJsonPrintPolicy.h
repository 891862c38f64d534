#pragma once

#include "Containers/UnrealString.h"

/** One field per line, indented by tabs. */
template <class CharType = TCHAR>
struct TPrettyJsonPrintPolicy
{
	static void WriteLineTerminator(FString& Text) { Text += LINE_TERMINATOR; }
	static void WriteSpace(FString& Text) { Text += TEXT(' '); }

	static void WriteTabs(FString& Text, int32 Count)
	{
		for (int32 Index = 0; Index < Count; ++Index)
		{
			Text += TEXT('\t');
		}
	}
};
