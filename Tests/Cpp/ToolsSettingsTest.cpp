#include "ToolsSettings.h"

#include "HAL/FileManager.h"
#include "HAL/IConsoleManager.h"
#include "LogCapture.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/Paths.h"
#include "SettingsProject.h"

#include <gtest/gtest.h>

namespace
{
using FLines = TArray<FString>;

constexpr const TCHAR* ConfigName = TEXT("KX/Kestrix/Config/Config.ini");
constexpr const TCHAR* PluginConfigName = TEXT("Plugins/Kestrix/Config/Plugin_Config.ini");

const TCHAR* const AllDefaults = TEXT("[Settings]\n"
									  "PythonContentFolder=/KX/Kestrix/Python\n"
									  "MenuConfigFilePath=/KX/Kestrix/UI/MenuConfig.json\n"
									  "VelmoraDataFolder=/Game/KX/VelmoraTools\n"
									  "\n"
									  "[Advanced]\n"
									  "MainbarExtensionHookName=Play\n"
									  "MenusOnToolbarEnabled=True\n"
									  "SketchToolsEnabled=True\n"
									  "MainMenuExtensionHookName=Instrumentation\n"
									  "MaterialEditorMenuExtensionHookName=Instrumentation\n"
									  "LogCreateWidget=False\n"
									  "LogOnTickWarnings=True\n"
									  "SButtonHorizontalPadding=-16\n"
									  "LogNumberLimit=10240\n");

/** The console variable that overrides the switches, with a value while it lives. */
class FOverride
{
public:
	explicit FOverride(int32 Value) { Variable().Set(Value); }
	~FOverride() { Variable().Set(-1); }

private:
	static IConsoleVariable& Variable() { return *IConsoleManager::Get().FindConsoleVariable(TEXT("Kestrix.OverrideEnabled")); }
};

FString MissingMenuFile(const FSettingsProject& Project)
{
	return TEXT("Can't find MenuConfigFile @: ") + Project.Path(TEXT("KX/Kestrix/UI/MenuConfig.json"));
}

/** The text of an ini file without the blank lines at its end. */
FString ReadIni(const FSettingsProject& Project, const TCHAR* Name)
{
	return Project.Read(Name).TrimEnd() + TEXT("\n");
}
}

TEST(ToolsSettings, ProjectAndPluginWithoutDefaultsGetTheKeysAndAWarning)
{
	const FSettingsProject Project;
	const FLogCapture Log(TEXT("PythonKX"));

	InitSettings();

	EXPECT_EQ(Log.Lines(),
		FLines({TEXT("PythonKX: Warning: Can't find Plugin config: ") + Project.GetDir() +
				TEXT("/Plugins/Kestrix/Config/Plugin_Config.ini "),
			TEXT("PythonKX: Warning: Can't find DefaultPythonSourcePath @: ") + Project.GetDir() +
				TEXT("//Plugins/Kestrix/Resources/DefaultPythonSource/KX"),
			TEXT("PythonKX: Warning: ") + MissingMenuFile(Project)}));
	EXPECT_EQ(ReadIni(Project, ConfigName), FString(AllDefaults));
	EXPECT_EQ(ReadIni(Project, PluginConfigName), FString(TEXT("[Advanced]\nCopyInitialResource=True\n")));
	EXPECT_TRUE(SettingsInitialised);
	EXPECT_FALSE(MenuConfigExists);
}

TEST(ToolsSettings, FolderWithoutConfigGetsAllDefaultsAndNoCopy)
{
	const FSettingsProject Project;
	Project.Write(TEXT("KX/Mine.txt"), TEXT("mine"));
	Project.Write(TEXT("Plugins/Kestrix/Resources/DefaultPythonSource/KX/Theirs.txt"), TEXT("theirs"));
	const FLogCapture Log(TEXT("PythonKX"));

	InitSettings();

	EXPECT_FALSE(FPaths::FileExists(Project.Path(TEXT("KX/Theirs.txt"))));
	EXPECT_EQ(ReadIni(Project, ConfigName), FString(AllDefaults));
	EXPECT_EQ(Log.Warnings(), FLines({MissingMenuFile(Project)}));
}

