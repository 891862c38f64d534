#pragma once

#include "ModuleDescriptor.h"
#include "PluginReferenceDescriptor.h"

/** What a .uproject file says. */
struct PROJECTS_API FProjectDescriptor
{
	TArray<FPluginReferenceDescriptor> Plugins;

	/** @return False, with place and reason in OutFailReason, if the file cannot be read or is no descriptor. */
	bool Load(const FString& FileName, FText& OutFailReason);
};
