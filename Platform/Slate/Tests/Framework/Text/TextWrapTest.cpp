#include "Framework/Text/TextWrap.h"

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

TEST(TextWrap, OfTwoWidthsTheSmallerCountsIfBothAreSet)
{
	EXPECT_EQ(CombineWrapWidths(100.0f, 80.0f), 80.0f);
	EXPECT_EQ(CombineWrapWidths(100.0f, 0.0f), 100.0f);
	EXPECT_EQ(CombineWrapWidths(0.0f, 80.0f), 80.0f);
	EXPECT_EQ(CombineWrapWidths(-1.0f, -5.0f), 0.0f);
}
