#include "Widgets/Input/SEditableText.h"

SEditableText::SEditableText()
	: SEditableTextBase(false)
{
}

void SEditableText::Construct(const FArguments& InArgs)
{
	SetTextStyle(*InArgs._Style);
	SetFont(InArgs._Font);
	SetText(InArgs._Text);
	SetHintText(InArgs._HintText);
	SetColorAndOpacity(InArgs._ColorAndOpacity);
	SetIsReadOnly(InArgs._IsReadOnly);
	SetIsPassword(InArgs._IsPassword);
	SetSelectAllTextWhenFocused(InArgs._SelectAllTextWhenFocused);
	SetRevertTextOnEscape(InArgs._RevertTextOnEscape);
	SetClearKeyboardFocusOnCommit(InArgs._ClearKeyboardFocusOnCommit);
	SetJustification(InArgs._Justification);
	SetMinDesiredWidth(InArgs._MinDesiredWidth);

	// Last: what a field is made with is no change.
	OnTextChanged = InArgs._OnTextChanged;
	OnTextCommitted = InArgs._OnTextCommitted;
}

void SEditableText::SetTextStyle(const FEditableTextStyle& InStyle)
{
	Style = &InStyle;
	SetLook({&Style->Font, &Style->BackgroundImageSelected, &Style->CaretImage});
}

void SEditableText::SetColorAndOpacity(const TAttribute<FSlateColor>& InColorAndOpacity)
{
	SetAttribute(ColorAndOpacity, InColorAndOpacity);
	bColorIsSet = InColorAndOpacity.IsSet();
	Invalidate(EInvalidateWidgetReason::Paint);
}

FLinearColor SEditableText::GetTextColor(const FWidgetStyle& InWidgetStyle) const
{
	return (bColorIsSet ? ColorAndOpacity.Get() : Style->ColorAndOpacity).GetColor(InWidgetStyle);
}
