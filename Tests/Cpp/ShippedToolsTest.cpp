#include "Dom/JsonObject.h"
#include "HAL/FileManager.h"
#include "HAL/PlatformFileManager.h"
#include "GenericPlatform/GenericPlatformFile.h"
#include "LogCapture.h"
#include "Misc/Paths.h"
#include "SettingsProject.h"
#include "Velmora/ToolDescription.h"
#include "Velmora/VelmoraGenerator.h"
#include "Velmora/WidgetTree.h"

#include <gtest/gtest.h>

// The default folder and the samples, as a user gets them.

namespace
{
using FLines = TArray<FString>;

const FString PluginDir(KESTRIX_PLUGIN_DIR);

/** A project in which the plugin was just put: its ini file and its default folder are there. */
class FNewProject : public FSettingsProject
{
public:
	FNewProject()
	{
		for (const TCHAR* Folder : {TEXT("Config"), TEXT("Resources")})
		{
			const FString Destination = Path(TEXT("Plugins/Kestrix")) / Folder;
			EXPECT_TRUE(
				FPlatformFileManager::Get().GetPlatformFile().CopyDirectoryTree(*Destination, *(PluginDir / Folder), true));
		}
	}
};

/** Builds a tool and expects that nothing is said but that files are read. */
TSharedRef<SWidget> BuildSilently(const FString& DescriptionPath)
{
	const FLogCapture Log;
	const TSharedRef<SWidget> Tree = GenerateWidgetFromFile(DescriptionPath, TEXT("Root"), nullptr);
	for (const FString& Line : Log.Lines())
	{
		EXPECT_TRUE(Line.StartsWith(TEXT("PythonKX: Log: Import External Json Path: "))) << TCHAR_TO_UTF8(*Line);
	}
	return Tree;
}
}

TEST(ShippedTools, FirstUseOfANewProjectLeavesNothingToComplain)
{
	const FNewProject Project;
	const FString PluginConfig = Project.Read(TEXT("Plugins/Kestrix/Config/Plugin_Config.ini"));
	const FString Config = Project.Read(TEXT("Plugins/Kestrix/Resources/DefaultPythonSource/KX/Kestrix/Config/Config.ini"));
	const FLogCapture Log;

	InitSettings();

	EXPECT_EQ(Log.Lines(),
		FLines({TEXT("PythonKX: Warning: Copy Default UI, Config, Python ") + Project.GetDir() +
			TEXT("//Plugins/Kestrix/Resources/DefaultPythonSource/KX ") + Project.GetDir() + TEXT("/KX ")}));
	EXPECT_EQ(Project.Read(TEXT("KX/Kestrix/Config/Config.ini")), Config) << "a key is missing in the shipped file";
	EXPECT_EQ(Project.Read(TEXT("Plugins/Kestrix/Config/Plugin_Config.ini")), PluginConfig);
	EXPECT_TRUE(MenuConfigExists);
}

TEST(ShippedTools, MenuFileIsAnEmptyObject)
{
	const FNewProject Project;
	InitSettings();
	FString Error;

	const TSharedPtr<FJsonObject> Menus = LoadJsonFile(GetMenuConfigFilePath(), Error);

	ASSERT_TRUE(Menus.IsValid()) << TCHAR_TO_UTF8(*Error);
	EXPECT_EQ(Menus->Values.Num(), 0);
}

TEST(ShippedTools, GalleryShowsEveryWidgetTypeWithoutAWord)
{
	const FNewProject Project;
	InitSettings();

	const FString Tree = Outline(BuildSilently(GetToolAbsolutePath(TEXT("VelmoraGallery/VelmoraGallery.json"))));

	for (const TCHAR* Type :
		{TEXT("SVerticalBox["), TEXT("SHorizontalBox["), TEXT("SBox["), TEXT("SBorder["), TEXT("SScrollBox["), TEXT("STextBlock"),
			TEXT("SButton["), TEXT("SEditableTextBox["), TEXT("SMultiLineEditableTextBox["), TEXT("SCheckBox[")})
	{
		EXPECT_TRUE(Tree.Contains(Type, ESearchCase::CaseSensitive)) << TCHAR_TO_UTF8(Type);
	}
}

TEST(ShippedTools, RegexTesterIsBuiltWithoutAWord)
{
	EXPECT_EQ(Outline(BuildSilently(PluginDir / TEXT("Samples/RegexTester/RegexTester.json"))).Left(20),
		FString(TEXT("SBorder[SBox[SVertic")));
}
