#include "Interfaces/IPluginManager.h"

#include <unistd.h>

#include <gtest/gtest.h>

#include "HAL/FileManager.h"
#include "LogCapture.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "TempProject.h"

namespace
{
class PluginManager : public testing::Test
{
protected:
	/** Writes the descriptor of a plugin below Plugins/. */
	FString WritePlugin(const TCHAR* File, const TCHAR* Json = TEXT("{ \"FileVersion\": 3 }")) const
	{
		return Project.Write(*(FString(TEXT("Plugins/")) + File), Json);
	}

	void WriteProject(const TCHAR* Json) const { Project.Write(TEXT("TestProject.uproject"), Json); }

	/** Names of the project's plugins after a new search. */
	TArray<FString> Search() const
	{
		Manager.RefreshPluginsList();
		return NamesOf(Manager.GetDiscoveredPlugins());
	}

	TArray<FString> Enabled() const
	{
		Manager.RefreshPluginsList();
		return NamesOf(Manager.GetEnabledPlugins());
	}

	void Link(const TCHAR* Target, const TCHAR* Name) const
	{
		ASSERT_EQ(symlink(TCHAR_TO_UTF8(Target), TCHAR_TO_UTF8(*Project.Path(Name))), 0);
	}

	const FTempProject Project;
	IPluginManager& Manager = IPluginManager::Get();

private:
	static TArray<FString> NamesOf(const TArray<TSharedRef<IPlugin>>& Plugins)
	{
		TArray<FString> Names;
		for (const TSharedRef<IPlugin>& Plugin : Plugins)
		{
			if (Plugin->GetLoadedFrom() == EPluginLoadedFrom::Project)
			{
				Names.Add(Plugin->GetName());
			}
		}
		return Names;
	}
};

class FSilentModule final : public IModuleInterface
{
};
}

TEST_F(PluginManager, PluginIsFoundByItsDescriptorInAnyCase)
{
	const FString File =
		WritePlugin(TEXT("Group/Kestrel/Kestrel.uplugin"), TEXT("{ \"FriendlyName\": \"A bird\", \"VersionName\": \"1.2\" }"));
	Search();
	const TSharedPtr<IPlugin> Plugin = Manager.FindPlugin(TEXT("kestrel"));
	ASSERT_TRUE(Plugin.IsValid());
	EXPECT_EQ(Plugin->GetName(), FString(TEXT("Kestrel")));
	EXPECT_EQ(Plugin->GetDescriptorFileName(), File);
	EXPECT_EQ(Plugin->GetDescriptor().FriendlyName, FString(TEXT("A bird")));
	EXPECT_EQ(Plugin->GetDescriptor().VersionName, FString(TEXT("1.2")));
	EXPECT_FALSE(Manager.FindPlugin(TEXT("Kestre")).IsValid());
}

TEST_F(PluginManager, FoldersOfAPluginHaveNoSlashAtTheirEnd)
{
	WritePlugin(TEXT("Kestrel/Kestrel.uplugin"));
	Search();
	const TSharedPtr<IPlugin> Plugin = Manager.FindPlugin(TEXT("Kestrel"));
	ASSERT_TRUE(Plugin.IsValid());
	EXPECT_EQ(Plugin->GetBaseDir(), Project.GetDir() + TEXT("/Plugins/Kestrel"));
	EXPECT_EQ(Plugin->GetContentDir(), Project.GetDir() + TEXT("/Plugins/Kestrel/Content"));
}

TEST_F(PluginManager, SearchDoesNotGoBelowAFolderWithADescriptor)
{
	WritePlugin(TEXT("Outer/Outer.uplugin"));
	WritePlugin(TEXT("Outer/Samples/Inner/Inner.uplugin"));
	WritePlugin(TEXT("Another/Another.uplugin"));
	EXPECT_EQ(Search(), TArray<FString>({TEXT("Another"), TEXT("Outer")}));
}

TEST_F(PluginManager, LinkedPluginKeepsThePathThatLedToIt)
{
	Project.Write(TEXT("Elsewhere/Kestrel.uplugin"), TEXT("{}"));
	IFileManager::Get().MakeDirectory(*Project.Path(TEXT("Plugins")));
	Link(TEXT("../Elsewhere"), TEXT("Plugins/Kestrel"));
	EXPECT_EQ(Search(), TArray<FString>({TEXT("Kestrel")}));
	EXPECT_EQ(Manager.FindPlugin(TEXT("Kestrel"))->GetBaseDir(), Project.GetDir() + TEXT("/Plugins/Kestrel"));
}

