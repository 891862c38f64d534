#include "Framework/Docking/SDockingTabStack.h"

#include "Framework/Application/SlateApplication.h"
#include "Framework/Docking/SDockingTabWell.h"
#include "Framework/Docking/TabManager.h"
#include "Styling/AppStyle.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SWindow.h"

void SDockingTabStack::Construct(const FArguments& InArgs)
{
	const FDockTabStyle& Style = FAppStyle::Get().GetWidgetStyle<FDockTabStyle>("Docking.Tab");
	// clang-format off
	ChildSlot
	[
		SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		.AutoHeight()
		[
			SNew(SBorder)
			.BorderImage(&Style.TabWellBrush)
			.Padding(FMargin(4.0f, 4.0f, 4.0f, 0.0f))
			[
				SAssignNew(Well, SDockingTabWell)
			]
		]
		+ SVerticalBox::Slot()
		[
			SAssignNew(ContentArea, SBorder)
			.BorderImage(&Style.ContentAreaBrush)
			.Padding(FMargin(0.0f))
		]
	];
	// clang-format on
	ContentArea->SetClipping(EWidgetClipping::ClipToBounds);
}

void SDockingTabStack::AddTab(const TSharedRef<SDockTab>& Tab)
{
	Tabs.Add(Tab);
	Tab->SetParentStack(SharedThis(this));
	Well->AddSlot().AutoWidth().Padding(FMargin(0.0f, 0.0f, 2.0f, 0.0f))[Tab];
	BringToFront(Tab);
}

void SDockingTabStack::BringToFront(const TSharedRef<SDockTab>& Tab)
{
	if (Foreground == Tab)
	{
		return;
	}
	Foreground = Tab;
	ContentArea->SetContent(Tab->GetContent());
	for (const TSharedRef<SDockTab>& Each : Tabs)
	{
		Each->Invalidate(EInvalidateWidgetReason::Paint);
	}
	UpdateWindowTitle();
}

void SDockingTabStack::ShowContentOf(const TSharedRef<SDockTab>& Tab)
{
	if (Foreground == Tab)
	{
		ContentArea->SetContent(Tab->GetContent());
	}
}

void SDockingTabStack::RemoveTab(const TSharedRef<SDockTab>& Tab)
{
	const int32 Index = Tabs.Find(Tab);
	if (Index == INDEX_NONE)
	{
		return;
	}
	Tabs.RemoveAt(Index);
	Well->RemoveSlot(Tab);
	Tab->SetParentStack(nullptr);
	if (Foreground == Tab)
	{
		Foreground.Reset();
		ContentArea->ClearContent();
		if (Tabs.Num() > 0)
		{
			BringToFront(TSharedRef<SDockTab>(Tabs[FMath::Min(Index, Tabs.Num() - 1)]));
		}
	}
	const TSharedPtr<SWindow> Window = OwnWindow.Pin();
	if (Tabs.Num() == 0 && Window.IsValid())
	{
		FSlateApplication::Get().RequestDestroyWindow(Window.ToSharedRef());
	}
}

void SDockingTabStack::SetOwnWindow(const TSharedRef<SWindow>& InWindow)
{
	OwnWindow = InWindow;
	InWindow->SetRequestDestroyWindowOverride(
		FRequestDestroyWindowOverride::CreateSP(this, &SDockingTabStack::OnWindowWantsToClose));
}

void SDockingTabStack::UpdateWindowTitle()
{
	const TSharedPtr<SWindow> Window = OwnWindow.Pin();
	if (Window.IsValid() && Foreground.IsValid())
	{
		Window->SetTitle(Foreground->GetTabLabel());
	}
}

void SDockingTabStack::OnWindowWantsToClose(const TSharedRef<SWindow>& Window)
{
	// Each tab may refuse; the window stays for those that do.
	for (const TSharedRef<SDockTab>& Tab : TArray<TSharedRef<SDockTab>>(Tabs))
	{
		Tab->RequestCloseTab();
	}
}

FReply SDockingTabStack::OnPreviewMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (Foreground.IsValid() && ContentArea->GetTickSpaceGeometry().IsUnderLocation(MouseEvent.GetScreenSpacePosition()))
	{
		FGlobalTabmanager::Get()->SetActiveTab(Foreground);
	}
	return FReply::Unhandled();
}
