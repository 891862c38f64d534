#include "Framework/Docking/SDockingTabWell.h"

#include "Layout/ArrangedChildren.h"

namespace
{
/** The width, in slate units, that none may exceed so that all together fit: the largest one that there is. */
double FindWidthLimit(TArray<double> Widths, double Room)
{
	Widths.Sort();
	for (int32 Index = 0; Index < Widths.Num(); ++Index)
	{
		const double Share = Room / (Widths.Num() - Index);
		if (Widths[Index] > Share)
		{
			return FMath::Max(Share, 0.0);
		}
		Room -= Widths[Index];
	}
	return Widths.Num() > 0 ? Widths.Last() : 0.0;
}

double DesiredWidth(const FBoxPanelSlot& Slot)
{
	return Slot.GetWidget()->GetDesiredSize().X + Slot.GetPadding().GetTotalSpaceAlong<Orient_Horizontal>();
}
}

void SDockingTabWell::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	TArray<double> Widths;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		Widths.Add(DesiredWidth(Children[Index]));
	}
	const double Limit = FindWidthLimit(Widths, AllottedGeometry.GetLocalSize().X);

	double Position = 0.0;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FBoxPanelSlot& Slot = Children[Index];
		const double Width = FMath::Min(Widths[Index], Limit);
		const FMargin& Padding = Slot.GetPadding();
		const double HandleWidth = FMath::Max(Width - Padding.GetTotalSpaceAlong<Orient_Horizontal>(), 0.0);
		ArrangedChildren.AddWidget(Slot.GetWidget()->GetVisibility(),
			AllottedGeometry.MakeChild(Slot.GetWidget(), FVector2D(Position + Padding.Left, 0.0),
				FVector2D(HandleWidth, AllottedGeometry.GetLocalSize().Y)));
		Position += Width;
	}
}
