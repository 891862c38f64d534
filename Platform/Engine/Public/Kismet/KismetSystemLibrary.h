#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "KismetSystemLibrary.generated.h"

/** Services of the engine for scripts. */
UCLASS(meta = (ScriptName = "SystemLibrary"))
class ENGINE_API UKismetSystemLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/**
	 * Destroys the objects that nothing refers to any more, once the frame is over. The editor does so by itself, about every minute
	 * of work and after a tool was closed.
	 */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Platform")
	static void CollectGarbage();

	/** Ends the editor after this frame, as closing its main window does, but no tab can refuse. */
	UFUNCTION(BlueprintCallable, Category = "Development|Editor")
	static void QuitEditor();
};
