#include "Widgets/SToolTip.h"

#include "Styling/AppStyle.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
/** Slate units at which the text of a tool tip is wrapped. */
constexpr float WrapWidth = 400.0f;

const FMargin TextPadding(10.0f, 6.0f);
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
		.Padding(TextPadding)
		[
			SAssignNew(TextBlock, STextBlock)
			.Text(InArgs._Text)
			.WrapTextAt(WrapWidth)
			.WrappingPolicy(ETextWrappingPolicy::AllowPerCharacterWrapping)
		]
	];
	// clang-format on
}

void SToolTip::LimitWidth(float MaxWidth)
{
	TextBlock->SetWrapTextAt(FMath::Clamp(MaxWidth - TextPadding.GetTotalSpaceAlong<Orient_Horizontal>(), 1.0f, WrapWidth));
}
