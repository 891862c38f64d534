#include "MainWindow.h"

#include "Framework/Docking/TabManager.h"
#include "Misc/App.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SOverlay.h"
#include "Widgets/SWindow.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
const FVector2D InitialSize(1280.0, 800.0);
const FVector2D SmallestSize(320.0, 200.0);
const FLinearColor HintColor(0.25f, 0.25f, 0.25f);

/** What the main window says while it shows no tab, so that nobody takes an editor without a tool for a broken one. */
TSharedRef<SWidget> MakeHint()
{
	const auto IsNeeded = []
	{
		return FGlobalTabmanager::Get()->GetLiveTabs().Num() == 0 ? EVisibility::HitTestInvisible : EVisibility::Collapsed;
	};
	// clang-format off
	return SNew(SBox)
		.HAlign(HAlign_Center)
		.VAlign(VAlign_Center)
		.Padding(FMargin(16.0f))
		.Visibility(TAttribute<EVisibility>::Create(IsNeeded))
		[
			SNew(STextBlock)
			.Text(FText::FromString(TEXT("No tool is open.\n"
				"Python opens tools: Content/Python/init_unreal.py of the project runs at each start,\n"
				"a script that the command line names with -ExecutePythonScript=FILE at this one.")))
			.Justification(ETextJustify::Center)
			.ColorAndOpacity(HintColor)
		];
	// clang-format on
}
}

TSharedRef<SWindow> MakeMainWindow()
{
	const FText Title = FText::FromString(FString::Printf(TEXT("Untitled - %s - Unreal Editor"), FApp::GetProjectName()));
	const TSharedRef<FTabManager::FLayout> Layout =
		FTabManager::NewLayout("MainFrame")->AddArea(FTabManager::NewPrimaryArea()->Split(FTabManager::NewStack()));
	// clang-format off
	return SNew(SWindow)
		.Title(Title)
		.ClientSize(InitialSize)
		.MinWidth(SmallestSize.X)
		.MinHeight(SmallestSize.Y)
		[
			SNew(SOverlay)
			+ SOverlay::Slot()
			[
				FGlobalTabmanager::Get()->RestoreFrom(Layout, nullptr).ToSharedRef()
			]
			+ SOverlay::Slot()
			[
				MakeHint()
			]
		];
	// clang-format on
}
