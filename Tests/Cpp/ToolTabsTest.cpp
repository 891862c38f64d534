#include "ToolTabs.h"

#include "Brushes/SlateColorBrush.h"
#include "Framework/Docking/TabManager.h"
#include "LogCapture.h"
#include "ProfilingDebugging/CpuProfilerTrace.h"
#include "RunningPlugin.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Velmora/SVelmoraWidget.h"
#include "Velmora/VelmoraData.h"
#include "Velmora/WidgetTree.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest.h>

namespace
{
using FLines = TArray<FString>;

const FString EmptyTool = ToolWithRoot("{ \"SBox\": {} }");

/** A line of the plugin's general category, as the log capture gives it. */
FString Line(const TCHAR* Verbosity, const FString& Text)
{
	return FString::Printf(TEXT("PythonKX: %s: %s"), Verbosity, *Text);
}

int32 CountPixels(FSlateTestWindow& Window, const FColor& Color)
{
	TArray<FColor> Pixels;
	FIntVector Size;
	FSlateApplication::Get().TakeScreenshot(Window.GetWindow().AsShared(), Pixels, Size);
	return Pixels.FilterByPredicate([&Color](const FColor& Pixel) { return Pixel == Color; }).Num();
}

FString ContentText(const TSharedRef<SDockTab>& Tab)
{
	return As<STextBlock>(ChildOf(ChildOf(Tab->GetContent())))->GetText().ToString();
}
}

TEST(ToolTabs, PathsThatAreEqualBehindTheMarkerNameTheSameTool)
{
	EXPECT_TRUE(IsSameTool("/P/KX/Kestrix/Python/A/A.json", "a/a.JSON"));
	EXPECT_TRUE(IsSameTool("/P/KX/Kestrix/Python/A.json", "/Q/Kestrix/Python/A.json"));
	EXPECT_FALSE(IsSameTool("/P/KX/Kestrix/Python/A/A.json", "A.json"));
}

TEST(ToolTabs, TabShowsTheToolUnderItsLabel)
{
	FRunningPlugin Plugin;
	Plugin.WriteTool(TEXT("A.json"), R"({ "TabLabel": "My Tool", "Root": { "SBox": {} } })");
	Plugin.WriteTool(TEXT("B.json"), R"({ "Root": { "SBox": {} } })");

	UVelmoraData::LaunchVelmoraTool(TEXT("A.json"));
	UVelmoraData::LaunchVelmoraTool(TEXT("B.json"));

	const FString PathOfA = Plugin.Project.Path(TEXT("KX/Kestrix/Python/A.json"));
	const TSharedRef<SDockTab> A = FindTab(PathOfA);
	EXPECT_EQ(A->GetTabLabel().ToString(), FString(TEXT("My Tool")));
	EXPECT_EQ(A->GetTabRole(), ETabRole::NomadTab);
	EXPECT_EQ(Outline(A->GetContent()), FString(TEXT("SVelmoraWidget[SBox]")));
	EXPECT_EQ(As<SVelmoraWidget>(A->GetContent())->JsonPath, PathOfA);
	EXPECT_EQ(As<SVelmoraWidget>(A->GetContent())->DataObj, FKestrixModule::Get().GetToolsDataInstanceByName(PathOfA));
	EXPECT_EQ(FindTab(Plugin.Project.Path(TEXT("KX/Kestrix/Python/B.json")))->GetTabLabel().ToString(),
		FString(TEXT("Python Velmora Tools")));
}

TEST(ToolTabs, TabShowsTheToolIconOfTheStyleSet)
{
	FSlateStyleSet Style("VelmoraStyle");
	FSlateBrush* const Icon = new FSlateColorBrush(FLinearColor::Red);
	Icon->ImageSize = FVector2D(16.0, 16.0);
	Style.Set("PythonVelmoraTools.Small", Icon);
	FRunningPlugin Plugin;
	Plugin.Launch(TEXT("A.json"), EmptyTool);
	EXPECT_EQ(CountPixels(Plugin.Window, FColor::Red), 0);
	UVelmoraData::RequestClose(TEXT("A.json"));
	FSlateStyleRegistry::RegisterSlateStyle(Style);

	Plugin.Launch(TEXT("A.json"), EmptyTool);

	EXPECT_EQ(CountPixels(Plugin.Window, FColor::Red), 16 * 16);
	UVelmoraData::RequestClose(TEXT("A.json"));
	FSlateStyleRegistry::UnRegisterSlateStyle(Style);
}

