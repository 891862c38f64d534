#pragma once

#include "Layout/BasicLayoutWidgetSlot.h"
#include "Styling/SlateColor.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SWidget.h"

/** The one slot of a compound widget. */
class SLATECORE_API FCompoundWidgetSlot final : public FChildren, public FAlignedSlot
{
public:
	explicit FCompoundWidgetSlot(SWidget& InOwner) { SetOwner(InOwner); }

	virtual int32 Num() const override;
	virtual TSharedRef<SWidget> GetChildAt(int32 Index) const override { return GetWidget(); }
	virtual SWidget& GetChildRefAt(int32 Index) const override { return GetWidget().Get(); }

	FCompoundWidgetSlot& Padding(const FMargin& InPadding)
	{
		SetPadding(InPadding);
		return *this;
	}

	FCompoundWidgetSlot& HAlign(EHorizontalAlignment InAlignment)
	{
		SetHorizontalAlignment(InAlignment);
		return *this;
	}

	FCompoundWidgetSlot& VAlign(EVerticalAlignment InAlignment)
	{
		SetVerticalAlignment(InAlignment);
		return *this;
	}

	FCompoundWidgetSlot& operator[](const TSharedRef<SWidget>& InWidget)
	{
		AttachWidget(InWidget);
		return *this;
	}
};

/** A widget made of others: one child, tinted as a whole. */
class SLATECORE_API SCompoundWidget : public SWidget
{
public:
	/** Tints the widget with all it holds. */
	void SetColorAndOpacity(const TAttribute<FLinearColor>& InColorAndOpacity)
	{
		SetAttribute(ColorAndOpacityAttribute, InColorAndOpacity);
	}

	/** The foreground colour for all within that says it uses the foreground. */
	void SetForegroundColor(const TAttribute<FSlateColor>& InForegroundColor)
	{
		SetAttribute(ForegroundColorAttribute, InForegroundColor);
	}

	virtual FSlateColor GetForegroundColor() const { return ForegroundColorAttribute.Get(); }
	const FLinearColor& GetColorAndOpacity() const { return ColorAndOpacityAttribute.Get(); }

	virtual FChildren* GetChildren() override { return &ChildSlot; }

protected:
	SCompoundWidget();

	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle,
		bool bParentEnabled) const override;

	FCompoundWidgetSlot ChildSlot;

private:
	TSlateAttribute<FLinearColor, EInvalidateWidgetReason::Paint> ColorAndOpacityAttribute{*this, FLinearColor::White};
	TSlateAttribute<FSlateColor, EInvalidateWidgetReason::Paint> ForegroundColorAttribute{*this, FSlateColor::UseForeground()};
};
