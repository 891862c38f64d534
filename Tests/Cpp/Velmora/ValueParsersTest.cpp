#include "Velmora/ValueParsers.h"

#include "LogCapture.h"
#include "Velmora/JsonText.h"

#include <gtest/gtest.h>

namespace
{
using FLines = TArray<FString>;

/** What a parser made of a value, whatever its output held before. */
template <typename T>
struct TParsed
{
	bool bSucceeded = false;
	T Value{};
};

template <typename T>
TParsed<T> Parse(bool (*Parser)(const TSharedPtr<FJsonValue>&, T&), const char* Json, T Before = T{})
{
	TParsed<T> Parsed = {false, Before};
	Parsed.bSucceeded = Parser(JsonValue(Json), Parsed.Value);
	return Parsed;
}

template <typename T>
void ExpectParsed(bool (*Parser)(const TSharedPtr<FJsonValue>&, T&), const char* Json, const T& Expected)
{
	const TParsed<T> Parsed = Parse(Parser, Json);
	EXPECT_TRUE(Parsed.bSucceeded) << Json;
	EXPECT_TRUE(Parsed.Value == Expected) << Json;
}

template <typename T>
void ExpectRefused(bool (*Parser)(const TSharedPtr<FJsonValue>&, T&), const char* Json, T Before, const T& Expected)
{
	const TParsed<T> Parsed = Parse(Parser, Json, Before);
	EXPECT_FALSE(Parsed.bSucceeded) << Json;
	EXPECT_TRUE(Parsed.Value == Expected) << Json;
}
}

TEST(ParseHAlign, SpellingsInAnyCase)
{
	const FLogCapture Log(TEXT("Velmora"));

	ExpectParsed(&ParseHAlign, R"("HAlign_Fill")", HAlign_Fill);
	ExpectParsed(&ParseHAlign, R"("fill")", HAlign_Fill);
	ExpectParsed(&ParseHAlign, R"("HAlign_Left")", HAlign_Left);
	ExpectParsed(&ParseHAlign, R"("Left")", HAlign_Left);
	ExpectParsed(&ParseHAlign, R"("HAlign_Center")", HAlign_Center);
	ExpectParsed(&ParseHAlign, R"("center")", HAlign_Center);
	ExpectParsed(&ParseHAlign, R"("halign_RIGHT")", HAlign_Right);
	ExpectParsed(&ParseHAlign, R"("Right")", HAlign_Right);

	EXPECT_EQ(Log.Lines(), FLines());
}

TEST(ParseHAlign, UnknownWordIsReportedAndFills)
{
	const FLogCapture Log(TEXT("Velmora"));

	ExpectRefused(&ParseHAlign, R"("Middle")", HAlign_Right, HAlign_Fill);

	EXPECT_EQ(Log.Errors(), FLines({TEXT("ParseOrientation ParseHAlign Type Error, need String:  Fill/Left/Center/Right")}));
}

TEST(Spellings, ValueThatIsNoTextIsReportedLikeAWrongWord)
{
	const FLogCapture Log(TEXT("Velmora"));

	ExpectRefused(&ParseHAlign, "[1]", HAlign_Right, HAlign_Fill);
	ExpectRefused(&ParseVAlign, "{}", VAlign_Top, VAlign_Fill);
	ExpectRefused(&ParseOrientation, "null", Orient_Vertical, Orient_Horizontal);
	ExpectRefused(&ParseVisibility, "5", EVisibility::Hidden, EVisibility::Visible);

	EXPECT_EQ(Log.Errors(),
		FLines({TEXT("ParseOrientation ParseHAlign Type Error, need String:  Fill/Left/Center/Right"),
			TEXT("ParseOrientation ParseVAlign Type Error, need String:  Fill/Left/Center/Right"),
			TEXT("ParseOrientation JsonValue Type Error, need String:  Horizontal or Vertical"),
			TEXT("ParseVisibility Type Error, need String:  "
				 "Visible/Collapsed/Hidden/HitTestInvisible/SelfHitTestInvisible")}));
}

