#pragma once

#include "Widgets/IToolTip.h"
#include "Widgets/SCompoundWidget.h"

/** A tool tip that shows a text. */
class SLATE_API SToolTip : public SCompoundWidget, public IToolTip
{
public:
	SLATE_BEGIN_ARGS(SToolTip) {}
	SLATE_ATTRIBUTE(FText, Text)
	SLATE_END_ARGS()

	SToolTip() { SetCanTick(false); }
	void Construct(const FArguments& InArgs);

	virtual TSharedRef<SWidget> AsWidget() override { return AsShared(); }
	virtual bool IsEmpty() const override { return TextContent.Get(FText::GetEmpty()).IsEmpty(); }

	virtual void LimitWidth(float MaxWidth) override;

	FText GetTextTooltip() const { return TextContent.Get(FText::GetEmpty()); }

private:
	TAttribute<FText> TextContent;
	TSharedPtr<class STextBlock> TextBlock;
};
