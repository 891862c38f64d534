#include "Widgets/Docking/SDockTab.h"

#include "Framework/Application/SlateApplication.h"
#include "Framework/Docking/SDockingTabStack.h"
#include "Framework/Docking/TabManager.h"
#include "ProfilingDebugging/CpuProfilerTrace.h"
#include "Rendering/DrawElements.h"
#include "Styling/AppStyle.h"
#include "Styling/WidgetStyle.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
/** How long, in seconds, a tab that draws attention is lit. */
constexpr double FlashDuration = 0.6;

/** Height of the stripe along the tab in front, in slate units. */
constexpr float StripeHeight = 2.0f;
}

void SDockTab::Construct(const FArguments& InArgs)
{
	Style = &FAppStyle::Get().GetWidgetStyle<FDockTabStyle>("Docking.Tab");
	TabRole = InArgs._TabRole;
	TabContent = InArgs._Content;
	OnTabClosed = InArgs._OnTabClosed;
	CanCloseTabHandler = InArgs._OnCanCloseTab;

	// clang-format off
	SBorder::Construct(SBorder::FArguments()
		.Padding(Style->TabPadding)
		[
			SNew(SHorizontalBox)
			+ SHorizontalBox::Slot()
			.AutoWidth()
			.VAlign(VAlign_Center)
			[
				SAssignNew(IconImage, SImage)
				.Visibility(EVisibility::Collapsed)
			]
			+ SHorizontalBox::Slot()
			.FillWidth(1.0f)
			.VAlign(VAlign_Center)
			[
				SAssignNew(LabelText, STextBlock)
				.TextStyle(&Style->TabTextStyle)
				.OverflowPolicy(ETextOverflowPolicy::Ellipsis)
			]
			+ SHorizontalBox::Slot()
			.AutoWidth()
			.VAlign(VAlign_Center)
			.Padding(FMargin(8.0f, 0.0f, -6.0f, 0.0f))
			[
				SNew(SButton)
				.ButtonStyle(&Style->CloseButtonStyle)
				.ContentPadding(FMargin(0.0f))
				.IsFocusable(false)
				.OnClicked(this, &SDockTab::OnCloseButtonClicked)
				[
					SNew(SImage)
					.Image(FAppStyle::Get().GetBrush("Docking.Tab.CloseIcon"))
				]
			]
		]);
	// clang-format on
	LabelText->SetClipping(EWidgetClipping::ClipToBounds);
	if (InArgs._Label.IsSet())
	{
		SetLabel(InArgs._Label);
	}
}

void SDockTab::SetContent(const TSharedRef<SWidget>& InContent)
{
	TabContent = InContent;
	if (const TSharedPtr<SDockingTabStack> Stack = ParentStack.Pin())
	{
		Stack->ShowContentOf(SharedThis(this));
	}
}

FText SDockTab::GetTabLabel() const
{
	return LabelText->GetText();
}

void SDockTab::SetLabel(const TAttribute<FText>& InTabLabel)
{
	bHasLabel = true;
	LabelText->SetText(InTabLabel);
	// Among many tabs there is no room for a long label.
	SetToolTipText(InTabLabel);
	if (const TSharedPtr<SDockingTabStack> Stack = ParentStack.Pin())
	{
		Stack->UpdateWindowTitle();
	}
}

void SDockTab::SetTabIcon(const TAttribute<const FSlateBrush*>& InTabIcon)
{
	const bool bShown = InTabIcon.IsBound() || InTabIcon.Get(nullptr);
	IconImage->SetVisibility(bShown ? EVisibility::HitTestInvisible : EVisibility::Collapsed);
	IconImage->SetImage(InTabIcon);
}

bool SDockTab::RequestCloseTab()
{
	if (CanCloseTabHandler.IsBound() && !CanCloseTabHandler.Execute())
	{
		return false;
	}
	CloseNow();
	return true;
}

void SDockTab::CloseNow()
{
	const TSharedRef<SDockTab> Me = SharedThis(this);
	FGlobalTabmanager& TabManager = FGlobalTabmanager::Get().Get();
	if (TabManager.LiveTabs.Contains(Me))
	{
		// What was typed is committed while the tab is still itself.
		DropFocusOfContent();
	}
	if (TabManager.LiveTabs.Remove(Me) == 0)
	{
		return;
	}
	const TSharedPtr<SDockingTabStack> Stack = ParentStack.Pin();
	const bool bWasActive = IsActive();
	if (Stack.IsValid())
	{
		Stack->RemoveTab(Me);
	}
	if (bWasActive)
	{
		TabManager.SetActiveTab(Stack.IsValid() ? Stack->GetForegroundTab() : nullptr);
	}
	FSlateApplication::Get().RequestFrame();

	const FCpuProfilerScopeStack::FScope Scope(
		[this] { return FString::Printf(TEXT("closing of tab \"%s\""), *GetTabLabel().ToString()); });
	OnTabClosed.ExecuteIfBound(Me);
}

