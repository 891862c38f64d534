#pragma once

#include "CoreMinimal.h"

/** A command that runs a script file: its name and its arguments. */
struct PYTHONSCRIPTPLUGIN_API FPythonCommandLine
{
	FString FileName;
	TArray<FString> Arguments;

	/**
	 * Splits a text at blanks; single and double quotes keep words together. False if its first word does not end in ".py":
	 * then the text is Python itself.
	 */
	static bool Parse(const FString& Text, FPythonCommandLine& OutCommandLine);
};
