#include "Widgets/SPanel.h"

SPanel::SPanel()
{
	SetVisibility(EVisibility::SelfHitTestInvisible);
}

int32 SPanel::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	return PaintVisibleChildren(Args, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, ShouldBeEnabled(bParentEnabled));
}