TEST(ToolTabs, RegistrationKeepsTheFirstLabelAndSaysSoOnce)
{
	FRunningPlugin Plugin;
	const FString Path =
		Plugin.WriteTool(TEXT("A.json"), R"({ "TabLabel": "First", "Root": { "SBox": {} }, "InitTabSize": [8, 6] })");
	FName TabId;
	FVector2D Size;
	FVector2D Position;
	const FLogCapture Log(TEXT("PythonKX"));

	EXPECT_TRUE(FKestrixModule::Get().RegisterToolTab(TEXT("A.json"), TabId, Size, Position));
	Plugin.WriteTool(TEXT("A.json"), R"({ "TabLabel": "Second", "Root": { "SBox": {} } })");
	EXPECT_TRUE(FKestrixModule::Get().RegisterToolTab(Path, TabId, Size, Position));

	EXPECT_EQ(TabId, FName(*Path));
	EXPECT_EQ(Size, FVector2D(-1.0, -1.0));
	EXPECT_EQ(Position, FVector2D(-1.0, -1.0));
	EXPECT_EQ(RegisteredToolTabIds, TArray<FName>({TabId}));
	EXPECT_EQ(Log.Lines(),
		FLines({Line(TEXT("Log"), TEXT("Load VelmoraData @Path: ")), Line(TEXT("Log"), TEXT("RegisterNomadTabSpawner ") + Path),
			Line(TEXT("Log"), TEXT("Load VelmoraData @Path: "))}));
	EXPECT_EQ(FGlobalTabmanager::Get()->TryInvokeTab(FTabId(TabId))->GetTabLabel().ToString(), FString(TEXT("First")));
}

TEST(ToolTabs, DataPathThatNamesNoPackageIsAnErrorAndTheToolOpensAllTheSame)
{
	FRunningPlugin Plugin;
	const FString Path = Plugin.WriteTool(TEXT("A.json"), R"({ "VelmoraData": "/Game/None", "Root": { "SBox": {} } })");
	const FLogCapture Log(TEXT("PythonKX"));

	EXPECT_TRUE(UVelmoraData::LaunchVelmoraTool(TEXT("A.json")));

	EXPECT_EQ(Log.Errors(),
		FLines({TEXT("Json File can't find: VelmoraData, Default data used. @ /Game/None"),
			TEXT("Get VelmoraDataPath failed /Game/None"), TEXT("Json File can't find: InitPyCmd  ") + Path}));
	EXPECT_FALSE(Log.HasLine(Line(TEXT("Log"), TEXT("Load VelmoraData @Path: /Game/None"))));
	EXPECT_EQ(FKestrixModule::Get().GetToolsDataInstanceByName(Path)->GetClass(), UVelmoraData::StaticClass());
}

TEST(ToolTabs, InitCommandRunsOnceTheWidgetsAreThereWithThePathInQuotes)
{
	FRunningPlugin Plugin;
	const FString Path = Plugin.WriteTool(
		TEXT("A.json"), R"json({ "InitPyCmd": "init(%JsonPath, %jsonpath)", "Root": { "SBox": { "Aka": "Box" } } })json");
	const FLogCapture Log(TEXT("PythonKX"));

	UVelmoraData::LaunchVelmoraTool(TEXT("A.json"));

	const FString Command = FString::Printf(TEXT("init(\"%s\", \"%s\")"), *Path, *Path);
	EXPECT_EQ(Plugin.Python.Take(), FLines({Command}));
	EXPECT_TRUE(Log.HasLine(Line(TEXT("Log"), TEXT("InitPyCmd: ") + Command)));
	EXPECT_TRUE(FKestrixModule::Get().GetToolsDataInstanceByName(Path)->GetNamedWidget("Box").IsValid());
}

TEST(ToolTabs, InitCommandIsWhatIsBeingHandledWhileItRuns)
{
	FRunningPlugin Plugin;
	TArray<TArray<FString>> Scopes;
	Plugin.Python.SetOnCommand([&Scopes] { Scopes.Add(FCpuProfilerScopeStack::Describe()); });
	Plugin.Launch(TEXT("A.json"), R"({ "InitPyCmd": "a", "OnClosePyCmd": "b", "TabLabel": "My Tool", "Root": { "SBox": {} } })");

	UVelmoraData::RequestClose(TEXT("A.json"));

	ASSERT_EQ(Scopes.Num(), 2);
	EXPECT_EQ(Scopes[0][0], FString(TEXT("InitPyCmd")));
	EXPECT_EQ(Scopes[1][0], FString(TEXT("OnClosePyCmd")));
}

