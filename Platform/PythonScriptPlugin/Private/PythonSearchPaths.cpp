#include "PythonSearchPaths.h"

#include "HAL/PlatformMisc.h"
#include "Interfaces/IPluginManager.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/Paths.h"
#include "PythonStrings.h"

static const TCHAR* const GSettingsSection = TEXT("/Script/PythonScriptPlugin.PythonScriptPluginSettings");

static FString FullFolder(const FString& Folder)
{
	FString Result = FPaths::ConvertRelativePathToFull(Folder);
	FPaths::RemoveDuplicateSlashes(Result);
	FPaths::NormalizeDirectoryName(Result);
	return Result;
}

/** Content/Python of each enabled plugin, then of the project. */
static TArray<FString> ContentFolders()
{
	TArray<FString> Folders;
	for (const TSharedRef<IPlugin>& Plugin : IPluginManager::Get().GetEnabledPlugins())
	{
		Folders.Add(FullFolder(FPaths::Combine(Plugin->GetContentDir(), TEXT("Python"))));
	}
	if (FPaths::IsProjectFilePathSet())
	{
		Folders.Add(FullFolder(FPaths::Combine(FPaths::ProjectContentDir(), TEXT("Python"))));
	}
	return Folders;
}

static TArray<FString> FoldersOfEnvironment()
{
	TArray<FString> Folders;
	FPlatformMisc::GetEnvironmentVariable(TEXT("UE_PYTHONPATH")).ParseIntoArray(Folders, TEXT(":"));
	for (FString& Folder : Folders)
	{
		Folder = FullFolder(Folder);
	}
	return Folders;
}

/** A path setting stands in the file as (Path="...") or, written by hand, as the path alone. Relative ones count from the project. */
static FString PathOfSetting(const FString& Value)
{
	FString Path = Value;
	FParse::Value(*Value, TEXT("Path="), Path);
	return FullFolder(FPaths::ConvertRelativePathToFull(FPaths::ProjectDir(), Path));
}

static TArray<FString> FoldersOfSettings()
{
	TArray<FString> Values;
	if (GConfig)
	{
		GConfig->GetArray(GSettingsSection, TEXT("AdditionalPaths"), Values, GEngineIni);
	}
	TArray<FString> Folders;
	for (const FString& Value : Values)
	{
		Folders.Add(PathOfSetting(Value));
	}
	return Folders;
}

TArray<FString> PythonSearchPaths::Collect()
{
	TArray<FString> Result;
	for (const TArray<FString>& Folders : {FoldersOfEnvironment(), FoldersOfSettings(), ContentFolders()})
	{
		for (const FString& Folder : Folders)
		{
			// File names differ by case here, so the array's own search will not do.
			if (!Result.ContainsByPredicate([&Folder](const FString& Known) { return Known.Equals(Folder); }))
			{
				Result.Add(Folder);
			}
		}
	}
	return Result;
}

void PythonSearchPaths::Add(const FString& Folder)
{
	PyObject* const SearchPath = PySys_GetObject("path");
	const FPythonRef Entry = PythonStrings::ToPython(Folder);
	if (SearchPath && Entry && PySequence_Contains(SearchPath, Entry.Get()) == 0)
	{
		PyList_Append(SearchPath, Entry.Get());
	}
	PyErr_Clear();
}

TArray<FString> PythonSearchPaths::FindStartupScripts()
{
	TArray<FString> Scripts;
	for (const FString& Folder : ContentFolders())
	{
		const FString Script = FPaths::Combine(Folder, TEXT("init_unreal.py"));
		if (FPaths::FileExists(Script))
		{
			Scripts.Add(Script);
		}
	}
	return Scripts;
}
