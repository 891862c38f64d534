#include "Misc/Parse.h"

namespace
{
bool IsWordCharacter(TCHAR Char)
{
	return FChar::IsAlnum(Char) || Char == TEXT('_');
}

bool IsSwitchMark(TCHAR Char)
{
	return Char == TEXT('-') || Char == TEXT('/');
}

const TCHAR* SkipBlanks(const TCHAR* Text)
{
	while (FChar::IsWhitespace(*Text))
	{
		++Text;
	}
	return Text;
}

/** What follows the first occurrence of Match at the beginning of a word; null without one. */
const TCHAR* FindBehind(const TCHAR* Stream, const TCHAR* Match)
{
	for (const TCHAR* Place = FCString::Stristr(Stream, Match); Place; Place = FCString::Stristr(Place + 1, Match))
	{
		if (Place == Stream || !IsWordCharacter(Place[-1]))
		{
			return Place + FCString::Strlen(Match);
		}
	}
	return nullptr;
}

/** The character that an escape stands for. */
TCHAR Unescape(TCHAR Char)
{
	switch (Char)
	{
		case TEXT('n'):
			return TEXT('\n');
		case TEXT('r'):
			return TEXT('\r');
		case TEXT('t'):
			return TEXT('\t');
		default:
			return Char;
	}
}
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, FString& Value, bool bShouldStopOnSeparator)
{
	const TCHAR* Place = FindBehind(Stream, Match);
	if (!Place)
	{
		return false;
	}

	const bool bQuoted = *Place == TEXT('"');
	const TCHAR* const Start = bQuoted ? Place + 1 : Place;
	for (Place = Start; *Place; ++Place)
	{
		const bool bSeparator = bShouldStopOnSeparator && (*Place == TEXT(',') || *Place == TEXT(')'));
		if (bQuoted ? *Place == TEXT('"') : FChar::IsWhitespace(*Place) || bSeparator)
		{
			break;
		}
	}
	Value = FString(static_cast<int32>(Place - Start), Start);
	return true;
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, int32& Value)
{
	const TCHAR* const Place = FindBehind(Stream, Match);
	if (Place)
	{
		Value = FCString::Atoi(Place);
	}
	return Place != nullptr;
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, float& Value)
{
	const TCHAR* const Place = FindBehind(Stream, Match);
	if (Place)
	{
		Value = FCString::Atof(Place);
	}
	return Place != nullptr;
}

bool FParse::Param(const TCHAR* Stream, const TCHAR* Param)
{
	const int32 Length = FCString::Strlen(Param);
	for (const TCHAR* Place = FCString::Stristr(Stream, Param); Place; Place = FCString::Stristr(Place + 1, Param))
	{
		const bool bMarked =
			Place != Stream && IsSwitchMark(Place[-1]) && (Place - 1 == Stream || FChar::IsWhitespace(Place[-2]));
		if (bMarked && (Place[Length] == 0 || FChar::IsWhitespace(Place[Length])))
		{
			return true;
		}
	}
	return false;
}

bool FParse::Token(const TCHAR*& Str, FString& Arg, bool UseEscape)
{
	Arg.Reset();
	Str = SkipBlanks(Str);
	if (!*Str)
	{
		return false;
	}

	const bool bQuoted = *Str == TEXT('"');
	Str += bQuoted ? 1 : 0;
	for (; *Str && !(bQuoted ? *Str == TEXT('"') : FChar::IsWhitespace(*Str)); ++Str)
	{
		const bool bEscape = UseEscape && *Str == TEXT('\\') && Str[1];
		Str += bEscape ? 1 : 0;
		Arg += *Str;
	}
	Str += bQuoted && *Str ? 1 : 0;
	return true;
}

bool FParse::Command(const TCHAR** Stream, const TCHAR* Match)
{
	const TCHAR* const Start = SkipBlanks(*Stream);
	const int32 Length = FCString::Strlen(Match);
	if (FCString::Strnicmp(Start, Match, static_cast<SIZE_T>(Length)) != 0 || IsWordCharacter(Start[Length]))
	{
		return false;
	}
	*Stream = SkipBlanks(Start + Length);
	return true;
}

bool FParse::QuotedString(const TCHAR* Buffer, FString& Value, int32* OutNumCharsRead)
{
	if (*Buffer != TEXT('"'))
	{
		return false;
	}

	FString Result;
	const TCHAR* Place = Buffer + 1;
	for (; *Place && *Place != TEXT('"'); ++Place)
	{
		const bool bEscape = *Place == TEXT('\\') && Place[1];
		Place += bEscape ? 1 : 0;
		Result += bEscape ? Unescape(*Place) : *Place;
	}
	if (!*Place)
	{
		return false;
	}

	Value = MoveTemp(Result);
	if (OutNumCharsRead)
	{
		*OutNumCharsRead = static_cast<int32>(Place + 1 - Buffer);
	}
	return true;
}
