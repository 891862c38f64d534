#pragma once

#include "CoreMinimal.h"

class FJsonObject;

/** A plugin that a project or another plugin turns on or off. */
struct PROJECTS_API FPluginReferenceDescriptor
{
	FString Name;
	bool bEnabled = false;

	/** Whether the plugin may be missing. */
	bool bOptional = false;

	/**
	 * Reads the array "Plugins" of a descriptor; without it there are none.
	 *
	 * @return False, with the place and what was expected in OutFailReason, if something is not as it should be.
	 */
	static bool ReadArray(const FJsonObject& In, TArray<FPluginReferenceDescriptor>& OutPlugins, FText& OutFailReason);
};