TEST(ToolsSettings, FirstUseCopiesTheDefaultFolderBeforeAnyKeyIsRead)
{
	const FSettingsProject Project;
	Project.Write(PluginConfigName, TEXT("[Advanced]\nCopyInitialResource=True\n"));
	Project.Write(TEXT("Plugins/Kestrix/Resources/DefaultPythonSource/KX/Kestrix/Config/Config.ini"),
		TEXT("[Settings]\nPythonContentFolder=/KX/Scripts\n"));
	Project.Write(TEXT("Plugins/Kestrix/Resources/DefaultPythonSource/KX/Kestrix/UI/MenuConfig.json"), TEXT("{}"));
	const FLogCapture Log(TEXT("PythonKX"));

	InitSettings();

	EXPECT_EQ(Log.Lines(),
		FLines({TEXT("PythonKX: Warning: Copy Default UI, Config, Python ") + Project.GetDir() +
			TEXT("//Plugins/Kestrix/Resources/DefaultPythonSource/KX ") + Project.GetDir() + TEXT("/KX ")}));
	EXPECT_EQ(GetPythonContentFolder(), Project.GetDir() + TEXT("//KX/Scripts"));
	EXPECT_EQ(GetLogNumberLimit(), 10240);
	EXPECT_TRUE(MenuConfigExists);
}

TEST(ToolsSettings, CopyThatFailsIsAnErrorBehindTheWarning)
{
	const FSettingsProject Project;
	Project.Write(PluginConfigName, TEXT("[Advanced]\nCopyInitialResource=True\n"));
	Project.Write(TEXT("Plugins/Kestrix/Resources/DefaultPythonSource/KX/Theirs.txt"), TEXT("theirs"));
	Project.Write(TEXT("KX"), TEXT("a file in the way"));
	const FLogCapture Log(TEXT("PythonKX"));

	InitSettings();

	EXPECT_EQ(Log.Warnings()[0],
		TEXT("Copy Default UI, Config, Python ") + Project.GetDir() +
			TEXT("//Plugins/Kestrix/Resources/DefaultPythonSource/KX ") + Project.GetDir() + TEXT("/KX "));
	EXPECT_EQ(Log.Errors(),
		FLines({TEXT("Not all files of ") + Project.GetDir() +
			TEXT("//Plugins/Kestrix/Resources/DefaultPythonSource/KX could be copied to ") + Project.GetDir() + TEXT("/KX.")}));
}

TEST(ToolsSettings, CopySwitchedOffLeavesTheProjectWithoutTheFolder)
{
	const FSettingsProject Project;
	Project.Write(PluginConfigName, TEXT("[Advanced]\nCopyInitialResource=False\n"));
	Project.Write(TEXT("Plugins/Kestrix/Resources/DefaultPythonSource/KX/Theirs.txt"), TEXT("theirs"));
	const FLogCapture Log(TEXT("PythonKX"));

	InitSettings();

	EXPECT_FALSE(FPaths::FileExists(Project.Path(TEXT("KX/Theirs.txt"))));
	EXPECT_EQ(Log.Warnings(), FLines({MissingMenuFile(Project)}));
	EXPECT_FALSE(IsCopyInitialResourceEnabled());
}

TEST(ToolsSettings, PresentKeysKeepTheirValues)
{
	const FSettingsProject Project;
	Project.Write(ConfigName, TEXT("[Settings]\nPythonContentFolder=\n[Advanced]\nLogNumberLimit=0\nLogOnTickWarnings=no\n"));

	InitSettings();

	EXPECT_EQ(GetLogNumberLimit(), 0);
	EXPECT_EQ(GetPythonContentFolder(), Project.GetDir() + TEXT("/"));
	const FString Text = Project.Read(ConfigName);
	EXPECT_TRUE(Text.Contains(TEXT("LogNumberLimit=0\n")));
	EXPECT_TRUE(Text.Contains(TEXT("LogOnTickWarnings=no\n")));
	EXPECT_TRUE(Text.Contains(TEXT("SButtonHorizontalPadding=-16\n")));
}

TEST(ToolsSettings, SecondCallOnlyLooksForTheMenuFileAgain)
{
	const FSettingsProject Project;
	InitSettings();
	const FString Before = Project.Read(ConfigName);
	Project.Write(TEXT("KX/Kestrix/UI/MenuConfig.json"), TEXT("{}"));
	GConfig->RemoveKey(TEXT("Advanced"), TEXT("LogNumberLimit"), SettingsPaths.ConfigFile);
	const FLogCapture Log;

	InitSettings();

	EXPECT_TRUE(MenuConfigExists);
	EXPECT_EQ(GetLogNumberLimit(), 0) << "a missing key is not written again";
	EXPECT_EQ(Project.Read(ConfigName), Before);
	EXPECT_EQ(Log.Lines(), FLines());
}

