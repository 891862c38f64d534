#include "Framework/Text/TextBoundaries.h"

#include <gtest/gtest.h>

using namespace TextBoundaries;

TEST(TextBoundaries, ACharacterIsWhatTheReaderSeesAsOne)
{
	const FString Accent = TEXT("ae\u0301b");
	EXPECT_EQ(GetNextCharacter(Accent, 1), 3);
	EXPECT_EQ(GetPreviousCharacter(Accent, 3), 1);

	const FString Family = TEXT("x\U0001F468\u200D\U0001F469\u200D\U0001F467y");
	EXPECT_EQ(GetNextCharacter(Family, 1), Family.Len() - 1);
	EXPECT_EQ(GetPreviousCharacter(Family, Family.Len() - 1), 1);
}

TEST(TextBoundaries, CharacterStepsEndAtTheLine)
{
	EXPECT_EQ(GetPreviousCharacter(TEXT("ab"), 0), 0);
	EXPECT_EQ(GetNextCharacter(TEXT("ab"), 2), 2);
	EXPECT_EQ(GetNextCharacter(TEXT(""), 0), 0);
}

TEST(TextBoundaries, TheLastCharacterBreakIsThePlaceItselfIfItIsOne)
{
	const FString Accent = TEXT("ae\u0301b");
	FForwardBreaks Breaks(EBreak::Character, Accent, 0);
	Breaks.MoveTo(2);
	EXPECT_EQ(Breaks.GetLast(), 1);
	EXPECT_EQ(Breaks.GetNext(), 3);
	Breaks.MoveTo(3);
	EXPECT_EQ(Breaks.GetLast(), 3);
	EXPECT_EQ(Breaks.GetNext(), 4);
}

TEST(TextBoundaries, WordStepsPassOverBlanksAndStopAtMarks)
{
	const FString Line = TEXT("one  two, three");
	EXPECT_EQ(GetNextWord(Line, 0), 5);
	EXPECT_EQ(GetNextWord(Line, 5), 8);
	EXPECT_EQ(GetNextWord(Line, 8), 10);
	EXPECT_EQ(GetNextWord(Line, 10), 15);
	EXPECT_EQ(GetPreviousWord(Line, 15), 10);
	EXPECT_EQ(GetPreviousWord(Line, 10), 8);
	EXPECT_EQ(GetPreviousWord(Line, 8), 5);
	EXPECT_EQ(GetPreviousWord(Line, 5), 0);
	EXPECT_EQ(GetPreviousWord(Line, 0), 0);
}

TEST(TextBoundaries, AWordIsFoundFromAnyPlaceInIt)
{
	const FString Line = TEXT("one two");
	EXPECT_TRUE(GetWordAt(Line, 0) == FTextRange(0, 3));
	EXPECT_TRUE(GetWordAt(Line, 5) == FTextRange(4, 7));
	EXPECT_TRUE(GetWordAt(Line, 7) == FTextRange(4, 7));
	EXPECT_TRUE(GetWordAt(Line, 3) == FTextRange(3, 4));
	EXPECT_TRUE(GetWordAt(TEXT(""), 0) == FTextRange(0, 0));
}

TEST(TextBoundaries, RowsEndBehindBlanksAndHyphens)
{
	const FString Line = TEXT("well-known fact");
	FForwardBreaks Breaks(EBreak::Row, Line, 0);
	EXPECT_EQ(Breaks.GetLast(), 0);
	EXPECT_EQ(Breaks.GetNext(), 5);
	Breaks.MoveTo(3);
	EXPECT_EQ(Breaks.GetLast(), 0);
	Breaks.MoveTo(10);
	EXPECT_EQ(Breaks.GetLast(), 5);
	EXPECT_EQ(Breaks.GetNext(), 11);
	Breaks.MoveTo(11);
	EXPECT_EQ(Breaks.GetLast(), 11);
	EXPECT_EQ(Breaks.GetNext(), 15);
	Breaks.MoveTo(15);
	EXPECT_EQ(Breaks.GetNext(), 15);
}

TEST(TextBoundaries, AWalkOverBreaksMayBeginAtAnyOfThem)
{
	const FString Line = TEXT("well-known fact");
	FForwardBreaks Breaks(EBreak::Row, Line, 5);
	EXPECT_EQ(Breaks.GetLast(), 5);
	EXPECT_EQ(Breaks.GetNext(), 11);
}
