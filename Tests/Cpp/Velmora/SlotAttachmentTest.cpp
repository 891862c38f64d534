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
	ExpectRect(ArrangeSlot("SHorizontalBox", R"("FillWidth": -1, )"), 0, 0, 100, 200);
}

TEST(SlotAttachment, FillAfterAutoDecides)
{
	ExpectRect(ArrangeSlot("SVerticalBox", R"("FillHeight": 1, "AutoHeight": true, )"), 0, 0, 100, 200);
	ExpectRect(ArrangeSlot("SHorizontalBox", R"("FillWidth": 1, "AutoWidth": true, )"), 0, 0, 100, 200);
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
	EXPECT_EQ(Log.Errors(),
		FLines({TEXT("ParsePaddingValues JsonValue Type Error, Need(Number / Array)"),
			TEXT("ParseOrientation ParseHAlign Type Error, need String:  Fill/Left/Center/Right")}));
}

TEST(SlotAttachment, SwitchesConvertAsJsonValuesDoAndFillsAreNumbersOnly)
{
	const FSlotRequest Request = ReadSlotRequest(
		*JsonObject(R"({ "autoheight": 1, "AUTOWIDTH": "yes", "fillwidth": 2.5, "FillHeight": true, "valign": "top" })"));

	EXPECT_TRUE(Request.bAutoHeight);
	EXPECT_TRUE(Request.bAutoWidth);
	EXPECT_EQ(Request.FillWidth, 2.5f);
	EXPECT_EQ(Request.FillHeight, FSlotRequest::NoFill);
	EXPECT_EQ(Request.VAlign, VAlign_Top);
}

TEST(SlotAttachment, ScrollBoxTakesPaddedChildren)
{
	const FLogCapture Log(TEXT("Velmora"));

	const TSharedRef<SWidget> Tree =
		BuildTree(R"({ "SScrollBox": { "Slots": [ { "Padding": 3, "SBorder": {} }, { "SBox": {} } ] } })");

	EXPECT_TRUE(Outline(Tree).Contains(TEXT("[SBorder SBox]")));
	EXPECT_EQ(Log.Lines(), FLines());
}

TEST(SlotAttachment, ScrollBoxPadsItsChildrenAndReadsNothingElse)
{
	const auto DesiredSize = [](const char* SlotKeys)
	{
		const std::string Root = std::string(R"({ "SScrollBox": { "Slots": [ { )") + SlotKeys +
			R"("SBox": { "WidthOverride": 10, "HeightOverride": 20 } } ] } })";
		const TSharedRef<SWidget> Panel = BuildTree(Root.c_str());
		Panel->SlatePrepass(1.0f);
		return Panel->GetDesiredSize();
	};
	EXPECT_EQ(DesiredSize(R"("Padding": [3, 5], )") - DesiredSize(""), FVector2D(6.0, 10.0));

	const FLogCapture Log(TEXT("Velmora"));
	DesiredSize(R"("HAlign": "Right", "AutoHeight": true, )");
	EXPECT_EQ(Log.Lines(),
		FLines({TEXT("Velmora: Warning: Decorate: HAlign @ SScrollBox not handled, @ /SScrollBox/Slots_0"),
			TEXT("Velmora: Warning: Decorate: AutoHeight @ SScrollBox not handled, @ /SScrollBox/Slots_0")}));
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
	EXPECT_EQ(Lines,
		FLines({First, TEXT("Velmora: Log: \tApply padding 1.000000  "), First,
			TEXT("Velmora: Log: \tApply padding 1.000000 2.000000"), First,
			TEXT("Velmora: Log: \tApply padding 1.000000 2.000000 3.000000 4.000000"), First,
			TEXT("Velmora: Error: Apply ParsePaddingValues Error Array Size: 3")}));
}

TEST(SlotAttachment, DetailedLogTellsTheFirstNumberOfAHorizontalBoxOnly)
{
	const TSharedRef<SWidget> Child = BuildTree(R"({ "SBox": {} })");
	const TSharedRef<SWidget> Column = BuildTree(R"({ "SVerticalBox": {} })");
	const TSharedRef<SWidget> Row = BuildTree(R"({ "SHorizontalBox": {} })");
	FSlotRequest Request;
	const FLogCapture Log(TEXT("Velmora"));

	bLogCreateWidget = true;
	AttachWidget(Row, Child, Request);
	Request.PaddingValues = {1};
	AttachWidget(Column, Child, Request);
	bLogCreateWidget = false;
	Request.PaddingValues = {1, 2, 3};
	AttachWidget(Column, Child, Request);

	EXPECT_EQ(Log.Lines(), FLines({TEXT("Velmora: Log: \tApply padding 1.000000  ")}));
}
