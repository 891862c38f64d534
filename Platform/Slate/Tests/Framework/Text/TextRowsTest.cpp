#include "Framework/Text/TextRows.h"

#include "LogCapture.h"
#include "MonospaceMeasure.h"

#include <gtest/gtest.h>

namespace
{
/** Counts the characters that are measured. */
class FCountingMeasure final : public ITextMeasure
{
public:
	explicit FCountingMeasure(int32& InCount)
		: Count(InCount)
	{
	}

	virtual float GetLineHeight() const override { return Inner.GetLineHeight(); }

	virtual float GetWidth(const FString& Row, int32 NumCharacters) const override
	{
		Count += Row.Len();
		return Inner.GetWidth(Row, NumCharacters);
	}

	virtual int32 GetNumFitting(const FString& Row, float Width) const override
	{
		Count += Row.Len();
		return Inner.GetNumFitting(Row, Width);
	}

	virtual int32 GetNearestIndex(const FString& Row, float Distance) const override
	{
		return Inner.GetNearestIndex(Row, Distance);
	}

private:
	FMonospaceMeasure Inner;
	int32& Count;
};

FString MakeWords(int32 Length)
{
	FString Text;
	while (Text.Len() < Length)
	{
		Text += TEXT("some words ");
	}
	return Text.Left(Length);
}

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

	void Replace(int32 Begin, int32 End, const TCHAR* Text)
	{
		Rows.OnReplaced(Document.Replace(FTextSelection(FTextLocation(0, Begin), FTextLocation(0, End)), Text));
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

TEST_F(FTextRowsTest, ParagraphFromRightToLeftBeginsAtTheRight)
{
	SetText(TEXT("abc\n\u05d0\u05d1\u05d2\n12 \u05d0"));
	Rows.SetViewWidth(100.0f);
	FTextRowFormat Format;
	EXPECT_EQ(Rows.GetRow(0).Left, 0.0f);
	EXPECT_EQ(Rows.GetRow(1).Left, 100.0f - Rows.GetRow(1).Width);
	EXPECT_EQ(Rows.GetRow(2).Left, 100.0f - Rows.GetRow(2).Width);

	Format.Justification = ETextJustify::Right;
	Rows.SetFormat(Format);
	EXPECT_EQ(Rows.GetRow(0).Left, 100.0f - Rows.GetRow(0).Width);
	EXPECT_EQ(Rows.GetRow(1).Left, 0.0f);
}

TEST_F(FTextRowsTest, LettersOfWrappedRowsFromRightToLeftEndAtTheViewsEdge)
{
	SetText(TEXT("\u05d0\u05d1\u05d2 \u05d3\u05d4\u05d5"), 45.0f);
	Rows.SetViewWidth(100.0f);
	const FTextRow First = Rows.GetRow(0);
	const FTextRow Last = Rows.GetRow(1);
	ASSERT_TRUE(First.bWrapped);

	// The blank at the break is drawn first, beyond the row's own width.
	EXPECT_EQ(First.Text.Len(), 4);
	EXPECT_EQ(First.Left, 100.0f - First.Width * 4.0f / 3.0f);
	EXPECT_EQ(Last.Left, 100.0f - Last.Width);
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

TEST_F(FTextRowsTest, AKeyInAWrappedParagraphMeasuresOnlyTheRowsAroundIt)
{
	SetText(MakeWords(100000), 400.0f);
	int32 Count = 0;
	Rows.SetMeasure(MakeUnique<FCountingMeasure>(Count));
	const FVector2D Size = Rows.GetSize();
	EXPECT_GT(Count, 100000);

	Count = 0;
	for (const int32 Place : {0, 50000, 100000})
	{
		Replace(Place, Place, TEXT("x"));
		EXPECT_NEAR(Rows.GetSize().Y, Size.Y, 20.0);
	}
	EXPECT_LT(Count, 3 * 2000);

	FTextRows Fresh(Document);
	Fresh.SetMeasure(MakeUnique<FMonospaceMeasure>());
	FTextRowFormat Format;
	Format.WrapWidth = 400.0f;
	Fresh.SetFormat(Format);
	EXPECT_EQ(Rows.GetSize(), Fresh.GetSize());
}

TEST_F(FTextRowsTest, SeveralChangesBetweenTwoLooksAddUp)
{
	SetText(MakeWords(5000), 400.0f);
	Rows.NumRows();
	Replace(2000, 2000, TEXT("new words and more of them, to shift all behind by a row or two "));
	Replace(1000, 1500, TEXT(""));
	Replace(3000, 3010, TEXT("z"));
	const int32 NumRows = Rows.NumRows();

	FTextRows Fresh(Document);
	Fresh.SetMeasure(MakeUnique<FMonospaceMeasure>());
	FTextRowFormat Format;
	Format.WrapWidth = 400.0f;
	Fresh.SetFormat(Format);
	ASSERT_EQ(NumRows, Fresh.NumRows());
	for (int32 Row = 0; Row < NumRows; ++Row)
	{
		EXPECT_TRUE(Rows.GetRow(Row).Range == Fresh.GetRow(Row).Range) << Row;
	}
	EXPECT_EQ(Rows.GetSize(), Fresh.GetSize());
}

TEST_F(FTextRowsTest, OfALineThatIsTooLongTheFirstPartShowsAndTheLogSaysSoOnce)
{
	const FLogCapture Log(TEXT("LogSlateText"));
	const int32 Length = FTextRows::MaxLineLength + 100;
	SetText(MakeWords(Length));
	EXPECT_EQ(Rows.GetSize().X, 10.0 * FTextRows::MaxLineLength);
	EXPECT_EQ(Rows.GetRow(0).Text.Len(), FTextRows::MaxLineLength);
	EXPECT_EQ(Rows.GetCaretPosition(FTextLocation(0, Length)).X, 10.0 * FTextRows::MaxLineLength);
	EXPECT_EQ(Document.GetText().Len(), Length);

	Replace(Length, Length, TEXT("x"));
	EXPECT_EQ(Rows.GetSize().X, 10.0 * FTextRows::MaxLineLength);
	EXPECT_EQ(Log.Warnings(),
		TArray<FString>({TEXT("A line of 1048676 characters is too long to be shown whole; the first 1048576 are shown.")}));

	Replace(0, 200, TEXT(""));
	EXPECT_EQ(Rows.GetSize().X, 10.0 * (Length - 199));
	EXPECT_EQ(Log.Warnings().Num(), 1);
}

TEST_F(FTextRowsTest, ALineThatIsTooLongIsWrappedUpToTheLimit)
{
	const FLogCapture Log(TEXT("LogSlateText"));
	SetText(MakeWords(FTextRows::MaxLineLength + 5000), 1000.0f);
	Rows.GetSize();
	const FTextRow Last = Rows.GetRow(Rows.NumRows() - 1);
	EXPECT_EQ(Last.Range.BeginIndex + Last.Text.Len(), FTextRows::MaxLineLength);
	EXPECT_EQ(Log.Warnings().Num(), 1);

	// Shorter by more than was cut off: the rows go to the real end now.
	Replace(100, 6100, TEXT(""));
	Rows.GetSize();
	const FTextRow Real = Rows.GetRow(Rows.NumRows() - 1);
	EXPECT_EQ(Real.Range.BeginIndex + Real.Text.Len(), Document.GetLine(0).Len());
}
