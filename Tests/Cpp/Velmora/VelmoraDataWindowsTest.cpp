#include "Velmora/VelmoraData.h"

#include <png.h>

#include "Framework/Docking/TabManager.h"
#include "HAL/FileManager.h"
#include "LogCapture.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "RunningPlugin.h"
#include "ToolTabs.h"
#include "Velmora/WidgetTree.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Input/SEditableTextBox.h"

#include <gtest/gtest.h>

namespace
{
using FLines = TArray<FString>;

const FString EmptyTool = ToolWithRoot("{ \"SBox\": {} }");

const char* const TickingRoot = "{ \"SBox\": { \"OnTick\": \"tick()\" } }";

FString Warning(const FString& Text)
{
	return TEXT("PythonKX: Warning: ") + Text;
}

FString Log(const FString& Text)
{
	return TEXT("PythonKX: Log: ") + Text;
}

/** Width and height of a PNG file; zero if it is none. */
FIntPoint SizeOfPng(const FString& Path)
{
	TArray<uint8> File;
	png_image Image = {};
	Image.version = PNG_IMAGE_VERSION;
	if (!FFileHelper::LoadFileToArray(File, *Path) ||
		!png_image_begin_read_from_memory(&Image, File.GetData(), SIZE_T(File.Num())))
	{
		return FIntPoint(0, 0);
	}
	const FIntPoint Size(int32(Image.width), int32(Image.height));
	png_image_free(&Image);
	return Size;
}
}

//
// LaunchVelmoraTool
//

TEST(LaunchVelmoraTool, FileThatIsNotThereIsAWarning)
{
	FRunningPlugin Plugin;
	const FString Folder = Plugin.Project.Path(TEXT("KX/Kestrix/Python"));
	const FLogCapture Lines;

	EXPECT_FALSE(UVelmoraData::LaunchVelmoraTool(TEXT("None.json")));
	EXPECT_FALSE(UVelmoraData::LaunchVelmoraTool(TEXT("/none.json")));

	EXPECT_EQ(Lines.Lines(),
		FLines({Warning(TEXT("File: None.json not exist. LaunchVemloraTool by: ") + Folder + TEXT("/None.json")),
			Warning(TEXT("File: /none.json not exist. LaunchVemloraTool by: /none.json"))}));
	EXPECT_EQ(RegisteredToolTabIds.Num(), 0);
}

TEST(LaunchVelmoraTool, EmptyPathIsTheFolderAndNoFile)
{
	FRunningPlugin Plugin;
	Plugin.WriteTool(TEXT("A.json"), EmptyTool);
	const FLogCapture Lines;

	EXPECT_FALSE(UVelmoraData::LaunchVelmoraTool());

	EXPECT_EQ(Lines.Lines(),
		FLines({Warning(TEXT("File:  not exist. LaunchVemloraTool by: ") + Plugin.Project.Path(TEXT("KX/Kestrix/Python/")))}));
}

TEST(LaunchVelmoraTool, FileThatDoesNotParseAtItsFirstLaunchOpensNoTab)
{
	FRunningPlugin Plugin;
	const FString Path = Plugin.WriteTool(TEXT("A.json"), TEXT("{ nonsense"));
	const FLogCapture Lines(TEXT("PythonKX"));

	EXPECT_FALSE(UVelmoraData::LaunchVelmoraTool(TEXT("A.json")));

	EXPECT_EQ(Lines.Warnings(), FLines({TEXT("Deserialize File ") + Path + TEXT(" failed, check: '\\' ")}));
	EXPECT_EQ(RegisteredToolTabIds.Num(), 0);
	EXPECT_EQ(OpenToolTabs.Num(), 0);
}

TEST(LaunchVelmoraTool, PathThatIsTooLongForANameIsAnErrorAndOpensNoTab)
{
	FRunningPlugin Plugin;
	FString Name;
	while (Name.Len() < NAME_SIZE)
	{
		Name += FString::ChrN(200, TEXT('f')) + TEXT("/");
	}
	Plugin.WriteTool(*(Name + TEXT("A.json")), EmptyTool);
	const FLogCapture Lines(TEXT("PythonKX"));

	EXPECT_FALSE(UVelmoraData::LaunchVelmoraTool(Name + TEXT("A.json")));

	ASSERT_EQ(Lines.Errors().Num(), 1);
	EXPECT_TRUE(Lines.Errors()[0].StartsWith(TEXT("A name has at most 1023 characters, found ")));
	EXPECT_EQ(RegisteredToolTabIds.Num(), 0);
	EXPECT_EQ(OpenToolTabs.Num(), 0);
	EXPECT_FALSE(UVelmoraData::RequestClose(Name + TEXT("A.json")));
	EXPECT_EQ(UVelmoraData::SnapshotVelmoraWindow(Name + TEXT("A.json")), FString());
}

