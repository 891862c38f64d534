#pragma once

#include "Templates/SubclassOf.h"
#include "UObject/Object.h"
#include "Blueprint.generated.h"

/** An asset that describes a class made in the editor. */
UCLASS(BlueprintType, NotBlueprintable)
class ENGINE_API UBlueprint : public UObject
{
	GENERATED_BODY()

public:
	/** The class of which objects are made. */
	UPROPERTY()
	TSubclassOf<UObject> GeneratedClass;

	/** The class that the generated class derives from. */
	UPROPERTY(meta = (NoResetToDefault))
	TSubclassOf<UObject> ParentClass;
};
