#include "Widgets/Layout/SBox.h"

#include "Layout/LayoutUtils.h"

namespace
{
/** The override, or what the child desires within the limits. */
double DecideSize(const FOptionalSize& Override, const FOptionalSize& Min, const FOptionalSize& Max, double Desired)
{
	if (Override.IsSet())
	{
		return Override.Get();
	}
	const double AtLeast = Min.IsSet() ? FMath::Max<double>(Desired, Min.Get()) : Desired;
	return Max.IsSet() ? FMath::Min<double>(AtLeast, Max.Get()) : AtLeast;
}

/** The room of a child that may not grow beyond a limit: the slot without what the limit takes away. */
double LimitRoom(const FOptionalSize& Max, double Room)
{
	return Max.IsSet() ? FMath::Min<double>(Max.Get(), Room) : Room;
}
}

SBox::SBox()
	: ChildSlot(*this)
{
	SetCanTick(false);
}

void SBox::Construct(const FArguments& InArgs)
{
	SetWidthOverride(InArgs._WidthOverride);
	SetHeightOverride(InArgs._HeightOverride);
	SetMinDesiredWidth(InArgs._MinDesiredWidth);
	SetMinDesiredHeight(InArgs._MinDesiredHeight);
	SetMaxDesiredWidth(InArgs._MaxDesiredWidth);
	SetMaxDesiredHeight(InArgs._MaxDesiredHeight);
	ChildSlot.HAlign(InArgs._HAlign).VAlign(InArgs._VAlign).Padding(InArgs._Padding)[InArgs._Content];
}

FVector2D SBox::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	const SWidget& Child = ChildSlot.GetWidget().Get();
	if (Child.GetVisibility() == EVisibility::Collapsed)
	{
		return FVector2D::ZeroVector;
	}
	const FVector2D Desired = Child.GetDesiredSize() + ChildSlot.GetPadding().GetDesiredSize();
	return FVector2D(DecideSize(WidthOverride.Get(), MinDesiredWidth.Get(), MaxDesiredWidth.Get(), Desired.X),
		DecideSize(HeightOverride.Get(), MinDesiredHeight.Get(), MaxDesiredHeight.Get(), Desired.Y));
}

void SBox::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const FVector2D& Room = AllottedGeometry.GetLocalSize();
	const FGeometry Limited = AllottedGeometry.MakeChild(
		FVector2D(LimitRoom(MaxDesiredWidth.Get(), Room.X), LimitRoom(MaxDesiredHeight.Get(), Room.Y)), FSlateLayoutTransform());
	ArrangeSingleChild(Limited, ArrangedChildren, ChildSlot.GetWidget(), ChildSlot.GetPadding(),
		ChildSlot.GetHorizontalAlignment(), ChildSlot.GetVerticalAlignment());
}