TEST(LaunchVelmoraTool, AbsolutePathOpensTheSameTool)
{
	FRunningPlugin Plugin;
	const FString Path = Plugin.WriteTool(TEXT("A.json"), EmptyTool);

	EXPECT_TRUE(UVelmoraData::LaunchVelmoraTool(TEXT("A.json")));
	EXPECT_TRUE(UVelmoraData::LaunchVelmoraTool(Path));

	EXPECT_EQ(OpenToolTabs.Num(), 1);
}

TEST(LaunchVelmoraTool, OpenToolComesToTheFrontWithoutASecondStart)
{
	FRunningPlugin Plugin;
	Plugin.Launch(TEXT("A.json"), R"({ "InitPyCmd": "init", "Root": { "SBox": {} } })");
	Plugin.Launch(TEXT("B.json"), EmptyTool);
	const TSharedRef<SDockTab> A = FindTab(Plugin.Project.Path(TEXT("KX/Kestrix/Python/A.json")));
	EXPECT_FALSE(A->IsForeground());

	EXPECT_TRUE(UVelmoraData::LaunchVelmoraTool(TEXT("A.json")));

	EXPECT_TRUE(A->IsForeground());
	EXPECT_EQ(OpenToolTabs.Num(), 2);
	EXPECT_EQ(Plugin.Python.Take(), FLines({TEXT("init")}));
}

TEST(LaunchVelmoraTool, ClosedToolStartsAgain)
{
	FRunningPlugin Plugin;
	Plugin.Launch(TEXT("A.json"), R"({ "InitPyCmd": "init", "Root": { "SBox": {} } })");
	UVelmoraData::RequestClose(TEXT("A.json"));

	EXPECT_TRUE(UVelmoraData::LaunchVelmoraTool(TEXT("A.json")));

	EXPECT_EQ(OpenToolTabs.Num(), 1);
	EXPECT_EQ(Plugin.Python.Take(), FLines({TEXT("init"), TEXT("init")}));
}

TEST(LaunchVelmoraTool, PositionWithoutASizeIsAWarningAndATab)
{
	FRunningPlugin Plugin;
	const FString Path = Plugin.WriteTool(
		TEXT("A.json"), R"({ "InitPyCmd": "", "InitTabSize": [-1, -1], "InitTabPosition": [100, 100], "Root": { "SBox": {} } })");
	const FLogCapture Lines(TEXT("PythonKX"));

	EXPECT_TRUE(UVelmoraData::LaunchVelmoraTool(TEXT("A.json")));

	EXPECT_EQ(Lines.Warnings(), FLines({TEXT("TabPosition Not Implemented yet A.json")}));
	EXPECT_EQ(FindTab(Path)->GetParentWindow().Get(), &Plugin.Window.GetWindow());
}

TEST(LaunchVelmoraTool, SizeOpensAWindowOfItsOwnAndGivesFalse)
{
	FRunningPlugin Plugin;
	const FString Path =
		Plugin.WriteTool(TEXT("A.json"), R"({ "InitTabSize": [300, 200], "InitTabPosition": [40, 50], "Root": { "SBox": {} } })");

	EXPECT_FALSE(UVelmoraData::LaunchVelmoraTool(TEXT("A.json")));

	const TSharedPtr<SWindow> Window = FindTab(Path)->GetParentWindow();
	EXPECT_NE(Window.Get(), &Plugin.Window.GetWindow());
	EXPECT_EQ(Window->GetClientSizeInScreen(), FVector2D(300.0, 200.0));
	EXPECT_EQ(Window->GetPositionInScreen(), FVector2D(40.0, 50.0));
	EXPECT_EQ(OpenToolTabs.Num(), 1);
}

