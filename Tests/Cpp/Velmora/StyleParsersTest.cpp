#include "Velmora/StyleParsers.h"

#include "Fonts/SlateFontInfo.h"
#include "LogCapture.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "Velmora/JsonText.h"
#include "Velmora/VelmoraGenerator.h"

#include <gtest/gtest.h>

namespace
{
using FLines = TArray<FString>;

FSlateFontInfo FallbackFont()
{
	return FAppStyle::Get().GetFontStyle("DefaultFont.Italic.12");
}
}

TEST(ParseFontInfo, DefaultFontNamesItsFaceAndSize)
{
	FSlateFontInfo Font;

	EXPECT_TRUE(ParseFontInfo(JsonValue(R"({ "Style": "FCoreStyle", "StyleName": "DefaultFont.Bold.10" })"), Font));

	EXPECT_EQ(Font.TypefaceFontName, FName("Bold"));
	EXPECT_EQ(Font.Size, 10);
}

TEST(ParseFontInfo, FaceWithDotsInItIsAllBetweenTheFirstAndTheLast)
{
	FSlateFontInfo Font;

	EXPECT_TRUE(ParseFontInfo(JsonValue(R"({ "Style": "FCoreStyle", "StyleName": "DefaultFont.Bold.Italic.10" })"), Font));

	EXPECT_TRUE(Font.TypefaceFontName == FName("Bold.Italic"));
	EXPECT_EQ(Font.Size, 10);
}

TEST(ParseFontInfo, DefaultFontInAnyCaseHasItsFaces)
{
	FSlateFontInfo Font;

	EXPECT_TRUE(ParseFontInfo(JsonValue(R"({ "Style": "FCoreStyle", "StyleName": "defaultfont.Bold.10" })"), Font));

	EXPECT_TRUE(Font.TypefaceFontName == FName("Bold"));
	EXPECT_EQ(Font.Size, 10);
}

TEST(ParseFontInfo, DefaultFontAloneIsRegularWithoutASize)
{
	FSlateFontInfo Font;

	EXPECT_TRUE(ParseFontInfo(JsonValue(R"({ "Style": "fcorestyle", "StyleName": "DefaultFont" })"), Font));

	EXPECT_EQ(Font.TypefaceFontName, FName("Regular"));
	EXPECT_EQ(Font.Size, -1);
}

