#include "Widgets/Text/SMultiLineEditableText.h"

#include <gtest/gtest.h>

#include "Widgets/Input/TextFieldLog.h"
#include "HAL/PlatformApplicationMisc.h"
#include "Fonts/FontCache.h"
#include "Rendering/SlateRenderer.h"
#include "SlateTestWindow.h"
#include "Widgets/Layout/SBox.h"

namespace
{
using FLines = TArray<FString>;

constexpr FHeldModifiers GShift{true, false, false};
constexpr FHeldModifiers GControl{false, true, false};

FText Text(const TCHAR* String)
{
	return FText::FromString(String);
}

FText NumberedLines(int32 NumLines)
{
	FString Result;
	for (int32 Line = 0; Line < NumLines; ++Line)
	{
		Result += FString::Printf(TEXT("line %d\n"), Line);
	}
	return FText::FromString(Result);
}

/** A text of 200 by 100 units at the top left of a window. */
struct FMultiLineEditableTextTest : testing::Test
{
	void Show(SMultiLineEditableText::FArguments Arguments = SMultiLineEditableText::FArguments())
	{
		Arguments.OnTextChanged(Log.MakeOnTextChanged()).OnTextCommitted(Log.MakeOnTextCommitted());
		Field = MakeTDecl<SMultiLineEditableText>(FSlateTypeText("SMultiLineEditableText"), RequiredArgs::MakeRequiredArgs()) <<=
			Arguments;
		// clang-format off
		Window.Emplace(
			SNew(SBox).HAlign(HAlign_Left).VAlign(VAlign_Top)
			[
				SNew(SBox).WidthOverride(200.0f).HeightOverride(100.0f)[Field.ToSharedRef()]
			]);
		// clang-format on
	}

	void Focus() { FSlateApplication::Get().SetKeyboardFocus(Field); }
	void Press(const FKey& Key, FHeldModifiers Modifiers = {}) { Window->PressKey(Key, Modifiers); }
	FString Shown() const { return Field->GetText().ToString(); }

	/** Types a mark at the place that a click at the top left of the widget means, and gives the number of its line. */
	int32 GetTopLine()
	{
		Window->ClickAt(FVector2D(1.0, 2.0));
		Window->TypeText(TEXT("|"));
		TArray<FString> Lines;
		Shown().ParseIntoArray(Lines, TEXT("\n"), false);
		return Lines.IndexOfByPredicate([](const FString& Line) { return Line.Contains(TEXT("|")); });
	}

	FTextFieldLog Log;
	TSharedPtr<SMultiLineEditableText> Field;
	TOptional<FSlateTestWindow> Window;
};
}

TEST_F(FMultiLineEditableTextTest, EnterBeginsALine)
{
	Show();
	Focus();
	Window->TypeText(TEXT("a"));
	Press(EKeys::Enter);
	Window->TypeText(TEXT("b"));
	EXPECT_EQ(Shown(), TEXT("a\nb"));
	EXPECT_TRUE(Field->HasKeyboardFocus());
	EXPECT_EQ(Log.Take(), FLines({TEXT("changed a"), TEXT("changed a\n"), TEXT("changed a\nb")}));
}

TEST_F(FMultiLineEditableTextTest, CommitsWhenTheFocusLeaves)
{
	Show(SMultiLineEditableText::FArguments().Text(Text(TEXT("a\nb"))));
	Focus();
	FSlateApplication::Get().ClearKeyboardFocus();
	EXPECT_EQ(Log.Take(), FLines({TEXT("committed a\nb OnCleared")}));
}

TEST_F(FMultiLineEditableTextTest, UpAndDownKeepTheColumn)
{
	Show(SMultiLineEditableText::FArguments().Text(Text(TEXT("aaaa\na\naaaa"))));
	Focus();
	Press(EKeys::End);
	Press(EKeys::Down);
	Press(EKeys::Down);
	Window->TypeText(TEXT("|"));
	EXPECT_EQ(Shown(), TEXT("aaaa\na\naaaa|"));
	Press(EKeys::Up);
	Press(EKeys::Up);
	Press(EKeys::Home, GShift);
	EXPECT_EQ(Field->GetSelectedText().ToString(), TEXT("aaaa"));
}

