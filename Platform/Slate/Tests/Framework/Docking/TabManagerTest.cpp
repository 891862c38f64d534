#include <gtest/gtest.h>

#include "Framework/Docking/TabManager.h"
#include "LogCapture.h"
#include "SlateTestWindow.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"

namespace
{
const TSharedRef<FGlobalTabmanager>& Manager()
{
	return FGlobalTabmanager::Get();
}

/** A window whose content is a tab well, and spawners that are gone with it. */
struct FTabWindow
{
	FSlateTestWindow Window;
	TArray<FName> Registered;
	TArray<FString> Log;

	FTabWindow()
		: Window(MakeWell())
	{
	}

	~FTabWindow()
	{
		for (const TSharedRef<SDockTab>& Tab : Manager()->GetLiveTabs())
		{
			Tab->SetCanCloseTab(SDockTab::FCanCloseTab());
			Tab->RequestCloseTab();
		}
		for (const FName Name : Registered)
		{
			Manager()->UnregisterNomadTabSpawner(Name);
		}
	}

	static TSharedRef<SWidget> MakeWell()
	{
		return Manager()
			->RestoreFrom(
				FTabManager::NewLayout("Test")->AddArea(FTabManager::NewPrimaryArea()->Split(FTabManager::NewStack())), nullptr)
			.ToSharedRef();
	}

	void Register(FName Name)
	{
		Registered.Add(Name);
		Manager()
			->RegisterNomadTabSpawner(Name,
				FOnSpawnTab::CreateLambda(
					[this, Name](const FSpawnTabArgs& Args)
					{
						Log.Add(TEXT("spawn ") + Name.ToString());
						return SNew(SDockTab)
							.TabRole(ETabRole::NomadTab)
							.OnTabClosed_Lambda(
								[this, Name](TSharedRef<SDockTab> Tab)
								{
									const TCHAR* const Live =
										Manager()->FindExistingLiveTab(Name).IsValid() ? TEXT(" while live") : TEXT("");
									Log.Add(TEXT("closed ") + Name.ToString() + Live);
								})[SNew(SBorder)];
					}))
			.SetDisplayName(FText::FromString(TEXT("The ") + Name.ToString()));
	}
};
}

TEST(TabManager, ATabShowsTheDisplayNameOfItsSpawnerAndGetsItsIdentifier)
{
	FTabWindow Tabs;
	Tabs.Register("A");

	const TSharedPtr<SDockTab> Tab = Manager()->TryInvokeTab(FName("A"));

	ASSERT_TRUE(Tab.IsValid());
	EXPECT_EQ(Tab->GetTabLabel().ToString(), TEXT("The A"));
	EXPECT_EQ(Tab->GetLayoutIdentifier().ToString(), TEXT("A"));
	EXPECT_EQ(Manager()->FindExistingLiveTab(FName("A")), Tab);
}

TEST(TabManager, IsNotLiveBeforeItsSpawnerHasReturned)
{
	FTabWindow Tabs;
	bool bLiveWithin = true;
	Tabs.Registered.Add("Early");
	Manager()->RegisterNomadTabSpawner("Early",
		FOnSpawnTab::CreateLambda(
			[&bLiveWithin](const FSpawnTabArgs&)
			{
				bLiveWithin = Manager()->FindExistingLiveTab(FName("Early")).IsValid();
				return SNew(SDockTab);
			}));

	Manager()->TryInvokeTab(FName("Early"));

	EXPECT_FALSE(bLiveWithin);
}

TEST(TabManager, InvokingALiveTabBringsItToTheFrontWithoutSpawning)
{
	FTabWindow Tabs;
	Tabs.Register("A");
	Tabs.Register("B");
	const TSharedPtr<SDockTab> A = Manager()->TryInvokeTab(FName("A"));
	const TSharedPtr<SDockTab> B = Manager()->TryInvokeTab(FName("B"));
	EXPECT_FALSE(A->IsForeground());

	EXPECT_EQ(Manager()->TryInvokeTab(FName("A")), A);

	EXPECT_TRUE(A->IsForeground());
	EXPECT_EQ(Tabs.Log, TArray<FString>({TEXT("spawn A"), TEXT("spawn B")}));
}

TEST(TabManager, AnUnknownIdentifierGivesNoTabAndAWarning)
{
	const FLogCapture Log(TEXT("LogTabManager"));

	EXPECT_FALSE(Manager()->TryInvokeTab(FName("Nobody")).IsValid());

	EXPECT_EQ(Log.Warnings(), TArray<FString>({TEXT("There is no tab spawner for 'Nobody'.")}));
}