TEST(ParseFontInfo, NameWithASizeIsLookedUpByAsManyLettersAsTheSizeHas)
{
	FSlateFontInfo Expected = FAppStyle::Get().GetFontStyle("Bo");
	Expected.Size = 17;
	ASSERT_FALSE(Expected.TypefaceFontName == FAppStyle::Get().GetFontStyle("BoldFont").TypefaceFontName);
	for (const char* Style : {"FEditorStyle", "FAppStyle", "FCoreStyle"})
	{
		FSlateFontInfo Font;
		const std::string Json = std::string(R"({ "Style": ")") + Style + R"(", "StyleName": "BoldFont.17" })";

		EXPECT_TRUE(ParseFontInfo(JsonValue(Json.c_str()), Font)) << Style;

		EXPECT_TRUE(Font == Expected) << Style;
	}
}

TEST(ParseFontInfo, DefaultFontHasAFaceOnlyInTheCoreStyleAndBetweenTwoDots)
{
	FSlateFontInfo Expected = FAppStyle::Get().GetFontStyle("De");
	Expected.Size = 10;
	for (const char* Json : {R"({ "Style": "FCoreStyle", "StyleName": "DefaultFont.10" })",
			 R"({ "Style": "FAppStyle", "StyleName": "DefaultFont.Bold.10" })"})
	{
		FSlateFontInfo Font;

		EXPECT_TRUE(ParseFontInfo(JsonValue(Json), Font)) << Json;

		EXPECT_TRUE(Font == Expected) << Json;
	}
}

TEST(ParseFontInfo, TextBehindTheDotThatIsNoSizeBelongsToTheName)
{
	for (const char* Name : {"BoldFont.Wide", "BoldFont.-1", "BoldFont.1x"})
	{
		FSlateFontInfo Font;
		const std::string Json = std::string(R"({ "Style": "FAppStyle", "StyleName": ")") + Name + R"(" })";

		EXPECT_TRUE(ParseFontInfo(JsonValue(Json.c_str()), Font)) << Name;

		EXPECT_TRUE(Font == FAppStyle::Get().GetFontStyle(FName(Name))) << Name;
	}
}

TEST(ParseFontInfo, NameWithoutASizeIsLookedUpWhole)
{
	FSlateFontInfo Font;

	EXPECT_TRUE(ParseFontInfo(JsonValue(R"({ "Style": "FAppStyle", "StyleName": "BoldFont" })"), Font));

	EXPECT_TRUE(Font == FAppStyle::Get().GetFontStyle("BoldFont"));
}

TEST(ParseFontInfo, EveryFaultFallsBackToOneFont)
{
	const FLogCapture Log(TEXT("Velmora"));
	FSlateFontInfo Font;

	EXPECT_FALSE(ParseFontInfo(JsonValue("5"), Font));
	EXPECT_TRUE(Font == FallbackFont());
	EXPECT_FALSE(ParseFontInfo(JsonValue(R"({ "Style": "FCoreStyle" })"), Font));
	EXPECT_FALSE(ParseFontInfo(JsonValue(R"({ "Style": "Mine", "StyleName": "X" })"), Font));
	EXPECT_TRUE(Font == FallbackFont());

	EXPECT_EQ(Log.Lines(),
		FLines({TEXT("Velmora: Error: ParseFontInfo JsonValue Type Error, Need Object"),
			TEXT("Velmora: Warning: ParseFontInfo Default Font used"), TEXT("Velmora: Warning: ParseFontInfo Default Font used"),
			TEXT("Velmora: Warning: Style: Mine Not Support yet"), TEXT("Velmora: Warning: ParseFontInfo Default Font used")}));
}

TEST(ParseFontInfo, NoValueLeavesTheFont)
{
	const FLogCapture Log(TEXT("Velmora"));
	FSlateFontInfo Font = FCoreStyle::GetDefaultFontStyle("Bold", 33);

	EXPECT_FALSE(ParseFontInfo(nullptr, Font));

	EXPECT_EQ(Font.Size, 33);
	EXPECT_EQ(Log.Lines(), FLines());
}

TEST(ParseStyleBrush, AllThreeStyleSetsLeadToOne)
{
	for (const char* Style : {"FCoreStyle", "feditorstyle", "FAppStyle"})
	{
		const FSlateBrush* Brush = nullptr;
		const std::string Json = std::string(R"({ "Style": ")") + Style + R"(", "Brush": "ToolPanel.GroupBorder" })";

		EXPECT_TRUE(ParseStyleBrush(JsonValue(Json.c_str()), Brush)) << Style;

		EXPECT_EQ(Brush, FAppStyle::Get().GetBrush("ToolPanel.GroupBorder")) << Style;
	}
}

TEST(ParseStyleBrush, EveryFaultGivesTheBrushWithoutABorder)
{
	const FLogCapture Log(TEXT("Velmora"));
	for (const char* Json : {R"("x")", R"({ "Style": "FAppStyle" })", R"({ "Style": "Mine", "Brush": "B" })"})
	{
		const FSlateBrush* Brush = nullptr;
		EXPECT_FALSE(ParseStyleBrush(JsonValue(Json), Brush)) << Json;
		EXPECT_EQ(Brush, FAppStyle::Get().GetBrush("NoBorder")) << Json;
	}

	const FString Default = TEXT("Velmora: Warning: Parse Image Brush failed, Default Image was used.");
	EXPECT_EQ(Log.Lines(),
		FLines({TEXT("Velmora: Error: ParseStyleBrush JsonValue Type Error, Need Object"), Default, Default,
			TEXT("Velmora: Warning: Style: Mine Not Support yet. Supperted Style: FEditorStyle, FCoreStyle and FAppStyle."),
			Default}));
}

TEST(ParseWidgetStyle, EveryFaultLeavesTheOutputAndSpeaksOfAFont)
{
	const FLogCapture Log(TEXT("Velmora"));
	const FButtonStyle* Style = nullptr;

	EXPECT_FALSE(ParseWidgetStyle(JsonValue("[]"), Style));
	EXPECT_FALSE(ParseWidgetStyle(JsonValue(R"({ "StyleName": "Button" })"), Style));
	EXPECT_FALSE(ParseWidgetStyle(JsonValue(R"({ "Style": "Mine", "StyleName": "Button" })"), Style));

	EXPECT_EQ(Style, nullptr);
	EXPECT_EQ(Log.Lines(),
		FLines({TEXT("Velmora: Error: ParseWidgetStyle JsonValue Type Error, Need Object"),
			TEXT("Velmora: Warning: ParseFontInfo Default Font used"), TEXT("Velmora: Warning: ParseFontInfo Default Font used"),
			TEXT("Velmora: Warning: Style: Mine Not Support yet"), TEXT("Velmora: Warning: ParseFontInfo Default Font used")}));
}

TEST(ParseWidgetStyle, NoBorderIsAButtonStyleOfItsOwn)
{
	const FButtonStyle* Style = nullptr;

	EXPECT_TRUE(ParseWidgetStyle(JsonValue(R"({ "Style": "FEditorStyle", "StyleName": "NoBorder" })"), Style));

	EXPECT_NE(Style, &FButtonStyle::GetDefault());
	EXPECT_EQ(Style->Normal.GetDrawType(), ESlateBrushDrawType::NoDrawType);
	EXPECT_EQ(Style->Hovered.GetDrawType(), ESlateBrushDrawType::NoDrawType);
}

TEST(ParseWidgetStyle, AllThreeStyleSetsLeadToOne)
{
	for (const char* Set : {"FCoreStyle", "feditorstyle", "FAppStyle"})
	{
		const FButtonStyle* Style = nullptr;
		const std::string Json = std::string(R"({ "Style": ")") + Set + R"(", "StyleName": "SimpleButton" })";

		EXPECT_TRUE(ParseWidgetStyle(JsonValue(Json.c_str()), Style)) << Set;

		EXPECT_EQ(Style, &FAppStyle::Get().GetWidgetStyle<FButtonStyle>("SimpleButton")) << Set;
	}
}

TEST(StyleParsers, DetailedLogNamesWhatIsLookedUp)
{
	const FLogCapture Log(TEXT("Velmora"));
	FSlateFontInfo Font;
	const FButtonStyle* Style = nullptr;

	bLogCreateWidget = true;
	ParseFontInfo(JsonValue(R"({ "Style": "FCoreStyle", "StyleName": "DefaultFont" })"), Font);
	ParseWidgetStyle(JsonValue(R"({ "Style": "FCoreStyle", "StyleName": "Button" })"), Style);
	bLogCreateWidget = false;

	EXPECT_EQ(Log.Lines(),
		FLines({TEXT("Velmora: Log: ParseFontInfo Style FCoreStyle, FontStyle: DefaultFont"),
			TEXT("Velmora: Log: ParseWidgetStyle Style FCoreStyle, FontStyle: Button")}));
}

TEST(StyleParsers, MissingNamesAreReportedByTheJsonAccessor)
{
	const FLogCapture Log(TEXT("LogJson"));
	const FButtonStyle* Style = nullptr;

	ParseWidgetStyle(JsonValue(R"({ "Style": "FCoreStyle" })"), Style);

	EXPECT_TRUE(Log.Warnings().Contains(TEXT("Field StyleName was not found.")));
}
