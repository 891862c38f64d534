#pragma once

#include "CoreMinimal.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "UObject/NoExportTypes.h"
#include "KismetGuidLibrary.generated.h"

/** Globally unique identifiers. */
UCLASS(meta = (ScriptName = "GuidLibrary"))
class ENGINE_API UKismetGuidLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Whether both are the same. */
	UFUNCTION(BlueprintPure, Category = "Guid", meta = (ScriptMethod = "Equals", ScriptOperator = "=="))
	static bool EqualEqual_GuidGuid(const FGuid& A, const FGuid& B);

	/** Whether both differ. */
	UFUNCTION(BlueprintPure, Category = "Guid", meta = (ScriptMethod = "NotEqual", ScriptOperator = "!="))
	static bool NotEqual_GuidGuid(const FGuid& A, const FGuid& B);

	/** Whether it identifies anything: all zeros do not. */
	UFUNCTION(BlueprintPure, Category = "Guid", meta = (ScriptMethod = "IsValid", ScriptOperator = "bool"))
	static bool IsValid_Guid(const FGuid& InGuid);

	/** Makes it all zeros. */
	UFUNCTION(BlueprintCallable, Category = "Guid", meta = (ScriptMethod = "Invalidate"))
	static void Invalidate_Guid(UPARAM(ref) FGuid& InGuid);

	/** A new one, which no other place has made. */
	UFUNCTION(BlueprintPure, Category = "Guid")
	static FGuid NewGuid();

	/** The 32 hexadecimal digits, in upper case. */
	UFUNCTION(BlueprintPure, Category = "Guid", meta = (ScriptMethod = "ToString"))
	static FString Conv_GuidToString(const FGuid& InGuid);

	/**
	 * Reads digits in any of the usual forms.
	 *
	 * @param OutGuid  All zeros if the text is no identifier.
	 * @param bSuccess  Whether it is one.
	 */
	UFUNCTION(BlueprintPure, Category = "Guid")
	static void Parse_StringToGuid(const FString& GuidString, FGuid& OutGuid, bool& bSuccess);
};