TEST(ToolTabs, ToolWithoutAnInitCommandNeverGetsItsMapCommandRecorded)
{
	FRunningPlugin Plugin;
	const FString Path = Plugin.WriteTool(TEXT("A.json"), R"json({ "OnMapChangedCmd": "map()", "Root": { "SBox": {} } })json");
	const FLogCapture Log(TEXT("PythonKX"));

	EXPECT_TRUE(UVelmoraData::LaunchVelmoraTool(TEXT("A.json")));

	EXPECT_EQ(MapChangeCommands.Num(), 0);
	EXPECT_EQ(Plugin.Python.Take(), FLines());
	EXPECT_EQ(Log.Errors(), FLines({TEXT("Json File can't find: InitPyCmd  ") + Path}));
	EXPECT_TRUE(Log.HasLine(Line(TEXT("Log"), TEXT("InitPytools skipped, cmd: "))));
}

TEST(ToolTabs, FileThatItsInitCommandBreaksIsAnErrorAndRecordsNoMapCommand)
{
	FRunningPlugin Plugin;
	const FString Path =
		Plugin.WriteTool(TEXT("A.json"), R"json({ "InitPyCmd": "i", "OnMapChangedCmd": "map()", "Root": { "SBox": {} } })json");
	Plugin.Python.SetOnCommand([&Plugin] { Plugin.WriteTool(TEXT("A.json"), TEXT("{ nonsense")); });
	const FLogCapture Log(TEXT("PythonKX"));

	UVelmoraData::LaunchVelmoraTool(TEXT("A.json"));

	EXPECT_EQ(Plugin.Python.Take(), FLines({TEXT("i")}));
	EXPECT_EQ(Log.Errors(), FLines({TEXT("Json object is not Valid ") + Path}));
	EXPECT_EQ(MapChangeCommands.Num(), 0);
	EXPECT_EQ(OpenToolTabs.Num(), 1);
}

TEST(ToolTabs, MapCommandIsRecordedByShortPathAndStaysWhenTheToolCloses)
{
	FRunningPlugin Plugin;
	const FLogCapture Log(TEXT("PythonKX"));
	Plugin.Launch(TEXT("T/A.json"), R"json({ "InitPyCmd": "i", "OnMapChangedCmd": "map(%world)", "Root": { "SBox": {} } })json");

	UVelmoraData::RequestClose(TEXT("T/A.json"));

	ASSERT_EQ(MapChangeCommands.Num(), 1);
	EXPECT_EQ(MapChangeCommands.FindRef(TEXT("T/A.json")), FString(TEXT("map(%world)")));
	EXPECT_TRUE(Log.HasLine(Line(TEXT("Log"), TEXT("InitPytool's OnMapChangeCommand, ShortName: T/A.json, cmd: map(%world)"))));
}

TEST(ToolTabs, ToolOpenedAgainOverwritesItsMapCommandAndLeavesItWithoutAnother)
{
	FRunningPlugin Plugin;
	Plugin.Launch(TEXT("A.json"), R"json({ "InitPyCmd": "i", "OnMapChangedCmd": "first()", "Root": { "SBox": {} } })json");
	UVelmoraData::RequestClose(TEXT("A.json"));

	Plugin.Launch(TEXT("A.json"), R"json({ "InitPyCmd": "i", "OnMapChangedCmd": "second()", "Root": { "SBox": {} } })json");
	EXPECT_EQ(MapChangeCommands.FindRef(TEXT("A.json")), FString(TEXT("second()")));
	UVelmoraData::RequestClose(TEXT("A.json"));

	Plugin.Launch(TEXT("A.json"), R"json({ "InitPyCmd": "i", "Root": { "SBox": {} } })json");
	EXPECT_EQ(MapChangeCommands.FindRef(TEXT("A.json")), FString(TEXT("second()")));
	EXPECT_EQ(MapChangeCommands.Num(), 1);
}