TEST(LaunchVelmoraTool, SizeWithoutAPositionOpensAtTheCornerOfTheScreen)
{
	FRunningPlugin Plugin;
	const FString Path = Plugin.WriteTool(TEXT("A.json"), R"({ "InitTabSize": [300, 200], "Root": { "SBox": {} } })");
	FName TabId;
	FVector2D Size;
	FVector2D Position;
	FKestrixModule::Get().RegisterToolTab(TEXT("A.json"), TabId, Size, Position);
	EXPECT_EQ(Size, FVector2D(300.0, 200.0));
	EXPECT_EQ(Position, FVector2D(-1.0, -1.0));

	UVelmoraData::LaunchVelmoraTool(TEXT("A.json"));

	EXPECT_EQ(FindTab(Path)->GetParentWindow()->GetPositionInScreen(), FVector2D(0.0, 0.0));
}

TEST(LaunchVelmoraTool, OpenWindowStaysOneAtASecondLaunch)
{
	FRunningPlugin Plugin;
	const FString Path =
		Plugin.WriteTool(TEXT("A.json"), R"({ "InitPyCmd": "init", "InitTabSize": [300, 200], "Root": { "SBox": {} } })");
	UVelmoraData::LaunchVelmoraTool(TEXT("A.json"));
	const TSharedPtr<SWindow> Window = FindTab(Path)->GetParentWindow();
	const int32 NumWindows = FSlateApplication::Get().GetTopLevelWindows().Num();

	EXPECT_FALSE(UVelmoraData::LaunchVelmoraTool(TEXT("A.json")));

	EXPECT_EQ(FindTab(Path)->GetParentWindow(), Window);
	EXPECT_EQ(FSlateApplication::Get().GetTopLevelWindows().Num(), NumWindows);
	EXPECT_EQ(Plugin.Python.Take(), FLines({TEXT("init")}));
}

TEST(LaunchVelmoraTool, SecondLaunchBringsTheWindowToTheFront)
{
	FRunningPlugin Plugin;
	const FString Path = Plugin.WriteTool(TEXT("A.json"), R"({ "InitTabSize": [300, 200], "Root": { "SBox": {} } })");
	UVelmoraData::LaunchVelmoraTool(TEXT("A.json"));
	Plugin.Launch(TEXT("B.json"), EmptyTool);
	const TSharedRef<SDockTab> A = FindTab(Path);
	Plugin.Window.GetWindow().BringToFront();
	EXPECT_FALSE(A->IsActive());

	UVelmoraData::LaunchVelmoraTool(TEXT("A.json"));

	EXPECT_TRUE(A->IsActive());
	EXPECT_EQ(FSlateApplication::Get().GetActiveTopLevelWindow(), A->GetParentWindow());
}

TEST(LaunchVelmoraTool, TickOpensTheToolAfterTheFrame)
{
	FRunningPlugin Plugin;
	Plugin.Launch(TEXT("Ticker.json"), ToolWithRoot(TickingRoot));
	const FString Path = Plugin.WriteTool(TEXT("Other.json"), EmptyTool);
	Plugin.WriteTool(TEXT("Broken.json"), TEXT("{"));
	TArray<bool> Answers;
	bool bLiveAtOnce = true;
	Plugin.Python.SetOnCommand(
		[&]
		{
			if (Answers.Num() == 0)
			{
				for (const TCHAR* const Tool : {TEXT("Other.json"), TEXT("Broken.json"), TEXT("None.json")})
				{
					Answers.Add(UVelmoraData::LaunchVelmoraTool(Tool));
				}
				bLiveAtOnce = FGlobalTabmanager::Get()->FindExistingLiveTab(FTabId(FName(*Path))).IsValid();
			}
		});

	Plugin.Window.Frame();

	EXPECT_EQ(Answers, TArray<bool>({true, false, false}));
	EXPECT_FALSE(bLiveAtOnce);
	EXPECT_EQ(FindTab(Path)->GetParentWindow().Get(), &Plugin.Window.GetWindow());
}

TEST(LaunchVelmoraTool, TickOpensNothingAfterTheEndOfTheModule)
{
	FRunningPlugin Plugin;
	Plugin.Launch(TEXT("Ticker.json"), ToolWithRoot(TickingRoot));
	Plugin.WriteTool(TEXT("Other.json"), EmptyTool);
	Plugin.Python.SetOnCommand(
		[&]
		{
			UVelmoraData::LaunchVelmoraTool(TEXT("Other.json"));
			Plugin.Python.SetOnCommand(nullptr);
			Plugin.EndModule();
		});

	Plugin.Window.Frame();

	EXPECT_EQ(OpenToolTabs.Num(), 0);
}