TEST(ParseVAlign, FillHasASpellingOfItsOwn)
{
	const FLogCapture Log(TEXT("Velmora"));

	ExpectParsed(&ParseVAlign, R"("VHAlign_Fill")", VAlign_Fill);
	ExpectParsed(&ParseVAlign, R"("Fill")", VAlign_Fill);
	ExpectParsed(&ParseVAlign, R"("VAlign_Top")", VAlign_Top);
	ExpectParsed(&ParseVAlign, R"("Top")", VAlign_Top);
	ExpectParsed(&ParseVAlign, R"("VAlign_Center")", VAlign_Center);
	ExpectParsed(&ParseVAlign, R"("center")", VAlign_Center);
	ExpectParsed(&ParseVAlign, R"("valign_bottom")", VAlign_Bottom);
	ExpectParsed(&ParseVAlign, R"("Bottom")", VAlign_Bottom);
	EXPECT_EQ(Log.Errors(), FLines());

	ExpectRefused(&ParseVAlign, R"("VAlign_Fill")", VAlign_Bottom, VAlign_Fill);
	EXPECT_EQ(Log.Errors(), FLines({TEXT("ParseOrientation ParseVAlign Type Error, need String:  Fill/Left/Center/Right")}));
}

TEST(ParseOrientation, VerticalMayStandInsideAWordAndHorizontalMayNot)
{
	const FLogCapture Log(TEXT("Velmora"));

	ExpectParsed(&ParseOrientation, R"("Vertical")", Orient_Vertical);
	ExpectParsed(&ParseOrientation, R"("Orient_Vertical")", Orient_Vertical);
	ExpectParsed(&ParseOrientation, R"("Orient_Vertical_X")", Orient_Vertical);
	ExpectParsed(&ParseOrientation, R"("mostly vertical")", Orient_Vertical);
	ExpectParsed(&ParseOrientation, R"("Orient_Horizontal")", Orient_Horizontal);
	ExpectParsed(&ParseOrientation, R"("horizontal")", Orient_Horizontal);
	EXPECT_EQ(Log.Errors(), FLines());

	ExpectRefused(&ParseOrientation, R"("Orient_Horizontal_X")", Orient_Vertical, Orient_Horizontal);
	EXPECT_EQ(Log.Errors(), FLines({TEXT("ParseOrientation JsonValue Type Error, need String:  Horizontal or Vertical")}));
}

TEST(ParseVisibility, NamesOfTheEngine)
{
	ExpectParsed(&ParseVisibility, R"("Visible")", EVisibility::Visible);
	ExpectParsed(&ParseVisibility, R"("collapsed")", EVisibility::Collapsed);
	ExpectParsed(&ParseVisibility, R"("Hidden")", EVisibility::Hidden);
	ExpectParsed(&ParseVisibility, R"("HitTestInvisible")", EVisibility::HitTestInvisible);
	ExpectParsed(&ParseVisibility, R"("SelfHitTestInvisible")", EVisibility::SelfHitTestInvisible);
}

TEST(ParseVisibility, UnknownNameIsReportedAndVisible)
{
	const FLogCapture Log(TEXT("Velmora"));

	ExpectRefused(&ParseVisibility, R"("Gone")", EVisibility::Hidden, EVisibility::Visible);

	EXPECT_EQ(Log.Errors(),
		FLines(
			{TEXT("ParseVisibility Type Error, need String:  Visible/Collapsed/Hidden/HitTestInvisible/SelfHitTestInvisible")}));
}

TEST(ParseBarFillType, OutputStaysAsItWasOnFailure)
{
	const FLogCapture Log(TEXT("Velmora"));

	ExpectParsed(&ParseBarFillType, R"("LeftToRight")", EProgressBarFillType::LeftToRight);
	ExpectParsed(&ParseBarFillType, R"("righttoleft")", EProgressBarFillType::RightToLeft);
	ExpectParsed(&ParseBarFillType, R"("FillFromCenter")", EProgressBarFillType::FillFromCenter);
	ExpectParsed(&ParseBarFillType, R"("TopToBottom")", EProgressBarFillType::TopToBottom);
	ExpectParsed(&ParseBarFillType, R"("BottomToTop")", EProgressBarFillType::BottomToTop);
	ExpectRefused(&ParseBarFillType, "5", EProgressBarFillType::TopToBottom, EProgressBarFillType::TopToBottom);
	EXPECT_EQ(Log.Errors(), FLines());

	ExpectRefused(&ParseBarFillType, R"("UseMaterial")", EProgressBarFillType::TopToBottom, EProgressBarFillType::TopToBottom);
	EXPECT_EQ(Log.Errors(),
		FLines({TEXT("ParseBarFillType Type Error, need String:  "
					 "LeftToRight/RightToLeft/FillFromCenter/TopToBottom/BottomToTop/UseMaterial")}));
}

