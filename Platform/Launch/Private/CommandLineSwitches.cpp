#include "CommandLineSwitches.h"

namespace
{
/** What the editor looks at, and what scripts for the engine give it as a habit. */
const TCHAR* const KnownSwitches[] = {
	TEXT("ExecutePythonScript"),
	TEXT("ExecCmds"),
	TEXT("RenderOffScreen"),
	TEXT("unattended"),
	TEXT("stdout"),
	TEXT("abslog"),
	TEXT("DisablePython"),
	TEXT("FullStdOutLogOutput"),
	TEXT("nullrhi"),
	TEXT("nosplash"),
	TEXT("nop4"),
	TEXT("nopause"),
};

/** The words of a command line; blanks between double quotes belong to a word. */
TArray<FString> SplitIntoWords(const FString& CommandLine)
{
	TArray<FString> Words;
	FString Word;
	bool bQuoted = false;
	for (const TCHAR Character : CommandLine)
	{
		bQuoted = bQuoted != (Character == TEXT('"'));
		if (!bQuoted && FChar::IsWhitespace(Character))
		{
			Words.Add(Word);
			Word.Reset();
		}
		else
		{
			Word.AppendChar(Character);
		}
	}
	Words.Add(Word);
	return Words;
}

bool IsKnown(const FString& Switch)
{
	for (const TCHAR* const Known : KnownSwitches)
	{
		if (Switch == Known)
		{
			return true;
		}
	}
	return false;
}
}

TArray<FString> CommandLineSwitches::FindUnknown(const FString& CommandLine)
{
	TArray<FString> Unknown;
	for (const FString& Word : SplitIntoWords(CommandLine))
	{
		FString Name;
		FString Value;
		if (!Word.Split(TEXT("="), &Name, &Value))
		{
			Name = Word;
		}
		if (Name.StartsWith(TEXT("-")) && !IsKnown(Name.RightChop(1)))
		{
			Unknown.Add(Word);
		}
	}
	return Unknown;
}
