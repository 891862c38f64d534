#pragma once

#include "UObject/Object.h"
#include "BlueprintFunctionLibrary.generated.h"

/** The parent of classes that have nothing but static functions for scripts. */
UCLASS(Abstract, MinimalAPI)
class UBlueprintFunctionLibrary : public UObject
{
	GENERATED_BODY()
};
