#pragma once

#include "UObject/UnrealType.h"

/** The short name of the entry; the number if no entry has the value. */
void ExportEnumText(FString& ValueStr, const UEnum& Enum, int64 Value);

/** Reads an entry's short or full name, or a number. */
const TCHAR* ImportEnumText(const TCHAR* Buffer, const UEnum& Enum, const FNumericProperty& Property, void* Data);
