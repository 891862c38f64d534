#include "EditorCommandLine.h"

#include "Misc/Paths.h"

#include <climits>
#include <unistd.h>

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

const ANSICHAR* const EditorCommandLine::Usage =
	"usage: <Project.uproject> [-ExecutePythonScript=\"file args\"] [-ExecCmds=\"a;b\"] [-RenderOffScreen] [-unattended]\n"
	"       [-stdout] [-abslog=FILE] [-DisablePython]\n";

FString EditorCommandLine::CheckProjectFile(const FString& Name)
{
	if (Name.IsEmpty() || Name.StartsWith(TEXT("-")))
	{
		return TEXT("The first argument names the project.\n");
	}
	if (FPaths::GetExtension(Name) != TEXT("uproject"))
	{
		return FString::Printf(TEXT("'%s' is no project: the name of one ends with .uproject.\n"), *Name);
	}
	if (!FPaths::FileExists(MakeFull(Name)))
	{
		return FString::Printf(TEXT("There is no project '%s'.\n"), *Name);
	}
	return FString();
}

FString EditorCommandLine::MakeFull(const FString& Path)
{
	char Folder[PATH_MAX];
	FString Full = FPaths::IsRelative(Path) && getcwd(Folder, sizeof(Folder))
		? FPaths::ConvertRelativePathToFull(UTF8_TO_TCHAR(Folder), Path)
		: FPaths::ConvertRelativePathToFull(Path);
	FPaths::RemoveDuplicateSlashes(Full);
	return Full;
}

TArray<FString> EditorCommandLine::FindUnknownSwitches(const FString& CommandLine)
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