TEST(ParseResizeMode, FixedPositionOnFailure)
{
	const FLogCapture Log(TEXT("Velmora"));

	ExpectParsed(&ParseResizeMode, R"("FixedPosition")", ESplitterResizeMode::FixedPosition);
	ExpectParsed(&ParseResizeMode, R"("FixedSize")", ESplitterResizeMode::FixedSize);
	ExpectParsed(&ParseResizeMode, R"("fill")", ESplitterResizeMode::Fill);
	ExpectRefused(&ParseResizeMode, "true", ESplitterResizeMode::Fill, ESplitterResizeMode::FixedPosition);
	EXPECT_EQ(Log.Errors(), FLines());

	ExpectRefused(&ParseResizeMode, R"("Any")", ESplitterResizeMode::Fill, ESplitterResizeMode::FixedPosition);
	EXPECT_EQ(Log.Errors(), FLines({TEXT("ResizeMode Type Error, need String:  FixedPosition/FixedSize/Fill")}));
}

TEST(ParseTextWrappingPolicy, DefaultOnFailure)
{
	const FLogCapture Log(TEXT("Velmora"));

	ExpectParsed(&ParseTextWrappingPolicy, R"("AllowPerCharacterWrapping")", ETextWrappingPolicy::AllowPerCharacterWrapping);
	ExpectParsed(&ParseTextWrappingPolicy, R"("percharacter")", ETextWrappingPolicy::AllowPerCharacterWrapping);
	ExpectParsed(&ParseTextWrappingPolicy, R"("DefaultWrapping")", ETextWrappingPolicy::DefaultWrapping);
	ExpectParsed(&ParseTextWrappingPolicy, R"("Default")", ETextWrappingPolicy::DefaultWrapping);
	ExpectRefused(
		&ParseTextWrappingPolicy, "1", ETextWrappingPolicy::AllowPerCharacterWrapping, ETextWrappingPolicy::DefaultWrapping);
	EXPECT_EQ(Log.Errors(), FLines());

	ExpectRefused(&ParseTextWrappingPolicy, R"("None")", ETextWrappingPolicy::AllowPerCharacterWrapping,
		ETextWrappingPolicy::DefaultWrapping);
	EXPECT_EQ(Log.Errors(),
		FLines({TEXT("ParseTextWrappingPolicy Type Error, need String:  AllowPerCharacterWrapping/DefaultWrapping")}));
}

TEST(ParseJustification, AnyOtherStringIsLeft)
{
	const FLogCapture Log(TEXT("Velmora"));

	ExpectParsed(&ParseJustification, R"("center")", ETextJustify::Center);
	ExpectParsed(&ParseJustification, R"("Right")", ETextJustify::Right);
	ExpectParsed(&ParseJustification, R"("Middle")", ETextJustify::Left);
	ExpectRefused(&ParseJustification, "1", ETextJustify::Right, ETextJustify::Left);

	EXPECT_EQ(Log.Lines(), FLines());
}

TEST(GetNumberValue, OnlyAJsonNumberCounts)
{
	float Number = 7.0f;

	EXPECT_FALSE(GetNumberValue(nullptr, Number));
	EXPECT_FALSE(GetNumberValue(JsonValue(R"("5")"), Number));
	EXPECT_EQ(Number, 7.0f);
	EXPECT_TRUE(GetNumberValue(JsonValue("5.5"), Number));
	EXPECT_EQ(Number, 5.5f);
}

TEST(NumbersFromOutside, AreNarrowedToTheNearestThatFits)
{
	EXPECT_EQ(ToFloat(1e300), MAX_flt);
	EXPECT_EQ(ToFloat(-1e300), -MAX_flt);
	EXPECT_EQ(ToInt32(3e9), MAX_int32);
	EXPECT_EQ(ToInt32(-3e9), MIN_int32);
	EXPECT_EQ(ToInt32(-1.9), -1);
}

TEST(ParsePaddingValues, ANumberIsAllSides)
{
	TArray<float> Values;
	FMargin Margin;

	EXPECT_TRUE(ParsePaddingValues(JsonValue("5"), Values, Margin));

	EXPECT_EQ(Values, TArray<float>({5.0f}));
	EXPECT_TRUE(Margin == FMargin(5.0f));
}

