#pragma once

#include "Framework/SlateDelegates.h"
#include "Styling/SlateTypes.h"
#include "Widgets/Layout/SBorder.h"

/**
 * A button. It acts when a press is released over it, or when Enter or Space is released while it has the focus. Without a
 * content of its own it shows its text in a text block.
 */
class SLATE_API SButton : public SBorder
{
public:
	SLATE_BEGIN_ARGS(SButton)
		: _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Fill)
		, _ContentPadding(FMargin(4.0f, 2.0f))
		, _IsFocusable(true)
	{
	}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_STYLE_ARGUMENT(FButtonStyle, ButtonStyle)
	SLATE_STYLE_ARGUMENT(FTextBlockStyle, TextStyle)
	SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
	SLATE_ARGUMENT(EVerticalAlignment, VAlign)
	/** Added to the padding of the style. */
	SLATE_ARGUMENT(FMargin, ContentPadding)
	SLATE_ATTRIBUTE(FText, Text)
	SLATE_EVENT(FOnClicked, OnClicked)
	SLATE_ATTRIBUTE(FSlateColor, ButtonColorAndOpacity)
	SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
	SLATE_ARGUMENT(bool, IsFocusable)
	SLATE_END_ARGS()

	SButton();
	void Construct(const FArguments& InArgs);

	bool IsPressed() const { return bIsPressed; }

	/** May be negative: it eats into the padding of the style. */
	void SetContentPadding(const FMargin& InContentPadding);

	/** @param InButtonStyle Outlives the button; null gives the default style. */
	void SetButtonStyle(const FButtonStyle* InButtonStyle);
	void SetOnClicked(const FOnClicked& InOnClicked) { OnClicked = InOnClicked; }

	virtual FSlateColor GetForegroundColor() const override;
	virtual bool SupportsKeyboardFocus() const override { return bIsFocusable; }
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	virtual FReply OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	virtual void OnFocusLost(const FFocusEvent& InFocusEvent) override;
	virtual void OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseLeave(const FPointerEvent& MouseEvent) override;
	virtual void OnMouseCaptureLost() override;

protected:
	virtual const FSlateBrush* GetBorder() const override;

private:
	void SetPressed(bool bInPressed);
	void UpdatePadding();
	FReply Click();

	const FButtonStyle* Style;
	TSlateAttribute<FSlateColor, EInvalidateWidgetReason::Paint> ForegroundOverride{*this, FSlateColor::UseStyle()};
	FOnClicked OnClicked;
	FMargin ContentPadding;
	bool bIsPressed = false;
	bool bIsFocusable = true;
};
