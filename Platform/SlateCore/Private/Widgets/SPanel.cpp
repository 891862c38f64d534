#include "Widgets/SPanel.h"

#include "Types/PaintArgs.h"

SPanel::SPanel()
{
	SetVisibility(EVisibility::SelfHitTestInvisible);
}

int32 SPanel::PaintArrangedChildren(const FPaintArgs& Args, const FArrangedChildren& ArrangedChildren,
	const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId,
	const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const FPaintArgs ChildArgs = Args.WithNewParent(this);
	int32 HighestLayer = LayerId;
	for (int32 Index = 0; Index < ArrangedChildren.Num(); ++Index)
	{
		const FArrangedWidget& Child = ArrangedChildren[Index];
		HighestLayer = FMath::Max(HighestLayer,
			Child.Widget->Paint(ChildArgs, Child.Geometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle,
				ShouldBeEnabled(bParentEnabled)));
	}
	return HighestLayer;
}

int32 SPanel::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	return PaintVisibleChildren(Args, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, ShouldBeEnabled(bParentEnabled));
}