TEST(ParsePaddingValues, ArraysOfOneTwoAndFour)
{
	TArray<float> Values;
	FMargin Margin;

	EXPECT_TRUE(ParsePaddingValues(JsonValue("[3]"), Values, Margin));
	EXPECT_TRUE(Margin == FMargin(3.0f));
	EXPECT_TRUE(ParsePaddingValues(JsonValue("[1, 2]"), Values, Margin));
	EXPECT_TRUE(Margin == FMargin(1.0f, 2.0f, 1.0f, 2.0f));
	EXPECT_TRUE(ParsePaddingValues(JsonValue("[1, 2, 3, 4]"), Values, Margin));
	EXPECT_TRUE(Margin == FMargin(1.0f, 2.0f, 3.0f, 4.0f));
	EXPECT_EQ(Values, TArray<float>({1.0f, 2.0f, 3.0f, 4.0f}));
}

TEST(ParsePaddingValues, OtherSizesFailWithTheSizeInTheMessage)
{
	const FLogCapture Log(TEXT("Velmora"));
	TArray<float> Values = {9.0f};
	FMargin Margin(9.0f);

	EXPECT_FALSE(ParsePaddingValues(JsonValue("[1, 2, 3]"), Values, Margin));
	EXPECT_FALSE(ParsePaddingValues(JsonValue("[]"), Values, Margin));
	EXPECT_FALSE(ParsePaddingValues(JsonValue(R"("5")"), Values, Margin));

	EXPECT_EQ(Values, TArray<float>());
	EXPECT_TRUE(Margin == FMargin(9.0f));
	EXPECT_EQ(Log.Errors(),
		FLines({TEXT("ParsePaddingValues Error Array Size: 3"), TEXT("ParsePaddingValues Error Array Size: 0"),
			TEXT("ParsePaddingValues JsonValue Type Error, Need(Number / Array)")}));
}

TEST(ParseMargin, SaysItsOwnNameAndLeavesTheOutput)
{
	const FLogCapture Log(TEXT("Velmora"));

	ExpectParsed(&ParseMargin, "[1, 2]", FMargin(1.0f, 2.0f));
	ExpectRefused(&ParseMargin, "[1, 2, 3]", FMargin(9.0f), FMargin(9.0f));
	ExpectRefused(&ParseMargin, "{}", FMargin(9.0f), FMargin(9.0f));

	EXPECT_EQ(Log.Errors(),
		FLines({TEXT("ParseMargin Error Array Size: 3"), TEXT("ParseMargin JsonValue Type Error, Need(Number / Array)")}));
}

TEST(ParseLinearColorValues, ThreeNumbersAreOpaque)
{
	ExpectParsed(&ParseLinearColorValues, "[0.1, 0.2, 0.3]", FLinearColor(0.1f, 0.2f, 0.3f, 1.0f));
	ExpectParsed(&ParseLinearColorValues, "[255, 0, 0, 0.5]", FLinearColor(255.0f, 0.0f, 0.0f, 0.5f));
}

TEST(ParseLinearColorValues, MagentaShowsAWrongValue)
{
	const FLogCapture Log(TEXT("Velmora"));
	const FLinearColor Magenta(1.0f, 0.0f, 1.0f, 1.0f);

	ExpectRefused(&ParseLinearColorValues, "[1, 1, 1, 1, 1]", FLinearColor::White, Magenta);
	ExpectRefused(&ParseLinearColorValues, "[1, 1]", FLinearColor::White, Magenta);
	ExpectRefused(&ParseLinearColorValues, "5", FLinearColor::White, Magenta);

	EXPECT_EQ(Log.Errors(),
		FLines({TEXT("ParseLinearColorValues Error Array Size: 5"), TEXT("ParseLinearColorValues Error Array Size: 2"),
			TEXT("ParseLinearColorValues JsonValue Type Error, Need Array")}));
}

TEST(ParseVector2D, ZeroOnFailure)
{
	const FLogCapture Log(TEXT("Velmora"));

	ExpectParsed(&ParseVector2D, "[1.5, -2]", FVector2D(1.5, -2.0));
	ExpectRefused(&ParseVector2D, "[10]", FVector2D(9.0, 9.0), FVector2D::ZeroVector);
	ExpectRefused(&ParseVector2D, "true", FVector2D(9.0, 9.0), FVector2D::ZeroVector);

	EXPECT_EQ(Log.Errors(),
		FLines({TEXT("ParseVector2D Error Array Size: 1"), TEXT("ParseVector2D JsonValue Type Error, Need Array")}));
}

