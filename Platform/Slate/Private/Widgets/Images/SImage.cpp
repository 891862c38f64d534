#include "Widgets/Images/SImage.h"

#include "Rendering/DrawElements.h"
#include "Styling/StyleDefaults.h"
#include "Styling/WidgetStyle.h"

SImage::SImage()
	: Image(*this, FStyleDefaults::GetDefaultBrush())
{
	SetCanTick(false);
}

void SImage::Construct(const FArguments& InArgs)
{
	SetImage(InArgs._Image);
	SetColorAndOpacity(InArgs._ColorAndOpacity);
}

FVector2D SImage::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	return Image.Get() ? Image.Get()->GetImageSize() : FVector2D::ZeroVector;
}

int32 SImage::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const FSlateBrush* Brush = Image.Get();
	if (Brush && Brush->DrawAs != ESlateBrushDrawType::NoDrawType)
	{
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(), Brush,
			ShouldBeEnabled(bParentEnabled) ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect,
			Brush->GetTint(InWidgetStyle) * InWidgetStyle.GetColorAndOpacityTint() *
				ColorAndOpacity.Get().GetColor(InWidgetStyle));
	}
	return LayerId;
}
