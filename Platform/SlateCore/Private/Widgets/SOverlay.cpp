#include "Widgets/SOverlay.h"

#include "Layout/LayoutUtils.h"
#include "Rendering/SlateDamage.h"
#include "Types/PaintArgs.h"

void SOverlay::Construct(const FArguments& InArgs)
{
	for (const FOverlaySlot::FSlotArguments& Each : InArgs._Slots)
	{
		Children.AddSlot(const_cast<FOverlaySlot::FSlotArguments&>(Each).StealSlot());
	}
}

FVector2D SOverlay::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	FVector2D Largest = FVector2D::ZeroVector;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FOverlaySlot& Slot = Children[Index];
		if (Slot.GetWidget()->GetVisibility() != EVisibility::Collapsed)
		{
			const FVector2D Size = Slot.GetWidget()->GetDesiredSize() + Slot.GetPadding().GetDesiredSize();
			Largest = FVector2D(FMath::Max(Largest.X, Size.X), FMath::Max(Largest.Y, Size.Y));
		}
	}
	return Largest;
}

void SOverlay::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FOverlaySlot& Slot = Children[Index];
		ArrangeSingleChild(AllottedGeometry, ArrangedChildren, Slot.GetWidget(), Slot.GetPadding(), Slot.GetHorizontalAlignment(),
			Slot.GetVerticalAlignment());
	}
}

int32 SOverlay::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	// Every child lies wholly above the one before.
	int32 HighestLayer = LayerId;
	const FPaintArgs ChildArgs = Args.WithNewParent(this);
	for (const SWidget* Child : GetVisibleChildren())
	{
		if (Args.GetDamage().Intersects(Child->GetPaintBounds()))
		{
			HighestLayer = Child->Paint(ChildArgs, Child->GetPaintSpaceGeometry(), MyCullingRect, OutDrawElements,
				HighestLayer + 1, InWidgetStyle, ShouldBeEnabled(bParentEnabled));
		}
	}
	return HighestLayer;
}
