#include "Widgets/Layout/SScrollPanel.h"

#include "Layout/ForeignWindow.h"
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
	if (AtLeastZero != WantedOffset)
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
	const float View = Along(AllottedGeometry.GetLocalSize());
	const float Content = Along(GetDesiredSize());
	const float Shown = FMath::Clamp(WantedOffset, 0.0f, FMath::Max(Content - View, 0.0f));
	if (!IsWithinForeignWindow(*this))
	{
		ViewLength = View;
		ContentLength = Content;
		Offset = WantedOffset = Shown;
		bOffsetIsNew = false;
	}
	if (const TSharedPtr<SScrollBar> Bar = ScrollBar.Pin())
	{
		const bool bScrolls = Content > View && Content > 0.0f;
		Bar->SetState(bScrolls ? Shown / Content : 0.0f, bScrolls ? View / Content : 1.0f);
	}

	// Whole pixels, so that text stays sharp while it moves.
	const double Scale = AllottedGeometry.Scale;
	double Position = -FMath::RoundToDouble(Shown * Scale) / Scale;
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
		const bool bInView = Position + Length >= 0.0 && Position <= View;
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
