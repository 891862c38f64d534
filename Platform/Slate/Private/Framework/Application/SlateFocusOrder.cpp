#include "Framework/Application/SlateFocusOrder.h"

#include "Widgets/SWindow.h"

namespace
{
void CollectFocusable(SWidget& Widget, TArray<SWidget*>& InOrder)
{
	if (!Widget.GetVisibility().AreChildrenHitTestVisible() || !Widget.IsEnabled())
	{
		return;
	}
	if (Widget.SupportsKeyboardFocus() && !Widget.AsWindow())
	{
		InOrder.Add(&Widget);
	}
	FChildren& Children = *Widget.GetChildren();
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		CollectFocusable(Children.GetChildRefAt(Index), InOrder);
	}
}

/** How far a place lies in a direction; negative when it lies in the opposite one. */
double DistanceTowards(EUINavigation Direction, const FVector2D& Offset)
{
	switch (Direction)
	{
		case EUINavigation::Left:
			return -Offset.X;
		case EUINavigation::Right:
			return Offset.X;
		case EUINavigation::Up:
			return -Offset.Y;
		default:
			return Offset.Y;
	}
}

/** How far a place lies beside the way in a direction: negative for what overlaps the way. */
double GapBeside(EUINavigation Direction, const FSlateRect& From, const FSlateRect& To)
{
	const bool bHorizontal = Direction == EUINavigation::Left || Direction == EUINavigation::Right;
	return bHorizontal ? FMath::Max(To.Top - From.Bottom, From.Top - To.Bottom)
					   : FMath::Max(To.Left - From.Right, From.Left - To.Right);
}

/** What lies beside the way is taken only when nothing lies in it. */
constexpr double BesideCost = 10000.0;
}

SWidget* SlateFocusOrder::FindNext(SWindow& Window, const SWidget* From, bool bForward)
{
	TArray<SWidget*> InOrder;
	CollectFocusable(Window, InOrder);
	if (InOrder.Num() == 0)
	{
		return nullptr;
	}
	const int32 Current = InOrder.IndexOfByPredicate([From](const SWidget* Widget) { return Widget == From; });
	if (Current == INDEX_NONE)
	{
		return bForward ? InOrder[0] : InOrder.Last();
	}
	return InOrder[(Current + (bForward ? 1 : InOrder.Num() - 1)) % InOrder.Num()];
}

SWidget* SlateFocusOrder::FindNearest(SWindow& Window, const SWidget& From, EUINavigation Direction)
{
	TArray<SWidget*> InOrder;
	CollectFocusable(Window, InOrder);
	const FSlateRect Start = From.GetPaintSpaceGeometry().GetLayoutBoundingRect();
	SWidget* Nearest = nullptr;
	double LeastCost = TNumericLimits<double>::Max();
	for (SWidget* Widget : InOrder)
	{
		const FSlateRect Place = Widget->GetPaintSpaceGeometry().GetLayoutBoundingRect();
		const double Ahead = DistanceTowards(Direction, Place.GetCenter() - Start.GetCenter());
		const double Gap = GapBeside(Direction, Start, Place);
		const double Cost = Ahead + (Gap >= 0.0 ? BesideCost + Gap : 0.0);
		if (Widget != &From && Widget->IsShownInFrame() && Ahead > 0.0 && Cost < LeastCost)
		{
			LeastCost = Cost;
			Nearest = Widget;
		}
	}
	return Nearest;
}
