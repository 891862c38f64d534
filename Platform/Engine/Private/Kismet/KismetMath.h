#pragma once

#include "CoreMinimal.h"

/** What the sources of the mathematics library share. */
namespace KismetMath
{
/** Says that a function was asked to divide by zero, as a Warning. */
void WarnOfDivision(const TCHAR* FunctionName);

/** A / B; 0, with a Warning, where B is 0. */
template <typename NumberType>
NumberType Divide(NumberType A, NumberType B, const TCHAR* FunctionName)
{
	if (B == NumberType(0))
	{
		WarnOfDivision(FunctionName);
		return NumberType(0);
	}
	return A / B;
}
}
