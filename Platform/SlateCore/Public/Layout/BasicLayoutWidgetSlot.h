#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Layout/Margin.h"

/** Padding and alignment of a slot: what nearly every parent lets its children choose. */
struct FSlotLayout
{
	FMargin Padding;
	EHorizontalAlignment HAlignment = HAlign_Fill;
	EVerticalAlignment VAlignment = VAlign_Fill;
};

/** A slot with padding and alignment, whose changes lay the owner out anew. */
class FAlignedSlot : public FSlotBase
{
public:
	const FMargin& GetPadding() const { return Layout.Padding; }
	EHorizontalAlignment GetHorizontalAlignment() const { return Layout.HAlignment; }
	EVerticalAlignment GetVerticalAlignment() const { return Layout.VAlignment; }

	void SetPadding(const FMargin& InPadding)
	{
		Layout.Padding = InPadding;
		Invalidate(EInvalidateWidgetReason::Layout);
	}

	void SetHorizontalAlignment(EHorizontalAlignment InAlignment)
	{
		Layout.HAlignment = InAlignment;
		Invalidate(EInvalidateWidgetReason::Layout);
	}

	void SetVerticalAlignment(EVerticalAlignment InAlignment)
	{
		Layout.VAlignment = InAlignment;
		Invalidate(EInvalidateWidgetReason::Layout);
	}

private:
	FSlotLayout Layout;
};

/**
 * The declarative arguments of a slot with padding and alignment. Panels derive their FSlotArguments from it and add their own.
 *
 * @tparam SlotType The slot, an FAlignedSlot.
 * @tparam ArgumentsType The panel's own arguments type, which every call returns.
 */
template <typename SlotType, typename ArgumentsType>
class TAlignedSlotArguments : public TSlotArguments<SlotType>
{
public:
	ArgumentsType& Padding(const FMargin& InPadding)
	{
		return With([&](SlotType& Slot) { Slot.SetPadding(InPadding); });
	}
	ArgumentsType& Padding(float Horizontal, float Vertical) { return Padding(FMargin(Horizontal, Vertical)); }
	ArgumentsType& Padding(float Left, float Top, float Right, float Bottom)
	{
		return Padding(FMargin(Left, Top, Right, Bottom));
	}

	ArgumentsType& HAlign(EHorizontalAlignment InAlignment)
	{
		return With([&](SlotType& Slot) { Slot.SetHorizontalAlignment(InAlignment); });
	}

	ArgumentsType& VAlign(EVerticalAlignment InAlignment)
	{
		return With([&](SlotType& Slot) { Slot.SetVerticalAlignment(InAlignment); });
	}

	/** Hands out the slot, which lives as long as it stays in its panel. */
	ArgumentsType& Expose(SlotType*& OutSlot)
	{
		return With([&](SlotType& Slot) { OutSlot = &Slot; });
	}

	ArgumentsType& operator[](const TSharedRef<SWidget>& InWidget)
	{
		return With([&](SlotType& Slot) { Slot.AttachWidget(InWidget); });
	}

protected:
	template <typename FunctionType>
	ArgumentsType& With(FunctionType&& Function)
	{
		Function(this->GetSlot());
		return static_cast<ArgumentsType&>(*this);
	}
};