TEST_F(PluginManager, CircleOfLinksEndsTheSearch)
{
	WritePlugin(TEXT("A/B/C/Kestrel/Kestrel.uplugin"));
	Link(TEXT("../.."), TEXT("Plugins/A/B/Up"));
	Link(TEXT(".."), TEXT("Plugins/A/B/C/Up"));
	const FLogCapture Log(TEXT("LogPluginManager"));
	EXPECT_EQ(Search(), TArray<FString>({TEXT("Kestrel")}));
	EXPECT_EQ(Log.Lines(), TArray<FString>());
}

TEST_F(PluginManager, SecondPluginOfANameIsPassedOverWithAWarning)
{
	const FString First = WritePlugin(TEXT("A/Kestrel.uplugin"));
	const FString Second = WritePlugin(TEXT("B/Kestrel.uplugin"));
	const FLogCapture Log(TEXT("LogPluginManager"));
	EXPECT_EQ(Search(), TArray<FString>({TEXT("Kestrel")}));
	EXPECT_EQ(Log.Warnings(),
		TArray<FString>(
			{TEXT("The plugin '") + Second + TEXT("' is passed over: there is one of that name, '") + First + TEXT("'.")}));
}

TEST_F(PluginManager, BrokenDescriptorIsReportedWithFileAndPlace)
{
	const FString NoJson = WritePlugin(TEXT("A/A.uplugin"), TEXT("{\n\t\"Modules\": [\n}"));
	const FString WrongType = WritePlugin(TEXT("B/B.uplugin"), TEXT("{ \"Modules\": [ { \"Name\": \"B\" }, { \"Name\": 7 } ] }"));
	const FString WrongPhase =
		WritePlugin(TEXT("C/C.uplugin"), TEXT("{ \"Modules\": [ { \"Name\": \"C\", \"LoadingPhase\": \"Later\" } ] }"));
	const FString NoName = WritePlugin(TEXT("D/D.uplugin"), TEXT("{ \"Plugins\": [ { \"Enabled\": true } ] }"));
	WritePlugin(TEXT("E/E.uplugin"));

	const FLogCapture Log(TEXT("LogPluginManager"));
	EXPECT_EQ(Search(), TArray<FString>({TEXT("E")}));
	ASSERT_EQ(Log.Errors().Num(), 4);
	EXPECT_TRUE(Log.Errors()[0].StartsWith(TEXT("Cannot use the plugin '") + NoJson + TEXT("': ")))
		<< testing::PrintToString(Log.Errors()[0]);
	EXPECT_TRUE(Log.Errors()[0].Contains(TEXT("Line: 3"))) << testing::PrintToString(Log.Errors()[0]);
	EXPECT_EQ(Log.Errors()[1],
		TEXT("Cannot use the plugin '") + WrongType + TEXT("': Modules[1].Name: expected a string, found a number"));
	EXPECT_EQ(Log.Errors()[2],
		TEXT("Cannot use the plugin '") + WrongPhase +
			TEXT("': Modules[0].LoadingPhase: expected EarliestPossible, PostConfigInit, "
				 "PostSplashScreen, PreEarlyLoadingScreen, PreLoadingScreen, PreDefault, Default, PostDefault, PostEngineInit, "
				 "None, found Later"));
	EXPECT_EQ(
		Log.Errors()[3], TEXT("Cannot use the plugin '") + NoName + TEXT("': Plugins[0].Name: expected a name, found none"));
}

TEST_F(PluginManager, PluginOfTheProjectIsOnUnlessItsDescriptorSaysOtherwise)
{
	WritePlugin(TEXT("On/On.uplugin"));
	WritePlugin(TEXT("Off/Off.uplugin"), TEXT("{ \"EnabledByDefault\": false }"));
	EXPECT_EQ(Enabled(), TArray<FString>({TEXT("On")}));
	EXPECT_FALSE(Manager.FindPlugin(TEXT("Off"))->IsEnabled());
}