TEST(LaunchVelmoraTool, ToolThatItsOwnStartAsksForAgainOpensOnceWithAWarning)
{
	for (const TCHAR* const Size : {TEXT(""), TEXT("\"InitTabSize\": [300, 200],")})
	{
		FRunningPlugin Plugin;
		const FString Path = Plugin.WriteTool(
			TEXT("A.json"), FString::Printf(TEXT("{ %s \"InitPyCmd\": \"again()\", \"Root\": { \"SBox\": {} } }"), Size));
		bool bAnswer = false;
		Plugin.Python.SetOnCommand(
			[&]
			{
				bAnswer = UVelmoraData::LaunchVelmoraTool(TEXT("A.json"));
				UVelmoraData::LaunchVelmoraTool(TEXT("/") + Path);
			});
		const FLogCapture Lines(TEXT("PythonKX"));

		EXPECT_EQ(UVelmoraData::LaunchVelmoraTool(TEXT("A.json")), bAnswer);

		EXPECT_EQ(Lines.Warnings(),
			FLines({TEXT("Tool A.json is opening already; its own opening asked for it again."),
				FString::Printf(TEXT("Tool /%s is opening already; its own opening asked for it again."), *Path)}));
		EXPECT_EQ(OpenToolTabs.Num(), 1);
		EXPECT_EQ(Plugin.Python.Take(), FLines({TEXT("again()")}));
	}
}

TEST(LaunchVelmoraTool, RegisteredToolThatNoLongerParsesOpensItsTabWithTheReason)
{
	FRunningPlugin Plugin;
	Plugin.Launch(TEXT("A.json"), EmptyTool);
	UVelmoraData::RequestClose(TEXT("A.json"));
	Plugin.WriteTool(TEXT("A.json"), TEXT("{ nonsense"));

	EXPECT_TRUE(UVelmoraData::LaunchVelmoraTool(TEXT("A.json")));

	EXPECT_EQ(OpenToolTabs.Num(), 1);
}

//
// RequestClose
//

TEST(RequestClose, OpenToolClosesByAnySpellingOfItsPath)
{
	FRunningPlugin Plugin;
	const FLogCapture Lines(TEXT("PythonKX"));
	for (const TCHAR* Spelling : {TEXT("Dir/A.json"), TEXT("dir/a.JSON"), TEXT("/elsewhere/Kestrix/Python/Dir/A.json")})
	{
		Plugin.Launch(TEXT("Dir/A.json"), EmptyTool);
		EXPECT_TRUE(UVelmoraData::RequestClose(Spelling));
		EXPECT_EQ(OpenToolTabs.Num(), 0);
	}
	EXPECT_EQ(Lines.Warnings(), FLines());
}

TEST(RequestClose, TabThatMayNotCloseStaysAndGivesFalse)
{
	FRunningPlugin Plugin;
	Plugin.Launch(TEXT("A.json"), EmptyTool);
	OpenToolTabs[0]->SetCanCloseTab(SDockTab::FCanCloseTab::CreateLambda([] { return false; }));

	EXPECT_FALSE(UVelmoraData::RequestClose(TEXT("A.json")));

	EXPECT_EQ(OpenToolTabs.Num(), 1);
	OpenToolTabs[0]->SetCanCloseTab(SDockTab::FCanCloseTab());
}

TEST(RequestClose, ClosedToolIsReportedWithTheKnownOnes)
{
	FRunningPlugin Plugin;
	Plugin.Launch(TEXT("A.json"), EmptyTool);
	Plugin.Launch(TEXT("B.json"), EmptyTool);
	UVelmoraData::RequestClose(TEXT("A.json"));
	const FLogCapture Lines;

	EXPECT_FALSE(UVelmoraData::RequestClose(TEXT("A.json")));

	EXPECT_EQ(Lines.Lines(),
		FLines({Warning(TEXT("Can't find tab: A.json")), Warning(TEXT("Can't find Tab:")),
			Warning(TEXT("\t Exists: Tab: A.json vs A.json")), Warning(TEXT("\t Exists: Tab: A.json vs B.json"))}));
	EXPECT_EQ(OpenToolTabs.Num(), 1);
}

TEST(RequestClose, UnknownToolIsReportedWithTheKnownOnes)
{
	FRunningPlugin Plugin;
	Plugin.Launch(TEXT("A.json"), EmptyTool);
	const FLogCapture Lines;

	EXPECT_FALSE(UVelmoraData::RequestClose());

	EXPECT_EQ(Lines.Lines(), FLines({Warning(TEXT("Can't find Tab:")), Warning(TEXT("\t Exists: Tab: None vs A.json"))}));
}

