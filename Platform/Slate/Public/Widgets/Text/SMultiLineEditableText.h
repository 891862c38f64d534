#pragma once

#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/Text/SEditableTextBase.h"

class SScrollBar;

/**
 * Text of any number of lines to edit, without a frame (see SMultiLineEditableTextBox). Enter begins a new line; the text is
 * committed when the focus leaves. Text that does not fit is scrolled by the caret, the wheel and the scroll bars.
 */
class SLATE_API SMultiLineEditableText : public SEditableTextBase
{
public:
	SLATE_BEGIN_ARGS(SMultiLineEditableText)
		: _TextStyle(&FCoreStyle::Get().GetWidgetStyle<FTextBlockStyle>("NormalText"))
		, _WrapTextAt(0.0f)
		, _AutoWrapText(false)
		, _WrappingPolicy(ETextWrappingPolicy::DefaultWrapping)
		, _LineHeightPercentage(1.0f)
		, _Justification(ETextJustify::Left)
		, _IsReadOnly(false)
		, _SelectAllTextWhenFocused(false)
		, _RevertTextOnEscape(false)
	{
	}
	SLATE_ATTRIBUTE(FText, Text)
	SLATE_ATTRIBUTE(FText, HintText)
	SLATE_STYLE_ARGUMENT(FTextBlockStyle, TextStyle)
	SLATE_ATTRIBUTE(FSlateFontInfo, Font)

	/** The width in Slate units at which lines are broken; 0 for none. With AutoWrapText the smaller width counts. */
	SLATE_ATTRIBUTE(float, WrapTextAt)

	/** Whether lines are broken at the width of the widget. */
	SLATE_ATTRIBUTE(bool, AutoWrapText)
	SLATE_ATTRIBUTE(ETextWrappingPolicy, WrappingPolicy)

	/** Blank space around the text. */
	SLATE_ATTRIBUTE(FMargin, Margin)

	/** Scales the distance of the rows; 1 is the font's own. */
	SLATE_ATTRIBUTE(float, LineHeightPercentage)
	SLATE_ATTRIBUTE(ETextJustify::Type, Justification)
	SLATE_ATTRIBUTE(bool, IsReadOnly)
	SLATE_ATTRIBUTE(bool, SelectAllTextWhenFocused)
	SLATE_ATTRIBUTE(bool, RevertTextOnEscape)

	/** Bars that scroll this text; it takes over what they do. */
	SLATE_ARGUMENT(TSharedPtr<SScrollBar>, HScrollBar)
	SLATE_ARGUMENT(TSharedPtr<SScrollBar>, VScrollBar)
	SLATE_EVENT(FOnTextChanged, OnTextChanged)
	SLATE_EVENT(FOnTextCommitted, OnTextCommitted)
	SLATE_END_ARGS()

	SMultiLineEditableText();
	void Construct(const FArguments& InArgs);

	/** The style must outlive the widget; null gives the default style. */
	void SetTextStyle(const FTextBlockStyle* InTextStyle);
	void SetWrapTextAt(const TAttribute<float>& InWrapTextAt) { SetAttribute(WrapTextAt, InWrapTextAt); }
	void SetAutoWrapText(const TAttribute<bool>& InAutoWrapText) { SetAttribute(AutoWrapText, InAutoWrapText); }
	void SetWrappingPolicy(const TAttribute<ETextWrappingPolicy>& InWrappingPolicy)
	{
		SetAttribute(WrappingPolicy, InWrappingPolicy);
	}
	void SetLineHeightPercentage(const TAttribute<float>& InPercentage) { SetAttribute(LineHeightPercentage, InPercentage); }
	void SetMargin(const TAttribute<FMargin>& InMargin) { SetAttribute(Margin, InMargin); }

	virtual FReply OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;

protected:
	virtual FLinearColor GetTextColor(const FWidgetStyle& InWidgetStyle) const override;
	virtual float GetWrapWidth(float Room) const override;
	virtual ETextWrappingPolicy GetWrappingPolicy() const override { return WrappingPolicy.Get(); }
	virtual float GetLineHeightPercentage() const override { return LineHeightPercentage.Get(); }
	virtual FMargin GetTextMargin() const override { return Margin.Get(); }
	virtual void OnViewChanged() const override;

private:
	void OnHorizontalBarScrolled(float OffsetFraction);
	void OnVerticalBarScrolled(float OffsetFraction);

	const FTextBlockStyle* TextStyle = nullptr;
	TSharedPtr<SScrollBar> HScrollBar;
	TSharedPtr<SScrollBar> VScrollBar;
	TSlateAttribute<float, EInvalidateWidgetReason::Layout> WrapTextAt{*this, 0.0f};
	TSlateAttribute<bool, EInvalidateWidgetReason::Layout> AutoWrapText{*this, false};
	TSlateAttribute<ETextWrappingPolicy, EInvalidateWidgetReason::Layout> WrappingPolicy{
		*this, ETextWrappingPolicy::DefaultWrapping};
	TSlateAttribute<float, EInvalidateWidgetReason::Layout> LineHeightPercentage{*this, 1.0f};
	TSlateAttribute<FMargin, EInvalidateWidgetReason::Layout> Margin{*this};
};
