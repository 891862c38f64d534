#include "LogCapture.h"
#include "Styling/AppStyle.h"
#include "Velmora/JsonText.h"
#include "Velmora/ScopedButtonPadding.h"
#include "Velmora/WidgetTree.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest.h>

namespace
{
using FLines = TArray<FString>;

TSharedRef<SButton> BuildButton(const char* Root)
{
	return As<SButton>(BuildTree(Root));
}

FVector2D DesiredSizeOf(const TSharedRef<SWidget>& Widget)
{
	Widget->SlatePrepass(1.0f);
	return Widget->GetDesiredSize();
}

bool IsChecked(const char* Root)
{
	return As<SCheckBox>(BuildTree(Root))->IsChecked();
}
}

TEST(ButtonBuilder, HasATextBlockForItsText)
{
	const FLogCapture Log;

	const TSharedRef<SButton> Button = BuildButton(R"({ "SButton": { "Text": "Press" } })");

	EXPECT_EQ(Outline(Button), FString(TEXT("SButton[STextBlock]")));
	EXPECT_EQ(As<STextBlock>(Button->GetContent())->GetText().ToString(), FString(TEXT("Press")));
	EXPECT_EQ(Log.Lines(), FLines());
}

TEST(ButtonBuilder, ColorTintsTheButton)
{
	EXPECT_TRUE(BuildButton(R"({ "SButton": {} })")->GetBorderBackgroundColor() == FSlateColor(FLinearColor::White));
	EXPECT_TRUE(BuildButton(R"({ "SButton": { "ButtonColorAndOpacity": [1, 0.5, 0] } })")->GetBorderBackgroundColor() ==
		FSlateColor(FLinearColor(1.0f, 0.5f, 0.0f)));
}

TEST(ButtonBuilder, WrongColorShowsAsMagenta)
{
	const FLogCapture Log(TEXT("Velmora"));

	const TSharedRef<SButton> Button = BuildButton(R"({ "SButton": { "ButtonColorAndOpacity": "red" } })");

	EXPECT_TRUE(Button->GetBorderBackgroundColor() == FSlateColor(FLinearColor(1.0f, 0.0f, 1.0f)));
	EXPECT_EQ(Log.Lines(), FLines({TEXT("Velmora: Error: ParseLinearColorValues JsonValue Type Error, Need Array")}));
}

TEST(ButtonBuilder, TextStyleReachesTheTextBlock)
{
	const TSharedRef<SButton> Button =
		BuildButton(R"({ "SButton": { "TextStyle": { "Style": "FAppStyle", "StyleName": "LargeText" } } })");

	const FTextBlockStyle& Style = FAppStyle::Get().GetWidgetStyle<FTextBlockStyle>("LargeText");
	EXPECT_TRUE(As<STextBlock>(Button->GetContent())->GetFont() == Style.Font);
}

TEST(ButtonBuilder, StyleGivesTheBorder)
{
	const TSharedRef<SButton> Button =
		BuildButton(R"({ "SButton": { "ButtonStyle": { "Style": "FAppStyle", "StyleName": "PrimaryButton" } } })");

	EXPECT_EQ(BorderImageOf(Button), &FAppStyle::Get().GetWidgetStyle<FButtonStyle>("PrimaryButton").Normal);
}

TEST(ButtonBuilder, WrongStylesAreReportedAndTheButtonStands)
{
	const FLogCapture Log(TEXT("Velmora"));

	const TSharedRef<SButton> Button = BuildButton(R"({ "SButton": { "ButtonStyle": 5, "TextStyle": 5, "Text": "x" } })");

	EXPECT_EQ(Outline(Button), FString(TEXT("SButton[STextBlock]")));
	EXPECT_TRUE(
		As<STextBlock>(Button->GetContent())->GetFont() == FAppStyle::Get().GetWidgetStyle<FTextBlockStyle>("ButtonText").Font);
	const FString Error = TEXT("Velmora: Error: ParseWidgetStyle JsonValue Type Error, Need Object");
	const FString Warning = TEXT("Velmora: Warning: ParseFontInfo Default Font used");
	EXPECT_EQ(Log.Lines(), FLines({Error, Warning, Error, Warning, Error, Warning}))
		<< "both by the builder, and the text style once more by the decoration";
}

TEST(ButtonBuilder, TextStyleIsReadBeforeTheButtonsOwn)
{
	const FLogCapture Log(TEXT("Velmora"));

	BuildButton(
		R"({ "SButton": { "ButtonStyle": { "Style": "B", "StyleName": "" }, "TextStyle": { "Style": "T", "StyleName": "" } } })");

	EXPECT_EQ(Log.Warnings()[0], FString(TEXT("Style: T Not Support yet")));
	EXPECT_EQ(Log.Warnings()[2], FString(TEXT("Style: B Not Support yet")));
}

TEST(ButtonBuilder, HorizontalPaddingOfTheSettingsHoldsForEveryButton)
{
	const auto WidthWith = [](int32 Padding)
	{
		const FScopedButtonPadding Setting(Padding);
		return DesiredSizeOf(BuildButton(R"({ "SButton": { "Text": "x" } })")).X;
	};
	const double Bare = DesiredSizeOf(SNew(SButton).Text(FText::FromString(TEXT("x"))).ContentPadding(FMargin(0.0f))).X;
	const double Default = DesiredSizeOf(SNew(SButton).Text(FText::FromString(TEXT("x")))).X;

	EXPECT_EQ(WidthWith(7), Bare + 14.0);
	EXPECT_EQ(WidthWith(0), Default);
}