TEST(RequestClose, ClosedToolOfTheSameShortPathIsPassedOver)
{
	FRunningPlugin Plugin;
	Plugin.Launch(TEXT("A.json"), EmptyTool);
	const FString Other = Plugin.Project.Write(TEXT("Other/Kestrix/Python/A.json"), EmptyTool);
	UVelmoraData::LaunchVelmoraTool(Other);
	UVelmoraData::RequestClose(TEXT("A.json"));
	EXPECT_EQ(OpenToolTabs.Num(), 1);
	const FLogCapture Lines(TEXT("PythonKX"));

	EXPECT_TRUE(UVelmoraData::RequestClose(TEXT("A.json")));

	EXPECT_EQ(OpenToolTabs.Num(), 0);
	EXPECT_EQ(Lines.Warnings(), FLines({TEXT("Can't find tab: A.json")}));
}

TEST(RequestClose, OpenTabThatIsNotRegisteredClosesAfterAWarning)
{
	FRunningPlugin Plugin;
	Plugin.Launch(TEXT("A.json"), EmptyTool);
	const TArray<FName> Registered = MoveTemp(RegisteredToolTabIds);
	RegisteredToolTabIds.Empty();
	const FLogCapture Lines(TEXT("PythonKX"));

	EXPECT_TRUE(UVelmoraData::RequestClose(TEXT("A.json")));

	EXPECT_EQ(OpenToolTabs.Num(), 0);
	EXPECT_EQ(Lines.Warnings(), FLines({TEXT("Can't find Tab:")}));
	RegisteredToolTabIds = Registered;
}

TEST(RequestClose, CloseCommandMayAskForItAgain)
{
	FRunningPlugin Plugin;
	Plugin.Launch(TEXT("A.json"), R"json({ "InitPyCmd": "", "OnClosePyCmd": "bye()", "Root": { "SBox": {} } })json");
	int32 NumCommands = 0;
	Plugin.Python.SetOnCommand(
		[&NumCommands]
		{
			if (++NumCommands < 10)
			{
				UVelmoraData::RequestClose(TEXT("A.json"));
			}
		});

	EXPECT_TRUE(UVelmoraData::RequestClose(TEXT("A.json")));

	EXPECT_EQ(NumCommands, 1);
	EXPECT_EQ(OpenToolTabs.Num(), 0);
}

TEST(RequestClose, ToolMayCloseItselfFromTheClickOfItsButton)
{
	FRunningPlugin Plugin;
	UVelmoraData& Data = Plugin.Launch(TEXT("A.json"), ToolWithRoot(R"json({ "SVerticalBox": { "Slots": [
		{ "AutoHeight": true, "SButton": { "Aka": "Close", "Text": "Close", "OnClick": "close()" } } ] } })json"));
	bool bClosed = false;
	Plugin.Python.SetOnCommand([&bClosed] { bClosed = UVelmoraData::RequestClose(TEXT("A.json")); });

	Plugin.Window.Click(Data.GetNamedWidget("Close").ToSharedRef());

	EXPECT_TRUE(bClosed);
	EXPECT_EQ(OpenToolTabs.Num(), 0);
}

//
// SnapshotVelmoraWindow
//

namespace
{
/** A tool with a field and a button, in a window of its own or in a tab. */
struct FSnapshotTool
{
	explicit FSnapshotTool(const TCHAR* Geometry = TEXT(""))
		: Data(Plugin.Launch(
			  TEXT("Dir/A.json"), FString::Printf(TEXT("{ \"InitPyCmd\": \"\", %s \"Root\": %s }"), Geometry, Root)))
		, Tab(FindTab(Plugin.Project.Path(TEXT("KX/Kestrix/Python/Dir/A.json"))))
	{
	}

	const TCHAR* Root =
		TEXT("{ \"SVerticalBox\": { \"Slots\": ["
			 "{ \"AutoHeight\": true, \"SEditableTextBox\": { \"Aka\": \"Field\" } },"
			 "{ \"AutoHeight\": true, \"SButton\": { \"Aka\": \"Button\", \"Text\": \"Go\", \"OnClick\": \"go()\" } } ] } }");

	FRunningPlugin Plugin;
	UVelmoraData& Data;
	TSharedRef<SDockTab> Tab;
};
}

