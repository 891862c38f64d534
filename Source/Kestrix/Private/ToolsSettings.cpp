#include "ToolsSettings.h"

#include "GenericPlatform/GenericPlatformFile.h"
#include "HAL/IConsoleManager.h"
#include "HAL/PlatformFileManager.h"
#include "KestrixLog.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/Paths.h"
#include "NameOfText.h"
#include "Velmora/VelmoraGenerator.h"

FSettingsPaths::FSettingsPaths()
	: ConfigFile(FConfigCacheIni::NormalizeConfigIniPath(FPaths::ProjectDir() + TEXT("/KX/Kestrix/Config/Config.ini")))
	, PluginConfigFile(
		  FConfigCacheIni::NormalizeConfigIniPath(FPaths::ProjectPluginsDir() + TEXT("/Kestrix/Config/Plugin_Config.ini")))
	, ProjectContentRoot(FConfigCacheIni::NormalizeConfigIniPath(FPaths::ProjectDir() + TEXT("/KX")))
{
}

FSettingsPaths SettingsPaths;
bool SettingsInitialised = false;
bool MenuConfigExists = false;
bool bLogOnTickWarnings = true;

namespace
{
const TCHAR* const SettingsSection = TEXT("Settings");
const TCHAR* const AdvancedSection = TEXT("Advanced");

/** A key of an ini file, and what is written where it is missing. */
struct FSettingDefault
{
	const TCHAR* Section;
	const TCHAR* Key;
	const TCHAR* Value;
	FString FSettingsPaths::*File = &FSettingsPaths::ConfigFile;
};

const FSettingDefault SettingDefaults[] = {
	{SettingsSection, TEXT("PythonContentFolder"), TEXT("/KX/Kestrix/Python")},
	{SettingsSection, TEXT("MenuConfigFilePath"), TEXT("/KX/Kestrix/UI/MenuConfig.json")},
	{SettingsSection, TEXT("VelmoraDataFolder"), TEXT("/Game/KX/VelmoraTools")},
	{AdvancedSection, TEXT("MainbarExtensionHookName"), TEXT("Play")},
	{AdvancedSection, TEXT("MenusOnToolbarEnabled"), TEXT("True")},
	{AdvancedSection, TEXT("SketchToolsEnabled"), TEXT("True")},
	{AdvancedSection, TEXT("MainMenuExtensionHookName"), TEXT("Instrumentation")},
	{AdvancedSection, TEXT("MaterialEditorMenuExtensionHookName"), TEXT("Instrumentation")},
	{AdvancedSection, TEXT("CopyInitialResource"), TEXT("True"), &FSettingsPaths::PluginConfigFile},
	{AdvancedSection, TEXT("LogCreateWidget"), TEXT("False")},
	{AdvancedSection, TEXT("LogOnTickWarnings"), TEXT("True")},
	{AdvancedSection, TEXT("SButtonHorizontalPadding"), TEXT("-16")},
	{AdvancedSection, TEXT("LogNumberLimit"), TEXT("10240")},
};

FString ReadString(const TCHAR* Section, const TCHAR* Key)
{
	FString Value;
	GConfig->GetString(Section, Key, Value, SettingsPaths.ConfigFile);
	return Value;
}

int32 ReadAdvancedInt(const TCHAR* Key)
{
	int32 Value = 0;
	GConfig->GetInt(AdvancedSection, Key, Value, SettingsPaths.ConfigFile);
	return Value;
}

bool ReadSwitch(const TCHAR* Key)
{
	bool bValue = false;
	GConfig->GetBool(AdvancedSection, Key, bValue, SettingsPaths.ConfigFile);
	return (bValue || IsOverrideForcedOn()) && !IsOverrideForcedOff();
}

/** The console variable by name, so that a change takes effect at the next asking. */
bool IsOverride(int32 Value)
{
	const IConsoleVariable* const Override = IConsoleManager::Get().FindConsoleVariable(TEXT("Kestrix.OverrideEnabled"));
	return Override != nullptr && Override->GetInt() == Value;
}

/** Success is a warning, too, so that it stands out in the log. */
void CopyDefaultFolder()
{
	const FString Source = FPaths::ProjectDir() + TEXT("/Plugins/Kestrix/Resources/DefaultPythonSource/KX");
	if (!FPaths::DirectoryExists(Source))
	{
		UE_LOG(PythonKX, Warning, TEXT("Can't find DefaultPythonSourcePath @: %s"), *Source);
		return;
	}
	const FString& Destination = SettingsPaths.ProjectContentRoot;
	const bool bCopied =
		FPlatformFileManager::Get().GetPlatformFile().CopyDirectoryTree(*Destination, *Source, /* bOverwriteAllExisting */ true);
	UE_LOG(PythonKX, Warning, TEXT("Copy Default UI, Config, Python %s %s "), *Source, *Destination);
	UE_CLOG(!bCopied, PythonKX, Error, TEXT("Not all files of %s could be copied to %s."), *Source, *Destination);
}

void WriteMissingDefaults()
{
	for (const FSettingDefault& Default : SettingDefaults)
	{
		const FString& File = SettingsPaths.*Default.File;
		FString Present;
		if (!GConfig->GetString(Default.Section, Default.Key, Present, File))
		{
			GConfig->SetString(Default.Section, Default.Key, Default.Value, File);
		}
	}
	GConfig->Flush(true, SettingsPaths.ConfigFile);
	GConfig->Flush(true, SettingsPaths.PluginConfigFile);
}
}

