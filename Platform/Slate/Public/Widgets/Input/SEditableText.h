#pragma once

#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/Text/SEditableTextBase.h"

/** A line of text to edit, without a frame (see SEditableTextBox). Enter commits and, by default, gives the focus up. */
class SLATE_API SEditableText : public SEditableTextBase
{
public:
	SLATE_BEGIN_ARGS(SEditableText)
		: _Style(&FCoreStyle::Get().GetWidgetStyle<FEditableTextStyle>("NormalEditableText"))
		, _IsReadOnly(false)
		, _IsPassword(false)
		, _SelectAllTextWhenFocused(false)
		, _RevertTextOnEscape(false)
		, _ClearKeyboardFocusOnCommit(true)
		, _Justification(ETextJustify::Left)
		, _MinDesiredWidth(0.0f)
	{
	}
	SLATE_ATTRIBUTE(FText, Text)
	SLATE_ATTRIBUTE(FText, HintText)
	SLATE_STYLE_ARGUMENT(FEditableTextStyle, Style)
	SLATE_ATTRIBUTE(FSlateFontInfo, Font)
	SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)
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

	SEditableText();
	void Construct(const FArguments& InArgs);

	/** Replaces the colour of the style. */
	void SetColorAndOpacity(const TAttribute<FSlateColor>& InColorAndOpacity);
	void SetMinDesiredWidth(const TAttribute<float>& InMinDesiredWidth) { SetAttribute(MinDesiredWidth, InMinDesiredWidth); }

	/** Shows a bullet for each character, and gives nothing to the clipboard. */
	void SetIsPassword(const TAttribute<bool>& InIsPassword) { SetAttribute(IsPassword, InIsPassword); }

	/** The style must outlive the widget. */
	void SetTextStyle(const FEditableTextStyle& InStyle);

protected:
	virtual FLinearColor GetTextColor(const FWidgetStyle& InWidgetStyle) const override;
	virtual bool IsTextPassword() const override { return IsPassword.Get(); }
	virtual float GetMinDesiredWidth() const override { return MinDesiredWidth.Get(); }

private:
	const FEditableTextStyle* Style = nullptr;
	TSlateAttribute<FSlateColor, EInvalidateWidgetReason::Paint> ColorAndOpacity{*this};
	TSlateAttribute<float, EInvalidateWidgetReason::Layout> MinDesiredWidth{*this, 0.0f};
	TSlateAttribute<bool, EInvalidateWidgetReason::Layout> IsPassword{*this, false};
	bool bColorIsSet = false;
};
