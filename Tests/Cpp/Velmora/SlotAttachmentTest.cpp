#include "Velmora/SlotAttachment.h"

#include "LogCapture.h"
#include "Velmora/JsonText.h"
#include "Velmora/VelmoraGenerator.h"
#include "Velmora/WidgetTree.h"

#include <gtest/gtest.h>

namespace
{
using FLines = TArray<FString>;

const FVector2D PanelSize(100.0, 200.0);

/** Where a panel of one slot with a box of 10 by 20 puts the box. */
FChildRect ArrangeSlot(const char* Panel, const char* SlotKeys)
{
	const std::string Root = std::string("{ \"") + Panel + "\": { \"Slots\": [ { " + SlotKeys +
							 "\"SBox\": { \"WidthOverride\": 10, \"HeightOverride\": 20 } } ] } }";
	return ArrangeChild(BuildTree(Root.c_str()), PanelSize);
}

void ExpectRect(const FChildRect& Rect, double Left, double Top, double Width, double Height)
{
	EXPECT_EQ(Rect.Position, FVector2D(Left, Top));
	EXPECT_EQ(Rect.Size, FVector2D(Width, Height));
}
}

TEST(SlotAttachment, SlotWithoutLayoutFillsThePanel)
{
	ExpectRect(ArrangeSlot("SVerticalBox", ""), 0, 0, 100, 200);
	ExpectRect(ArrangeSlot("SHorizontalBox", ""), 0, 0, 100, 200);
}

TEST(SlotAttachment, AutoSizeFollowsTheAxisOfTheBox)
{
	ExpectRect(ArrangeSlot("SVerticalBox", R"("AutoHeight": true, )"), 0, 0, 100, 20);
	ExpectRect(ArrangeSlot("SHorizontalBox", R"("AutoWidth": true, )"), 0, 0, 10, 200);
}

TEST(SlotAttachment, KeysOfTheOtherAxisMeanNothingToABox)
{
	ExpectRect(ArrangeSlot("SVerticalBox", R"("AutoWidth": true, "FillWidth": 0, )"), 0, 0, 100, 200);
	ExpectRect(ArrangeSlot("SHorizontalBox", R"("AutoHeight": true, "FillHeight": 0, )"), 0, 0, 100, 200);
}

TEST(SlotAttachment, ZeroIsAFillAndMinusOneIsNone)
{
	ExpectRect(ArrangeSlot("SVerticalBox", R"("FillHeight": 0, )"), 0, 0, 100, 0);
	ExpectRect(ArrangeSlot("SVerticalBox", R"("FillHeight": -1, )"), 0, 0, 100, 200);
	ExpectRect(ArrangeSlot("SHorizontalBox", R"("FillWidth": 0, )"), 0, 0, 0, 200);
}

TEST(SlotAttachment, FillAfterAutoDecides)
{
	ExpectRect(ArrangeSlot("SVerticalBox", R"("FillHeight": 1, "AutoHeight": true, )"), 0, 0, 100, 200);
}

TEST(SlotAttachment, AlignmentPlacesTheChild)
{
	ExpectRect(ArrangeSlot("SVerticalBox", R"("halign": "Right", "VALIGN": "Bottom", )"), 90, 180, 10, 20);
	ExpectRect(ArrangeSlot("SHorizontalBox", R"("HAlign": "Center", "VAlign": "Center", )"), 45, 90, 10, 20);
}

TEST(SlotAttachment, PaddingOfOneTwoOrFourNumbers)
{
	ExpectRect(ArrangeSlot("SVerticalBox", R"("Padding": 5, )"), 5, 5, 90, 190);
	ExpectRect(ArrangeSlot("SHorizontalBox", R"("Padding": [5, 10], )"), 5, 10, 90, 180);
	ExpectRect(ArrangeSlot("SVerticalBox", R"("Padding": [1, 2, 3, 4], )"), 1, 2, 96, 194);
}

TEST(SlotAttachment, WrongValuesLeaveTheDefaults)
{
	const FLogCapture Log(TEXT("Velmora"));

	const FSlotRequest Request =
		ReadSlotRequest(*JsonObject(R"({ "Padding": "x", "AutoHeight": {}, "FillWidth": "2", "HAlign": "Middle" })"));

	EXPECT_EQ(Request.PaddingValues.Num(), 0);
	EXPECT_FALSE(Request.bAutoHeight);
	EXPECT_EQ(Request.FillWidth, FSlotRequest::NoFill);
	EXPECT_EQ(Request.HAlign, HAlign_Fill);
	EXPECT_EQ(Log.Errors(), FLines({TEXT("ParsePaddingValues JsonValue Type Error, Need(Number / Array)"),
									TEXT("ParseOrientation ParseHAlign Type Error, need String:  Fill/Left/Center/Right")}));
}

TEST(SlotAttachment, ScrollBoxTakesPaddedChildren)
{
	const FLogCapture Log(TEXT("Velmora"));

	const TSharedRef<SWidget> Tree =
		BuildTree(R"({ "SScrollBox": { "Slots": [ { "Padding": 3, "SBorder": {} }, { "SBox": {} } ] } })");

	EXPECT_TRUE(Outline(Tree).Contains(TEXT("[SBorder SBox]")));
	EXPECT_EQ(Log.Lines(), FLines());
}

TEST(SlotAttachment, WidgetThatIsNoPanelLosesTheChild)
{
	const FLogCapture Log(TEXT("Velmora"));

	EXPECT_EQ(Outline(BuildTree(R"({ "SBorder": { "Slots": [ { "SBox": {} } ] } })")), FString(TEXT("SBorder")));

	EXPECT_EQ(Log.Lines(), FLines({TEXT("Velmora: Error: AddToSlot missed shot: SBorder")}));
}

TEST(SlotAttachment, DetailedLogTellsThePadding)
{
	bLogCreateWidget = true;
	TArray<FString> Lines;
	{
		const FLogCapture Log(TEXT("Velmora"));
		const TSharedRef<SWidget> Box = BuildTree(R"({ "SHorizontalBox": {} })");
		FSlotRequest Request;
		for (const TArray<float>& Values :
			 {TArray<float>{1}, TArray<float>{1, 2}, TArray<float>{1, 2, 3, 4}, TArray<float>{1, 2, 3}})
		{
			Request.PaddingValues = Values;
			AttachWidget(Box, BuildTree(R"({ "SBox": {} })"), Request);
		}
		Lines = Log.Lines().FilterByPredicate([](const FString& Line) { return !Line.Contains(TEXT("Build call")); });
	}
	bLogCreateWidget = false;

	const FString First = TEXT("Velmora: Log: Apply PaddingValues: 1.000000");
	EXPECT_EQ(Lines, FLines({First, TEXT("Velmora: Log: \tApply padding 1.000000  "), First,
							 TEXT("Velmora: Log: \tApply padding 1.000000 2.000000"), First,
							 TEXT("Velmora: Log: \tApply padding 1.000000 2.000000 3.000000 4.000000"), First,
							 TEXT("Velmora: Error: Apply ParsePaddingValues Error Array Size: 3")}));
}
