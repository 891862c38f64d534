#include "Widgets/SToolTip.h"

#include "Styling/AppStyle.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
/** Slate units at which the text of a tool tip is wrapped. */
constexpr float WrapWidth = 400.0f;
}

void SToolTip::Construct(const FArguments& InArgs)
{
	TextContent = InArgs._Text;
	SetVisibility(EVisibility::HitTestInvisible);
	// clang-format off
	ChildSlot
	[
		SNew(SBorder)
		.BorderImage(FAppStyle::Get().GetBrush("ToolTip.Background"))
		.Padding(FMargin(10.0f, 6.0f))
		[
			SNew(STextBlock)
			.Text(InArgs._Text)
			.WrapTextAt(WrapWidth)
		]
	];
	// clang-format on
}
