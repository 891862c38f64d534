#include "Serialization/JsonWriter.h"

#include <charconv>

namespace
{
template <typename... ArgTypes>
void AppendChars(FString& Text, ArgTypes... Args)
{
	char Buffer[64];
	const char* End = std::to_chars(Buffer, Buffer + sizeof(Buffer), Args...).ptr;
	for (const char* Char = Buffer; Char != End; ++Char)
	{
		Text += TCHAR(*Char);
	}
}

/** The letter behind the backslash, or 0 for characters that need none. */
TCHAR GetEscapeLetter(TCHAR Char)
{
	switch (Char)
	{
		case TEXT('"'):
		case TEXT('\\'):
			return Char;
		case TEXT('\b'):
			return TEXT('b');
		case TEXT('\f'):
			return TEXT('f');
		case TEXT('\n'):
			return TEXT('n');
		case TEXT('\r'):
			return TEXT('r');
		case TEXT('\t'):
			return TEXT('t');
		default:
			return 0;
	}
}
}

void JsonWriterInternals::AppendString(FString& Text, const FString& String)
{
	Text += TEXT('"');
	for (const TCHAR Char : String)
	{
		if (const TCHAR Letter = GetEscapeLetter(Char))
		{
			Text += TEXT('\\');
			Text += Letter;
		}
		else if (Char < 0x20)
		{
			Text += FString::Printf(TEXT("\\u%04x"), uint32(Char));
		}
		else
		{
			Text += Char;
		}
	}
	Text += TEXT('"');
}

void JsonWriterInternals::AppendNumber(FString& Text, double Number)
{
	AppendChars(Text, Number, std::chars_format::general, 17);
}

void JsonWriterInternals::AppendNumber(FString& Text, float Number)
{
	AppendChars(Text, Number, std::chars_format::general, 6);
}

void JsonWriterInternals::AppendNumber(FString& Text, int64 Number)
{
	AppendChars(Text, Number);
}

void JsonWriterInternals::AppendNumber(FString& Text, uint64 Number)
{
	AppendChars(Text, Number);
}