TEST(TabManager, ClosingAsksThenRemovesThenTells)
{
	FTabWindow Tabs;
	Tabs.Register("A");
	const TSharedPtr<SDockTab> Tab = Manager()->TryInvokeTab(FName("A"));
	Tab->SetCanCloseTab(SDockTab::FCanCloseTab::CreateLambda([] { return false; }));
	EXPECT_FALSE(Tab->RequestCloseTab());
	EXPECT_TRUE(Manager()->FindExistingLiveTab(FName("A")).IsValid());

	Tab->SetCanCloseTab(SDockTab::FCanCloseTab::CreateLambda([] { return true; }));
	EXPECT_TRUE(Tab->RequestCloseTab());

	EXPECT_FALSE(Manager()->FindExistingLiveTab(FName("A")).IsValid());
	EXPECT_EQ(Tabs.Log, TArray<FString>({TEXT("spawn A"), TEXT("closed A")}));
}

TEST(TabManager, ActiveTabChangesAreToldOnceWithThePreviousAndTheNewTab)
{
	FTabWindow Tabs;
	Tabs.Register("A");
	Tabs.Register("B");
	const TSharedPtr<SDockTab> A = Manager()->TryInvokeTab(FName("A"));
	TArray<FString> Changes;
	const auto NameOf = [](const TSharedPtr<SDockTab>& Tab)
	{
		return Tab.IsValid() ? Tab->GetLayoutIdentifier().ToString() : FString(TEXT("none"));
	};
	const FDelegateHandle Handle = Manager()->OnActiveTabChanged_Subscribe(
		FOnActiveTabChanged::FDelegate::CreateLambda([&](TSharedPtr<SDockTab> Previous, TSharedPtr<SDockTab> New)
			{ Changes.Add(NameOf(Previous) + TEXT(">") + NameOf(New)); }));

	const TSharedPtr<SDockTab> B = Manager()->TryInvokeTab(FName("B"));
	Manager()->TryInvokeTab(FName("B"));
	B->RequestCloseTab();
	Manager()->OnActiveTabChanged_Unsubscribe(Handle);

	EXPECT_EQ(Changes, TArray<FString>({TEXT("A>B"), TEXT("B>A")}));
}

TEST(TabManager, AClickOnAHandleBringsItsTabToTheFrontAndTheMiddleButtonClosesIt)
{
	FTabWindow Tabs;
	Tabs.Register("A");
	Tabs.Register("B");
	const TSharedPtr<SDockTab> A = Manager()->TryInvokeTab(FName("A"));
	const TSharedPtr<SDockTab> B = Manager()->TryInvokeTab(FName("B"));
	Tabs.Window.Frame();

	Tabs.Window.ClickAt(A->GetPaintSpaceGeometry().GetAbsolutePosition() + FVector2D(8.0, 8.0));
	EXPECT_TRUE(A->IsForeground());
	Tabs.Window.ClickAt(B->GetPaintSpaceGeometry().GetAbsolutePosition() + FVector2D(8.0, 8.0), EMouseButtons::Middle);
	EXPECT_FALSE(Manager()->FindExistingLiveTab(FName("B")).IsValid());
}

TEST(TabManager, ALayoutOpensAnAreaInAWindowOfItsOwnSizeAndTitle)
{
	FTabWindow Tabs;
	Tabs.Register("A");

	Manager()->RestoreFrom(
		FTabManager::NewLayout("Own")->AddArea(FTabManager::NewArea(FVector2D(300.0, 200.0))
												   ->SetWindow(FVector2D(50.0, 60.0), false)
												   ->Split(FTabManager::NewStack()->AddTab(FName("A"), ETabState::OpenedTab))),
		nullptr, true);

	const TSharedPtr<SDockTab> Tab = Manager()->FindExistingLiveTab(FName("A"));
	ASSERT_TRUE(Tab.IsValid());
	const TSharedPtr<SWindow> Window = Tab->GetParentWindow();
	EXPECT_NE(Window.Get(), &Tabs.Window.GetWindow());
	EXPECT_EQ(Window->GetSizeInScreen(), FVector2D(300.0, 200.0));
	EXPECT_EQ(Window->GetPositionInScreen(), FVector2D(50.0, 60.0));
	EXPECT_EQ(Window->GetTitle().ToString(), TEXT("The A"));

	Tab->RequestCloseTab();
	Tabs.Window.Frame();
	EXPECT_FALSE(FSlateApplication::Get().GetTopLevelWindows().Contains(Window.ToSharedRef()));
}

