#include "Widgets/Input/SButton.h"

#include "Styling/AppStyle.h"
#include "Widgets/Input/AcceptKeys.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
const FButtonStyle& GetDefaultButtonStyle()
{
	return FAppStyle::Get().GetWidgetStyle<FButtonStyle>("Button");
}
}

SButton::SButton()
	: Style(&GetDefaultButtonStyle())
{
}

void SButton::Construct(const FArguments& InArgs)
{
	const FTextBlockStyle* const TextStyle =
		InArgs._TextStyle ? InArgs._TextStyle : &FAppStyle::Get().GetWidgetStyle<FTextBlockStyle>("ButtonText");
	const TSharedRef<SWidget> Content = InArgs._Content == SNullWidget::NullWidget && InArgs._Text.IsSet()
		? SNew(STextBlock).Visibility(EVisibility::HitTestInvisible).Text(InArgs._Text).TextStyle(TextStyle)
		: InArgs._Content;
	SBorder::Construct(SBorder::FArguments()
						   .HAlign(InArgs._HAlign)
						   .VAlign(InArgs._VAlign)
						   .BorderBackgroundColor(InArgs._ButtonColorAndOpacity)[Content]);
	if (InArgs._ButtonStyle)
	{
		Style = InArgs._ButtonStyle;
	}
	SetAttribute(ForegroundOverride, InArgs._ForegroundColor);
	ContentPadding = InArgs._ContentPadding;
	OnClicked = InArgs._OnClicked;
	bIsFocusable = InArgs._IsFocusable;
	UpdatePadding();
}

void SButton::SetContentPadding(const FMargin& InContentPadding)
{
	ContentPadding = InContentPadding;
	UpdatePadding();
}

void SButton::SetButtonStyle(const FButtonStyle* InButtonStyle)
{
	Style = InButtonStyle ? InButtonStyle : &GetDefaultButtonStyle();
	UpdatePadding();
}

void SButton::UpdatePadding()
{
	// A negative padding eats into that of the style, but the content stays within the button.
	const FMargin Sum = ContentPadding + (bIsPressed ? Style->PressedPadding : Style->NormalPadding);
	SetPadding(FMargin(
		FMath::Max(Sum.Left, 0.0f), FMath::Max(Sum.Top, 0.0f), FMath::Max(Sum.Right, 0.0f), FMath::Max(Sum.Bottom, 0.0f)));
}

const FSlateBrush* SButton::GetBorder() const
{
	if (!IsEnabledInTree())
	{
		return &Style->Disabled;
	}
	if (bIsPressed)
	{
		return &Style->Pressed;
	}
	return IsHovered() ? &Style->Hovered : &Style->Normal;
}

FSlateColor SButton::GetForegroundColor() const
{
	if (ForegroundOverride.Get().GetColorRule() != ESlateColorStylingMode::UseColor_UseStyle)
	{
		return ForegroundOverride.Get();
	}
	if (!IsEnabledInTree())
	{
		return Style->DisabledForeground;
	}
	if (bIsPressed)
	{
		return Style->PressedForeground;
	}
	return IsHovered() ? Style->HoveredForeground : Style->NormalForeground;
}

void SButton::SetPressed(bool bInPressed)
{
	if (bIsPressed != bInPressed)
	{
		bIsPressed = bInPressed;
		UpdatePadding();
	}
}

FReply SButton::Click()
{
	// The delegate may replace itself or the button.
	const FOnClicked Clicked = OnClicked;
	return Clicked.IsBound() ? Clicked.Execute() : FReply::Handled();
}

FReply SButton::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Unhandled();
	}
	SetPressed(true);
	return FReply::Handled().CaptureMouse(SharedThis(this));
}

FReply SButton::OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return OnMouseButtonDown(MyGeometry, MouseEvent);
}

FReply SButton::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton || !bIsPressed)
	{
		return FReply::Unhandled();
	}
	SetPressed(false);
	const bool bInside = MyGeometry.IsUnderLocation(MouseEvent.GetScreenSpacePosition());
	FReply Reply = bInside ? Click() : FReply::Handled();
	return Reply.ReleaseMouseCapture();
}

FReply SButton::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	if (!IsAcceptKey(InKeyEvent.GetKey()))
	{
		return FReply::Unhandled();
	}
	SetPressed(true);
	return FReply::Handled();
}

FReply SButton::OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	if (!IsAcceptKey(InKeyEvent.GetKey()) || !bIsPressed)
	{
		return FReply::Unhandled();
	}
	SetPressed(false);
	return Click();
}

void SButton::OnFocusLost(const FFocusEvent& InFocusEvent)
{
	SetPressed(false);
}

void SButton::OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	SBorder::OnMouseEnter(MyGeometry, MouseEvent);
	Invalidate(EInvalidateWidgetReason::Paint);
}

void SButton::OnMouseLeave(const FPointerEvent& MouseEvent)
{
	SBorder::OnMouseLeave(MouseEvent);
	Invalidate(EInvalidateWidgetReason::Paint);
}

void SButton::OnMouseCaptureLost()
{
	SetPressed(false);
}
