#include "Widgets/Layout/SBorder.h"

#include "Rendering/DrawElements.h"
#include "Styling/AppStyle.h"
#include "Styling/WidgetStyle.h"

SBorder::SBorder()
	: BorderImage(*this, FAppStyle::Get().GetBrush("Border"))
{
	SetCanTick(false);
}

void SBorder::Construct(const FArguments& InArgs)
{
	SetAttribute(BorderImage, InArgs._BorderImage);
	SetAttribute(BorderBackgroundColor, InArgs._BorderBackgroundColor);
	SetColorAndOpacity(InArgs._ColorAndOpacity);
	SetForegroundColor(InArgs._ForegroundColor);
	ChildSlot.HAlign(InArgs._HAlign).VAlign(InArgs._VAlign).Padding(InArgs._Padding)[InArgs._Content];
}

int32 SBorder::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const FSlateBrush* Brush = GetBorder();
	if (Brush && Brush->DrawAs != ESlateBrushDrawType::NoDrawType)
	{
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(), Brush,
			ShouldBeEnabled(bParentEnabled) ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect,
			Brush->GetTint(InWidgetStyle) * InWidgetStyle.GetColorAndOpacityTint() *
				BorderBackgroundColor.Get().GetColor(InWidgetStyle));
	}
	return SCompoundWidget::OnPaint(
		Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId + 1, InWidgetStyle, bParentEnabled);
}
