#include "KismetMath.h"

#include "UObject/Stack.h"

void KismetMath::WarnOfDivision(const TCHAR* FunctionName)
{
	FFrame::KismetExecutionMessage(*FString::Printf(TEXT("Divide by zero: %s"), FunctionName), ELogVerbosity::Warning);
}
