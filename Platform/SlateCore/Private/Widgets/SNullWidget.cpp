#include "Widgets/SNullWidget.h"

#include "Widgets/SLeafWidget.h"

namespace
{
class SNullWidgetContent final : public SLeafWidget
{
public:
	SNullWidgetContent()
	{
		SetTypeOfWidget(TEXT("SNullWidget"));
		SetCanTick(false);
	}

	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle,
		bool bParentEnabled) const override
	{
		return LayerId;
	}

	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override { return FVector2D::ZeroVector; }
};
}

const TSharedRef<SWidget> SNullWidget::NullWidget = MakeShared<SNullWidgetContent>();
