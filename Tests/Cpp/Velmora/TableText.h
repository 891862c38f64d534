#pragma once

#include "CoreMinimal.h"

/** Compares the lines of a table with those of a text file that stands in the folder Expected. */
void ExpectTable(const char* FileName, const TArray<FString>& Lines);