TEST(SnapshotVelmoraWindow, PictureHasTheSizeOfTheWindowAndANameWithTheTime)
{
	FSnapshotTool Tool;
	const FLogCapture Lines(TEXT("PythonKX"));

	const FString Path = UVelmoraData::SnapshotVelmoraWindow(TEXT("dir/a.json"));

	EXPECT_EQ(SizeOfPng(Path), FIntPoint(640, 480));
	const FString Folder = Tool.Plugin.Project.Path(TEXT("Saved/Screenshots/LinuxEditor/KestrixVelmoraUI/a_"));
	EXPECT_TRUE(Path.StartsWith(Folder, ESearchCase::CaseSensitive)) << TCHAR_TO_UTF8(*Path);
	EXPECT_EQ(Path.Len(), Folder.Len() + FString(TEXT("20220405_101112.png")).Len());
	EXPECT_EQ(Lines.Lines(),
		FLines({Log(TEXT("OutSizeB: 640, 480")), Log(TEXT("WindowSize: 640.000000 480.000000  vs OutSize: 640, 480")),
			Log(TEXT("SnapshotVelmora OutSize: 640, 480 @ ") + Path)}));
}

TEST(SnapshotVelmoraWindow, PictureShowsWhatTheWindowShows)
{
	FSnapshotTool Tool;
	TArray<FColor> Shown;
	FIntVector Size;
	FSlateApplication::Get().TakeScreenshot(Tool.Tab->GetParentWindow().ToSharedRef(), Shown, Size);

	const FString Path = UVelmoraData::SnapshotVelmoraWindow(TEXT("Dir/A.json"));

	TArray<uint8> File;
	ASSERT_TRUE(FFileHelper::LoadFileToArray(File, *Path));
	png_image Image = {};
	Image.version = PNG_IMAGE_VERSION;
	ASSERT_TRUE(png_image_begin_read_from_memory(&Image, File.GetData(), SIZE_T(File.Num())));
	Image.format = PNG_FORMAT_BGRA;
	TArray<FColor> Saved;
	Saved.SetNum(Shown.Num());
	ASSERT_TRUE(png_image_finish_read(&Image, nullptr, Saved.GetData(), 0, nullptr));
	EXPECT_TRUE(Saved == Shown);
}

TEST(SnapshotVelmoraWindow, GivenSizeMayBeLargerThanTheScreen)
{
	FSnapshotTool Tool;
	const FString Path = Tool.Plugin.Project.Path(TEXT("Pictures/New/A.png"));

	EXPECT_EQ(UVelmoraData::SnapshotVelmoraWindow(TEXT("Dir/A.json"), FVector2D(2500.0, 1200.0), Path), Path);

	EXPECT_EQ(SizeOfPng(Path), FIntPoint(2500, 1200));
	Tool.Plugin.Window.Frame();
	EXPECT_EQ(Tool.Plugin.Window.GetWindow().GetClientSizeInScreen(), FVector2D(640.0, 480.0));
}

TEST(SnapshotVelmoraWindow, RelativeFileNameCountsFromTheProject)
{
	FSnapshotTool Tool;

	const FString Path = UVelmoraData::SnapshotVelmoraWindow(TEXT("Dir/A.json"), FVector2D::ZeroVector, TEXT("Pictures//A.png"));

	EXPECT_EQ(Path, Tool.Plugin.Project.Path(TEXT("Pictures/A.png")));
	EXPECT_EQ(SizeOfPng(Path), FIntPoint(640, 480));
}

TEST(SnapshotVelmoraWindow, WindowWithoutPixelsGivesAnEmptyText)
{
	FRunningPlugin Plugin;
	const TSharedRef<SDockTab> Tab = SNew(SDockTab);
	const TSharedRef<SWindow> NeverShown = SNew(SWindow)[Tab];
	OpenToolTabs.Add(Tab);
	const FString ToolsPath = Tab->GetLayoutIdentifier().ToString();
	ASSERT_EQ(FSlateApplication::Get().FindWidgetWindow(Tab), NeverShown);

	EXPECT_EQ(UVelmoraData::SnapshotVelmoraWindow(ToolsPath), FString());
}

