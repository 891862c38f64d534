#include "PluginManager.h"

#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "PluginSearch.h"
#include "ProjectDescriptor.h"

DEFINE_LOG_CATEGORY_STATIC(LogPluginManager, Log, All);

IPluginManager& IPluginManager::Get()
{
	static FPluginManager Manager;
	return Manager;
}

FPlugin::FPlugin(const FString& InFileName, EPluginLoadedFrom InLoadedFrom, FPluginDescriptor&& InDescriptor)
	: Name(FPaths::GetBaseFilename(InFileName))
	, FileName(InFileName)
	, LoadedFrom(InLoadedFrom)
	, Descriptor(MoveTemp(InDescriptor))
{
}

FString FPlugin::GetBaseDir() const
{
	return FPaths::GetPath(FileName);
}

FString FPlugin::GetContentDir() const
{
	return GetBaseDir() / TEXT("Content");
}

bool FPlugin::CanContainContent() const
{
	return GetDescriptor().bCanContainContent;
}

FString FPlugin::GetMountedAssetPath() const
{
	return TEXT("/") + GetName() + TEXT("/");
}

bool FPlugin::IsEnabledByDefault() const
{
	if (Descriptor.EnabledByDefault == EPluginEnabledByDefault::Unspecified)
	{
		return LoadedFrom == EPluginLoadedFrom::Project;
	}
	return Descriptor.EnabledByDefault == EPluginEnabledByDefault::Enabled;
}

void FPluginManager::SearchIfNeeded()
{
	if (!bSearched)
	{
		RefreshPluginsList();
	}
}

void FPluginManager::RefreshPluginsList()
{
	bSearched = true;
	Plugins.Empty();
	AddPluginsBelow(FPaths::EnginePluginsDir(), EPluginLoadedFrom::Engine);
	if (FPaths::IsProjectFilePathSet())
	{
		AddPluginsBelow(FPaths::ProjectPluginsDir(), EPluginLoadedFrom::Project);
	}
	EnablePlugins();
}

void FPluginManager::AddPluginsBelow(const FString& Directory, EPluginLoadedFrom LoadedFrom)
{
	for (const FString& FileName : FindPluginDescriptors(Directory))
	{
		FPluginDescriptor Descriptor;
		FText Reason;
		if (!Descriptor.Load(FileName, Reason))
		{
			UE_LOG(LogPluginManager, Error, TEXT("Cannot use the plugin '%s': %s"), *FileName, *Reason.ToString());
			continue;
		}

		const TSharedRef<FPlugin> Plugin = MakeShared<FPlugin>(FileName, LoadedFrom, MoveTemp(Descriptor));
		if (const TSharedRef<FPlugin>* const Present = Plugins.Find(Plugin->GetName()))
		{
			UE_LOG(LogPluginManager, Warning, TEXT("The plugin '%s' is passed over: there is one of that name, '%s'."), *FileName,
				*(*Present)->GetDescriptorFileName());
			continue;
		}
		Plugins.Add(Plugin->GetName(), Plugin);
	}
}

void FPluginManager::EnablePlugins()
{
	FProjectDescriptor Project;
	FText Reason;
	if (FPaths::IsProjectFilePathSet() && !Project.Load(FPaths::GetProjectFilePath(), Reason))
	{
		UE_LOG(LogPluginManager, Error, TEXT("Cannot use the project file '%s': %s"), *FPaths::GetProjectFilePath(),
			*Reason.ToString());
	}

	ProjectSwitches.Empty();
	for (const FPluginReferenceDescriptor& Reference : Project.Plugins)
	{
		ProjectSwitches.Add(Reference.Name, Reference.bEnabled);
		UE_CLOG(Reference.bEnabled && !Reference.bOptional && !Plugins.Contains(Reference.Name), LogPluginManager, Error,
			TEXT("The project file '%s' needs the plugin '%s', which was not found."), *FPaths::GetProjectFilePath(),
			*Reference.Name);
	}

	EnabledPlugins.Empty();
	for (const TPair<FString, TSharedRef<FPlugin>>& Plugin : Plugins)
	{
		if (ProjectSwitches.Contains(Plugin.Key) || Plugin.Value->IsEnabledByDefault())
		{
			Enable(Plugin.Value);
		}
	}
}

void FPluginManager::Enable(const TSharedRef<FPlugin>& Plugin)
{
	const bool* const bSwitchedOn = ProjectSwitches.Find(Plugin->GetName());
	if (Plugin->bEnabled || (bSwitchedOn && !*bSwitchedOn))
	{
		return;
	}

	// It counts as enabled from here, so that plugins that name each other come to an end.
	Plugin->bEnabled = true;
	for (const FPluginReferenceDescriptor& Reference : Plugin->GetDescriptor().Plugins)
	{
		if (!Reference.bEnabled)
		{
			continue;
		}
		if (const TSharedRef<FPlugin>* const Needed = Plugins.Find(Reference.Name))
		{
			Enable(*Needed);
			continue;
		}
		UE_CLOG(!Reference.bOptional, LogPluginManager, Error,
			TEXT("The plugin '%s' needs the plugin '%s', which was not found."), *Plugin->GetDescriptorFileName(),
			*Reference.Name);
	}
	EnabledPlugins.Add(Plugin);
	FModuleManager::Get().AddBinariesDirectory(
		*(Plugin->GetBaseDir() / TEXT("Binaries/Linux")), Plugin->GetLoadedFrom() == EPluginLoadedFrom::Project);
}

TSharedPtr<IPlugin> FPluginManager::FindPlugin(const FString& Name)
{
	SearchIfNeeded();
	const TSharedRef<FPlugin>* const Plugin = Plugins.Find(Name);
	return Plugin ? TSharedPtr<IPlugin>(*Plugin) : nullptr;
}

TArray<TSharedRef<IPlugin>> FPluginManager::GetEnabledPluginsWithContent()
{
	return GetEnabledPlugins().FilterByPredicate([](const TSharedRef<IPlugin>& Plugin) { return Plugin->CanContainContent(); });
}

TArray<TSharedRef<IPlugin>> FPluginManager::GetEnabledPlugins()
{
	SearchIfNeeded();
	TArray<TSharedRef<IPlugin>> Result;
	for (const TSharedRef<FPlugin>& Plugin : EnabledPlugins)
	{
		Result.Add(Plugin);
	}
	return Result;
}

TArray<TSharedRef<IPlugin>> FPluginManager::GetDiscoveredPlugins()
{
	SearchIfNeeded();
	TArray<TSharedRef<IPlugin>> Result;
	for (const TPair<FString, TSharedRef<FPlugin>>& Plugin : Plugins)
	{
		Result.Add(Plugin.Value);
	}
	return Result;
}

bool FPluginManager::LoadModulesForEnabledPlugins(ELoadingPhase::Type LoadingPhase)
{
	SearchIfNeeded();

	// A module may make the list anew while it starts.
	const TArray<TSharedRef<FPlugin>> Present = EnabledPlugins;
	bool bAllLoaded = true;
	for (const TSharedRef<FPlugin>& Plugin : Present)
	{
		for (const FModuleDescriptor& Module : Plugin->GetDescriptor().Modules)
		{
			if (Module.LoadingPhase != LoadingPhase || !Module.bForEditor || FModuleManager::Get().LoadModule(Module.Name))
			{
				continue;
			}
			UE_LOG(LogPluginManager, Error, TEXT("The plugin '%s' failed to load because its module '%s' could not be loaded."),
				*Plugin->GetDescriptorFileName(), *Module.Name.ToString());
			bAllLoaded = false;
		}
	}
	return bAllLoaded;
}
