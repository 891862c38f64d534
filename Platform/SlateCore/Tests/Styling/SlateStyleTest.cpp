#include <gtest/gtest.h>

#include "Brushes/SlateColorBrush.h"
#include "LogCapture.h"
#include "Styling/AppStyle.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Styling/StyleDefaults.h"
#include "Textures/SlateIcon.h"

TEST(SlateStyle, NamesIgnoreCase)
{
	FSlateStyleSet Style("Test");
	FSlateBrush* const Brush = new FSlateColorBrush(FLinearColor::Red);
	Style.Set("Some.Brush", Brush);
	EXPECT_EQ(Style.GetBrush("some.BRUSH"), Brush);
}

TEST(SlateStyle, AnUnknownNameGivesADefaultAndOneLineInTheLog)
{
	const FSlateStyleSet Style("Test");
	const FLogCapture Log(TEXT("LogSlateStyle"));

	EXPECT_EQ(Style.GetBrush("Nothing"), FStyleDefaults::GetDefaultBrush());
	EXPECT_EQ(Style.GetBrush("Nothing"), FStyleDefaults::GetDefaultBrush());
	EXPECT_EQ(&Style.GetWidgetStyle<FButtonStyle>("NoButton"), &FButtonStyle::GetDefault());
	EXPECT_EQ(Style.GetFontStyle("NoFont"), FCoreStyle::GetDefaultFontStyle("Regular", 10));

	EXPECT_EQ(Log.Warnings(),
		TArray<FString>({
			TEXT("Unable to find brush 'Nothing' in style set 'Test'."),
			TEXT("Unable to find FButtonStyle 'NoButton' in style set 'Test'."),
			TEXT("Unable to find font 'NoFont' in style set 'Test'."),
		}));
}

TEST(SlateStyle, AStyleOfAnotherTypeIsNotTaken)
{
	FSlateStyleSet Style("Test");
	Style.Set("Thing", FButtonStyle());
	EXPECT_TRUE(Style.HasWidgetStyle<FButtonStyle>("Thing"));
	EXPECT_FALSE(Style.HasWidgetStyle<FCheckBoxStyle>("Thing"));
}

TEST(SlateStyle, WhatASetLacksComesFromItsParent)
{
	FSlateStyleSet Parent("TestParent");
	FSlateBrush* const Brush = new FSlateColorBrush(FLinearColor::Red);
	Parent.Set("Inherited", Brush);
	Parent.Set("Inherited.Color", FLinearColor::Green);
	FSlateStyleRegistry::RegisterSlateStyle(Parent);
	FSlateStyleSet Child("TestChild");
	Child.SetParentStyleName("TestParent");

	EXPECT_EQ(Child.GetBrush("Inherited"), Brush);
	EXPECT_EQ(Child.GetColor("Inherited.Color"), FLinearColor::Green);
	FSlateStyleRegistry::UnRegisterSlateStyle(Parent);
	EXPECT_EQ(Child.GetOptionalBrush("Inherited"), nullptr);
}

TEST(SlateIcon, ResolvesByNameWhenItIsUsed)
{
	const FSlateIcon Icon("LateSet", "Icon");
	EXPECT_EQ(Icon.GetOptionalIcon(), nullptr);

	FSlateStyleSet Style("LateSet");
	FSlateBrush* const Brush = new FSlateColorBrush(FLinearColor::Red);
	Style.Set("Icon", Brush);
	FSlateStyleRegistry::RegisterSlateStyle(Style);
	EXPECT_EQ(Icon.GetOptionalIcon(), Brush);
	FSlateStyleRegistry::UnRegisterSlateStyle(Style);
	EXPECT_EQ(Icon.GetOptionalIcon(), nullptr);
}

namespace
{
/** Relative luminance of WCAG 2.1, which is the linear light of a colour weighted by how bright its parts look. */
double Luminance(const FLinearColor& Color)
{
	return 0.2126 * Color.R + 0.7152 * Color.G + 0.0722 * Color.B;
}

double Contrast(const FSlateColor& Foreground, const FSlateBrush& Ground)
{
	const double A = Luminance(Foreground.GetSpecifiedColor()) + 0.05;
	const double B = Luminance(Ground.TintColor.GetSpecifiedColor()) + 0.05;
	return A > B ? A / B : B / A;
}
}

TEST(CoreStyle, TextHasAContrastOfAtLeastFourAndAHalfToOne)
{
	constexpr double Least = 4.5;
	const FButtonStyle& Button = FCoreStyle::Get().GetWidgetStyle<FButtonStyle>("Button");
	EXPECT_GE(Contrast(Button.NormalForeground, Button.Normal), Least);
	EXPECT_GE(Contrast(Button.HoveredForeground, Button.Hovered), Least);
	EXPECT_GE(Contrast(Button.PressedForeground, Button.Pressed), Least);

	const FEditableTextBoxStyle& Field = FCoreStyle::Get().GetWidgetStyle<FEditableTextBoxStyle>("NormalEditableTextBox");
	EXPECT_GE(Contrast(Field.ForegroundColor, Field.BackgroundImageNormal), Least);
	EXPECT_GE(Contrast(Field.FocusedForegroundColor, Field.BackgroundImageFocused), Least);
	EXPECT_GE(Contrast(Field.ReadOnlyForegroundColor, Field.BackgroundImageReadOnly), Least);

	const FDockTabStyle& Tab = FCoreStyle::Get().GetWidgetStyle<FDockTabStyle>("Docking.Tab");
	EXPECT_GE(Contrast(Tab.NormalForegroundColor, Tab.TabWellBrush), Least);
	EXPECT_GE(Contrast(Tab.ForegroundForegroundColor, Tab.ForegroundBrush), Least);

	const FSlateBrush& Window = *FCoreStyle::Get().GetBrush("Window.Background");
	EXPECT_GE(Contrast(FCoreStyle::Get().GetSlateColor("DefaultForeground"), Window), Least);
	EXPECT_GE(Contrast(FCoreStyle::Get().GetSlateColor("DimForeground"), Window), Least);
}
