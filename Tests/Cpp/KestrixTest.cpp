#include "Kestrix.h"

#include "Framework/Docking/TabManager.h"
#include "HAL/IConsoleManager.h"
#include "KestrixLog.h"
#include "Modules/ModuleManager.h"
#include "RunningPlugin.h"
#include "Styling/AppStyle.h"
#include "ToolTabs.h"
#include "Velmora/VelmoraData.h"
#include "Velmora/VelmoraGenerator.h"
#include "Velmora/WidgetTree.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest.h>

namespace
{
using FTab = TSharedPtr<SDockTab>;

TArray<FTab> RecentTabs()
{
	TArray<FTab> Tabs;
	for (const TWeakPtr<SDockTab>& Tab : FKestrixModule::Get().GetRecentTabs())
	{
		Tabs.Add(Tab.Pin());
	}
	return Tabs;
}

FTab OpenToolsTab()
{
	return FGlobalTabmanager::Get()->TryInvokeTab(FTabId("PythonToolsTab"));
}

void ExpectVariable(const TCHAR* Name, const TCHAR* DefaultValue)
{
	const IConsoleVariable* const Variable = IConsoleManager::Get().FindConsoleVariable(Name);
	ASSERT_NE(Variable, nullptr);
	EXPECT_EQ(Variable->GetString(), FString(DefaultValue));
	EXPECT_EQ(FString(Variable->GetHelp()), FString(Name));
	EXPECT_EQ(Variable->GetFlags(), ECVF_Default);
}

void ExpectCategory(const FLogCategoryBase& Category, const TCHAR* Name, ELogVerbosity::Type Verbosity)
{
	EXPECT_EQ(Category.GetCategoryName(), FName(Name));
	EXPECT_EQ(Category.GetVerbosity(), Verbosity);
	EXPECT_EQ(Category.GetCompileTimeVerbosity(), ELogVerbosity::VeryVerbose);
}
}

TEST(KestrixModule, ConsoleVariablesAreThereFromTheStart)
{
	ExpectVariable(TEXT("Kestrix.OverrideEnabled"), TEXT("-1"));
	ExpectVariable(TEXT("Kestrix.SketchTabCheckInterval"), TEXT("1"));
	ExpectVariable(TEXT("Kestrix.SketchTabRelaunchDelay"), TEXT("0.05"));
}

TEST(KestrixModule, LogCategoriesPrintEverythingUnlessSaidOtherwise)
{
	ExpectCategory(Velmora, TEXT("Velmora"), ELogVerbosity::VeryVerbose);
	ExpectCategory(PythonKX, TEXT("PythonKX"), ELogVerbosity::VeryVerbose);
	ExpectCategory(PythonMesh, TEXT("PythonMesh"), ELogVerbosity::VeryVerbose);
	ExpectCategory(KestrixUtils, TEXT("KestrixUtils"), ELogVerbosity::Log);
}

TEST(KestrixModule, StartMakesTheSettingsReadyAndReadsTheLogFlags)
{
	{
		const FRunningPlugin Plugin(TEXT("[Advanced]\nLogCreateWidget=True\nLogOnTickWarnings=False\n"));
		EXPECT_TRUE(SettingsInitialised);
		EXPECT_TRUE(bLogCreateWidget);
		EXPECT_FALSE(bLogOnTickWarnings);
	}
	const FRunningPlugin Plugin;
	EXPECT_FALSE(bLogCreateWidget);
	EXPECT_TRUE(bLogOnTickWarnings);
}

TEST(KestrixModule, StartWithoutASlateApplicationMakesSettingsAndNoTabs)
{
	const FSettingsProject Project;
	Project.Write(TEXT("KX/Kestrix/Config/Config.ini"), TEXT("[Advanced]\nLogCreateWidget=True\n"));
	const FString Path = Project.Write(TEXT("KX/Kestrix/Python/A.json"), TEXT("{ \"Root\": { \"SBox\": {} } }"));
	FSlateApplication::Shutdown();
	FModuleManager& Modules = FModuleManager::Get();
	Modules.RegisterStaticallyLinkedModule("Kestrix", [] { return new FKestrixModule; });

	Modules.LoadModule("Kestrix");

	EXPECT_TRUE(SettingsInitialised);
	EXPECT_TRUE(bLogCreateWidget);
	EXPECT_FALSE(FGlobalTabmanager::Get()->HasTabSpawner("PythonToolsTab"));
	EXPECT_FALSE(UVelmoraData::LaunchVelmoraTool(TEXT("A.json")));
	EXPECT_EQ(UVelmoraData::SnapshotVelmoraWindow(TEXT("A.json")), FString());
	EXPECT_FALSE(UVelmoraData::RequestClose(TEXT("A.json")));
	Modules.UnloadModule("Kestrix");
	FSlateApplication::Create();
	bLogCreateWidget = false;
}

TEST(KestrixModule, StartRunsNoPython)
{
	FRunningPlugin Plugin;

	EXPECT_EQ(Plugin.Python.Take(), TArray<FString>());
}

