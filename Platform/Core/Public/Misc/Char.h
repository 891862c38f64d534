#pragma once

#include "CoreTypes.h"

/** One UTF-16 code unit: its kind and its case, by Unicode's simple mappings. */
struct FChar
{
	static TCHAR ToLower(TCHAR Char)
	{
		return LIKELY(Char < 128) ? TCHAR(Char + (TCHAR(Char - u'A') < 26 ? 32 : 0)) : ToLowerBeyondAscii(Char);
	}
	static TCHAR ToUpper(TCHAR Char)
	{
		return LIKELY(Char < 128) ? TCHAR(Char - (TCHAR(Char - u'a') < 26 ? 32 : 0)) : ToUpperBeyondAscii(Char);
	}
	static bool IsDigit(TCHAR Char) { return TCHAR(Char - u'0') < 10; }
	static bool IsHexDigit(TCHAR Char) { return IsDigit(Char) || TCHAR((Char | 32) - u'a') < 6; }
	static bool IsWhitespace(TCHAR Char)
	{
		return Char < 128 ? Char == u' ' || TCHAR(Char - u'\t') < 5 : IsWhitespaceBeyondAscii(Char);
	}
	static bool IsLinebreak(TCHAR Char) { return TCHAR(Char - u'\n') < 4 || Char == 0x85 || Char == 0x2028 || Char == 0x2029; }
	static bool IsUpper(TCHAR Char) { return Char < 128 ? TCHAR(Char - u'A') < 26 : ToLowerBeyondAscii(Char) != Char; }
	static bool IsLower(TCHAR Char) { return Char < 128 ? TCHAR(Char - u'a') < 26 : ToUpperBeyondAscii(Char) != Char; }
	static CORE_API bool IsAlpha(TCHAR Char);
	static CORE_API bool IsPunct(TCHAR Char);
	static CORE_API bool IsPrint(TCHAR Char);
	static bool IsAlnum(TCHAR Char) { return IsDigit(Char) || IsAlpha(Char); }
	static bool IsIdentifier(TCHAR Char) { return IsAlnum(Char) || Char == u'_'; }
	static int32 ConvertCharDigitToInt(TCHAR Char) { return int32(Char) - u'0'; }

private:
	static CORE_API TCHAR ToLowerBeyondAscii(TCHAR Char);
	static CORE_API TCHAR ToUpperBeyondAscii(TCHAR Char);
	static CORE_API bool IsWhitespaceBeyondAscii(TCHAR Char);
};
