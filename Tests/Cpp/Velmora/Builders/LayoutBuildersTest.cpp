#include "LogCapture.h"
#include "Styling/AppStyle.h"
#include "Velmora/Builders/LayoutBuilders.h"
#include "Velmora/JsonText.h"
#include "Velmora/WidgetTree.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SBoxPanel.h"

#include <gtest/gtest.h>

namespace
{
using FLines = TArray<FString>;
}

TEST(LayoutBuilders, ContainersWithoutChildrenAreEmptyAndHarmless)
{
	const FLogCapture Log;

	EXPECT_EQ(Outline(BuildTree(R"({ "SVerticalBox": {} })")), FString(TEXT("SVerticalBox")));
	EXPECT_EQ(Outline(BuildTree(R"({ "SHorizontalBox": {} })")), FString(TEXT("SHorizontalBox")));
	EXPECT_EQ(Outline(BuildTree(R"({ "SBox": {} })")), FString(TEXT("SBox")));
	const TSharedRef<SWidget> ScrollBox = BuildTree(R"({ "SScrollBox": {} })");
	ScrollBox->SlatePrepass(1.0f);

	EXPECT_EQ(ScrollBox->GetType(), FName("SScrollBox"));
	EXPECT_EQ(Log.Lines(), FLines());
}

TEST(LayoutBuilders, BorderTakesItsBrushFromTheEditorsStyle)
{
	const FLogCapture Log;
	for (const char* Style : {"FCoreStyle", "feditorstyle", "FAppStyle"})
	{
		const std::string Json =
			std::string(R"({ "BorderImage": { "Style": ")") + Style + R"(", "Brush": "ToolPanel.GroupBorder" } })";
		const TSharedRef<SBorder> Border = ParseSBorder(JsonObject(Json.c_str()));
		const TSharedRef<SBorder> Expected = SNew(SBorder).BorderImage(FAppStyle::Get().GetBrush("ToolPanel.GroupBorder"));

		EXPECT_EQ(BorderImageOf(Border), BorderImageOf(Expected)) << Style;
	}
	EXPECT_EQ(Log.Lines(), FLines());
}

TEST(LayoutBuilders, BorderOfAnUnknownStyleStaysAsItWas)
{
	const FLogCapture Log(TEXT("Velmora"));

	const TSharedRef<SBorder> Border = ParseSBorder(JsonObject(R"({ "BorderImage": { "Style": "MyStyle", "Brush": "X" } })"));

	EXPECT_EQ(BorderImageOf(Border), BorderImageOf(SNew(SBorder)));
	EXPECT_EQ(Log.Lines(),
		FLines({TEXT("Velmora: Warning: Style: MyStyle Not Support yet. Supperted Style: FEditorStyle and FCoreStyle.")}));
}

TEST(LayoutBuilders, BorderImageThatIsNoObjectIsIgnored)
{
	const FLogCapture Log;

	const TSharedRef<SBorder> Border = ParseSBorder(JsonObject(R"({ "BorderImage": "ToolPanel.GroupBorder" })"));

	EXPECT_EQ(BorderImageOf(Border), BorderImageOf(SNew(SBorder)));
	EXPECT_EQ(Log.Lines(), FLines());
}

TEST(LayoutBuilders, MissingNamesOfABorderImageAreReported)
{
	const FLogCapture Json(TEXT("LogJson"));
	const FLogCapture Log(TEXT("Velmora"));

	ParseSBorder(JsonObject(R"({ "BorderImage": {} })"));

	EXPECT_EQ(Json.Warnings(), FLines({TEXT("Field Style was not found."), TEXT("Field Brush was not found.")}));
	EXPECT_EQ(Log.Warnings(), FLines({TEXT("Style:  Not Support yet. Supperted Style: FEditorStyle and FCoreStyle.")}));
}
