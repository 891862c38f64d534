#include "Widgets/Text/SMultiLineEditableText.h"

#include "Framework/Text/TextWrap.h"
#include "Widgets/Layout/SScrollBar.h"

namespace
{
/** Slate units that a notch of the wheel scrolls; the same as in a scroll box. */
constexpr float GWheelStep = 64.0f;
}

SMultiLineEditableText::SMultiLineEditableText()
	: SEditableTextBase(true)
{
}

void SMultiLineEditableText::Construct(const FArguments& InArgs)
{
	SetTextStyle(InArgs._TextStyle);
	SetFont(InArgs._Font);
	SetText(InArgs._Text);
	SetHintText(InArgs._HintText);
	SetWrapTextAt(InArgs._WrapTextAt);
	SetAutoWrapText(InArgs._AutoWrapText);
	SetWrappingPolicy(InArgs._WrappingPolicy);
	SetMargin(InArgs._Margin);
	SetLineHeightPercentage(InArgs._LineHeightPercentage);
	SetJustification(InArgs._Justification);
	SetIsReadOnly(InArgs._IsReadOnly);
	SetSelectAllTextWhenFocused(InArgs._SelectAllTextWhenFocused);
	SetRevertTextOnEscape(InArgs._RevertTextOnEscape);

	HScrollBar = InArgs._HScrollBar;
	if (HScrollBar.IsValid())
	{
		HScrollBar->SetOnUserScrolled(FOnUserScrolled::CreateSP(this, &SMultiLineEditableText::OnHorizontalBarScrolled));
	}
	VScrollBar = InArgs._VScrollBar;
	if (VScrollBar.IsValid())
	{
		VScrollBar->SetOnUserScrolled(FOnUserScrolled::CreateSP(this, &SMultiLineEditableText::OnVerticalBarScrolled));
	}

	// Last: what a field is made with is no change.
	OnTextChanged = InArgs._OnTextChanged;
	OnTextCommitted = InArgs._OnTextCommitted;
}

void SMultiLineEditableText::SetTextStyle(const FTextBlockStyle* InTextStyle)
{
	TextStyle = InTextStyle ? InTextStyle : FArguments()._TextStyle;
	const FEditableTextStyle& Marks = FCoreStyle::Get().GetWidgetStyle<FEditableTextStyle>("NormalEditableText");
	SetLook({&TextStyle->Font, &Marks.BackgroundImageSelected, &Marks.CaretImage});
}

FLinearColor SMultiLineEditableText::GetTextColor(const FWidgetStyle& InWidgetStyle) const
{
	return TextStyle->ColorAndOpacity.GetColor(InWidgetStyle);
}

float SMultiLineEditableText::GetWrapWidth(float Room) const
{
	return CombineWrapWidths(WrapTextAt.Get(), AutoWrapText.Get() ? Room : 0.0f);
}

void SMultiLineEditableText::OnViewChanged() const
{
	const FVector2D Offset = GetViewOffset();
	const FVector2D View = GetViewSize();
	const FVector2D Text = GetTextSize();
	if (HScrollBar.IsValid())
	{
		HScrollBar->SetState(Offset.X / Text.X, FMath::Min(View.X / Text.X, 1.0));
	}
	if (VScrollBar.IsValid())
	{
		VScrollBar->SetState(Offset.Y / Text.Y, FMath::Min(View.Y / Text.Y, 1.0));
	}
}

void SMultiLineEditableText::OnHorizontalBarScrolled(float OffsetFraction)
{
	SetViewOffset(FVector2D(OffsetFraction * GetTextSize().X, GetViewOffset().Y));
}

void SMultiLineEditableText::OnVerticalBarScrolled(float OffsetFraction)
{
	SetViewOffset(FVector2D(GetViewOffset().X, OffsetFraction * GetTextSize().Y));
}

FReply SMultiLineEditableText::OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	const double Distance = -MouseEvent.GetWheelDelta() * GWheelStep;
	const FVector2D Before = GetViewOffset();
	SetViewOffset(MouseEvent.IsShiftDown() ? Before + FVector2D(Distance, 0.0) : Before + FVector2D(0.0, Distance));

	// At the end of the text the wheel is for whatever is around.
	return GetViewOffset() == Before ? FReply::Unhandled() : FReply::Handled();
}
