#pragma once

#include "Styling/SlateBrush.h"
#include "Widgets/SCompoundWidget.h"

/** A background with one child in it. */
class SLATE_API SBorder : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SBorder)
		: _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Fill)
		, _Padding(FMargin(2.0f))
	{
	}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
	SLATE_ARGUMENT(EVerticalAlignment, VAlign)
	SLATE_ARGUMENT(FMargin, Padding)
	SLATE_ATTRIBUTE(const FSlateBrush*, BorderImage)
	SLATE_ATTRIBUTE(FLinearColor, ColorAndOpacity)
	SLATE_ATTRIBUTE(FSlateColor, BorderBackgroundColor)
	SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
	SLATE_END_ARGS()

	SBorder();
	void Construct(const FArguments& InArgs);

	virtual void SetContent(const TSharedRef<SWidget>& InContent) { ChildSlot[InContent]; }
	const TSharedRef<SWidget>& GetContent() const { return ChildSlot.GetWidget(); }
	void ClearContent() { ChildSlot.DetachWidget(); }

	void SetBorderBackgroundColor(const TAttribute<FSlateColor>& InColor) { SetAttribute(BorderBackgroundColor, InColor); }
	const FSlateColor& GetBorderBackgroundColor() const { return BorderBackgroundColor.Get(); }
	void SetHAlign(EHorizontalAlignment HAlign) { ChildSlot.SetHorizontalAlignment(HAlign); }
	void SetVAlign(EVerticalAlignment VAlign) { ChildSlot.SetVerticalAlignment(VAlign); }
	void SetPadding(const FMargin& InPadding) { ChildSlot.SetPadding(InPadding); }
	void SetBorderImage(const TAttribute<const FSlateBrush*>& InBorderImage) { SetAttribute(BorderImage, InBorderImage); }

protected:
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle,
		bool bParentEnabled) const override;

	/** The background as it is now; a widget with several looks overrides it. */
	virtual const FSlateBrush* GetBorder() const { return BorderImage.Get(); }

private:
	TSlateAttribute<const FSlateBrush*, EInvalidateWidgetReason::Paint> BorderImage{*this};
	TSlateAttribute<FSlateColor, EInvalidateWidgetReason::Paint> BorderBackgroundColor{*this, FSlateColor(FLinearColor::White)};
};
