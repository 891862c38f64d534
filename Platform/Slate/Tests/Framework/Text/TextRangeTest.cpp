#include "Framework/Text/TextRange.h"

#include <gtest/gtest.h>

namespace
{
TArray<FTextRange> GetLines(const TCHAR* Text)
{
	TArray<FTextRange> Lines;
	FTextRange::CalculateLineRangesFromString(Text, Lines);
	return Lines;
}
}

TEST(TextRange, LinesEndAtLineFeedCarriageReturnOrBoth)
{
	EXPECT_TRUE(GetLines(TEXT("a\nbc\r\nd\re")) == TArray<FTextRange>({{0, 1}, {2, 4}, {6, 7}, {8, 9}}));
}

TEST(TextRange, ALineEndAtTheEndGivesAnEmptyLastLine)
{
	EXPECT_TRUE(GetLines(TEXT("a\n")) == TArray<FTextRange>({{0, 1}, {2, 2}}));
}

TEST(TextRange, AnEmptyTextIsOneEmptyLine)
{
	EXPECT_TRUE(GetLines(TEXT("")) == TArray<FTextRange>({{0, 0}}));
}