TEST_F(FMultiLineEditableTextTest, ControlHomeAndEndReachTheEndsOfTheText)
{
	Show(SMultiLineEditableText::FArguments().Text(Text(TEXT("a\nb\nc"))));
	Focus();
	Press(EKeys::End, GControl);
	Window->TypeText(TEXT(">"));
	Press(EKeys::Home, GControl);
	Window->TypeText(TEXT("<"));
	EXPECT_EQ(Shown(), TEXT("<a\nb\nc>"));
}

TEST_F(FMultiLineEditableTextTest, PageKeysMoveByWhatIsInView)
{
	Show(SMultiLineEditableText::FArguments().Text(NumberedLines(100)));
	Focus();
	Press(EKeys::PageDown);
	Press(EKeys::PageDown);
	Press(EKeys::PageUp);
	Press(EKeys::Home, {true, true, false});
	TArray<FString> Passed;
	Field->GetSelectedText().ToString().ParseIntoArray(Passed, TEXT("\n"), false);
	const double LineHeight = Field->GetDesiredSize().Y / 101.0;
	EXPECT_EQ(Passed.Num() - 1, FMath::FloorToInt(100.0 / LineHeight));
}

TEST_F(FMultiLineEditableTextTest, PastesLinesAsTheyAre)
{
	Show();
	Focus();
	FPlatformApplicationMisc::ClipboardCopy(TEXT("a\r\nb\n"));
	Press(EKeys::V, GControl);
	EXPECT_EQ(Shown(), TEXT("a\nb\n"));
}

TEST_F(FMultiLineEditableTextTest, TheWheelScrolls)
{
	Show(SMultiLineEditableText::FArguments().Text(NumberedLines(100)));
	Window->MoveMouse(FVector2D(50.0, 50.0));
	Window->Wheel(-2.0f);
	const double LineHeight = Field->GetDesiredSize().Y / 101.0;
	EXPECT_EQ(GetTopLine(), FMath::FloorToInt((128.0 + 2.0) / LineHeight));
}

TEST_F(FMultiLineEditableTextTest, TheWheelIsForOthersWhereThereIsNothingToScroll)
{
	Show(SMultiLineEditableText::FArguments().Text(Text(TEXT("short"))));
	const FPointerEvent Wheel(
		FVector2D(5.0, 5.0), FVector2D(5.0, 5.0), TSet<FKey>(), EKeys::MouseWheelAxis, -1.0f, FModifierKeysState());
	EXPECT_FALSE(Field->OnMouseWheel(Field->GetPaintSpaceGeometry(), Wheel).IsEventHandled());
}

TEST_F(FMultiLineEditableTextTest, TheViewFollowsTheCaret)
{
	Show(SMultiLineEditableText::FArguments().Text(NumberedLines(100)));
	Focus();
	Press(EKeys::End, GControl);
	const double LineHeight = Field->GetDesiredSize().Y / 101.0;
	EXPECT_EQ(GetTopLine(), 101 - FMath::CeilToInt(100.0 / LineHeight));
}

TEST_F(FMultiLineEditableTextTest, ScrollsToAPlaceEvenBeforeTheTextIsLaidOut)
{
	Show();
	Field->SetText(NumberedLines(100));
	Field->ScrollTo(ETextLocation::EndOfDocument);
	Window->Frame();
	EXPECT_GT(GetTopLine(), 90);

	Field->ScrollTo(FTextLocation(20, 0));
	Window->Frame();
	EXPECT_EQ(GetTopLine(), 20);
}

