#pragma once

#include "CoreMinimal.h"

/** Starts once what descriptions need: a project folder below the system's temporary files, a quiet log, a style. */
void StartFuzzEnvironment();

/** Writes bytes to a file of the project. @return Its full path. */
FString WriteFuzzFile(const TCHAR* Name, const uint8* Data, SIZE_T Size);
