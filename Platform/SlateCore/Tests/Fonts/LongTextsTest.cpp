#include "Fonts/FontCache.h"
#include "Fonts/SlateFontInfo.h"

#include <gtest/gtest.h>

namespace
{

const FSlateFontInfo Font(nullptr, 9);

FString Repeat(const TCHAR* Part, int32 Times)
{
	FString Text;
	for (int32 Index = 0; Index < Times; ++Index)
	{
		Text += Part;
	}
	return Text;
}

struct FLongTextsTest : testing::Test
{
	FShapedGlyphSequenceRef Shape(const FString& Text) { return Cache.ShapeBidirectionalText(Text, Font, 1.0f); }

	/** How many characters are shaped for a text, given what was shaped before. */
	int32 CountShaped(const FString& Text)
	{
		const uint64 Before = Cache.GetNumShapedCharacters();
		Shape(Text);
		return int32(Cache.GetNumShapedCharacters() - Before);
	}

	FSlateFontCache Cache;
};

/** Where a text was cut inside a word there is no kerning, and a blank there may come from the font of the next word. */
double GetTolerance(int32 Index)
{
	return 1.0 + Index * 0.002;
}

void ExpectSamePlaces(const FShapedGlyphSequence& A, const FShapedGlyphSequence& B)
{
	ASSERT_TRUE(A.GetText().Equals(B.GetText()));
	for (int32 Index = 0; Index <= A.GetText().Len(); ++Index)
	{
		ASSERT_NEAR(A.GetCaretOffset(Index), B.GetCaretOffset(Index), GetTolerance(Index)) << Index;
		ASSERT_NEAR(A.GetMeasuredWidth(0, Index), B.GetMeasuredWidth(0, Index), GetTolerance(Index)) << Index;
	}
}

/** Words, one long word, Hebrew with Latin and numbers, letters with accents, Chinese, flags. */
const TCHAR* const Kinds[] = {TEXT("seven words of text, fi and AV. "), TEXT("abcdefghij"),
	TEXT("\u05D0\u05D1\u05D2 (abc) 12.5 \u05D3\u05D4 - x, "), TEXT("e\u0301\u0302a\u0308 "), TEXT("\u786E\u5B9A\u3053"),
	TEXT("\U0001F1E9\U0001F1EA")};

}

TEST_F(FLongTextsTest, AChangeShapesOnlyWhatIsAroundIt)
{
	for (const TCHAR* Kind : Kinds)
	{
		FString Text = Repeat(Kind, 10000);
		EXPECT_GE(CountShaped(Text), Text.Len());
		for (const int32 Place : {40, Text.Len() / 2, Text.Len()})
		{
			Text = Text.Left(Place) + TEXT("x") + Text.Mid(Place);
			EXPECT_LE(CountShaped(Text), 1500);
		}
		EXPECT_LE(CountShaped(Text.Left(20000) + Text.Mid(20700)), 1500);
	}
}

TEST_F(FLongTextsTest, TheSameTextIsNotShapedAgain)
{
	const FString Text = Repeat(Kinds[0], 1000);
	const FShapedGlyphSequenceRef First = Shape(Text);
	EXPECT_EQ(Shape(Text), First);
	EXPECT_EQ(CountShaped(Text), 0);
}

TEST_F(FLongTextsTest, TheRowsOfAWindowAreShapedOnce)
{
	TArray<FString> Rows;
	for (int32 Row = 0; Row < 60; ++Row)
	{
		Rows.Add(FString::Printf(TEXT("Row %d: "), Row) + Repeat(Kinds[0], 100));
		Shape(Rows.Last());
	}
	for (const FString& Row : Rows)
	{
		EXPECT_EQ(CountShaped(Row), 0);
	}
}

TEST_F(FLongTextsTest, AChangedTextHasThePlacesThatItHasWhenItIsShapedWhole)
{
	for (const TCHAR* Kind : Kinds)
	{
		FString Text = Repeat(Kind, 6000 / FCString::Strlen(Kind));
		Shape(Text);
		for (int32 Change = 0; Change < 40; ++Change)
		{
			// Places, insertions and removals of all sizes; marks and letters from right to left may join what is there.
			const int32 Place = Change * 7919 % Text.Len();
			const TCHAR* const Inserted[] = {TEXT("x"), TEXT(" "), TEXT("\u0301"), TEXT("\u05D0"), TEXT("new words ")};
			Text = Text.Left(Place) + Inserted[Change % 5] + Text.Mid(Place + Change % 3 * 50);
			const FShapedGlyphSequenceRef Changed = Shape(Text);
			if (Change % 10 == 9)
			{
				const FSlateFontCache Fresh;
				ExpectSamePlaces(*Changed, *Fresh.ShapeBidirectionalText(Text, Font, 1.0f));
			}
		}
	}
}