TEST(ParseVector, TypeErrorNamesTheOtherVector)
{
	const FLogCapture Log(TEXT("Velmora"));

	ExpectParsed(&ParseVector, "[1, 2, 3]", FVector(1.0, 2.0, 3.0));
	ExpectRefused(&ParseVector, "[1, 2]", FVector(9.0, 9.0, 9.0), FVector::ZeroVector);
	ExpectRefused(&ParseVector, "1", FVector(9.0, 9.0, 9.0), FVector::ZeroVector);

	EXPECT_EQ(
		Log.Errors(), FLines({TEXT("ParseVector Error Array Size: 2"), TEXT("ParseVector2D JsonValue Type Error, Need Array")}));
}

TEST(ParseIntArray, EntriesThatAreNoNumbersAreSkippedWithOneMessageEach)
{
	const FLogCapture Log(TEXT("Velmora"));

	ExpectParsed(&ParseIntArray, R"([1, "x", 2.9])", TArray<int32>({1, 2}));

	EXPECT_EQ(Log.Errors(), FLines({TEXT("ParseIntArray Error, Need int Array")}));
}

TEST(ParseIntArray, FailsOnlyWithoutAnArray)
{
	const FLogCapture Log(TEXT("Velmora"));

	ExpectRefused(&ParseIntArray, "1", TArray<int32>({9}), TArray<int32>());

	EXPECT_EQ(Log.Errors(), FLines({TEXT("ParseIntArray JsonValue Type Error, Need Array")}));
}

TEST(ParseComboBoxOptionsSource, EntriesAreReadAsText)
{
	const FLogCapture Log(TEXT("Velmora"));
	FLines Options;
	TArray<TSharedPtr<FString>> Shared;

	EXPECT_TRUE(ParseComboBoxOptionsSource(JsonValue(R"(["a", 5, true])"), Options, Shared));
	EXPECT_EQ(Options, FLines({TEXT("a"), TEXT("5"), TEXT("true")}));
	ASSERT_EQ(Shared.Num(), 3);
	EXPECT_EQ(FLines({*Shared[0], *Shared[1], *Shared[2]}), Options);

	EXPECT_FALSE(ParseComboBoxOptionsSource(JsonValue(R"("a")"), Options, Shared));
	EXPECT_EQ(Options, FLines());
	EXPECT_EQ(Shared.Num(), 0);
	EXPECT_EQ(Log.Errors(), FLines({TEXT("ParseComboBoxOptionsSource JsonValue Type Error, Need Array")}));
}

TEST(ParseStrArray2D, EntriesThatAreNoArraysAreSkipped)
{
	const FLogCapture Log(TEXT("Velmora"));
	TArray<FLines> Rows;

	EXPECT_TRUE(ParseStrArray2D(JsonValue(R"([["a", 1], "skipped", []])"), Rows));

	EXPECT_EQ(Rows, TArray<FLines>({FLines({TEXT("a"), TEXT("1")}), FLines()}));
	EXPECT_EQ(Log.Errors(), FLines());

	EXPECT_FALSE(ParseStrArray2D(JsonValue(R"("a")"), Rows));
	EXPECT_EQ(Rows.Num(), 0);
	EXPECT_EQ(Log.Errors(), FLines({TEXT("ParseComboBoxOptionsSource JsonValue Type Error, Need Array")}));
}

TEST(ParseColumnRow, TwoIntegers)
{
	int32 Column = 0;
	int32 Row = 0;

	EXPECT_TRUE(ParseColumnRow(JsonObject(R"({ "Column_Row": [3, 4] })"), Column, Row));

	EXPECT_EQ(Column, 3);
	EXPECT_EQ(Row, 4);
}

TEST(ParseColumnRow, EntriesConvertToIntegersAsJsonValuesDo)
{
	const FLogCapture Log(TEXT("Velmora"));
	int32 Column = 0;
	int32 Row = 0;

	EXPECT_TRUE(ParseColumnRow(JsonObject(R"({ "Column_Row": [1.5, "7"] })"), Column, Row));

	EXPECT_EQ(Column, 2);
	EXPECT_EQ(Row, 7);
	EXPECT_EQ(Log.Lines(), FLines());
}

TEST(ParseColumnRow, NumbersRoundHalvesAwayFromZero)
{
	int32 Column = 0;
	int32 Row = 0;

	EXPECT_TRUE(ParseColumnRow(JsonObject(R"({ "Column_Row": [1.5, 2.4] })"), Column, Row));

	EXPECT_EQ(Column, 2);
	EXPECT_EQ(Row, 2);
}

