#include "Widgets/Input/SEditableTextBoxBase.h"

#include "Styling/CoreStyle.h"

namespace
{
const FEditableTextBoxStyle& GetDefaultStyle()
{
	return FCoreStyle::Get().GetWidgetStyle<FEditableTextBoxStyle>("NormalEditableTextBox");
}
}

void SEditableTextBoxBase::ConstructFrame(
	const FFrame& Frame, const TSharedRef<SEditableTextBase>& InField, const TSharedRef<SWidget>& InContent)
{
	SBorder::Construct(SBorder::FArguments()
						   .Padding(FMargin(0.0f))
						   .ForegroundColor(Frame.ForegroundColor)
						   .BorderBackgroundColor(Frame.BackgroundColor)[InContent]);
	Field = InField;
	Field->SetFramed();
	bBackgroundColorIsSet = Frame.BackgroundColor.IsSet();
	SetIsReadOnly(Frame.IsReadOnly);
	SetFont(Frame.Font);
	SetStyle(Frame.Style);
}

void SEditableTextBoxBase::SetStyle(const FEditableTextBoxStyle* InStyle)
{
	Style = InStyle ? InStyle : &GetDefaultStyle();
	FocusedReadOnlyImage = Style->BackgroundImageReadOnly;
	FocusedReadOnlyImage.OutlineSettings = Style->BackgroundImageFocused.OutlineSettings;
	if (!bBackgroundColorIsSet)
	{
		SetBorderBackgroundColor(Style->BackgroundColor);
	}
	if (!bFontIsSet)
	{
		Field->SetFont(Style->TextStyle.Font);
	}
	OnStyleChanged();
	Invalidate(EInvalidateWidgetReason::Layout);
}

void SEditableTextBoxBase::SetFont(const TAttribute<FSlateFontInfo>& InFont)
{
	bFontIsSet = InFont.IsSet();
	Field->SetFont(InFont);
}

void SEditableTextBoxBase::SetIsReadOnly(const TAttribute<bool>& InIsReadOnly)
{
	Field->SetIsReadOnly(InIsReadOnly);
	SetAttribute(IsFrameReadOnly, InIsReadOnly);
}

const FSlateBrush* SEditableTextBoxBase::GetBorder() const
{
	if (IsReadOnly())
	{
		return Field->HasKeyboardFocus() ? &FocusedReadOnlyImage : &Style->BackgroundImageReadOnly;
	}
	if (Field->HasKeyboardFocus())
	{
		return &Style->BackgroundImageFocused;
	}
	return IsHovered() ? &Style->BackgroundImageHovered : &Style->BackgroundImageNormal;
}

FSlateColor SEditableTextBoxBase::GetForegroundColor() const
{
	const FSlateColor Own = SBorder::GetForegroundColor();
	if (Own != FSlateColor::UseForeground())
	{
		return Own;
	}
	if (IsReadOnly())
	{
		return Style->ReadOnlyForegroundColor;
	}
	return Field->HasKeyboardFocus() ? Style->FocusedForegroundColor : Style->ForegroundColor;
}

void SEditableTextBoxBase::OnFocusChanging(
	const FWeakWidgetPath& PreviousFocusPath, const FWidgetPath& NewWidgetPath, const FFocusEvent& InFocusEvent)
{
	SBorder::OnFocusChanging(PreviousFocusPath, NewWidgetPath, InFocusEvent);
	Invalidate(EInvalidateWidgetReason::Paint);
}

FReply SEditableTextBoxBase::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	// The frame around the text is as good as the text.
	return Field->OnMouseButtonDown(Field->GetTickSpaceGeometry(), MouseEvent);
}

FReply SEditableTextBoxBase::OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return Field->OnMouseButtonDoubleClick(Field->GetTickSpaceGeometry(), MouseEvent);
}

void SEditableTextBoxBase::OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	SBorder::OnMouseEnter(MyGeometry, MouseEvent);
	Invalidate(EInvalidateWidgetReason::Paint);
}

void SEditableTextBoxBase::OnMouseLeave(const FPointerEvent& MouseEvent)
{
	SBorder::OnMouseLeave(MouseEvent);
	Invalidate(EInvalidateWidgetReason::Paint);
}
