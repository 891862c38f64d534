#pragma once

#include "CoreMinimal.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "UObject/NoExportTypes.h"
#include "KismetStringLibrary.generated.h"

/** Values as text. */
UCLASS(meta = (ScriptName = "StringLibrary"))
class ENGINE_API UKismetStringLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** "X=1.000 Y=2.000 Z=3.000" */
	UFUNCTION(BlueprintPure, Category = "Utilities|String", meta = (ScriptMethod = "ToString"))
	static FString Conv_VectorToString(FVector InVec);

	/** "X=1.000 Y=2.000" */
	UFUNCTION(BlueprintPure, Category = "Utilities|String", meta = (ScriptMethod = "ToString"))
	static FString Conv_Vector2dToString(FVector2D InVec);

	/** "X=1 Y=2" */
	UFUNCTION(BlueprintPure, Category = "Utilities|String", meta = (ScriptMethod = "ToString"))
	static FString Conv_IntPointToString(FIntPoint InIntPoint);

	/** "P=2.000000 Y=3.000000 R=1.000000" */
	UFUNCTION(BlueprintPure, Category = "Utilities|String", meta = (ScriptMethod = "ToString"))
	static FString Conv_RotatorToString(FRotator InRot);

	/** "(R=1.000000,G=1.000000,B=1.000000,A=1.000000)" */
	UFUNCTION(BlueprintPure, Category = "Utilities|String", meta = (ScriptMethod = "ToString"))
	static FString Conv_ColorToString(FLinearColor InColor);

	/** "2021.12.31-23.59.58" */
	UFUNCTION(BlueprintPure, Category = "Utilities|String", meta = (ScriptMethod = "ToString"))
	static FString Conv_DateTimeToString(FDateTime InDateTime);

	/** "+01:02:03.456", with whole days before it as in "+4.01:02:03.456" */
	UFUNCTION(BlueprintPure, Category = "Utilities|String", meta = (ScriptMethod = "ToString"))
	static FString Conv_TimespanToString(FTimespan InTimespan);
};
