#pragma once

#include "Styling/SlateBrush.h"
#include "Widgets/SLeafWidget.h"

/** A brush at its own size. */
class SLATE_API SImage : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SImage) {}
	SLATE_ATTRIBUTE(const FSlateBrush*, Image)
	SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)
	SLATE_END_ARGS()

	SImage();
	void Construct(const FArguments& InArgs);

	void SetImage(const TAttribute<const FSlateBrush*>& InImage) { SetAttribute(Image, InImage); }
	void SetColorAndOpacity(const TAttribute<FSlateColor>& InColor) { SetAttribute(ColorAndOpacity, InColor); }

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle,
		bool bParentEnabled) const override;

private:
	TSlateAttribute<const FSlateBrush*, EInvalidateWidgetReason::Layout> Image{*this};
	TSlateAttribute<FSlateColor, EInvalidateWidgetReason::Paint> ColorAndOpacity{*this, FSlateColor(FLinearColor::White)};
};