TEST(ParseColumnRow, EntryThatIsNoIntegerByTypeAndTextIsRefused)
{
	for (const TCHAR* const Entry : {TEXT("1.5"), TEXT("x"), TEXT(""), TEXT("99999999999"), TEXT("1e3")})
	{
		const FLogCapture Log(TEXT("Velmora"));
		int32 Column = 0;
		int32 Row = 0;
		const FString Json = FString::Printf(TEXT("{ \"Column_Row\": [1, \"%s\"] }"), Entry);

		EXPECT_FALSE(ParseColumnRow(JsonObject(TCHAR_TO_UTF8(*Json)), Column, Row));

		EXPECT_EQ(Column, -1);
		EXPECT_EQ(Row, -1);
		EXPECT_EQ(Log.Lines(), FLines({FString(TEXT("Velmora: Error: Parse ColumnRowValues error ")) + Entry}));
	}
	const FLogCapture Log(TEXT("Velmora"));
	int32 Column = 0;
	int32 Row = 0;
	EXPECT_FALSE(ParseColumnRow(JsonObject(R"({ "Column_Row": [true, 1] })"), Column, Row));
	EXPECT_EQ(Log.Lines(), FLines({TEXT("Velmora: Error: Parse ColumnRowValues error true")}));
}

TEST(ParseColumnRow, EachFaultHasItsMessageAndGivesMinusOne)
{
	const FLogCapture Log(TEXT("Velmora"));
	for (const char* Json :
		{R"({})", R"({ "Column_Row": [1] })", R"({ "Column_Row": [1, null] })", R"({ "Column_Row": [3e9, 1] })"})
	{
		int32 Column = 9;
		int32 Row = 9;
		EXPECT_FALSE(ParseColumnRow(JsonObject(Json), Column, Row)) << Json;
		EXPECT_EQ(Column, -1) << Json;
		EXPECT_EQ(Row, -1) << Json;
	}

	EXPECT_EQ(Log.Lines(),
		FLines({TEXT("Velmora: Warning: Can't find ArrayFiled: Column_Row"), TEXT("Velmora: Error: ColumnRowValues->Num() != 2"),
			TEXT("Velmora: Error: Parse ColumnRowValues error "),
			TEXT("Velmora: Error: Parse ColumnRowValues error 3000000000")}));
}

TEST(ParseFillColumn, PairsInFrontOfAnErrorStay)
{
	const FLogCapture Log(TEXT("Velmora"));
	TMap<int32, float> Fill = {{9, 9.0f}};

	EXPECT_FALSE(ParseFillColumn(JsonObject(R"({ "FillColumn": [[0, 1.5], ["x", 1], [1]] })"), Fill));
	EXPECT_EQ(Fill.Num(), 1);
	EXPECT_EQ(Fill.FindRef(0), 1.5f);

	EXPECT_FALSE(ParseFillColumn(JsonObject(R"({ "FillColumn": [5] })"), Fill));
	EXPECT_EQ(Fill.Num(), 1);
	EXPECT_FALSE(ParseFillColumn(JsonObject("{}"), Fill));

	EXPECT_EQ(Log.Errors(),
		FLines({TEXT("\tGetFillColumn OutArray->Num !=2"), TEXT("\tGetFillColumn PairVlaue Not array"),
			TEXT("\tCan't find FillColumn")}));
}

TEST(ParseFillColumn, MapIsEmptiedAtTheFirstPairOfNumbers)
{
	TMap<int32, float> Fill = {{9, 9.0f}};

	EXPECT_TRUE(ParseFillColumn(JsonObject(R"({ "FillColumn": [] })"), Fill));
	EXPECT_TRUE(Fill.Contains(9));
	EXPECT_TRUE(ParseFillColumn(JsonObject(R"({ "FillColumn": [[0, 1], [1, 2]] })"), Fill));
	EXPECT_EQ(Fill.Num(), 2);
	EXPECT_FALSE(Fill.Contains(9));
}

TEST(GetBindingName, IsWhatFollowsTheDataMark)
{
	EXPECT_EQ(GetBindingName(JsonObject(R"({ "Value": "<<Data. my_value" })")), FString(TEXT("my_value")));
	EXPECT_EQ(GetBindingName(JsonObject(R"({ "Value": " < <data.My Value" })")), FString(TEXT("MyValue")));
	EXPECT_EQ(GetBindingName(JsonObject(R"({ "Value": "my_value" })")), FString());
	EXPECT_EQ(GetBindingName(JsonObject("{}")), FString());
}