TEST_F(PluginManager, ProjectSwitchesPluginsOnAndOff)
{
	WritePlugin(TEXT("On/On.uplugin"));
	WritePlugin(TEXT("Off/Off.uplugin"), TEXT("{ \"EnabledByDefault\": false }"));
	WriteProject(TEXT("{ \"Plugins\": [ { \"Name\": \"On\", \"Enabled\": false }, { \"Name\": \"off\", \"Enabled\": true } ] }"));
	EXPECT_EQ(Enabled(), TArray<FString>({TEXT("Off")}));
}

TEST_F(PluginManager, NamedPluginsAreOnAndComeFirst)
{
	WritePlugin(TEXT("A/A.uplugin"), TEXT("{ \"Plugins\": [ { \"Name\": \"Z\", \"Enabled\": true } ] }"));
	WritePlugin(
		TEXT("Z/Z.uplugin"), TEXT("{ \"EnabledByDefault\": false, \"Plugins\": [ { \"Name\": \"A\", \"Enabled\": true } ] }"));
	EXPECT_EQ(Enabled(), TArray<FString>({TEXT("Z"), TEXT("A")}));
}

TEST_F(PluginManager, ProjectTurnsOffWhatAPluginNames)
{
	WritePlugin(TEXT("Tool/Tool.uplugin"), TEXT("{ \"Plugins\": [ { \"Name\": \"PythonScriptPlugin\", \"Enabled\": true } ] }"));
	WriteProject(TEXT("{ \"Plugins\": [ { \"Name\": \"PythonScriptPlugin\", \"Enabled\": false } ] }"));
	EXPECT_EQ(Enabled(), TArray<FString>({TEXT("Tool")}));
	EXPECT_FALSE(Manager.FindPlugin(TEXT("PythonScriptPlugin"))->IsEnabled());
}

TEST_F(PluginManager, MissingPluginIsAnErrorUnlessItIsOptional)
{
	const FString File = WritePlugin(TEXT("Tool/Tool.uplugin"),
		TEXT("{ \"Plugins\": [ { \"Name\": \"Nowhere\", \"Enabled\": true }, { \"Name\": \"Perhaps\", \"Enabled\": true, "
			 "\"Optional\": true } ] }"));
	WriteProject(TEXT("{ \"Plugins\": [ { \"Name\": \"Gone\", \"Enabled\": true } ] }"));
	const FLogCapture Log(TEXT("LogPluginManager"));
	Search();
	EXPECT_EQ(Log.Errors(),
		TArray<FString>({TEXT("The project file '") + Project.Path(TEXT("TestProject.uproject")) +
				TEXT("' needs the plugin 'Gone', which was not found."),
			TEXT("The plugin '") + File + TEXT("' needs the plugin 'Nowhere', which was not found.")}));
}

TEST_F(PluginManager, BrokenProjectFileIsReportedAndPluginsKeepTheirDefaults)
{
	WritePlugin(TEXT("On/On.uplugin"));
	WriteProject(TEXT("{ \"Plugins\": { \"Name\": \"On\" } }"));
	const FLogCapture Log(TEXT("LogPluginManager"));
	EXPECT_EQ(Enabled(), TArray<FString>({TEXT("On")}));
	EXPECT_EQ(Log.Errors(),
		TArray<FString>({TEXT("Cannot use the project file '") + Project.Path(TEXT("TestProject.uproject")) +
			TEXT("': Plugins: expected an array, found an object")}));
}

TEST_F(PluginManager, PluginsOfTheEngineAreKnown)
{
	Search();
	for (const TCHAR* const Name : {TEXT("PythonScriptPlugin"), TEXT("ProceduralMeshComponent")})
	{
		const TSharedPtr<IPlugin> Plugin = Manager.FindPlugin(Name);
		ASSERT_TRUE(Plugin.IsValid());
		EXPECT_EQ(Plugin->GetLoadedFrom(), EPluginLoadedFrom::Engine);
		EXPECT_TRUE(Plugin->IsEnabled());
	}
}

