#pragma once

#include "Layout/BasicLayoutWidgetSlot.h"
#include "Widgets/SPanel.h"

/** Children above each other, each over the whole room; a later slot lies above an earlier one. */
class SLATECORE_API SOverlay : public SPanel
{
public:
	struct FOverlaySlot : public FAlignedSlot
	{
		struct FSlotArguments : public TAlignedSlotArguments<FOverlaySlot, FSlotArguments>
		{
		};
	};
	using FScopedWidgetSlotArguments = TScopedSlotArguments<FOverlaySlot, FOverlaySlot::FSlotArguments>;

	SLATE_BEGIN_ARGS(SOverlay) {}
	SLATE_SLOT_ARGUMENT(SOverlay::FOverlaySlot, Slots)
	SLATE_END_ARGS()

	SOverlay()
		: Children(this)
	{
		SetCanTick(false);
	}
	void Construct(const FArguments& InArgs);

	static FOverlaySlot::FSlotArguments Slot() { return FOverlaySlot::FSlotArguments(); }
	FScopedWidgetSlotArguments AddSlot() { return FScopedWidgetSlotArguments(Children, INDEX_NONE); }
	bool RemoveSlot(const TSharedRef<SWidget>& Widget) { return Children.Remove(Widget) != INDEX_NONE; }
	void ClearChildren() { Children.Empty(); }

	virtual FChildren* GetChildren() override { return &Children; }

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle,
		bool bParentEnabled) const override;

private:
	TPanelChildren<FOverlaySlot> Children;
};
