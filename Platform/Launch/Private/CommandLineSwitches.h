#pragma once

#include "CoreMinimal.h"

namespace CommandLineSwitches
{
/** The switches of a command line that mean nothing to the editor, as they stand there. */
TArray<FString> FindUnknown(const FString& CommandLine);
}
