#include "Widgets/SCompoundWidget.h"

#include "Layout/LayoutUtils.h"
#include "Styling/WidgetStyle.h"

int32 FCompoundWidgetSlot::Num() const
{
	return GetWidget() == SNullWidget::NullWidget ? 0 : 1;
}

SCompoundWidget::SCompoundWidget()
	: ChildSlot(*this)
{
}

FVector2D SCompoundWidget::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	const SWidget& Child = ChildSlot.GetWidget().Get();
	return Child.GetVisibility() == EVisibility::Collapsed ? FVector2D::ZeroVector
														   : Child.GetDesiredSize() + ChildSlot.GetPadding().GetDesiredSize();
}

void SCompoundWidget::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	ArrangeSingleChild(AllottedGeometry, ArrangedChildren, ChildSlot.GetWidget(), ChildSlot.GetPadding(),
		ChildSlot.GetHorizontalAlignment(), ChildSlot.GetVerticalAlignment());
}

int32 SCompoundWidget::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	FWidgetStyle Style = InWidgetStyle;
	Style.BlendColorAndOpacityTint(GetColorAndOpacity()).SetForegroundColor(GetForegroundColor());
	return PaintVisibleChildren(Args, MyCullingRect, OutDrawElements, LayerId, Style, ShouldBeEnabled(bParentEnabled));
}
