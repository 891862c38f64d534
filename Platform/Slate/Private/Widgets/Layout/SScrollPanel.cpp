#include "Widgets/Layout/SScrollPanel.h"

#include "Layout/LayoutUtils.h"
#include "Widgets/Layout/SScrollBar.h"

void SScrollPanel::Construct(const FArguments& InArgs, EOrientation InOrientation)
{
	Orientation = InOrientation;
	SetClipping(EWidgetClipping::ClipToBounds);
}

void SScrollPanel::SetOrientation(EOrientation InOrientation)
{
	Orientation = InOrientation;
	SetOffset(0.0f);
	Invalidate(EInvalidateWidgetReason::Layout);
}

void SScrollPanel::SetOffset(float NewOffset)
{
	const float AtLeastZero = FMath::Max(NewOffset, 0.0f);
	if (AtLeastZero != GetOffset())
	{
		WantedOffset = AtLeastZero;
		bOffsetIsNew = true;
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

void SScrollPanel::ScrollToEndAtNextLayout()
{
	WantedOffset = TNumericLimits<float>::Max();
	Invalidate(EInvalidateWidgetReason::Layout);
}

bool SScrollPanel::IsWithinForeignWindow() const
{
	int32 NumWindows = 0;
	for (SWidget* Step = GetParentPointer(); Step && NumWindows < 2; Step = Step->GetParentPointer())
	{
		NumWindows += Step->AsWindow() != nullptr;
	}
	return NumWindows > 1;
}

FVector2D SScrollPanel::RoomOf(const SScrollBox::FSlot& Slot) const
{
	return Slot.GetWidget()->GetDesiredSize() + Slot.GetPadding().GetDesiredSize();
}

FVector2D SScrollPanel::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	double SumAlong = 0.0;
	double MaxAcross = 0.0;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		if (Children[Index].GetWidget()->GetVisibility() != EVisibility::Collapsed)
		{
			const FVector2D Room = RoomOf(Children[Index]);
			SumAlong += Along(Room);
			MaxAcross = FMath::Max(MaxAcross, Across(Room));
		}
	}
	return MakeVector(SumAlong, MaxAcross);
}

void SScrollPanel::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	ViewLength = Along(AllottedGeometry.GetLocalSize());
	ContentLength = Along(GetDesiredSize());
	Offset = FMath::Clamp(WantedOffset, 0.0f, GetOffsetOfEnd());
	if (!IsWithinForeignWindow())
	{
		WantedOffset = Offset;
	}
	bOffsetIsNew = false;
	if (const TSharedPtr<SScrollBar> Bar = ScrollBar.Pin())
	{
		const bool bScrolls = ContentLength > ViewLength && ContentLength > 0.0f;
		Bar->SetState(bScrolls ? Offset / ContentLength : 0.0f, bScrolls ? ViewLength / ContentLength : 1.0f);
	}

	// Whole pixels, so that text stays sharp while it moves.
	const double Scale = AllottedGeometry.Scale;
	double Position = -FMath::RoundToDouble(Offset * Scale) / Scale;
	const double Breadth = Across(AllottedGeometry.GetLocalSize());
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const SScrollBox::FSlot& Slot = Children[Index];
		const TSharedRef<SWidget>& Child = Slot.GetWidget();
		if (Child->GetVisibility() == EVisibility::Collapsed)
		{
			continue;
		}
		const double Length = Along(RoomOf(Slot));
		const bool bInView = Position + Length >= 0.0 && Position <= ViewLength;
		if (bInView)
		{
			const FVector2D Room = MakeVector(Length, Breadth);
			const AlignmentArrangeResult X =
				AlignChild(Slot.GetHorizontalAlignment(), Room.X, Child->GetDesiredSize().X, Slot.GetPadding());
			const AlignmentArrangeResult Y =
				AlignChild(Slot.GetVerticalAlignment(), Room.Y, Child->GetDesiredSize().Y, Slot.GetPadding());
			ArrangedChildren.AddWidget(Child->GetVisibility(),
				AllottedGeometry.MakeChild(
					Child, MakeVector(Position, 0.0) + FVector2D(X.Offset, Y.Offset), FVector2D(X.Size, Y.Size)));
		}
		Position += Length;
	}
}
