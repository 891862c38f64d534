#pragma once

#include "UObject/NoExportTypes.h"
#include "UObject/Object.h"
#include "Tools.generated.h"

UCLASS()
class UTools : public UObject
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintCallable, Category = "Tools")
	static FVector First() { return FVector(1.0, 2.0, 3.0); }
	// More here.
};
