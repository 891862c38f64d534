#include "LogCapture.h"
#include "Velmora/PythonRecorder.h"
#include "Velmora/WidgetTree.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Input/SMultiLineEditableTextBox.h"
#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest.h>

namespace
{
using FLines = TArray<FString>;

FVector2D DesiredSizeOf(const char* Root)
{
	const TSharedRef<SWidget> Widget = BuildTree(Root);
	Widget->SlatePrepass(1.0f);
	return Widget->GetDesiredSize();
}
}

TEST(TextBuilders, TextBlockWithNothingButTextIsTheSimplestWidget)
{
	const FLogCapture Log;

	const TSharedRef<SWidget> Block = BuildTree(R"({ "STextBlock": { "Text": "Hello" } })");

	EXPECT_EQ(As<STextBlock>(Block)->GetText().ToString(), FString(TEXT("Hello")));
	EXPECT_EQ(Log.Lines(), FLines());
}

TEST(TextBuilders, MarginAndPaddingOfAMultiLineBoxAreReadAtConstruction)
{
	const FLogCapture Log;

	const FVector2D Bare = DesiredSizeOf(R"({ "SMultiLineEditableTextBox": {} })");
	const FVector2D Padded = DesiredSizeOf(R"({ "SMultiLineEditableTextBox": { "Padding": 10 } })");
	const FVector2D Margined = DesiredSizeOf(R"({ "SMultiLineEditableTextBox": { "Margin": [5, 20] } })");

	EXPECT_EQ(Padded - Bare, FVector2D(20.0, 20.0));
	EXPECT_EQ(Margined - Bare, FVector2D(10.0, 40.0));
	EXPECT_EQ(Log.Lines(), FLines());
}

TEST(TextBuilders, BarsOfAMultiLineBoxTakeTheirRoomIfTheyAlwaysShow)
{
	const FVector2D Bare = DesiredSizeOf(R"({ "SMultiLineEditableTextBox": { "AlwaysShowScrollbars": false } })");

	EXPECT_GT(DesiredSizeOf(R"({ "SMultiLineEditableTextBox": { "AlwaysShowScrollbars": true } })").X, Bare.X);
	EXPECT_GT(DesiredSizeOf(R"({ "SMultiLineEditableTextBox": { "AlwaysShowScrollbars": "yes" } })").X, Bare.X);
	EXPECT_EQ(DesiredSizeOf(R"({ "SMultiLineEditableTextBox": {} })"), Bare);
}

TEST(TextBuilders, WithoutAKeyAMultiLineBoxHasNoPaddingWhateverTheStyleSays)
{
	const FVector2D Bare = DesiredSizeOf(R"({ "SMultiLineEditableTextBox": {} })");
	const TSharedRef<SWidget> Styled = SNew(SMultiLineEditableTextBox);
	Styled->SlatePrepass(1.0f);

	EXPECT_EQ(DesiredSizeOf(R"({ "SMultiLineEditableTextBox": { "Padding": 0, "Margin": 0 } })"), Bare);
	EXPECT_NE(Styled->GetDesiredSize(), Bare);
}

TEST(TextBuilders, MarginThatCannotBeReadIsZero)
{
	const FVector2D Bare = DesiredSizeOf(R"({ "SMultiLineEditableTextBox": {} })");
	const FLogCapture Log(TEXT("Velmora"));

	EXPECT_EQ(DesiredSizeOf(R"({ "SMultiLineEditableTextBox": { "Margin": [1, 2, 3] } })"), Bare);

	const FString Error = TEXT("ParseMargin Error Array Size: 3");
	EXPECT_EQ(Log.Errors(), FLines({Error, Error})) << "once by the builder and once by the decoration";
	EXPECT_EQ(Log.Warnings(), FLines());
}

TEST(TextBuilders, PaddingIsReadBeforeTheMargin)
{
	const FLogCapture Log(TEXT("Velmora"));

	DesiredSizeOf(R"({ "SMultiLineEditableTextBox": { "Margin": [1, 2, 3], "Padding": "wide" } })");

	EXPECT_EQ(Log.Errors()[0], FString(TEXT("ParseMargin JsonValue Type Error, Need(Number / Array)")));
	EXPECT_EQ(Log.Errors()[1], FString(TEXT("ParseMargin Error Array Size: 3")));
}

TEST(TextBuilders, UnknownMarshallerIsAnErrorAndThePlainWidget)
{
	const FPythonRecorder Python;
	const FLogCapture Log(TEXT("Velmora"));

	const TSharedRef<SWidget> Area = BuildTree(R"({ "SMultiLineEditableTextBox": { "Marshaller": "Html", "Text": "<b>" } })");

	EXPECT_EQ(As<SMultiLineEditableTextBox>(Area)->GetText().ToString(), FString(TEXT("<b>")));
	EXPECT_EQ(Log.Lines(),
		FLines({TEXT("Velmora: Error: Marshaller Name: Html is not support yet.  Supperted Marshalle: \"VelmoraRichText\"")}));
}

TEST(TextBuilders, MarshallerIsComparedWithoutRegardToCase)
{
	const FLogCapture Log(TEXT("Velmora"));

	BuildTree(R"({ "SMultiLineEditableTextBox": { "Marshaller": "velmorarichtext" } })");

	EXPECT_EQ(Log.Lines(), FLines());
}

TEST(TextBuilders, EventKeysDrawNoWarning)
{
	const FLogCapture Log;

	BuildTree(
		R"json({ "SEditableTextBox": { "OnTextChanged": "a(%)", "OnTextCommitted": "b(%)", "OnContextMenuOpening": {} } })json");
	BuildTree(R"json({ "SMultiLineEditableTextBox": { "OnTextChanged": "a(%)", "OnTextCommitted": "b(%)",
		"AlwaysShowScrollbars": true } })json");

	EXPECT_EQ(Log.Lines(), FLines());
}