TEST(SnapshotVelmoraWindow, NothingIsFocusedAfterwardsIfNothingWas)
{
	FSnapshotTool Tool;
	FSlateApplication::Get().ClearKeyboardFocus();
	const FLogCapture Lines(TEXT("LogOutputDevice"));

	UVelmoraData::SnapshotVelmoraWindow(TEXT("Dir/A.json"));

	EXPECT_FALSE(FSlateApplication::Get().GetKeyboardFocusedWidget().IsValid());
	EXPECT_EQ(Lines.Errors(), FLines());
}

TEST(SnapshotVelmoraWindow, TickGetsThePathAtOnceAndThePictureAfterTheFrame)
{
	FRunningPlugin Plugin;
	FString Path;
	bool bThereAtOnce = true;
	Plugin.Launch(TEXT("A.json"), ToolWithRoot(TickingRoot));
	Plugin.Python.SetOnCommand(
		[&]
		{
			if (Path.IsEmpty())
			{
				Path = UVelmoraData::SnapshotVelmoraWindow(TEXT("A.json"), FVector2D(320.0, 240.0), TEXT("Tick.png"));
				bThereAtOnce = FPaths::FileExists(Path);
			}
		});

	Plugin.Window.Frame();

	EXPECT_EQ(Path, Plugin.Project.Path(TEXT("Tick.png")));
	EXPECT_FALSE(bThereAtOnce);
	EXPECT_EQ(SizeOfPng(Path), FIntPoint(320, 240));
}

TEST(SnapshotVelmoraWindow, FileThatCannotBeWrittenGivesAnEmptyText)
{
	FSnapshotTool Tool;
	Tool.Plugin.Project.Write(TEXT("File"), TEXT("in the way"));

	EXPECT_EQ(UVelmoraData::SnapshotVelmoraWindow(
				  TEXT("Dir/A.json"), FVector2D::ZeroVector, Tool.Plugin.Project.Path(TEXT("File/A.png"))),
		FString());
}

TEST(SnapshotVelmoraWindow, ClosedToolGivesAnEmptyTextWithoutAWord)
{
	FSnapshotTool Tool;
	UVelmoraData::RequestClose(TEXT("Dir/A.json"));
	const FLogCapture Lines;

	EXPECT_EQ(UVelmoraData::SnapshotVelmoraWindow(TEXT("Dir/A.json")), FString());

	EXPECT_EQ(Lines.Lines(), FLines());
}

TEST(SnapshotVelmoraWindow, ToolThatIsJustClosingGivesAnEmptyText)
{
	FRunningPlugin Plugin;
	Plugin.Launch(TEXT("A.json"), R"json({ "InitPyCmd": "", "OnClosePyCmd": "bye()", "Root": { "SBox": {} } })json");
	FString Path = TEXT("not asked");
	Plugin.Python.SetOnCommand([&Path] { Path = UVelmoraData::SnapshotVelmoraWindow(TEXT("A.json")); });

	UVelmoraData::RequestClose(TEXT("A.json"));

	EXPECT_EQ(Path, FString());
}

TEST(SnapshotVelmoraWindow, WindowIsItselfAgainAfterwards)
{
	FSnapshotTool Tool;
	FSlateTestWindow& Window = Tool.Plugin.Window;
	const TSharedRef<SWidget> Button = Tool.Data.GetNamedWidget("Button").ToSharedRef();
	Window.Click(Button);
	EXPECT_EQ(Tool.Plugin.Python.Take(), FLines({TEXT("go()")}));
	Window.Click(Tool.Data.GetNamedWidget("Field").ToSharedRef());
	const TSharedPtr<SWidget> Focused = FSlateApplication::Get().GetKeyboardFocusedWidget();
	const FVector2D Place = Window.MiddleOf(*Button);
	const TArray<TSharedRef<SWindow>> Windows = FSlateApplication::Get().GetTopLevelWindows();
	TArray<FColor> Before;
	FIntVector Size;
	FSlateApplication::Get().TakeScreenshot(Button, Before, Size);

	UVelmoraData::SnapshotVelmoraWindow(TEXT("Dir/A.json"), FVector2D(1000.0, 900.0));
	Window.Frame();

	EXPECT_EQ(FSlateApplication::Get().GetTopLevelWindows(), Windows);
	EXPECT_EQ(FSlateApplication::Get().GetActiveTopLevelWindow().Get(), &Window.GetWindow());
	EXPECT_TRUE(Window.GetWindow().GetNativeWindow()->IsForegroundWindow());
	EXPECT_EQ(FSlateApplication::Get().FindWidgetWindow(Button).Get(), &Window.GetWindow());
	EXPECT_FALSE(Window.GetWindow().GetParentWidget().IsValid());
	EXPECT_EQ(Window.GetWindow().GetClientSizeInScreen(), FVector2D(640.0, 480.0));
	EXPECT_EQ(Window.MiddleOf(*Button), Place);
	TArray<FColor> After;
	FSlateApplication::Get().TakeScreenshot(Button, After, Size);
	EXPECT_TRUE(After == Before);

	EXPECT_EQ(FSlateApplication::Get().GetKeyboardFocusedWidget(), Focused);
	Window.TypeText(TEXT("typed"));
	FString Text;
	Tool.Data.GetText("Field", Text);
	EXPECT_EQ(Text, FString(TEXT("typed")));
	Tool.Plugin.Python.Take();
	Window.Click(Button);
	EXPECT_EQ(Tool.Plugin.Python.Take().Last(), FString(TEXT("go()")));
}

