#include "PythonCommandLine.h"

static bool IsQuote(TCHAR Character)
{
	return Character == TEXT('"') || Character == TEXT('\'');
}

/** Goes past blanks; false at the end of the text. */
static bool FindWord(const FString& Text, int32& Position)
{
	while (Position < Text.Len() && FChar::IsWhitespace(Text[Position]))
	{
		++Position;
	}
	return Position < Text.Len();
}

/** Takes a word without its quotes, which may begin within it, as in --title="two words". */
static FString TakeArgument(const FString& Text, int32& Position)
{
	FString Word;
	TCHAR OpenQuote = 0;
	for (; Position < Text.Len() && (OpenQuote || !FChar::IsWhitespace(Text[Position])); ++Position)
	{
		const TCHAR Character = Text[Position];
		if (OpenQuote ? Character == OpenQuote : IsQuote(Character))
		{
			OpenQuote = OpenQuote ? 0 : Character;
		}
		else
		{
			Word.AppendChar(Character);
		}
	}
	return Word;
}

/** Takes the first word. Quotes count only around it: x = "a b.py" is no file name. */
static FString TakeFileName(const FString& Text, int32& Position)
{
	if (IsQuote(Text[Position]))
	{
		return TakeArgument(Text, Position);
	}
	const int32 Start = Position;
	while (Position < Text.Len() && !FChar::IsWhitespace(Text[Position]))
	{
		++Position;
	}
	return Text.Mid(Start, Position - Start);
}

bool FPythonCommandLine::Parse(const FString& Text, FPythonCommandLine& OutCommandLine)
{
	int32 Position = 0;
	if (!FindWord(Text, Position))
	{
		return false;
	}
	OutCommandLine.FileName = TakeFileName(Text, Position);
	if (!OutCommandLine.FileName.EndsWith(TEXT(".py")))
	{
		return false;
	}

	OutCommandLine.Arguments.Reset();
	while (FindWord(Text, Position))
	{
		OutCommandLine.Arguments.Add(TakeArgument(Text, Position));
	}
	return true;
}
