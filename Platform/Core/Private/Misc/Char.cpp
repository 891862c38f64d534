#include "Misc/Char.h"

#include <unicode/uchar.h>

/** Where the mapping leaves the 16 bits of a code unit, the character keeps its case. */
static TCHAR CodeUnitOr(UChar32 Mapped, TCHAR Char)
{
	return Mapped <= 0xFFFF ? TCHAR(Mapped) : Char;
}

TCHAR FChar::ToLowerBeyondAscii(TCHAR Char)
{
	return CodeUnitOr(u_tolower(Char), Char);
}

TCHAR FChar::ToUpperBeyondAscii(TCHAR Char)
{
	return CodeUnitOr(u_toupper(Char), Char);
}

bool FChar::IsWhitespaceBeyondAscii(TCHAR Char)
{
	return u_isWhitespace(Char);
}

bool FChar::IsAlpha(TCHAR Char)
{
	return u_isalpha(Char);
}

bool FChar::IsPunct(TCHAR Char)
{
	// Of ASCII's printing characters C counts all but letters, digits and the blank, Unicode leaves out symbols like "+".
	return Char < 128 ? Char > u' ' && Char < 127 && !IsAlnum(Char) : bool(u_ispunct(Char));
}

bool FChar::IsPrint(TCHAR Char)
{
	return u_isprint(Char);
}