TEST(ToolTabs, CloseCommandRunsAsItStandsWhenTheTabCloses)
{
	FRunningPlugin Plugin;
	const FString Path = Plugin.WriteTool(
		TEXT("A.json"), R"json({ "InitPyCmd": "", "OnClosePyCmd": "bye(%JsonPath)", "Root": { "SBox": {} } })json");
	UVelmoraData::LaunchVelmoraTool(TEXT("A.json"));
	EXPECT_EQ(OpenToolTabs, TArray<TSharedPtr<SDockTab>>({FindTab(Path)}));

	FindTab(Path)->RequestCloseTab();

	EXPECT_EQ(Plugin.Python.Take(), FLines({TEXT("bye(%JsonPath)")}));
	EXPECT_EQ(OpenToolTabs.Num(), 0);
	EXPECT_TRUE(FGlobalTabmanager::Get()->HasTabSpawner(FName(*Path)));
}

TEST(ToolTabs, FieldWithTheFocusCommitsBeforeTheCloseCommand)
{
	FRunningPlugin Plugin;
	const FString Path = Plugin.WriteTool(TEXT("A.json"),
		TEXT("{ \"InitPyCmd\": \"\", \"OnClosePyCmd\": \"closed()\", \"Root\": { \"SEditableTextBox\": { \"Aka\": \"Field\", "
			 "\"OnTextCommitted\": \"commit(%)\" } } }"));
	UVelmoraData::LaunchVelmoraTool(TEXT("A.json"));
	Plugin.Window.Frame();
	Plugin.Window.Click(FKestrixModule::Get().GetToolsDataInstanceByName(Path)->GetNamedWidget("Field").ToSharedRef());
	Plugin.Window.TypeText(TEXT("typed"));
	Plugin.Python.Take();

	UVelmoraData::RequestClose(TEXT("A.json"));

	EXPECT_EQ(Plugin.Python.Take(), FLines({TEXT("commit('''typed''')"), TEXT("closed()")}));
}

TEST(ToolTabs, WindowThatIsClosedClosesItsTools)
{
	FRunningPlugin Plugin;
	const FString Path = Plugin.WriteTool(TEXT("A.json"),
		R"json({ "InitPyCmd": "", "OnClosePyCmd": "bye()", "InitTabSize": [300, 200], "Root": { "SBox": {} } })json");
	UVelmoraData::LaunchVelmoraTool(TEXT("A.json"));
	Plugin.Window.Frame();

	FindTab(Path)->GetParentWindow()->RequestDestroyWindow();
	Plugin.Window.Frame();

	EXPECT_EQ(Plugin.Python.Take(), FLines({TEXT("bye()")}));
	EXPECT_EQ(OpenToolTabs.Num(), 0);
}

TEST(ToolTabs, ClosingATabThatIsNotAmongTheOpenOnesChangesNothing)
{
	FRunningPlugin Plugin;
	Plugin.Launch(TEXT("A.json"), EmptyTool);
	const FLogCapture Log;

	EXPECT_FALSE(FKestrixModule::RemoveOpenToolTab("/elsewhere/B.json"));

	EXPECT_EQ(OpenToolTabs.Num(), 1);
	EXPECT_EQ(Log.Lines(), FLines());
}

TEST(ToolTabs, FileThatBreaksAfterItsRegistrationShowsTheReasonInItsTab)
{
	FRunningPlugin Plugin;
	Plugin.Launch(TEXT("A.json"), EmptyTool);
	UVelmoraData::RequestClose(TEXT("A.json"));
	const FString Path = Plugin.WriteTool(TEXT("A.json"), TEXT("{ nonsense"));
	const FLogCapture Log(TEXT("PythonKX"));

	EXPECT_TRUE(UVelmoraData::LaunchVelmoraTool(TEXT("A.json")));

	EXPECT_EQ(ContentText(FindTab(Path)), TEXT("Deserialize File ") + Path + TEXT(" failed, check: '\\' "));
	EXPECT_EQ(Log.Errors(), FLines({TEXT("Json object is not Valid ") + Path}));
	EXPECT_TRUE(Log.HasLine(Line(TEXT("Log"), TEXT("InitPytools skipped, cmd: "))));
}

TEST(ToolTabs, DescriptionWithoutARootOpensATabThatSaysSo)
{
	FRunningPlugin Plugin;
	const FString Path = Plugin.WriteTool(TEXT("A.json"), R"({ "InitPyCmd": "init" })");

	EXPECT_TRUE(UVelmoraData::LaunchVelmoraTool(TEXT("A.json")));

	EXPECT_EQ(ContentText(FindTab(Path)), FString(TEXT("No Widget")));
	EXPECT_EQ(Plugin.Python.Take(), FLines({TEXT("init")}));
}
