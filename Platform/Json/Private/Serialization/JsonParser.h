#pragma once

#include "CoreMinimal.h"

class FJsonValue;

/** What is wrong with a JSON text, and at which character. */
struct FJsonSyntaxError
{
	const TCHAR* Message = TEXT("");
	int32 Offset = 0;
};

/** Reads a JSON text. @return The root, or null with the error filled in. */
TSharedPtr<FJsonValue> ParseJsonText(const FString& Text, FJsonSyntaxError& OutError);