TEST(KestrixModule, ToolsTabHoldsAButtonAndAField)
{
	FRunningPlugin Plugin;

	const FTab Tab = OpenToolsTab();

	ASSERT_TRUE(Tab.IsValid());
	EXPECT_EQ(Tab->GetTabLabel().ToString(), FString(TEXT("Python Tools")));
	EXPECT_EQ(Tab->GetTabRole(), ETabRole::NomadTab);
	const TSharedRef<SWidget> Panel = Tab->GetContent();
	EXPECT_EQ(Panel->GetType(), FName("SToolsCompoundWidget"));
	ASSERT_EQ(ChildOf(Panel)->GetType(), FName("SBorder"));
	EXPECT_EQ(BorderImageOf(As<SBorder>(ChildOf(Panel))), FAppStyle::Get().GetOptionalBrush("ToolPanel.GroupBorder"));
	const TSharedRef<SWidget> Column = ChildOf(ChildOf(Panel));
	ASSERT_EQ(Column->GetType(), FName("SVerticalBox"));
	ASSERT_EQ(Column->GetChildren()->Num(), 2);
	ASSERT_EQ(Outline(ChildOf(Column, 0)), FString(TEXT("SButton[STextBlock]")));
	EXPECT_EQ(As<STextBlock>(ChildOf(ChildOf(Column, 0)))->GetText().ToString(), FString(TEXT("Click Me")));
	ASSERT_EQ(ChildOf(Column, 1)->GetType(), FName("SEditableTextBox"));
	EXPECT_EQ(As<SEditableTextBox>(ChildOf(Column, 1))->GetText().ToString(), FString());

	Plugin.Window.Frame();
	Plugin.Window.Click(ChildOf(Column, 0));
	EXPECT_EQ(Plugin.Python.Take(), TArray<FString>());
}

TEST(KestrixModule, TabThatIsActivatedTwiceStandsOnceAtTheEnd)
{
	FRunningPlugin Plugin;
	const FTab Tools = OpenToolsTab();
	Plugin.Launch(TEXT("A.json"), ToolWithRoot("{ \"SBox\": {} }"));
	const FTab A = FindTab(Plugin.Project.Path(TEXT("KX/Kestrix/Python/A.json")));
	EXPECT_EQ(RecentTabs(), TArray<FTab>({Tools, A}));

	Tools->ActivateInParent(ETabActivationCause::SetDirectly);

	EXPECT_EQ(RecentTabs(), TArray<FTab>({A, Tools}));
}

TEST(KestrixModule, ClosedTabStaysAmongTheRecentOnesUntilTheNextChange)
{
	FRunningPlugin Plugin;
	const FTab Tools = OpenToolsTab();
	Plugin.Launch(TEXT("A.json"), ToolWithRoot("{ \"SBox\": {} }"));
	Plugin.Launch(TEXT("B.json"), ToolWithRoot("{ \"SBox\": {} }"));
	const FTab B = FindTab(Plugin.Project.Path(TEXT("KX/Kestrix/Python/B.json")));

	EXPECT_TRUE(UVelmoraData::RequestClose(TEXT("A.json")));
	EXPECT_EQ(RecentTabs(), TArray<FTab>({Tools, nullptr, B}));

	Tools->ActivateInParent(ETabActivationCause::SetDirectly);
	EXPECT_EQ(RecentTabs(), TArray<FTab>({B, Tools}));
}

TEST(KestrixModule, EndUnregistersEveryTab)
{
	FRunningPlugin Plugin;
	Plugin.Launch(TEXT("A.json"), ToolWithRoot("{ \"SBox\": {} }"));
	const FName ToolId(*Plugin.Project.Path(TEXT("KX/Kestrix/Python/A.json")));
	EXPECT_TRUE(FGlobalTabmanager::Get()->HasTabSpawner("PythonToolsTab"));
	EXPECT_TRUE(FGlobalTabmanager::Get()->HasTabSpawner(ToolId));

	Plugin.EndModule();

	EXPECT_FALSE(FGlobalTabmanager::Get()->HasTabSpawner("PythonToolsTab"));
	EXPECT_FALSE(FGlobalTabmanager::Get()->HasTabSpawner(ToolId));
	EXPECT_EQ(RegisteredToolTabIds.Num(), 0);
}

TEST(KestrixModule, ToolThatIsOpenAtTheEndStaysAndClosesLater)
{
	FRunningPlugin Plugin;
	const FString Path = Plugin.WriteTool(TEXT("A.json"), R"json({ "OnClosePyCmd": "bye()", "Root": { "SBox": {} } })json");
	UVelmoraData::LaunchVelmoraTool(TEXT("A.json"));
	const TSharedRef<SDockTab> Tab = FindTab(Path);

	Plugin.EndModule();

	EXPECT_EQ(OpenToolTabs.Num(), 0);
	EXPECT_EQ(FindTab(Path), Tab);
	EXPECT_EQ(Plugin.Python.Take(), TArray<FString>());

	Tab->RequestCloseTab();
	EXPECT_EQ(Plugin.Python.Take(), TArray<FString>({TEXT("bye()")}));
}

TEST(KestrixModule, TabsAreNoLongerFollowedOnceTheHooksAreGone)
{
	FRunningPlugin Plugin;
	Plugin.Launch(TEXT("A.json"), ToolWithRoot("{ \"SBox\": {} }"));
	const FTab A = FindTab(Plugin.Project.Path(TEXT("KX/Kestrix/Python/A.json")));
	Plugin.Launch(TEXT("B.json"), ToolWithRoot("{ \"SBox\": {} }"));
	Plugin.EndModule();
	FKestrixModule Module;
	Module.RegisterEditorHooks();

	Module.UnregisterEditorHooks();
	A->ActivateInParent(ETabActivationCause::SetDirectly);

	EXPECT_TRUE(A->IsActive());
	EXPECT_EQ(Module.GetRecentTabs().Num(), 0);
}

TEST(KestrixModule, StartsAgainAfterItsEnd)
{
	FRunningPlugin Plugin;
	Plugin.EndModule();

	Plugin.StartModule();

	EXPECT_TRUE(OpenToolsTab().IsValid());
	EXPECT_EQ(RecentTabs().Num(), 1);
}