void InitSettings()
{
	if (!FPaths::DirectoryExists(SettingsPaths.ProjectContentRoot) && IsCopyInitialResourceEnabled())
	{
		CopyDefaultFolder();
	}
	if (SettingsInitialised)
	{
		MenuConfigExists = FPaths::FileExists(GetMenuConfigFilePath());
		return;
	}
	WriteMissingDefaults();
	MenuConfigExists = FPaths::FileExists(GetMenuConfigFilePath());
	UE_CLOG(!MenuConfigExists, PythonKX, Warning, TEXT("Can't find MenuConfigFile @: %s"), *GetMenuConfigFilePath());
	SettingsInitialised = true;
}

void ReadLogFlags()
{
	GConfig->GetBool(AdvancedSection, TEXT("LogCreateWidget"), bLogCreateWidget, SettingsPaths.ConfigFile);
	GConfig->GetBool(AdvancedSection, TEXT("LogOnTickWarnings"), bLogOnTickWarnings, SettingsPaths.ConfigFile);
}

FString GetPythonContentFolder()
{
	return FPaths::ProjectDir() + ReadString(SettingsSection, TEXT("PythonContentFolder"));
}

FString MakeFullPath(const FString& Path)
{
	FString Folded = Path;
	FPaths::RemoveDuplicateSlashes(Folded);
	return FPaths::ConvertRelativePathToFull(Folded);
}

FString GetToolAbsolutePath(const FString& Path)
{
	return FPaths::IsRelative(Path) ? MakeFullPath(GetPythonContentFolder() / Path) : Path;
}

FString GetToolShortPath(const FString& Path)
{
	const FString Marker = TEXT("/Kestrix/Python/");
	const int32 MarkerStart = Path.Find(Marker, ESearchCase::IgnoreCase);
	return MarkerStart == INDEX_NONE ? Path : Path.RightChop(MarkerStart + Marker.Len());
}

FString GetMenuConfigFilePath()
{
	return MakeFullPath(FPaths::ProjectDir() + ReadString(SettingsSection, TEXT("MenuConfigFilePath")));
}

FString GetVelmoraDataFolder()
{
	return ReadString(SettingsSection, TEXT("VelmoraDataFolder"));
}

FName GetMainbarExtensionHookName()
{
	return NameOfText(ReadString(AdvancedSection, TEXT("MainbarExtensionHookName")));
}

FName GetMainMenuExtensionHookName()
{
	return NameOfText(ReadString(AdvancedSection, TEXT("MainMenuExtensionHookName")));
}

FName GetMaterialEditorMenuExtensionHookName()
{
	return NameOfText(ReadString(AdvancedSection, TEXT("MaterialEditorMenuExtensionHookName")));
}

int32 GetLogNumberLimit()
{
	return ReadAdvancedInt(TEXT("LogNumberLimit"));
}

int32 GetSButtonHorizontalPadding()
{
	return ReadAdvancedInt(TEXT("SButtonHorizontalPadding"));
}

bool IsMenusOnToolbarEnabled()
{
	return ReadSwitch(TEXT("MenusOnToolbarEnabled"));
}

bool IsSketchToolsEnabled()
{
	return ReadSwitch(TEXT("SketchToolsEnabled"));
}

bool IsToolsTabOnToolbarEnabled()
{
	return ReadSwitch(TEXT("ToolsTabOnToolbarEnabled"));
}

bool IsCopyInitialResourceEnabled()
{
	bool bCopy = true;
	if (!GConfig->GetBool(AdvancedSection, TEXT("CopyInitialResource"), bCopy, SettingsPaths.PluginConfigFile))
	{
		UE_LOG(PythonKX, Warning, TEXT("Can't find Plugin config: %s "), *SettingsPaths.PluginConfigFile);
	}
	return bCopy;
}

bool IsOverrideForcedOff()
{
	return IsOverride(0);
}

bool IsOverrideForcedOn()
{
	return IsOverride(1);
}
