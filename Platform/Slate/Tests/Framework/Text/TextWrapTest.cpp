#include "Framework/Text/TextWrap.h"

#include "Framework/Text/TextBoundaries.h"
#include "MonospaceMeasure.h"

#include <gtest/gtest.h>

namespace
{
TArray<int32> Wrap(const TCHAR* Line, float Width, ETextWrappingPolicy Policy = ETextWrappingPolicy::DefaultWrapping)
{
	return WrapLine(Line, Width, Policy, FMonospaceMeasure());
}
}

TEST(TextWrap, BreaksBetweenWords)
{
	EXPECT_TRUE(Wrap(TEXT("one two three"), 80.0f) == TArray<int32>({8}));
	EXPECT_TRUE(Wrap(TEXT("one two three"), 60.0f) == TArray<int32>({4, 8}));
}

TEST(TextWrap, BlanksAtABreakTakeNoRoom)
{
	EXPECT_TRUE(Wrap(TEXT("one   two"), 30.0f) == TArray<int32>({6}));
	EXPECT_TRUE(Wrap(TEXT("one   "), 30.0f) == TArray<int32>());
}

TEST(TextWrap, ALineThatFitsOrHasNoWidthStaysWhole)
{
	EXPECT_TRUE(Wrap(TEXT("one two"), 70.0f) == TArray<int32>());
	EXPECT_TRUE(Wrap(TEXT("one two"), 0.0f) == TArray<int32>());
	EXPECT_TRUE(Wrap(TEXT(""), 10.0f) == TArray<int32>());
}

TEST(TextWrap, ALongWordSticksOutByDefault)
{
	EXPECT_TRUE(Wrap(TEXT("a longer b"), 40.0f) == TArray<int32>({2, 9}));
}

TEST(TextWrap, ALongWordIsBrokenWhereThePolicyAllowsIt)
{
	EXPECT_TRUE(Wrap(TEXT("a longest"), 40.0f, ETextWrappingPolicy::AllowPerCharacterWrapping) == TArray<int32>({2, 6}));
	EXPECT_TRUE(Wrap(TEXT("abc"), 5.0f, ETextWrappingPolicy::AllowPerCharacterWrapping) == TArray<int32>({1, 2}));
}

TEST(TextWrap, ABrokenWordKeepsItsCharactersWhole)
{
	const TCHAR* const Accents = TEXT("e\u0301e\u0301e\u0301");
	EXPECT_TRUE(Wrap(Accents, 30.0f, ETextWrappingPolicy::AllowPerCharacterWrapping) == TArray<int32>({2, 4}));
}

TEST(TextWrap, AVeryLongLineIsBrokenToItsEnd)
{
	FString Line;
	for (int32 Word = 0; Word < 1000; ++Word)
	{
		Line += TEXT("word ");
	}
	const TArray<int32> Rows = WrapLine(Line, 1000.0f, ETextWrappingPolicy::DefaultWrapping, FMonospaceMeasure());
	EXPECT_EQ(Rows.Num(), 49);
	EXPECT_EQ(Rows.Last(), 4900);
}

TEST(TextWrap, ALineIsWalkedOverOnceHoweverManyRowsItHas)
{
	FString Words;
	FString OneWord;
	for (int32 Word = 0; Word < 5000; ++Word)
	{
		Words += TEXT("word ");
		OneWord += TEXT("wordy");
	}
	for (const FString& Line : {Words, OneWord})
	{
		for (const ETextWrappingPolicy Policy :
			{ETextWrappingPolicy::DefaultWrapping, ETextWrappingPolicy::AllowPerCharacterWrapping})
		{
			const uint64 Before = TextBoundaries::FForwardBreaks::GetNumUnitsPassed();
			WrapLine(Line, 100.0f, Policy, FMonospaceMeasure());
			// Once for words and, inside of them, once for characters.
			EXPECT_LE(TextBoundaries::FForwardBreaks::GetNumUnitsPassed() - Before, uint64(Line.Len()) * 5 / 2);
		}
	}
}

TEST(TextWrap, AChangedLineIsWrappedAsIfItWereNew)
{
	const TCHAR* const Inserted[] = {TEXT("x"), TEXT(" "), TEXT("two words "), TEXT("\u0301"), TEXT("a-longer-word-than-others")};
	for (const TCHAR* Part :
		{TEXT("one two  three, four "), TEXT("letters"), TEXT("e\u0301\u0302 "), TEXT("\U0001F1E9\U0001F1EA")})
	{
		for (const ETextWrappingPolicy Policy :
			{ETextWrappingPolicy::DefaultWrapping, ETextWrappingPolicy::AllowPerCharacterWrapping})
		{
			FString Line;
			while (Line.Len() < 3000)
			{
				Line += Part;
			}
			FTextWrapBefore Before;
			Before.RowBegins = WrapLine(Line, 200.0f, Policy, FMonospaceMeasure());
			for (int32 Change = 0; Change < 100; ++Change)
			{
				Before.Length = Line.Len();
				const int32 Place = Change * 7919 % Line.Len();
				const int32 NumRemoved = FMath::Min(Change % 4 * 20, Line.Len() - Place);
				Before.SameAtFront = Place;
				Before.SameAtEnd = Line.Len() - Place - NumRemoved;
				Line = Line.Left(Place) + Inserted[Change % 5] + Line.Mid(Place + NumRemoved);

				int32 Front = 0;
				int32 End = 0;
				const TArray<int32> Rows = WrapChangedLine(Line, 200.0f, Policy, FMonospaceMeasure(), Before, Front, End);
				ASSERT_EQ(Rows, WrapLine(Line, 200.0f, Policy, FMonospaceMeasure())) << Change;
				ASSERT_LE(Front + End, Rows.Num() + 1);
				Before.RowBegins = Rows;
			}
		}
	}
}

TEST(TextWrap, OfTwoWidthsTheSmallerCountsIfBothAreSet)
{
	EXPECT_EQ(CombineWrapWidths(100.0f, 80.0f), 80.0f);
	EXPECT_EQ(CombineWrapWidths(100.0f, 0.0f), 100.0f);
	EXPECT_EQ(CombineWrapWidths(0.0f, 80.0f), 80.0f);
	EXPECT_EQ(CombineWrapWidths(-1.0f, -5.0f), 0.0f);
}