TEST(SnapshotVelmoraWindow, ScrollBoxesAndLongFieldsStandWhereTheyStoodAtOnce)
{
	FString Lines;
	for (int32 Line = 0; Line < 300; ++Line)
	{
		Lines += TEXT("line\\n");
	}
	FRunningPlugin Plugin;
	UVelmoraData& Data = Plugin.Launch(TEXT("A.json"),
		ToolWithRoot(TCHAR_TO_UTF8(
			*FString::Printf(TEXT("{ \"SHorizontalBox\": { \"Slots\": ["
								  "{ \"SScrollBox\": { \"Aka\": \"Box\", \"Slots\": [ { \"SBox\": { "
								  "\"HeightOverride\": 900 } } ] } },"
								  "{ \"SMultiLineEditableTextBox\": { \"Aka\": \"Field\", \"Text\": \"%s\" } } ] } }"),
				*Lines))));
	Data.SetScrollBoxOffset("Box", 200.0f);
	Data.ScrollTo("Field", 200, 0);
	Plugin.Window.Frame();
	TArray<FColor> Before;
	FIntVector Size;
	const TSharedRef<SWidget> Field = Data.GetNamedWidget("Field").ToSharedRef();
	FSlateApplication::Get().TakeScreenshot(Field, Before, Size);

	UVelmoraData::SnapshotVelmoraWindow(TEXT("A.json"), FVector2D(800.0, 9000.0));

	TMap<FString, float> Offsets = Data.GetScrollBoxOffsets("Box");
	EXPECT_EQ(Offsets.FindRef(TEXT("Offset")), 200.0f);
	EXPECT_LT(Offsets.FindRef(TEXT("ViewFraction")), 1.0f);
	Data.SetScrollBoxOffset("Box", 0.0f);
	Plugin.Window.Frame();
	EXPECT_EQ(Data.GetScrollBoxOffsets("Box").FindRef(TEXT("Offset")), 0.0f);
	TArray<FColor> After;
	FSlateApplication::Get().TakeScreenshot(Field, After, Size);
	EXPECT_TRUE(After == Before);
}

TEST(SnapshotVelmoraWindow, ToolMayTakeItsPictureFromTheClickOfItsButton)
{
	FSnapshotTool Tool;
	FSlateTestWindow& Window = Tool.Plugin.Window;
	FString Path;
	Tool.Plugin.Python.SetOnCommand(
		[&Path] { Path = UVelmoraData::SnapshotVelmoraWindow(TEXT("Dir/A.json"), FVector2D(900.0, 900.0)); });
	const TSharedRef<SWidget> Button = Tool.Data.GetNamedWidget("Button").ToSharedRef();

	Window.Click(Button);
	EXPECT_EQ(SizeOfPng(Path), FIntPoint(900, 900));

	Window.Click(Button);
	EXPECT_EQ(Tool.Plugin.Python.Take(), FLines({TEXT("go()"), TEXT("go()")}));
}

TEST(SnapshotVelmoraWindow, PicturesOfToolsInWindowsOfTheirOwnShowOnlyThem)
{
	FSnapshotTool Tool(TEXT("\"InitTabSize\": [300, 200],"));

	EXPECT_EQ(SizeOfPng(UVelmoraData::SnapshotVelmoraWindow(TEXT("Dir/A.json"))), FIntPoint(300, 200));

	EXPECT_EQ(Tool.Tab->GetParentWindow()->GetClientSizeInScreen(), FVector2D(300.0, 200.0));
}