TEST_F(FLongTextsTest, APartHasTheWidthThatItHasAlone)
{
	const FShapedGlyphSequenceRef Part = Shape(Kinds[0]);
	const FShapedGlyphSequenceRef Long = Shape(Repeat(Kinds[0], 100));
	EXPECT_NEAR(Long->GetMeasuredWidth(), Part->GetMeasuredWidth() * 100.0, 0.1);
	const int32 Length = Part->GetText().Len();
	EXPECT_NEAR(Long->GetMeasuredWidth(Length * 50, Length * 51), Part->GetMeasuredWidth(), 0.01);
	EXPECT_EQ(Long->GetCharacterAtOffset(0, Part->GetMeasuredWidth() * 70.0 + 1.0), Length * 70);
	EXPECT_EQ(Long->GetCharacterAtOffset(Length, Part->GetMeasuredWidth() * 70.0 + 1.0), Length * 71);
	EXPECT_EQ(Long->GetCharacterAtOffset(0, 1.0e9), Length * 100);
	EXPECT_EQ(Long->GetCaretAtOffset(Part->GetMeasuredWidth() * 70.0 + 1.0), Length * 70);
}

TEST_F(FLongTextsTest, MixedDirectionsAreOrderedAsInAShortText)
{
	// Latin and Hebrew, numbers in both, brackets and a run that is embedded twice.
	const FString Mixed = TEXT("ab \u05D0\u05D1 12.5 (\u05D2 cd 34 \u05D3) ef, \u05D4 - \u05D5! ");
	const FString Before = Repeat(TEXT("word "), 200);
	const FShapedGlyphSequenceRef Short = Shape(Mixed + TEXT("z"));
	const FShapedGlyphSequenceRef Long = Shape(Before + Mixed + TEXT("z") + Before);
	ASSERT_TRUE(Long->HasRightToLeft());

	const double Left = Long->GetMeasuredWidth(0, Before.Len());
	for (int32 Index = 0; Index <= Mixed.Len(); ++Index)
	{
		EXPECT_NEAR(Long->GetCaretOffset(Before.Len() + Index), Left + Short->GetCaretOffset(Index), 0.05) << Index;
		EXPECT_EQ(Long->GetCaretAtOffset(Left + Short->GetCaretOffset(Index)),
			Before.Len() + Short->GetCaretAtOffset(Short->GetCaretOffset(Index)))
			<< Index;
	}

	const TArray<FVector2D> Expected = Short->GetSpans(1, 20);
	const TArray<FVector2D> Spans = Long->GetSpans(Before.Len() + 1, Before.Len() + 20);
	ASSERT_GE(Expected.Num(), 2);
	double Width = 0.0;
	for (const FVector2D& Span : Expected)
	{
		Width += Span.Y - Span.X;
	}
	for (const FVector2D& Span : Spans)
	{
		Width -= Span.Y - Span.X;
	}
	EXPECT_NEAR(Width, 0.0, 0.1);
	EXPECT_NEAR(Spans[0].X, Left + Expected[0].X, 0.05);
	EXPECT_NEAR(Spans.Last().Y, Left + Expected.Last().Y, 0.05);
}

TEST_F(FLongTextsTest, ALongHebrewLineBeginsAtTheRight)
{
	const FString Word = TEXT("\u05D0\u05D1\u05D2 ");
	const FShapedGlyphSequenceRef Long = Shape(Repeat(*Word, 1000));
	const double Width = Long->GetMeasuredWidth();
	EXPECT_NEAR(Long->GetCaretOffset(0), Width, 0.01);
	EXPECT_NEAR(Long->GetCaretOffset(2000), Width / 2.0, 0.1);
	EXPECT_NEAR(Long->GetCaretOffset(4000), 0.0, 0.01);
	EXPECT_EQ(Long->GetCaretAtOffset(0.0), 4000);
	ASSERT_EQ(Long->GetSpans(1000, 2000).Num(), 1);
	EXPECT_NEAR(Long->GetSpans(1000, 2000)[0].X, Width / 2.0, 0.1);
}

TEST_F(FLongTextsTest, ALetterWithThousandsOfMarksIsShapedInShortParts)
{
	const FShapedGlyphSequenceRef Letter = Shape(TEXT("e\u0301"));
	const FShapedGlyphSequenceRef Shaped = Shape(TEXT("e") + Repeat(TEXT("\u0301"), 20000));
	int32 Units = 0;
	Shaped->ForEachPart(0.0, 1.0e9,
		[&Units](const FShapedGlyphSequence& Part, double)
		{
			Units += Part.GetText().Len();
			EXPECT_LE(Part.GetText().Len(), 256);
		});
	EXPECT_EQ(Units, 20001);
	EXPECT_NEAR(Shaped->GetMeasuredWidth(), Letter->GetMeasuredWidth(), 0.1) << "no mark sits on a circle of its own";
}

TEST_F(FLongTextsTest, PartsOutOfSightAreNotVisited)
{
	const FShapedGlyphSequenceRef Long = Shape(Repeat(Kinds[0], 1000));
	int32 Units = 0;
	Long->ForEachPart(5000.0, 6000.0,
		[&Units](const FShapedGlyphSequence& Part, double Left)
		{
			EXPECT_LE(Left, 6000.0);
			EXPECT_GE(Left + Part.GetMeasuredWidth(), 5000.0);
			Units += Part.GetText().Len();
		});
	EXPECT_GE(Units, 150);
	EXPECT_LE(Units, 700);
}
