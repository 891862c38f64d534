#include "PythonSearchPaths.h"

#include "HAL/FileManager.h"
#include "HAL/PlatformMisc.h"
#include "Interfaces/IPluginManager.h"
#include "Misc/ConfigCacheIni.h"
#include "PythonTest.h"
#include "TempProject.h"

#include <gtest/gtest.h>

using namespace PythonTest;

TEST(PythonSearchPaths, ComeFromEnvironmentSettingsPluginsAndProject)
{
	const FTempProject Project;
	Project.Write(TEXT("Plugins/Helper/Helper.uplugin"), TEXT("{ \"FileVersion\": 3, \"EnabledByDefault\": true }"));
	Project.Write(TEXT("Config/DefaultEngine.ini"),
		TEXT("[/Script/PythonScriptPlugin.PythonScriptPluginSettings]\n+AdditionalPaths=(Path=\"KX/Kestrix/"
			 "Python\")\n+AdditionalPaths=/plain/path/\n"));
	FConfigCacheIni::InitializeConfigSystem();
	IPluginManager::Get().RefreshPluginsList();
	FPlatformMisc::SetEnvironmentVar(TEXT("UE_PYTHONPATH"), TEXT("/from/environment"));

	const TArray<FString> Folders = PythonSearchPaths::Collect();

	FPlatformMisc::SetEnvironmentVar(TEXT("UE_PYTHONPATH"), TEXT(""));
	EXPECT_EQ(Folders[0], TEXT("/from/environment"));
	EXPECT_EQ(Folders[1], Project.Path(TEXT("KX/Kestrix/Python")));
	EXPECT_EQ(Folders[2], TEXT("/plain/path"));
	EXPECT_TRUE(Folders.Contains(Project.Path(TEXT("Plugins/Helper/Content/Python"))));
	EXPECT_EQ(Folders.Last(), Project.Path(TEXT("Content/Python")));
}

TEST(PythonSearchPaths, FolderThatAppearsAfterAFailedImportIsSeen)
{
	const FTempProject Project;
	EXPECT_TRUE(RunPython(FString::Printf(TEXT("import sys; sys.path.append('%s')"), *Project.Path(TEXT("Later")))));
	EXPECT_EQ(ErrorOf(TEXT("import appears_later")), TEXT("ModuleNotFoundError: No module named 'appears_later'"));

	Project.Write(TEXT("Later/appears_later.py"), TEXT("value = 4\n"));

	EXPECT_EQ(Evaluate(TEXT("__import__('appears_later').value")), TEXT("4"));
	EXPECT_EQ(ErrorOf(TEXT("import appears_never")), TEXT("ModuleNotFoundError: No module named 'appears_never'"));
	EXPECT_TRUE(RunPython(TEXT("sys.path.pop()")));
}
