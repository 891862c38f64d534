#pragma once

#include "Styling/CoreStyle.h"
#include "Widgets/Input/SEditableTextBoxBase.h"
#include "Widgets/Text/SMultiLineEditableText.h"

class SBox;
class SScrollBar;

/** Text of any number of lines to edit, in a frame with scroll bars (see SMultiLineEditableText). */
class SLATE_API SMultiLineEditableTextBox : public SEditableTextBoxBase
{
public:
	SLATE_BEGIN_ARGS(SMultiLineEditableTextBox)
		: _Style(&FCoreStyle::Get().GetWidgetStyle<FEditableTextBoxStyle>("NormalEditableTextBox"))
		, _TextStyle(&FCoreStyle::Get().GetWidgetStyle<FTextBlockStyle>("NormalText"))
		, _WrapTextAt(0.0f)
		, _AutoWrapText(false)
		, _WrappingPolicy(ETextWrappingPolicy::DefaultWrapping)
		, _LineHeightPercentage(1.0f)
		, _Justification(ETextJustify::Left)
		, _IsReadOnly(false)
		, _AlwaysShowScrollbars(false)
		, _RevertTextOnEscape(false)
	{
	}
	SLATE_STYLE_ARGUMENT(FEditableTextBoxStyle, Style)
	SLATE_STYLE_ARGUMENT(FTextBlockStyle, TextStyle)
	SLATE_ATTRIBUTE(FText, Text)
	SLATE_ATTRIBUTE(FText, HintText)

	// These replace what the style says.
	SLATE_ATTRIBUTE(FSlateFontInfo, Font)
	SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
	SLATE_ATTRIBUTE(FSlateColor, BackgroundColor)

	/** Between the frame and the part that scrolls. */
	SLATE_ATTRIBUTE(FMargin, Padding)

	/** Around the text within the part that scrolls. */
	SLATE_ATTRIBUTE(FMargin, Margin)
	SLATE_ATTRIBUTE(float, WrapTextAt)
	SLATE_ATTRIBUTE(bool, AutoWrapText)
	SLATE_ATTRIBUTE(ETextWrappingPolicy, WrappingPolicy)
	SLATE_ATTRIBUTE(float, LineHeightPercentage)
	SLATE_ATTRIBUTE(ETextJustify::Type, Justification)
	SLATE_ATTRIBUTE(bool, IsReadOnly)
	SLATE_ARGUMENT(bool, AlwaysShowScrollbars)
	SLATE_ATTRIBUTE(bool, RevertTextOnEscape)
	SLATE_EVENT(FOnTextChanged, OnTextChanged)
	SLATE_EVENT(FOnTextCommitted, OnTextCommitted)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	void SetAutoWrapText(const TAttribute<bool>& InAutoWrapText) { EditableText->SetAutoWrapText(InAutoWrapText); }
	void SetWrapTextAt(const TAttribute<float>& InWrapTextAt) { EditableText->SetWrapTextAt(InWrapTextAt); }
	void SetWrappingPolicy(const TAttribute<ETextWrappingPolicy>& InPolicy) { EditableText->SetWrappingPolicy(InPolicy); }
	void SetLineHeightPercentage(const TAttribute<float>& InPercentage) { EditableText->SetLineHeightPercentage(InPercentage); }
	void SetMargin(const TAttribute<FMargin>& InMargin) { EditableText->SetMargin(InMargin); }
	void SetTextStyle(const FTextBlockStyle* InTextStyle) { EditableText->SetTextStyle(InTextStyle); }

	/** Moves the caret, or only the view, so that a place shows. Lines count from 0, before any wrapping. */
	void GoTo(const FTextLocation& NewLocation) { EditableText->GoTo(NewLocation); }
	void GoTo(ETextLocation NewLocation) { EditableText->GoTo(NewLocation); }
	void ScrollTo(const FTextLocation& NewLocation) { EditableText->ScrollTo(NewLocation); }
	void ScrollTo(ETextLocation NewLocation) { EditableText->ScrollTo(NewLocation); }

private:
	virtual void OnStyleChanged() override;

	TSharedPtr<SMultiLineEditableText> EditableText;
	TSharedPtr<SBox> Room;
	TOptional<FMargin> OwnPadding;
};
