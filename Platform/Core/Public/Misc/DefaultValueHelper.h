#pragma once

#include "Containers/UnrealString.h"

/** Reads numbers out of text that must hold nothing else. Blanks around the number are allowed. */
class CORE_API FDefaultValueHelper
{
public:
	/** False, and the output left alone, for text that is no integer or no int32. */
	static bool ParseInt(const FString& Source, int32& OutValue);
	static bool ParseInt64(const FString& Source, int64& OutValue);
	/** An optional sign, digits with at most one dot, an optional exponent and an optional "f" at the end. */
	static bool ParseFloat(const FString& Source, float& OutValue);
	static bool ParseDouble(const FString& Source, double& OutValue);
};
