#include "Framework/Application/SlateHitTest.h"

#include "Widgets/SWindow.h"

namespace
{
/** Adds the path from the deepest hit widget up to this one. What is painted later lies above and is asked first. */
bool AddHitPath(SWidget& Widget, const FVector2D& Place, TArray<SWidget*>& LeafToRoot)
{
	if (!Widget.GetPaintBounds().ContainsPoint(Place))
	{
		return false;
	}
	const EVisibility Visibility = Widget.GetVisibility();
	if (Visibility.AreChildrenHitTestVisible())
	{
		const TArray<SWidget*>& Children = Widget.GetVisibleChildren();
		for (int32 Index = Children.Num() - 1; Index >= 0; --Index)
		{
			if (AddHitPath(*Children[Index], Place, LeafToRoot))
			{
				LeafToRoot.Add(&Widget);
				return true;
			}
		}
	}
	if (Visibility.IsHitTestVisible() && Widget.GetPaintSpaceGeometry().IsUnderLocation(Place))
	{
		LeafToRoot.Add(&Widget);
		return true;
	}
	return false;
}
}

TArray<SWidget*> SlateHitTest::FindPath(SWindow& Window, const FVector2D& PlaceInWindow)
{
	TArray<SWidget*> LeafToRoot;
	AddHitPath(Window, PlaceInWindow, LeafToRoot);
	TArray<SWidget*> RootToLeaf;
	RootToLeaf.Reserve(LeafToRoot.Num());
	for (int32 Index = LeafToRoot.Num() - 1; Index >= 0; --Index)
	{
		RootToLeaf.Add(LeafToRoot[Index]);
	}
	return RootToLeaf;
}
