#pragma once

#include "Types/SlateStructs.h"
#include "Widgets/SCompoundWidget.h"
#include "Widgets/SPanel.h"

/** One child, with sizes of the box's own in place of what the child desires. All sizes are slate units. */
class SLATE_API SBox : public SPanel
{
public:
	SLATE_BEGIN_ARGS(SBox)
		: _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Fill)
	{
	}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
	SLATE_ARGUMENT(EVerticalAlignment, VAlign)
	SLATE_ARGUMENT(FMargin, Padding)
	SLATE_ATTRIBUTE(FOptionalSize, WidthOverride)
	SLATE_ATTRIBUTE(FOptionalSize, HeightOverride)
	SLATE_ATTRIBUTE(FOptionalSize, MinDesiredWidth)
	SLATE_ATTRIBUTE(FOptionalSize, MinDesiredHeight)
	SLATE_ATTRIBUTE(FOptionalSize, MaxDesiredWidth)
	SLATE_ATTRIBUTE(FOptionalSize, MaxDesiredHeight)
	SLATE_END_ARGS()

	SBox();
	void Construct(const FArguments& InArgs);

	void SetContent(const TSharedRef<SWidget>& InContent) { ChildSlot[InContent]; }
	void SetHAlign(EHorizontalAlignment HAlign) { ChildSlot.SetHorizontalAlignment(HAlign); }
	void SetVAlign(EVerticalAlignment VAlign) { ChildSlot.SetVerticalAlignment(VAlign); }
	void SetPadding(const FMargin& InPadding) { ChildSlot.SetPadding(InPadding); }
	void SetWidthOverride(const TAttribute<FOptionalSize>& InValue) { SetAttribute(WidthOverride, InValue); }
	void SetHeightOverride(const TAttribute<FOptionalSize>& InValue) { SetAttribute(HeightOverride, InValue); }
	void SetMinDesiredWidth(const TAttribute<FOptionalSize>& InValue) { SetAttribute(MinDesiredWidth, InValue); }
	void SetMinDesiredHeight(const TAttribute<FOptionalSize>& InValue) { SetAttribute(MinDesiredHeight, InValue); }
	void SetMaxDesiredWidth(const TAttribute<FOptionalSize>& InValue) { SetAttribute(MaxDesiredWidth, InValue); }
	void SetMaxDesiredHeight(const TAttribute<FOptionalSize>& InValue) { SetAttribute(MaxDesiredHeight, InValue); }

	virtual FChildren* GetChildren() override { return &ChildSlot; }

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;

	FCompoundWidgetSlot ChildSlot;

private:
	using FSizeAttribute = TSlateAttribute<FOptionalSize, EInvalidateWidgetReason::Layout>;

	FSizeAttribute WidthOverride{*this};
	FSizeAttribute HeightOverride{*this};
	FSizeAttribute MinDesiredWidth{*this};
	FSizeAttribute MinDesiredHeight{*this};
	FSizeAttribute MaxDesiredWidth{*this};
	FSizeAttribute MaxDesiredHeight{*this};
};
