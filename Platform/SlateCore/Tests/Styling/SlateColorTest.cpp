#include "Styling/SlateColor.h"

#include "Styling/WidgetStyle.h"

#include <gtest/gtest.h>

TEST(SlateColor, UseForegroundTakesTheForegroundOfTheStyle)
{
	FWidgetStyle Style;
	Style.SetForegroundColor(FLinearColor::Red);
	EXPECT_EQ(FSlateColor::UseForeground().GetColor(Style), FLinearColor::Red);
	EXPECT_EQ(FSlateColor(FLinearColor::Green).GetColor(Style), FLinearColor::Green);
}

TEST(SlateColor, EqualityLooksAtRuleAndColour)
{
	EXPECT_EQ(FSlateColor::UseForeground(), FSlateColor::UseForeground());
	EXPECT_NE(FSlateColor::UseForeground(), FSlateColor(FLinearColor::White));
	EXPECT_NE(FSlateColor::UseForeground(), FSlateColor::UseStyle());
	EXPECT_TRUE(FSlateColor(FLinearColor::White).IsColorSpecified());
	EXPECT_FALSE(FSlateColor::UseStyle().IsColorSpecified());
}