TEST(ButtonBuilder, TextStaysInsideTheButtonWithTheDefaultPaddingOfTheSettings)
{
	const FScopedButtonPadding Setting(-16);
	const TSharedRef<SButton> Button = BuildButton(R"({ "SButton": { "Text": "Press" } })");

	const FVector2D Size = DesiredSizeOf(Button);
	const FChildRect Text = ArrangeChild(Button, Size);

	EXPECT_GE(Text.Position.X, 0.0);
	EXPECT_LE(Text.Position.X + Text.Size.X, Size.X);
	EXPECT_GE(Text.Size.X, DesiredSizeOf(ChildOf(Button)).X);
}

TEST(CheckBoxBuilder, OnlyAJsonTrueChecksIt)
{
	EXPECT_TRUE(IsChecked(R"({ "SCheckBox": { "IsChecked": true } })"));
	for (const char* Root : {R"({ "SCheckBox": {} })", R"({ "SCheckBox": { "IsChecked": false } })",
			 R"({ "SCheckBox": { "IsChecked": "true" } })", R"({ "SCheckBox": { "IsChecked": 1 } })"})
	{
		EXPECT_FALSE(IsChecked(Root)) << Root;
	}
}

TEST(CheckBoxBuilder, WrongAlignmentWarnsAndTheWidgetIsBuilt)
{
	const FLogCapture Log(TEXT("Velmora"));

	const TSharedRef<SWidget> CheckBox = BuildTree(R"({ "SCheckBox": { "HAlign": "Middle" } })");

	EXPECT_EQ(CheckBox->GetType(), FName("SCheckBox"));
	const FString Error = TEXT("Velmora: Error: ParseOrientation ParseHAlign Type Error, need String:  Fill/Left/Center/Right");
	EXPECT_EQ(Log.Lines(),
		FLines({Error, TEXT("Velmora: Warning: Parse HAlign Failed when ParseSCheckBox()"), Error,
			TEXT("Velmora: Warning: Can't find HAlign By Name: HAlign")}))
		<< "once by the builder and once by the decoration";
}

TEST(CheckBoxBuilder, PaddingSurroundsTheContent)
{
	const auto Build = [](const char* Padding)
	{
		const std::string Root = std::string(R"({ "SCheckBox": { "Padding": )") + Padding +
			R"(, "Content": { "SBox": { "WidthOverride": 30, "HeightOverride": 40 } } } })";
		return DesiredSizeOf(BuildTree(Root.c_str()));
	};

	EXPECT_EQ(Build("[10, 20]") - Build("0"), FVector2D(20.0, 40.0));
}

TEST(CheckBoxBuilder, WithoutAKeyThereIsNoPaddingWhateverTheStyleSays)
{
	const char* Bare = R"({ "SCheckBox": { "Content": { "SBox": {} } } })";
	const char* Zero = R"({ "SCheckBox": { "Padding": 0, "Content": { "SBox": {} } } })";

	EXPECT_EQ(DesiredSizeOf(BuildTree(Bare)), DesiredSizeOf(BuildTree(Zero)));
	EXPECT_NE(DesiredSizeOf(SNew(SCheckBox)[SNew(SBox)]), DesiredSizeOf(BuildTree(Bare)));
}

TEST(CheckBoxBuilder, AlignmentMovesTheContent)
{
	const auto LeftOfContent = [](const char* HAlign)
	{
		const std::string Root =
			std::string(R"({ "SCheckBox": { "HAlign": ")") + HAlign + R"(", "Content": { "SBox": { "WidthOverride": 30 } } } })";
		const TSharedRef<SWidget> CheckBox = BuildTree(Root.c_str());
		const TSharedRef<SWidget> Row = ChildOf(CheckBox);
		CheckBox->SlatePrepass(1.0f);
		return ArrangeChild(Row, FVector2D(200.0, 20.0), 1).Position.X;
	};

	EXPECT_EQ(LeftOfContent("Right"), 170.0);
	EXPECT_LT(LeftOfContent("Left"), 60.0);
}

TEST(CheckBoxBuilder, StyleIsTakenFromTheEditors)
{
	const FLogCapture Log(TEXT("Velmora"));
	const FSlateBrush* Plain = &FAppStyle::Get().GetWidgetStyle<FCheckBoxStyle>("NoSuchStyle").UncheckedImage;
	EXPECT_NE(As<SCheckBox>(BuildTree(R"({ "SCheckBox": {} })"))->GetStateImage(), Plain);

	const TSharedRef<SWidget> CheckBox =
		BuildTree(R"({ "SCheckBox": { "CheckBoxStyle": { "Style": "FAppStyle", "StyleName": "NoSuchStyle" } } })");

	EXPECT_EQ(As<SCheckBox>(CheckBox)->GetStateImage(), Plain);
	EXPECT_EQ(Log.Lines(), FLines());
}
