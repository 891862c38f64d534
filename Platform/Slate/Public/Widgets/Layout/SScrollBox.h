#pragma once

#include "Framework/SlateDelegates.h"
#include "Layout/BasicLayoutWidgetSlot.h"
#include "Styling/SlateTypes.h"
#include "Widgets/SCompoundWidget.h"

class SScrollBar;
class SScrollPanel;

/**
 * Children one behind the other, of which as many show as there is room for; the wheel, the bar and the keyboard focus move
 * the view. Offsets are slate units from the start of the content.
 */
class SLATE_API SScrollBox : public SCompoundWidget
{
public:
	struct FSlot : public FAlignedSlot
	{
		struct FSlotArguments : public TAlignedSlotArguments<FSlot, FSlotArguments>
		{
		};
	};
	using FScopedWidgetSlotArguments = TScopedSlotArguments<FSlot, FSlot::FSlotArguments>;

	SLATE_BEGIN_ARGS(SScrollBox)
		: _Orientation(Orient_Vertical)
		, _ScrollBarAlwaysVisible(false)
	{
	}
	SLATE_SLOT_ARGUMENT(SScrollBox::FSlot, Slots)
	SLATE_ARGUMENT(EOrientation, Orientation)
	SLATE_ARGUMENT(bool, ScrollBarAlwaysVisible)
	SLATE_END_ARGS()

	SScrollBox() { SetCanTick(false); }
	void Construct(const FArguments& InArgs);

	static FSlot::FSlotArguments Slot() { return FSlot::FSlotArguments(); }
	FScopedWidgetSlotArguments AddSlot();
	void RemoveSlot(const TSharedRef<SWidget>& WidgetToRemove);
	void ClearChildren();

	/** Takes effect at the next layout, which stops it at the end that the content has then. */
	void SetScrollOffset(float NewScrollOffset);

	/** The offset that was set last, once laid out as far as there is content. */
	float GetScrollOffset() const;
	float GetScrollOffsetOfEnd() const;

	/** How much of the content is in view: 1 when all is. */
	float GetViewFraction() const;

	/** Where the view begins, as a fraction of the content. */
	float GetViewOffsetFraction() const;

	void ScrollToStart() { SetScrollOffset(0.0f); }
	void ScrollToEnd();

	/** Moves the view as little as needed to show a descendant. */
	void ScrollDescendantIntoView(const TSharedPtr<SWidget>& WidgetToScrollIntoView);

	void SetOrientation(EOrientation InOrientation);

	virtual FReply OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnFocusChanging(
		const FWeakWidgetPath& PreviousFocusPath, const FWidgetPath& NewWidgetPath, const FFocusEvent& InFocusEvent) override;

private:
	void BuildLayout();
	void OnScrollBarMoved(float OffsetFraction);

	TSharedPtr<SScrollPanel> Panel;
	TSharedPtr<SScrollBar> ScrollBar;
	EOrientation Orientation = Orient_Vertical;
	bool bScrollBarAlwaysVisible = false;
};
