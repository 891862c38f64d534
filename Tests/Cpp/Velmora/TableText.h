#pragma once

#include "CoreMinimal.h"

/** Compares the lines of a table with those of a text file that stands in the folder Expected. */
void ExpectTable(const char* FileName, const TArray<FString>& Lines);

/**
 * What must be done to the lines of one text to get those of another, as few lines as possible.
 *
 * @return "Line: - text" for what is only expected, "Line: + text" for what is only found; the line is one of the expected text.
 */
TArray<FString> DiffLines(const TArray<FString>& Expected, const TArray<FString>& Found);
