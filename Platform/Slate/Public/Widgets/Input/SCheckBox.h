#pragma once

#include "Framework/SlateDelegates.h"
#include "Styling/SlateTypes.h"
#include "Widgets/SCompoundWidget.h"

class FBoxPanelSlot;

/**
 * A box to tick, with content beside it. It changes when a press is released over it, or when Enter or Space is released
 * while it has the focus: a state that is not bound is stored first, then the delegate is told.
 */
class SLATE_API SCheckBox : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SCheckBox)
		: _IsChecked(ECheckBoxState::Unchecked)
		, _HAlign(HAlign_Fill)
	{
	}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_STYLE_ARGUMENT(FCheckBoxStyle, Style)
	SLATE_EVENT(FOnCheckStateChanged, OnCheckStateChanged)
	SLATE_ATTRIBUTE(ECheckBoxState, IsChecked)
	SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
	/** Around the content; without it the style's padding holds. */
	SLATE_ARGUMENT(TOptional<FMargin>, Padding)
	SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
	SLATE_END_ARGS()

	SCheckBox();
	void Construct(const FArguments& InArgs);

	bool IsChecked() const { return GetCheckedState() == ECheckBoxState::Checked; }
	ECheckBoxState GetCheckedState() const { return State.GetUpdated(); }

	/** Tells nobody. */
	void SetIsChecked(const TAttribute<ECheckBoxState>& InIsChecked);

	void SetContent(const TSharedRef<SWidget>& InContent);

	/** @param InStyle Outlives the check box; null gives the default style. */
	void SetStyle(const FCheckBoxStyle* InStyle);

	/** The picture of the box as it is now. */
	const FSlateBrush* GetStateImage() const;

	virtual FSlateColor GetForegroundColor() const override;
	virtual bool SupportsKeyboardFocus() const override { return true; }
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	virtual FReply OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	virtual void OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseLeave(const FPointerEvent& MouseEvent) override;
	virtual void OnMouseCaptureLost() override;

private:
	void ToggleCheckedState();
	void SetPressed(bool bInPressed);

	const FCheckBoxStyle* Style;
	TSlateAttribute<ECheckBoxState, EInvalidateWidgetReason::Paint> State{*this, ECheckBoxState::Unchecked};
	TSlateAttribute<FSlateColor, EInvalidateWidgetReason::Paint> ForegroundOverride{*this, FSlateColor::UseStyle()};
	FOnCheckStateChanged OnCheckStateChanged;
	FBoxPanelSlot* ContentSlot = nullptr;
	bool bIsPressed = false;
	bool bHasOwnPadding = false;
};