TEST(TabManager, ClosingAWindowClosesItsTabs)
{
	FTabWindow Tabs;
	Tabs.Register("A");
	Manager()->RestoreFrom(
		FTabManager::NewLayout("Own")->AddArea(FTabManager::NewArea(FVector2D(300.0, 200.0))
												   ->Split(FTabManager::NewStack()->AddTab(FName("A"), ETabState::OpenedTab))),
		nullptr);

	Manager()->FindExistingLiveTab(FName("A"))->GetParentWindow()->RequestDestroyWindow();

	EXPECT_EQ(Tabs.Log, TArray<FString>({TEXT("spawn A"), TEXT("closed A")}));
}

TEST(TabManager, TheContentOfATabInTheBackgroundIsInNoWindowAndItsHandleIs)
{
	FTabWindow Tabs;
	Tabs.Register("A");
	Tabs.Register("B");
	const TSharedPtr<SDockTab> A = Manager()->TryInvokeTab(FName("A"));
	Manager()->TryInvokeTab(FName("B"));

	EXPECT_FALSE(FSlateApplication::Get().FindWidgetWindow(A->GetContent()).IsValid());
	EXPECT_EQ(FSlateApplication::Get().FindWidgetWindow(A.ToSharedRef()).Get(), &Tabs.Window.GetWindow());
}

TEST(TabId, PrintsTheTypeAndTheInstanceIfThereIsOne)
{
	EXPECT_EQ(FTabId("Type").ToString(), TEXT("Type"));
	EXPECT_EQ(FTabId("Type", 3).ToString(), TEXT("Type:3"));
}

TEST(TabManager, TabsThatHaveNoRoomSideBySideShareIt)
{
	FTabWindow Tabs;
	TArray<TSharedPtr<SDockTab>> Made;
	for (int32 Index = 0; Index < 12; ++Index)
	{
		const FName Name(*FString::Printf(TEXT("A tab with a long label %d"), Index));
		Tabs.Register(Name);
		Made.Add(Manager()->TryInvokeTab(Name));
	}
	Tabs.Register("S");
	Made.Add(Manager()->TryInvokeTab(FName("S")));
	Tabs.Window.Frame();

	const auto WidthOf = [&Made](int32 Index)
	{
		return Made[Index]->GetTickSpaceGeometry().GetLocalSize().X;
	};
	EXPECT_LE(Tabs.Window.MiddleOf(*Made.Last()).X + WidthOf(12) / 2.0, 640.0);
	EXPECT_DOUBLE_EQ(WidthOf(0), WidthOf(11));
	EXPECT_LT(WidthOf(0), Made[0]->GetDesiredSize().X);
	EXPECT_LE(WidthOf(12), WidthOf(0));
}

// FArea::Split takes any layout node.
TEST(TabManager, AnAreaIsSplitIntoStacksAndSplittersWithStacks)
{
	FTabWindow Tabs;
	for (const FName Name : {"A", "B", "C"})
	{
		Tabs.Register(Name);
	}
	const auto StackOf = [](FName Name)
	{
		return FTabManager::NewStack()->AddTab(Name, ETabState::OpenedTab);
	};
	const TSharedRef<FTabManager::FSplitter> Column = FTabManager::NewSplitter()
														  ->SetOrientation(Orient_Vertical)
														  ->SetSizeCoefficient(0.25f)
														  ->Split(StackOf("A"))
														  ->Split(StackOf("B")->SetSizeCoefficient(3.0f));
	const TSharedRef<FTabManager::FArea> Area =
		FTabManager::NewPrimaryArea()->Split(Column)->Split(StackOf("C")->SetSizeCoefficient(0.75f));

	const TSharedPtr<SWidget> Content = Manager()->RestoreFrom(FTabManager::NewLayout("Split")->AddArea(Area), nullptr);
	FSlateTestWindow Window(Content.ToSharedRef(), FVector2D(800.0, 400.0));

	const auto PlaceOf = [](FName Name)
	{
		return Manager()->FindExistingLiveTab(Name)->GetPaintSpaceGeometry().GetAbsolutePosition();
	};
	const FVector2D First = PlaceOf("A");
	EXPECT_EQ(PlaceOf("B") - First, FVector2D(0.0, 100.0));
	EXPECT_EQ(PlaceOf("C") - First, FVector2D(200.0, 0.0));
}

TEST(TabManager, AnAreaWithAWindowOpensTheTabsOfItsSplittersToo)
{
	FTabWindow Tabs;
	Tabs.Register("A");
	Manager()->RestoreFrom(
		FTabManager::NewLayout("Own")->AddArea(
			FTabManager::NewArea(FVector2D(300.0, 200.0))
				->Split(FTabManager::NewSplitter()->Split(FTabManager::NewStack()->AddTab(FName("A"), ETabState::OpenedTab)))),
		nullptr);

	EXPECT_TRUE(Manager()->FindExistingLiveTab(FName("A")).IsValid());
}
