#include "Widgets/SBoxPanel.h"

#include "Layout/LayoutUtils.h"

namespace
{
double Along(EOrientation Orientation, const FVector2D& Vector)
{
	return Orientation == Orient_Horizontal ? Vector.X : Vector.Y;
}

double Across(EOrientation Orientation, const FVector2D& Vector)
{
	return Orientation == Orient_Horizontal ? Vector.Y : Vector.X;
}

FVector2D MakeVector(EOrientation Orientation, double AlongAxis, double AcrossAxis)
{
	return Orientation == Orient_Horizontal ? FVector2D(AlongAxis, AcrossAxis) : FVector2D(AcrossAxis, AlongAxis);
}

float LimitSize(const FBoxPanelSlot& Slot, float Size)
{
	return Slot.GetMaxSize() > 0.0f ? FMath::Min(Size, Slot.GetMaxSize()) : Size;
}

float PaddingAlong(EOrientation Orientation, const FBoxPanelSlot& Slot)
{
	return Along(Orientation, Slot.GetPadding().GetDesiredSize());
}

float DesiredAlong(EOrientation Orientation, const FBoxPanelSlot& Slot)
{
	return LimitSize(Slot, Along(Orientation, Slot.GetWidget()->GetDesiredSize()));
}

bool IsCollapsed(const FBoxPanelSlot& Slot)
{
	return Slot.GetWidget()->GetVisibility() == EVisibility::Collapsed;
}

/** What the stretch slots may share. */
struct FRoomToShare
{
	float Room;
	float SumOfCoefficients = 0.0f;

	FRoomToShare(EOrientation Orientation, const TPanelChildren<FBoxPanelSlot>& Children, float AllottedRoom)
		: Room(AllottedRoom)
	{
		for (int32 Index = 0; Index < Children.Num(); ++Index)
		{
			const FBoxPanelSlot& Slot = Children[Index];
			if (IsCollapsed(Slot))
			{
				continue;
			}
			Room -= PaddingAlong(Orientation, Slot);
			if (Slot.GetSizeRule().SizeRule == FSizeParam::SizeRule_Stretch)
			{
				SumOfCoefficients += Slot.GetSizeRule().Value;
			}
			else
			{
				Room -= DesiredAlong(Orientation, Slot);
			}
		}
		Room = FMath::Max(Room, 0.0f);
	}

	float ShareOf(const FBoxPanelSlot& Slot) const
	{
		return SumOfCoefficients > 0.0f ? Room * Slot.GetSizeRule().Value / SumOfCoefficients : 0.0f;
	}
};
}

FVector2D SBoxPanel::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	double SumAlong = 0.0;
	double MaxAcross = 0.0;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FBoxPanelSlot& Slot = Children[Index];
		if (IsCollapsed(Slot))
		{
			continue;
		}
		const FVector2D PaddingSize = Slot.GetPadding().GetDesiredSize();
		SumAlong += DesiredAlong(Orientation, Slot) + Along(Orientation, PaddingSize);
		MaxAcross =
			FMath::Max(MaxAcross, Across(Orientation, Slot.GetWidget()->GetDesiredSize()) + Across(Orientation, PaddingSize));
	}
	return MakeVector(Orientation, SumAlong, MaxAcross);
}

void SBoxPanel::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const FVector2D& Room = AllottedGeometry.GetLocalSize();
	const FRoomToShare ToShare(Orientation, Children, Along(Orientation, Room));

	float Position = 0.0f;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FBoxPanelSlot& Slot = Children[Index];
		if (IsCollapsed(Slot))
		{
			continue;
		}
		const bool bStretches = Slot.GetSizeRule().SizeRule == FSizeParam::SizeRule_Stretch;
		const float Size = bStretches ? LimitSize(Slot, ToShare.ShareOf(Slot)) : DesiredAlong(Orientation, Slot);
		const FVector2D SlotSize = MakeVector(Orientation, Size + PaddingAlong(Orientation, Slot), Across(Orientation, Room));

		const FVector2D& Desired = Slot.GetWidget()->GetDesiredSize();
		const AlignmentArrangeResult X = AlignChild(Slot.GetHorizontalAlignment(), SlotSize.X, Desired.X, Slot.GetPadding());
		const AlignmentArrangeResult Y = AlignChild(Slot.GetVerticalAlignment(), SlotSize.Y, Desired.Y, Slot.GetPadding());
		ArrangedChildren.AddWidget(Slot.GetWidget()->GetVisibility(),
			AllottedGeometry.MakeChild(Slot.GetWidget(), MakeVector(Orientation, Position, 0.0) + FVector2D(X.Offset, Y.Offset),
				FVector2D(X.Size, Y.Size)));
		Position += Along(Orientation, SlotSize);
	}
}

void SHorizontalBox::Construct(const FArguments& InArgs)
{
	for (const FSlot::FSlotArguments& Each : InArgs._Slots)
	{
		Children.AddSlot(const_cast<FSlot::FSlotArguments&>(Each).StealSlot());
	}
}

void SVerticalBox::Construct(const FArguments& InArgs)
{
	for (const FSlot::FSlotArguments& Each : InArgs._Slots)
	{
		Children.AddSlot(const_cast<FSlot::FSlotArguments&>(Each).StealSlot());
	}
}
