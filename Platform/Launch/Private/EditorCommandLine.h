#pragma once

#include "CoreMinimal.h"

/** What the command line of the editor may be. */
namespace EditorCommandLine
{
extern const ANSICHAR* const Usage;

/** What is wrong with the first argument, as a line of text; empty if it names a project. */
FString CheckProjectFile(const FString& Name);

/** The full name of a file that the user gave, counted from the folder in which the editor was started. */
FString MakeFull(const FString& Path);

/** The switches of a command line that mean nothing to the editor, as they stand there. */
TArray<FString> FindUnknownSwitches(const FString& CommandLine);
}
