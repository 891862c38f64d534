#pragma once

#include "Layout/BasicLayoutWidgetSlot.h"
#include "Types/SlateStructs.h"
#include "Widgets/SPanel.h"

/** A slot of a horizontal or vertical box. */
class SLATECORE_API FBoxPanelSlot : public FAlignedSlot
{
public:
	const FSizeParam& GetSizeRule() const { return SizeParam; }
	float GetMaxSize() const { return MaxSize; }

	void SetSizeParam(const FSizeParam& InSizeParam)
	{
		SizeParam = InSizeParam;
		Invalidate(EInvalidateWidgetReason::Layout);
	}

	/** @param InMaxSize Slate units along the panel's axis; 0 for no limit. */
	void SetMaxSize(float InMaxSize)
	{
		MaxSize = InMaxSize;
		Invalidate(EInvalidateWidgetReason::Layout);
	}

private:
	FSizeParam SizeParam = FStretch(1.0f);
	float MaxSize = 0.0f;
};

/** What SHorizontalBox and SVerticalBox share: children one behind the other along an axis. */
class SLATECORE_API SBoxPanel : public SPanel
{
public:
	/** @return The index at which the widget stood, or INDEX_NONE when it is no child. */
	int32 RemoveSlot(const TSharedRef<SWidget>& SlotWidget) { return Children.Remove(SlotWidget); }
	void ClearChildren() { Children.Empty(); }
	int32 NumSlots() const { return Children.Num(); }

	virtual FChildren* GetChildren() override { return &Children; }

protected:
	explicit SBoxPanel(EOrientation InOrientation)
		: Children(this)
		, Orientation(InOrientation)
	{
		SetCanTick(false);
	}

	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;

	TPanelChildren<FBoxPanelSlot> Children;

private:
	const EOrientation Orientation;
};

/** Children beside each other. */
class SLATECORE_API SHorizontalBox : public SBoxPanel
{
public:
	struct FSlot : public FBoxPanelSlot
	{
		struct FSlotArguments : public TAlignedSlotArguments<FSlot, FSlotArguments>
		{
			FSlotArguments& AutoWidth()
			{
				return With([](FBoxPanelSlot& Slot) { Slot.SetSizeParam(FAuto()); });
			}
			FSlotArguments& FillWidth(float StretchCoefficient)
			{
				return With([=](FBoxPanelSlot& Slot) { Slot.SetSizeParam(FStretch(StretchCoefficient)); });
			}
			FSlotArguments& MaxWidth(float InMaxWidth)
			{
				return With([=](FBoxPanelSlot& Slot) { Slot.SetMaxSize(InMaxWidth); });
			}
		};
	};
	using FScopedWidgetSlotArguments = TScopedSlotArguments<FBoxPanelSlot, FSlot::FSlotArguments>;

	SLATE_BEGIN_ARGS(SHorizontalBox) {}
	SLATE_SLOT_ARGUMENT(SHorizontalBox::FSlot, Slots)
	SLATE_END_ARGS()

	SHorizontalBox()
		: SBoxPanel(Orient_Horizontal)
	{
	}
	void Construct(const FArguments& InArgs);

	static FSlot::FSlotArguments Slot() { return FSlot::FSlotArguments(); }
	FScopedWidgetSlotArguments AddSlot() { return InsertSlot(INDEX_NONE); }
	FScopedWidgetSlotArguments InsertSlot(int32 Index = INDEX_NONE) { return FScopedWidgetSlotArguments(Children, Index); }
};

/** Children below each other. */
class SLATECORE_API SVerticalBox : public SBoxPanel
{
public:
	struct FSlot : public FBoxPanelSlot
	{
		struct FSlotArguments : public TAlignedSlotArguments<FSlot, FSlotArguments>
		{
			FSlotArguments& AutoHeight()
			{
				return With([](FBoxPanelSlot& Slot) { Slot.SetSizeParam(FAuto()); });
			}
			FSlotArguments& FillHeight(float StretchCoefficient)
			{
				return With([=](FBoxPanelSlot& Slot) { Slot.SetSizeParam(FStretch(StretchCoefficient)); });
			}
			FSlotArguments& MaxHeight(float InMaxHeight)
			{
				return With([=](FBoxPanelSlot& Slot) { Slot.SetMaxSize(InMaxHeight); });
			}
		};
	};
	using FScopedWidgetSlotArguments = TScopedSlotArguments<FBoxPanelSlot, FSlot::FSlotArguments>;

	SLATE_BEGIN_ARGS(SVerticalBox) {}
	SLATE_SLOT_ARGUMENT(SVerticalBox::FSlot, Slots)
	SLATE_END_ARGS()

	SVerticalBox()
		: SBoxPanel(Orient_Vertical)
	{
	}
	void Construct(const FArguments& InArgs);

	static FSlot::FSlotArguments Slot() { return FSlot::FSlotArguments(); }
	FScopedWidgetSlotArguments AddSlot() { return InsertSlot(INDEX_NONE); }
	FScopedWidgetSlotArguments InsertSlot(int32 Index = INDEX_NONE) { return FScopedWidgetSlotArguments(Children, Index); }
};