TEST_F(FMultiLineEditableTextTest, GoToMovesTheCaret)
{
	Show(SMultiLineEditableText::FArguments().Text(Text(TEXT("abc\ndef"))));
	Field->GoTo(FTextLocation(1, 1));
	Focus();
	Window->TypeText(TEXT("|"));
	EXPECT_EQ(Shown(), TEXT("abc\nd|ef"));
	Field->GoTo(ETextLocation::BeginningOfLine);
	Window->TypeText(TEXT("|"));
	EXPECT_EQ(Shown(), TEXT("abc\n|d|ef"));
	Field->GoTo(FTextLocation(99, 99));
	Window->TypeText(TEXT("|"));
	EXPECT_EQ(Shown(), TEXT("abc\n|d|ef|"));
}

TEST_F(FMultiLineEditableTextTest, WrapsAtItsOwnWidth)
{
	Show(SMultiLineEditableText::FArguments().Text(Text(TEXT("some words that are too many for the width"))));
	const double OneRow = Field->GetDesiredSize().Y;
	Field->SetAutoWrapText(true);
	Window->Frame();
	EXPECT_EQ(Field->GetDesiredSize().Y, 2.0 * OneRow);
	EXPECT_LE(Field->GetDesiredSize().X, 200.0);
}

TEST_F(FMultiLineEditableTextTest, TheLineHeightPercentageAndTheMarginTakeRoom)
{
	Show(SMultiLineEditableText::FArguments().Text(Text(TEXT("a\nb"))));
	const FVector2D Plain = Field->GetDesiredSize();
	Field->SetLineHeightPercentage(2.0f);
	Field->SetMargin(FMargin(3.0f, 5.0f));
	Window->Frame();
	EXPECT_EQ(Field->GetDesiredSize(), FVector2D(Plain.X + 6.0, Plain.Y * 2.0 + 10.0));
}

TEST_F(FMultiLineEditableTextTest, SelectsAcrossLinesByDragging)
{
	Show(SMultiLineEditableText::FArguments().Text(Text(TEXT("first\nsecond"))));
	const double LineHeight = Field->GetDesiredSize().Y * 0.5;
	Window->MoveMouse(FVector2D(0.0, 1.0));
	Window->Press();
	Window->MoveMouse(FVector2D(0.0, LineHeight + 1.0));
	Window->Release();
	EXPECT_EQ(Field->GetSelectedText().ToString(), TEXT("first\n"));
}

TEST_F(FMultiLineEditableTextTest, OfALongTextOnlyWhatIsInViewIsPainted)
{
	Show(SMultiLineEditableText::FArguments().Text(NumberedLines(50000)));
	Field->ScrollTo(FTextLocation(30000, 0));
	Window->Frame();
	EXPECT_GT(Window->CountPaintedElements(), 3);
	EXPECT_LT(Window->CountPaintedElements(), 12);
	EXPECT_LT(FSlateApplication::Get().GetRenderer()->GetFontCache()->GetNumCachedTexts(), 5000);
}

TEST_F(FMultiLineEditableTextTest, AKeyInALongLineShapesOnlyWhatIsAroundIt)
{
	FString Line;
	for (int32 Word = 0; Word < 10000; ++Word)
	{
		Line += FString(TEXT("abcdefghijklmnop")).Mid(Word % 5, 1 + Word * 7919 % 97 % 11) + TEXT(" ");
	}
	const TSharedRef<FSlateFontCache> Cache = FSlateApplication::Get().GetRenderer()->GetFontCache();
	for (const bool bWraps : {false, true})
	{
		Show(SMultiLineEditableText::FArguments().AutoWrapText(bWraps).Text(FText::FromString(Line)));
		Focus();
		FString Expected = Line;
		for (const int32 Place : {Line.Len() / 2, 0, Line.Len()})
		{
			Field->GoTo(FTextLocation(0, Place));
			Window->Frame();
			const uint64 Before = Cache->GetNumShapedCharacters();
			Window->TypeText(TEXT("x"));
			EXPECT_LT(Cache->GetNumShapedCharacters() - Before, 4000u) << bWraps << " at " << Place;
			Expected = Expected.Left(Place) + TEXT("x") + Expected.Mid(Place);
		}
		EXPECT_TRUE(Shown().Equals(Expected));
	}
}