void SDockTab::DropFocusOfContent()
{
	FSlateApplication& Application = FSlateApplication::Get();
	const TSharedPtr<SWidget> Focused = Application.GetKeyboardFocusedWidget();
	if (Focused.IsValid() && (Focused == TabContent || Application.HasFocusedDescendants(TabContent)))
	{
		Application.ClearKeyboardFocus(EFocusCause::OtherWidgetLostFocus);
	}
}

FReply SDockTab::OnCloseButtonClicked()
{
	RequestCloseTab();
	return FReply::Handled();
}

void SDockTab::ActivateInParent(ETabActivationCause InActivationCause)
{
	if (const TSharedPtr<SDockingTabStack> Stack = ParentStack.Pin())
	{
		Stack->BringToFront(SharedThis(this));
	}
	FGlobalTabmanager::Get()->SetActiveTab(SharedThis(this));
	FSlateApplication::Get().RequestFrame();
}

bool SDockTab::IsForeground() const
{
	const TSharedPtr<SDockingTabStack> Stack = ParentStack.Pin();
	return Stack.IsValid() && Stack->GetForegroundTab().Get() == this;
}

bool SDockTab::IsActive() const
{
	return FGlobalTabmanager::Get()->GetActiveTab().Get() == this;
}

TSharedPtr<SWindow> SDockTab::GetParentWindow() const
{
	return FSlateApplication::Get().FindWidgetWindow(AsShared());
}

void SDockTab::FlashTab()
{
	if (!bFlashing)
	{
		RegisterActiveTimer(0.0f,
			FWidgetActiveTimerDelegate::CreateLambda(
				[this](double CurrentTime, float)
				{
					Invalidate(EInvalidateWidgetReason::Paint);
					bFlashing = CurrentTime < FlashEndTime;
					return bFlashing ? EActiveTimerReturnType::Continue : EActiveTimerReturnType::Stop;
				}));
	}
	bFlashing = true;
	FlashEndTime = FSlateApplication::Get().GetCurrentTime() + FlashDuration;
}

FReply SDockTab::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() == EKeys::LeftMouseButton)
	{
		ActivateInParent(ETabActivationCause::UserClickedOnTab);
		return FReply::Handled();
	}
	return MouseEvent.GetEffectingButton() == EKeys::MiddleMouseButton ? FReply::Handled().CaptureMouse(SharedThis(this))
																	   : FReply::Unhandled();
}

FReply SDockTab::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::MiddleMouseButton || !HasMouseCapture())
	{
		return FReply::Unhandled();
	}
	if (MyGeometry.IsUnderLocation(MouseEvent.GetScreenSpacePosition()))
	{
		RequestCloseTab();
	}
	return FReply::Handled().ReleaseMouseCapture();
}

void SDockTab::OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	SBorder::OnMouseEnter(MyGeometry, MouseEvent);
	Invalidate(EInvalidateWidgetReason::Paint);
}

void SDockTab::OnMouseLeave(const FPointerEvent& MouseEvent)
{
	SBorder::OnMouseLeave(MouseEvent);
	Invalidate(EInvalidateWidgetReason::Paint);
}

FSlateColor SDockTab::GetForegroundColor() const
{
	return IsForeground() || IsHovered() ? Style->ForegroundForegroundColor : Style->NormalForegroundColor;
}

const FSlateBrush* SDockTab::GetBorder() const
{
	if (IsForeground())
	{
		return &Style->ForegroundBrush;
	}
	return IsHovered() ? &Style->HoveredBrush : &Style->NormalBrush;
}

int32 SDockTab::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	int32 HighestLayer =
		SBorder::OnPaint(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled);
	if (IsForeground())
	{
		const FVector2D StripeSize(AllottedGeometry.GetLocalSize().X, StripeHeight);
		const FLinearColor Tint = IsActive() || bFlashing ? Style->ActiveStripeBrush.GetTint(InWidgetStyle)
														  : Style->NormalForegroundColor.GetColor(InWidgetStyle) * 0.5f;
		FSlateDrawElement::MakeBox(OutDrawElements, ++HighestLayer,
			AllottedGeometry.ToPaintGeometry(FVector2D::ZeroVector, StripeSize), &Style->ActiveStripeBrush,
			ESlateDrawEffect::None, Tint);
	}
	if (bFlashing)
	{
		const double Left = FMath::Clamp((FlashEndTime - FSlateApplication::Get().GetCurrentTime()) / FlashDuration, 0.0, 1.0);
		FLinearColor Tint = Style->FlashColor.GetColor(InWidgetStyle);
		Tint.A *= 0.5f * static_cast<float>(Left);
		FSlateDrawElement::MakeBox(OutDrawElements, ++HighestLayer, AllottedGeometry.ToPaintGeometry(), &Style->ActiveStripeBrush,
			ESlateDrawEffect::None, Tint);
	}
	return HighestLayer;
}
