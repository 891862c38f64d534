#include "Framework/Text/TextRows.h"

#include "MonospaceMeasure.h"

#include <gtest/gtest.h>

namespace
{
struct FTextRowsTest : testing::Test
{
	void SetText(const FString& Text, float WrapWidth = 0.0f)
	{
		Document.SetText(Text);
		FTextRowFormat Format;
		Format.WrapWidth = WrapWidth;
		Rows.SetMeasure(MakeUnique<FMonospaceMeasure>());
		Rows.SetFormat(Format);
		Rows.OnReset();
	}

	FTextDocument Document{true};
	FTextRows Rows{Document};
};
}

TEST_F(FTextRowsTest, WithoutAWidthEachLineIsARow)
{
	SetText(TEXT("one\nlonger\n"));
	EXPECT_EQ(Rows.NumRows(), 3);
	EXPECT_EQ(Rows.GetSize(), FVector2D(60.0, 60.0));
	EXPECT_EQ(Rows.GetRow(1).LineIndex, 1);
	EXPECT_EQ(Rows.GetRow(1).Top, 20.0f);
}

TEST_F(FTextRowsTest, AWidthBreaksLinesIntoRows)
{
	SetText(TEXT("one two three\nfour"), 60.0f);
	EXPECT_EQ(Rows.NumRows(), 4);
	EXPECT_EQ(Rows.GetSize(), FVector2D(50.0, 80.0));

	const FTextRow Row = Rows.GetRow(1);
	EXPECT_EQ(Row.LineIndex, 0);
	EXPECT_TRUE(Row.Range == FTextRange(4, 8));
	EXPECT_EQ(Row.Width, 30.0f);
	EXPECT_TRUE(Row.bWrapped);
	EXPECT_FALSE(Rows.GetRow(2).bWrapped);
}

TEST_F(FTextRowsTest, ACaretAtASoftBreakShowsOnTheSideItCameFrom)
{
	SetText(TEXT("one two"), 40.0f);
	EXPECT_EQ(Rows.GetCaretPosition(FTextCaret(FTextLocation(0, 4), true)), FVector2D(40.0, 0.0));
	EXPECT_EQ(Rows.GetCaretPosition(FTextCaret(FTextLocation(0, 4), false)), FVector2D(0.0, 20.0));
}

TEST_F(FTextRowsTest, APointGivesTheNearestCaret)
{
	SetText(TEXT("one two\nx"), 40.0f);
	EXPECT_TRUE(Rows.GetCaretAt(FVector2D(14.0, 5.0)).Location == FTextLocation(0, 1));
	EXPECT_TRUE(Rows.GetCaretAt(FVector2D(16.0, 25.0)).Location == FTextLocation(0, 6));
	EXPECT_TRUE(Rows.GetCaretAt(FVector2D(500.0, 900.0)).Location == FTextLocation(1, 1));
	EXPECT_TRUE(Rows.GetCaretAt(FVector2D(-5.0, -5.0)).Location == FTextLocation(0, 0));
	EXPECT_TRUE(Rows.GetCaretAt(FVector2D(500.0, 5.0)).bAtRowEnd);
}

TEST_F(FTextRowsTest, JustificationMovesRowsWithinTheView)
{
	SetText(TEXT("ab\nabcd"));
	FTextRowFormat Format;
	Format.Justification = ETextJustify::Right;
	Rows.SetFormat(Format);
	Rows.SetViewWidth(100.0f);
	EXPECT_EQ(Rows.GetRow(0).Left, 80.0f);
	EXPECT_TRUE(Rows.GetCaretAt(FVector2D(91.0, 5.0)).Location == FTextLocation(0, 1));

	Format.Justification = ETextJustify::Center;
	Rows.SetFormat(Format);
	EXPECT_EQ(Rows.GetRow(1).Left, 30.0f);
}

TEST_F(FTextRowsTest, ThePercentageSpreadsRows)
{
	SetText(TEXT("a\nb"));
	FTextRowFormat Format;
	Format.LineHeightPercentage = 1.5f;
	Rows.SetFormat(Format);
	EXPECT_EQ(Rows.GetSize().Y, 60.0);
	EXPECT_EQ(Rows.GetRowIndexAtHeight(31.0f), 1);
}

TEST_F(FTextRowsTest, FollowsReplacedLines)
{
	SetText(TEXT("one two three\nfour"), 60.0f);
	EXPECT_EQ(Rows.NumRows(), 4);

	Rows.OnReplaced(Document.Replace(FTextSelection(FTextLocation(0, 3), FTextLocation(0, 13)), TEXT("")));
	EXPECT_EQ(Rows.GetSize(), FVector2D(40.0, 40.0));

	Rows.OnReplaced(Document.Replace(FTextSelection(FTextLocation(0, 0), FTextLocation(0, 0)), TEXT("x\ny\n")));
	EXPECT_EQ(Rows.NumRows(), 4);
	EXPECT_EQ(Rows.GetRow(3).LineIndex, 3);
}

TEST_F(FTextRowsTest, ControlCharactersShowAsBlanks)
{
	SetText(TEXT("a\tb\u0001c"));
	EXPECT_TRUE(Rows.GetRow(0).Text.Equals(TEXT("a\tb c")));
}

TEST_F(FTextRowsTest, APasswordShowsBullets)
{
	SetText(TEXT("secret"));
	FTextRowFormat Format;
	Format.bPassword = true;
	Rows.SetFormat(Format);
	EXPECT_TRUE(Rows.GetRow(0).Text.Equals(TEXT("\u2022\u2022\u2022\u2022\u2022\u2022")));
}

TEST_F(FTextRowsTest, EstimatedRowsOfALongTextTurnExactWhereTheyAreLookedAt)
{
	FString Text;
	for (int32 Line = 0; Line < 4000; ++Line)
	{
		Text += TEXT("one two three\n");
	}
	SetText(Text, 60.0f);

	EXPECT_EQ(Rows.GetRow(0).LineIndex, 0);
	const FTextRow Row = Rows.GetRow(2);
	EXPECT_EQ(Row.LineIndex, 0);
	EXPECT_TRUE(Row.Range == FTextRange(8, 13));
	EXPECT_EQ(Rows.GetRow(3).LineIndex, 1);

	const double Height = Rows.GetSize().Y;
	const FTextRow Last = Rows.GetRow(Rows.NumRows() - 1);
	EXPECT_EQ(Last.LineIndex, 4000);
	EXPECT_EQ(Last.Top + 20.0f, Height);
}
