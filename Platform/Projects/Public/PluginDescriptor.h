#pragma once

#include "ModuleDescriptor.h"
#include "PluginReferenceDescriptor.h"

enum class EPluginEnabledByDefault : uint8
{
	/** A plugin of the project is enabled, one of the engine is not. */
	Unspecified,
	Enabled,
	Disabled,
};

/** What a .uplugin file says. */
struct PROJECTS_API FPluginDescriptor
{
	FString VersionName;
	FString FriendlyName;
	FString Description;
	EPluginEnabledByDefault EnabledByDefault = EPluginEnabledByDefault::Unspecified;

	/** Whether its folder "Content" holds packages. */
	bool bCanContainContent = false;

	TArray<FModuleDescriptor> Modules;
	TArray<FPluginReferenceDescriptor> Plugins;

	/** @return False, with place and reason in OutFailReason, if the file cannot be read or is no descriptor. */
	bool Load(const FString& FileName, FText& OutFailReason);
};
