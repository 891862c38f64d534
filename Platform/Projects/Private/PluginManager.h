#pragma once

#include "Containers/Map.h"
#include "Interfaces/IPluginManager.h"

class FPlugin final : public IPlugin
{
public:
	FPlugin(const FString& InFileName, EPluginLoadedFrom InLoadedFrom, FPluginDescriptor&& InDescriptor);

	virtual const FString& GetName() const override { return Name; }

	virtual const FString& GetDescriptorFileName() const override { return FileName; }

	virtual FString GetBaseDir() const override;
	virtual FString GetContentDir() const override;
	virtual bool CanContainContent() const override;
	virtual FString GetMountedAssetPath() const override;

	virtual bool IsEnabled() const override { return bEnabled; }

	virtual EPluginLoadedFrom GetLoadedFrom() const override { return LoadedFrom; }

	virtual const FPluginDescriptor& GetDescriptor() const override { return Descriptor; }

	bool IsEnabledByDefault() const;

	bool bEnabled = false;

private:
	const FString Name;
	const FString FileName;
	const EPluginLoadedFrom LoadedFrom;
	const FPluginDescriptor Descriptor;
};

class FPluginManager final : public IPluginManager
{
public:
	virtual void RefreshPluginsList() override;
	virtual TSharedPtr<IPlugin> FindPlugin(const FString& Name) override;
	virtual TArray<TSharedRef<IPlugin>> GetEnabledPlugins() override;
	virtual TArray<TSharedRef<IPlugin>> GetEnabledPluginsWithContent() override;
	virtual TArray<TSharedRef<IPlugin>> GetDiscoveredPlugins() override;
	virtual bool LoadModulesForEnabledPlugins(ELoadingPhase::Type LoadingPhase) override;

private:
	void SearchIfNeeded();
	void AddPluginsBelow(const FString& Directory, EPluginLoadedFrom LoadedFrom);
	void EnablePlugins();

	/** Turns on a plugin, unless the project turned it off, after those that it names. */
	void Enable(const TSharedRef<FPlugin>& Plugin);

	/** By name, in the order of the search. */
	TMap<FString, TSharedRef<FPlugin>> Plugins;

	/** In the order in which their modules are loaded. */
	TArray<TSharedRef<FPlugin>> EnabledPlugins;

	/** What the project says, by name. */
	TMap<FString, bool> ProjectSwitches;

	bool bSearched = false;
};