TEST_F(PluginManager, ModulesAreLoadedInTheirPhaseOnlyIfTheyBelongToAnEditor)
{
	WritePlugin(TEXT("Tool/Tool.uplugin"),
		TEXT("{ \"Modules\": [ { \"Name\": \"ToolEarly\", \"Type\": \"Editor\", \"LoadingPhase\": \"PreDefault\" },"
			 "{ \"Name\": \"ToolLate\", \"LoadingPhase\": \"PostEngineInit\" }, { \"Name\": \"ToolProgram\", \"Type\": "
			 "\"Program\", \"LoadingPhase\": \"PreDefault\" } ] }"));
	FModuleManager& Modules = FModuleManager::Get();
	for (const TCHAR* const Name : {TEXT("ToolEarly"), TEXT("ToolLate"), TEXT("ToolProgram")})
	{
		Modules.RegisterStaticallyLinkedModule(Name, [] { return new FSilentModule; });
	}

	Manager.RefreshPluginsList();
	EXPECT_TRUE(Manager.LoadModulesForEnabledPlugins(ELoadingPhase::PreDefault));
	EXPECT_TRUE(Modules.IsModuleLoaded(TEXT("ToolEarly")));
	EXPECT_FALSE(Modules.IsModuleLoaded(TEXT("ToolLate")));
	EXPECT_TRUE(Manager.LoadModulesForEnabledPlugins(ELoadingPhase::PostEngineInit));
	EXPECT_TRUE(Modules.IsModuleLoaded(TEXT("ToolLate")));
	EXPECT_FALSE(Modules.IsModuleLoaded(TEXT("ToolProgram")));
	Modules.UnloadModulesAtShutdown();
}

TEST_F(PluginManager, ModuleThatCannotBeLoadedIsAnErrorAndTheOthersGoOn)
{
	const FString File = WritePlugin(TEXT("Tool/Tool.uplugin"),
		TEXT("{ \"Modules\": [ { \"Name\": \"NoSuchModule\", \"LoadingPhase\": \"PreDefault\" }, { \"Name\": \"ToolGood\", "
			 "\"LoadingPhase\": \"PreDefault\" } ] }"));
	FModuleManager::Get().RegisterStaticallyLinkedModule(TEXT("ToolGood"), [] { return new FSilentModule; });
	Manager.RefreshPluginsList();

	const FLogCapture Log(TEXT("LogPluginManager"));
	EXPECT_FALSE(Manager.LoadModulesForEnabledPlugins(ELoadingPhase::PreDefault));
	EXPECT_EQ(Log.Errors(),
		TArray<FString>(
			{TEXT("The plugin '") + File + TEXT("' failed to load because its module 'NoSuchModule' could not be loaded.")}));
	EXPECT_TRUE(FModuleManager::Get().IsModuleLoaded(TEXT("ToolGood")));
	FModuleManager::Get().UnloadModulesAtShutdown();
}

TEST_F(PluginManager, LibraryOfAnEnabledPluginIsFoundInItsBinaries)
{
	WritePlugin(TEXT("Tool/Tool.uplugin"));
	Project.Write(
		TEXT("Plugins/Tool/Binaries/Linux/libKestrixEditor-ToolLibrary" KESTRIX_BUILD_SUFFIX ".so"), TEXT("no library"));
	EXPECT_FALSE(FModuleManager::Get().ModuleExists(TEXT("ToolLibrary")));
	Manager.RefreshPluginsList();
	EXPECT_TRUE(FModuleManager::Get().ModuleExists(TEXT("ToolLibrary")));
}

TEST_F(PluginManager, EnabledPluginsWithContentAreThoseWhoseDescriptorSaysSo)
{
	WritePlugin(TEXT("With/With.uplugin"), TEXT("{ \"FileVersion\": 3, \"CanContainContent\": true }"));
	WritePlugin(
		TEXT("Off/Off.uplugin"), TEXT("{ \"FileVersion\": 3, \"CanContainContent\": true, \"EnabledByDefault\": false }"));
	WritePlugin(TEXT("Without/Without.uplugin"));
	Manager.RefreshPluginsList();

	const TArray<TSharedRef<IPlugin>> Plugins = Manager.GetEnabledPluginsWithContent();

	ASSERT_EQ(Plugins.Num(), 1);
	EXPECT_EQ(Plugins[0]->GetName(), FString(TEXT("With")));
	EXPECT_EQ(Plugins[0]->GetMountedAssetPath(), FString(TEXT("/With/")));
}
