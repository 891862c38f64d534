#pragma once

#include "CoreTypes.h"

#include <cstdarg>
#include <cstring>

namespace ESearchCase
{
/** Whether a search is case-sensitive. */
enum Type
{
	CaseSensitive,
	IgnoreCase
};
}

namespace ESearchDir
{
/** From which end a search begins. */
enum Type
{
	FromStart,
	FromEnd
};
}

/** The C library's string functions, for TCHAR. Text ends at a zero. Comparisons give less than, equal to or more than 0. */
struct CORE_API FCString
{
	static int32 Strlen(const TCHAR* Text);
	static int32 Strcmp(const TCHAR* Left, const TCHAR* Right);
	static int32 Strncmp(const TCHAR* Left, const TCHAR* Right, SIZE_T Count);
	static int32 Stricmp(const TCHAR* Left, const TCHAR* Right);
	static int32 Strnicmp(const TCHAR* Left, const TCHAR* Right, SIZE_T Count);

	static const TCHAR* Strstr(const TCHAR* Text, const TCHAR* Find);
	static const TCHAR* Stristr(const TCHAR* Text, const TCHAR* Find);
	static const TCHAR* Strchr(const TCHAR* Text, TCHAR Find);
	static const TCHAR* Strrchr(const TCHAR* Text, TCHAR Find);

	/** Copies at most DestCount - 1 characters and always ends the copy with a zero. */
	static TCHAR* Strncpy(TCHAR* Dest, const TCHAR* Source, SIZE_T DestCount);
	static TCHAR* Strcpy(TCHAR* Dest, const TCHAR* Source);
	static TCHAR* Strcat(TCHAR* Dest, const TCHAR* Source);

	/** A leading integer after blanks, otherwise 0; clamped to the type's range. */
	static int32 Atoi(const TCHAR* Text);
	static int64 Atoi64(const TCHAR* Text);
	static float Atof(const TCHAR* Text);
	static double Atod(const TCHAR* Text);
	/** An integer in the given base; End, if asked for, gets the first character that is no part of it. */
	static int32 Strtoi(const TCHAR* Text, TCHAR** End, int32 Base);
	static int64 Strtoi64(const TCHAR* Text, TCHAR** End, int32 Base);
	static uint64 Strtoui64(const TCHAR* Text, TCHAR** End, int32 Base);

	/** True for "True", "Yes", "On" in any case and for integers but zero. */
	static bool ToBool(const TCHAR* Text);
	/** An optional sign, digits and at most one dot. */
	static bool IsNumeric(const TCHAR* Text);
	static bool IsPureAnsi(const TCHAR* Text);

	/**
	 * Prints as FString::Printf does into a buffer of DestSize characters, the closing zero included.
	 *
	 * @return How many characters were printed without the zero, or -1 if the buffer is too small.
	 */
	static int32 GetVarArgs(TCHAR* Dest, SIZE_T DestSize, const TCHAR* Format, va_list Arguments);
	static int32 Snprintf(TCHAR* Dest, SIZE_T DestSize, const TCHAR* Format, ...);
};

/** The same for narrow text. */
struct CORE_API FCStringAnsi
{
	static int32 Strlen(const ANSICHAR* Text) { return int32(std::strlen(Text)); }
	static int32 Strcmp(const ANSICHAR* Left, const ANSICHAR* Right) { return std::strcmp(Left, Right); }
	static int32 Strncmp(const ANSICHAR* Left, const ANSICHAR* Right, SIZE_T Count) { return std::strncmp(Left, Right, Count); }
	static int32 Stricmp(const ANSICHAR* Left, const ANSICHAR* Right);
};
