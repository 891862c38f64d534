#include "Widgets/SWidget.h"

#include "Application/SlateApplicationBase.h"
#include "Rendering/DrawElements.h"
#include "Rendering/SlateDamage.h"
#include "Styling/AppStyle.h"
#include "Styling/WidgetStyle.h"
#include "Types/PaintArgs.h"

int32 SWidget::Paint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	if (!bArranged || AllottedGeometry != PaintSpaceGeometry)
	{
		const_cast<SWidget*>(this)->MoveToPaintedPlace(AllottedGeometry);
	}
	if (!bArranged || !Args.GetDamage().Intersects(PaintBounds))
	{
		return LayerId;
	}

	const bool bClips = Clipping != EWidgetClipping::Inherit;
	if (bClips)
	{
		OutDrawElements.PushClip(FSlateClippingZone(PaintSpaceGeometry.GetLayoutBoundingRect()));
	}
	int32 HighestLayer =
		OnPaint(Args, PaintSpaceGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled);
	if (FSlateApplicationBase::Get().ShowsFocusOn(*this))
	{
		if (const FSlateBrush* FocusBrush = GetFocusBrush())
		{
			FSlateDrawElement::MakeBox(OutDrawElements, ++HighestLayer, PaintSpaceGeometry.ToPaintGeometry(), FocusBrush,
				ESlateDrawEffect::None, FocusBrush->GetTint(InWidgetStyle));
		}
	}
	if (bClips)
	{
		OutDrawElements.PopClip();
	}
	return HighestLayer;
}

const FSlateBrush* SWidget::GetFocusBrush() const
{
	return FAppStyle::Get().GetBrush("FocusRectangle");
}

int32 SWidget::PaintVisibleChildren(const FPaintArgs& Args, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	int32 HighestLayer = LayerId;
	const FPaintArgs ChildArgs = Args.WithNewParent(this);
	for (const SWidget* Child : VisibleChildren)
	{
		HighestLayer = FMath::Max(HighestLayer,
			Child->Paint(
				ChildArgs, Child->PaintSpaceGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled));
	}
	return HighestLayer;
}
