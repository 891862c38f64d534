#pragma once

#include "Styling/CoreStyle.h"
#include "Widgets/Input/SEditableText.h"
#include "Widgets/Input/SEditableTextBoxBase.h"

class SBox;

/** A line of text to edit in a frame that shows whether it is hovered, has the focus or is read-only (see SEditableText). */
class SLATE_API SEditableTextBox : public SEditableTextBoxBase
{
public:
	SLATE_BEGIN_ARGS(SEditableTextBox)
		: _Style(&FCoreStyle::Get().GetWidgetStyle<FEditableTextBoxStyle>("NormalEditableTextBox"))
		, _IsReadOnly(false)
		, _IsPassword(false)
		, _SelectAllTextWhenFocused(false)
		, _RevertTextOnEscape(false)
		, _ClearKeyboardFocusOnCommit(true)
		, _Justification(ETextJustify::Left)
		, _MinDesiredWidth(0.0f)
	{
	}
	SLATE_STYLE_ARGUMENT(FEditableTextBoxStyle, Style)
	SLATE_ATTRIBUTE(FText, Text)
	SLATE_ATTRIBUTE(FText, HintText)

	// These replace what the style says.
	SLATE_ATTRIBUTE(FSlateFontInfo, Font)
	SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
	SLATE_ATTRIBUTE(FSlateColor, BackgroundColor)
	SLATE_ATTRIBUTE(FMargin, Padding)

	SLATE_ATTRIBUTE(bool, IsReadOnly)
	SLATE_ATTRIBUTE(bool, IsPassword)
	SLATE_ATTRIBUTE(bool, SelectAllTextWhenFocused)
	SLATE_ATTRIBUTE(bool, RevertTextOnEscape)
	SLATE_ATTRIBUTE(bool, ClearKeyboardFocusOnCommit)
	SLATE_ATTRIBUTE(ETextJustify::Type, Justification)
	SLATE_ATTRIBUTE(float, MinDesiredWidth)
	SLATE_EVENT(FOnTextChanged, OnTextChanged)
	SLATE_EVENT(FOnTextCommitted, OnTextCommitted)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	void SetIsPassword(const TAttribute<bool>& InIsPassword) { EditableText->SetIsPassword(InIsPassword); }
	void SetSelectAllTextWhenFocused(const TAttribute<bool>& InValue) { EditableText->SetSelectAllTextWhenFocused(InValue); }
	void SetRevertTextOnEscape(const TAttribute<bool>& InValue) { EditableText->SetRevertTextOnEscape(InValue); }
	void SetClearKeyboardFocusOnCommit(const TAttribute<bool>& InValue) { EditableText->SetClearKeyboardFocusOnCommit(InValue); }
	void SetMinimumDesiredWidth(const TAttribute<float>& InWidth) { EditableText->SetMinDesiredWidth(InWidth); }

private:
	virtual void OnStyleChanged() override;

	TSharedPtr<SEditableText> EditableText;
	TSharedPtr<SBox> Room;
	TOptional<FMargin> OwnPadding;
};