TEST(ToolsSettings, SecondCallSaysNothingOfAMissingMenuFile)
{
	const FSettingsProject Project;
	Project.Write(TEXT("KX/Kestrix/UI/MenuConfig.json"), TEXT("{}"));
	InitSettings();
	EXPECT_TRUE(MenuConfigExists);
	IFileManager::Get().Delete(*Project.Path(TEXT("KX/Kestrix/UI/MenuConfig.json")));
	const FLogCapture Log;

	InitSettings();

	EXPECT_FALSE(MenuConfigExists);
	EXPECT_EQ(Log.Lines(), FLines());
}

TEST(ToolsSettings, SecondCallStillTestsForTheCopy)
{
	const FSettingsProject Project;
	InitSettings();
	IFileManager::Get().DeleteDirectory(*Project.Path(TEXT("KX")), false, true);
	Project.Write(TEXT("Plugins/Kestrix/Resources/DefaultPythonSource/KX/Theirs.txt"), TEXT("theirs"));

	InitSettings();

	EXPECT_EQ(Project.Read(TEXT("KX/Theirs.txt")), FString(TEXT("theirs")));
}

TEST(ToolsSettings, OverrideOffBeatsTheFile)
{
	const FSettingsProject Project;
	InitSettings();
	EXPECT_TRUE(IsSketchToolsEnabled());

	const FOverride Off(0);

	EXPECT_TRUE(IsOverrideForcedOff());
	EXPECT_FALSE(IsOverrideForcedOn());
	EXPECT_FALSE(IsSketchToolsEnabled());
	EXPECT_FALSE(IsMenusOnToolbarEnabled());
	EXPECT_FALSE(IsToolsTabOnToolbarEnabled());
}

TEST(ToolsSettings, OverrideOnTurnsASwitchOnThatTheFileLacks)
{
	const FSettingsProject Project;
	Project.Write(ConfigName, TEXT("[Advanced]\nSketchToolsEnabled=False\n"));
	InitSettings();
	EXPECT_FALSE(IsToolsTabOnToolbarEnabled());
	EXPECT_FALSE(IsSketchToolsEnabled());

	const FOverride On(1);

	EXPECT_FALSE(IsOverrideForcedOff());
	EXPECT_TRUE(IsOverrideForcedOn());
	EXPECT_TRUE(IsToolsTabOnToolbarEnabled());
	EXPECT_TRUE(IsSketchToolsEnabled());
}

TEST(ToolsSettings, MissingKeysReadAsNothing)
{
	const FSettingsProject Project;

	EXPECT_EQ(GetVelmoraDataFolder(), FString());
	EXPECT_EQ(GetMainbarExtensionHookName(), FName());
	EXPECT_EQ(GetLogNumberLimit(), 0);
	EXPECT_EQ(GetSButtonHorizontalPadding(), 0);
	EXPECT_FALSE(IsMenusOnToolbarEnabled());
}

TEST(ToolsSettings, GettersReadTheWrittenDefaults)
{
	const FSettingsProject Project;
	InitSettings();

	EXPECT_EQ(GetPythonContentFolder(), Project.GetDir() + TEXT("//KX/Kestrix/Python"));
	EXPECT_EQ(GetMenuConfigFilePath(), Project.Path(TEXT("KX/Kestrix/UI/MenuConfig.json")));
	EXPECT_EQ(GetVelmoraDataFolder(), FString(TEXT("/Game/KX/VelmoraTools")));
	EXPECT_EQ(GetMainbarExtensionHookName(), FName("Play"));
	EXPECT_EQ(GetMainMenuExtensionHookName(), FName("Instrumentation"));
	EXPECT_EQ(GetMaterialEditorMenuExtensionHookName(), FName("Instrumentation"));
	EXPECT_EQ(GetLogNumberLimit(), 10240);
	EXPECT_EQ(GetSButtonHorizontalPadding(), -16);
	EXPECT_TRUE(IsMenusOnToolbarEnabled());
	EXPECT_TRUE(IsSketchToolsEnabled());
	EXPECT_FALSE(IsToolsTabOnToolbarEnabled());
	EXPECT_TRUE(IsCopyInitialResourceEnabled());
}

