#pragma once

#include "Containers/UnrealString.h"
#include "Misc/Char.h"

/** Reads switches and values out of command lines and similar texts. Names match in any case of letters. */
struct CORE_API FParse
{
	/**
	 * Finds "Match" at the beginning of a word and reads what follows, e.g. Match "abslog=" in "-abslog=Run.log". A value may stand in
	 * quotes; without them it ends at a blank, and by default at a comma or closing parenthesis.
	 *
	 * @return False, with the value left as it was, if Match does not occur.
	 */
	static bool Value(const TCHAR* Stream, const TCHAR* Match, FString& Value, bool bShouldStopOnSeparator = true);
	static bool Value(const TCHAR* Stream, const TCHAR* Match, int32& Value);
	static bool Value(const TCHAR* Stream, const TCHAR* Match, float& Value);

	/** Whether a switch stands in the text as a word of its own behind "-" or "/". */
	static bool Param(const TCHAR* Stream, const TCHAR* Param);

	/**
	 * Takes the next word, or the text between quotes, from the beginning of a text.
	 *
	 * @param Str         Moves behind what was taken.
	 * @param UseEscape   Whether a backslash takes the special meaning off a quote or backslash behind it.
	 * @return False if only blanks were left.
	 */
	static bool Token(const TCHAR*& Str, FString& Arg, bool UseEscape);

	/** Takes a keyword from the beginning of a text if it stands there as a whole word, with the blanks behind it. */
	static bool Command(const TCHAR** Stream, const TCHAR* Match);

	/**
	 * Reads a text in double quotes with the escapes \" \\ \' \n \r \t.
	 *
	 * @param OutNumCharsRead  Receives the length in the buffer, quotes included, if it is not null.
	 * @return False if the buffer does not begin with a quote or the closing one is missing.
	 */
	static bool QuotedString(const TCHAR* Buffer, FString& Value, int32* OutNumCharsRead = nullptr);

	/** The value of a hexadecimal digit, 0 for any other character. */
	static int32 HexDigit(TCHAR Char)
	{
		return !FChar::IsHexDigit(Char) ? 0 : FChar::IsDigit(Char) ? Char - u'0' : (Char | 32) - u'a' + 10;
	}
};
