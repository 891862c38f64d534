#pragma once

#include "CoreMinimal.h"
#include "PluginDescriptor.h"

enum class EPluginLoadedFrom
{
	Engine,
	Project,
};

/** A plugin that was found. */
class PROJECTS_API IPlugin
{
public:
	virtual ~IPlugin() = default;

	/** Name of the descriptor file without its extension. */
	virtual const FString& GetName() const = 0;
	virtual const FString& GetDescriptorFileName() const = 0;

	/** Folder of the descriptor as the search came to it, without a slash at its end. */
	virtual FString GetBaseDir() const = 0;

	/** The folder "Content" in it, without a slash at its end. */
	virtual FString GetContentDir() const = 0;

	/** Whether that folder holds packages, as the descriptor says. */
	virtual bool CanContainContent() const = 0;

	/** The root of the plugin's packages: its name between slashes. */
	virtual FString GetMountedAssetPath() const = 0;

	virtual bool IsEnabled() const = 0;
	virtual EPluginLoadedFrom GetLoadedFrom() const = 0;
	virtual const FPluginDescriptor& GetDescriptor() const = 0;
};

/**
 * The plugins of the engine and of the project. They are found by their .uplugin files below FPaths::EnginePluginsDir() and
 * FPaths::ProjectPluginsDir(); the search does not go below a folder that holds one. A plugin is on when the project's list "Plugins"
 * says so; without an entry there, when a plugin that is on names it, or when its own descriptor makes it so.
 */
class PROJECTS_API IPluginManager
{
public:
	static IPluginManager& Get();

	virtual ~IPluginManager() = default;

	/** Searches again, for the project that is set now. It happens by itself before the first question. */
	virtual void RefreshPluginsList() = 0;

	/** The plugin of that name, in any case of letters, whether it is enabled or not; null if there is none. */
	virtual TSharedPtr<IPlugin> FindPlugin(const FString& Name) = 0;

	/** Those that are on, each behind the plugins that it names. */
	virtual TArray<TSharedRef<IPlugin>> GetEnabledPlugins() = 0;
	virtual TArray<TSharedRef<IPlugin>> GetDiscoveredPlugins() = 0;

	/** Those of the enabled ones that can contain content. */
	virtual TArray<TSharedRef<IPlugin>> GetEnabledPluginsWithContent() = 0;

	/**
	 * Loads the modules of a phase, in the order of GetEnabledPlugins.
	 *
	 * @return False, after an Error for each, if some could not be loaded.
	 */
	virtual bool LoadModulesForEnabledPlugins(ELoadingPhase::Type LoadingPhase) = 0;
};