TEST(ToolsSettings, RelativeToolPathHasEachSlashOnceAndAnAbsoluteOneStaysAsItIs)
{
	const FSettingsProject Project;
	InitSettings();
	const FString Clean = Project.Path(TEXT("KX/Kestrix/Python/A/B.json"));

	EXPECT_EQ(GetToolAbsolutePath(TEXT("A/B.json")), Clean);
	EXPECT_EQ(GetToolAbsolutePath(TEXT("A//C//..//B.json")), Clean);
	EXPECT_EQ(GetToolAbsolutePath(Clean), Clean);
	EXPECT_EQ(GetToolAbsolutePath(TEXT("/A//B.json")), FString(TEXT("/A//B.json")));
}

TEST(ToolsSettings, EachGetterReadsAKeyOfItsOwn)
{
	const FSettingsProject Project;
	Project.Write(ConfigName,
		TEXT("[Settings]\nPythonContentFolder=/a\nMenuConfigFilePath=/b/../b.json\nVelmoraDataFolder=c\n"
			 "[Advanced]\nMainbarExtensionHookName=d\nMainMenuExtensionHookName=e\nMaterialEditorMenuExtensionHookName=f\n"
			 "SButtonHorizontalPadding=7\nLogNumberLimit=8\n"));

	EXPECT_EQ(GetPythonContentFolder(), Project.GetDir() + TEXT("//a"));
	EXPECT_EQ(GetMenuConfigFilePath(), Project.Path(TEXT("b.json")));
	EXPECT_EQ(GetVelmoraDataFolder(), FString(TEXT("c")));
	EXPECT_EQ(GetMainbarExtensionHookName(), FName("d"));
	EXPECT_EQ(GetMainMenuExtensionHookName(), FName("e"));
	EXPECT_EQ(GetMaterialEditorMenuExtensionHookName(), FName("f"));
	EXPECT_EQ(GetSButtonHorizontalPadding(), 7);
	EXPECT_EQ(GetLogNumberLimit(), 8);
}

TEST(ToolsSettings, EachSwitchReadsAKeyOfItsOwn)
{
	const FSettingsProject Project;
	bool (*const Switches[])() = {&IsMenusOnToolbarEnabled, &IsSketchToolsEnabled, &IsToolsTabOnToolbarEnabled};
	const TCHAR* const Keys[] = {TEXT("MenusOnToolbarEnabled"), TEXT("SketchToolsEnabled"), TEXT("ToolsTabOnToolbarEnabled")};

	for (int32 On = 0; On < 3; ++On)
	{
		GConfig->SetBool(TEXT("Advanced"), Keys[On], true, SettingsPaths.ConfigFile);
		for (int32 Index = 0; Index < 3; ++Index)
		{
			EXPECT_EQ(Switches[Index](), Index == On) << TCHAR_TO_UTF8(Keys[Index]);
		}
		GConfig->SetBool(TEXT("Advanced"), Keys[On], false, SettingsPaths.ConfigFile);
	}
}

TEST(ToolsSettings, AbsolutePathOfAToolIsTakenAgainstTheFolderOfTheSources)
{
	const FSettingsProject Project;
	InitSettings();

	EXPECT_EQ(GetToolAbsolutePath(TEXT("Gallery/Gallery.json")), Project.Path(TEXT("KX/Kestrix/Python/Gallery/Gallery.json")));
	EXPECT_EQ(GetToolAbsolutePath(TEXT("../UI/Tool.json")), Project.Path(TEXT("KX/Kestrix/UI/Tool.json")));
	EXPECT_EQ(GetToolAbsolutePath(TEXT("/elsewhere//Tool.json")), FString(TEXT("/elsewhere//Tool.json")));
}

TEST(ToolsSettings, ShortPathIsWhatStandsBehindTheFirstMarker)
{
	EXPECT_EQ(GetToolShortPath(TEXT("/P/KX/kestrix/PYTHON/A/A.json")), FString(TEXT("A/A.json")));
	EXPECT_EQ(GetToolShortPath(TEXT("/P/Kestrix/Python/Kestrix/Python/A.json")), FString(TEXT("Kestrix/Python/A.json")));
	EXPECT_EQ(GetToolShortPath(TEXT("/P/Tools/A.json")), FString(TEXT("/P/Tools/A.json")));
}
