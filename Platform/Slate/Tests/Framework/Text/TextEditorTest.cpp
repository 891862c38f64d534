#include "Framework/Text/TextEditor.h"

#include "MonospaceMeasure.h"

#include <gtest/gtest.h>

#include <random>

namespace
{
struct FTextEditorTest : testing::Test
{
	FTextEditorTest() { Editor.GetRows().SetMeasure(MakeUnique<FMonospaceMeasure>()); }

	void SetText(const TCHAR* Text, const FTextLocation& Caret = FTextLocation())
	{
		Editor.SetText(Text);
		Editor.PlaceCaret(Caret, false);
	}

	void Wrap(float Width)
	{
		FTextRowFormat Format;
		Format.WrapWidth = Width;
		Editor.GetRows().SetFormat(Format);
	}

	FTextLocation Move(ETextCaretMove Move, bool bExtend = false, int32 RowsPerPage = 1)
	{
		Editor.MoveCaret(Move, bExtend, RowsPerPage);
		return Editor.GetCaret().Location;
	}

	bool Shows(const TCHAR* Text) const { return Editor.GetDocument().Equals(Text); }

	FTextEditor Editor{true};
};
}

TEST_F(FTextEditorTest, CharacterAndWordStepsCrossLineEnds)
{
	SetText(TEXT("ab\ncd"), FTextLocation(0, 2));
	EXPECT_TRUE(Move(ETextCaretMove::NextCharacter) == FTextLocation(1, 0));
	EXPECT_TRUE(Move(ETextCaretMove::PreviousCharacter) == FTextLocation(0, 2));
	EXPECT_TRUE(Move(ETextCaretMove::NextWord) == FTextLocation(1, 0));
	EXPECT_TRUE(Move(ETextCaretMove::PreviousWord) == FTextLocation(0, 2));
	EXPECT_TRUE(Move(ETextCaretMove::PreviousWord) == FTextLocation(0, 0));
	EXPECT_TRUE(Move(ETextCaretMove::PreviousCharacter) == FTextLocation(0, 0));
	EXPECT_TRUE(Move(ETextCaretMove::DocumentEnd) == FTextLocation(1, 2));
	EXPECT_TRUE(Move(ETextCaretMove::NextCharacter) == FTextLocation(1, 2));
}

TEST_F(FTextEditorTest, VerticalStepsAimAtTheColumnTheyBeganWith)
{
	SetText(TEXT("longer\nab\nlonger"), FTextLocation(0, 5));
	EXPECT_TRUE(Move(ETextCaretMove::RowBelow) == FTextLocation(1, 2));
	EXPECT_TRUE(Move(ETextCaretMove::RowBelow) == FTextLocation(2, 5));
	EXPECT_TRUE(Move(ETextCaretMove::RowBelow) == FTextLocation(2, 5));
	EXPECT_TRUE(Move(ETextCaretMove::RowAbove) == FTextLocation(1, 2));
	EXPECT_TRUE(Move(ETextCaretMove::PreviousCharacter) == FTextLocation(1, 1));
	EXPECT_TRUE(Move(ETextCaretMove::RowAbove) == FTextLocation(0, 1));
}

TEST_F(FTextEditorTest, PageStepsStopAtTheEnds)
{
	SetText(TEXT("1\n2\n3\n4\n5"), FTextLocation(0, 1));
	EXPECT_TRUE(Move(ETextCaretMove::PageBelow, false, 3) == FTextLocation(3, 1));
	EXPECT_TRUE(Move(ETextCaretMove::PageBelow, false, 3) == FTextLocation(4, 1));
	EXPECT_TRUE(Move(ETextCaretMove::PageAbove, false, 9) == FTextLocation(0, 1));
}

TEST_F(FTextEditorTest, HomeAndEndStayOnTheRowOfAWrappedLine)
{
	SetText(TEXT("one two three"), FTextLocation(0, 5));
	Wrap(60.0f);
	EXPECT_TRUE(Move(ETextCaretMove::RowEnd) == FTextLocation(0, 8));
	EXPECT_TRUE(Editor.GetCaret().bAtRowEnd);
	EXPECT_TRUE(Move(ETextCaretMove::RowBegin) == FTextLocation(0, 4));
	EXPECT_TRUE(Move(ETextCaretMove::RowBelow) == FTextLocation(0, 8));
	EXPECT_FALSE(Editor.GetCaret().bAtRowEnd);
	EXPECT_TRUE(Move(ETextCaretMove::RowEnd) == FTextLocation(0, 13));
}

TEST_F(FTextEditorTest, ExtendingSelectsAndAStepAsideEndsAtTheEdge)
{
	SetText(TEXT("abcdef"), FTextLocation(0, 4));
	Move(ETextCaretMove::PreviousCharacter, true);
	Move(ETextCaretMove::PreviousCharacter, true);
	EXPECT_TRUE(Editor.GetSelectedText().Equals(TEXT("cd")));
	EXPECT_TRUE(Move(ETextCaretMove::NextCharacter) == FTextLocation(0, 4));
	EXPECT_FALSE(Editor.HasSelection());
}

TEST_F(FTextEditorTest, SelectsWordsAndEverything)
{
	SetText(TEXT("one two\nthree"));
	Editor.SelectWordAt(FTextLocation(0, 5));
	EXPECT_TRUE(Editor.GetSelectedText().Equals(TEXT("two")));
	Editor.SelectAll();
	EXPECT_TRUE(Editor.GetSelectedText().Equals(TEXT("one two\nthree")));
	EXPECT_TRUE(Editor.GetCaret().Location == FTextLocation(1, 5));
}

TEST_F(FTextEditorTest, InsertingReplacesTheSelection)
{
	SetText(TEXT("abcd"), FTextLocation(0, 1));
	Editor.PlaceCaret(FTextLocation(0, 3), true);
	EXPECT_TRUE(Editor.Insert(TEXT("X\nY")));
	EXPECT_TRUE(Shows(TEXT("aX\nYd")));
	EXPECT_TRUE(Editor.GetCaret().Location == FTextLocation(1, 1));
}

TEST_F(FTextEditorTest, InsertingWhatIsSelectedChangesNothing)
{
	SetText(TEXT("ab"));
	Editor.SelectAll();
	EXPECT_FALSE(Editor.Insert(TEXT("ab")));
	EXPECT_FALSE(Editor.Undo());
}

TEST_F(FTextEditorTest, DeletesCharactersWordsAndLineEnds)
{
	SetText(TEXT("one two\nx"), FTextLocation(1, 0));
	EXPECT_TRUE(Editor.Delete(ETextCaretMove::PreviousCharacter));
	EXPECT_TRUE(Shows(TEXT("one twox")));
	EXPECT_TRUE(Editor.Delete(ETextCaretMove::PreviousWord));
	EXPECT_TRUE(Shows(TEXT("one x")));
	EXPECT_TRUE(Editor.Delete(ETextCaretMove::NextCharacter));
	EXPECT_TRUE(Shows(TEXT("one ")));
	EXPECT_FALSE(Editor.Delete(ETextCaretMove::NextCharacter));
}

TEST_F(FTextEditorTest, UndoRestoresTextAndSelectionStepByStep)
{
	SetText(TEXT("abcd"), FTextLocation(0, 1));
	Editor.PlaceCaret(FTextLocation(0, 3), true);
	Editor.Insert(TEXT("X"));
	Editor.Insert(TEXT("\n"));

	EXPECT_TRUE(Editor.Undo());
	EXPECT_TRUE(Shows(TEXT("aXd")));
	EXPECT_TRUE(Editor.Undo());
	EXPECT_TRUE(Shows(TEXT("abcd")));
	EXPECT_TRUE(Editor.GetSelectedText().Equals(TEXT("bc")));
	EXPECT_FALSE(Editor.Undo());

	EXPECT_TRUE(Editor.Redo());
	EXPECT_TRUE(Editor.Redo());
	EXPECT_TRUE(Shows(TEXT("aX\nd")));
	EXPECT_TRUE(Editor.GetCaret().Location == FTextLocation(1, 0));
	EXPECT_FALSE(Editor.Redo());
}

TEST_F(FTextEditorTest, AnEditAfterAnUndoEndsTheWayForward)
{
	SetText(TEXT(""));
	Editor.Insert(TEXT("a"));
	Editor.Undo();
	Editor.Insert(TEXT("b"));
	EXPECT_FALSE(Editor.Redo());
	EXPECT_TRUE(Shows(TEXT("b")));
}

TEST_F(FTextEditorTest, TheHistoryForgetsItsOldestEdits)
{
	SetText(TEXT(""));
	for (int32 Edit = 0; Edit < FTextUndoHistory::MaxEdits + 10; ++Edit)
	{
		Editor.Insert(TEXT("x"));
	}
	int32 Steps = 0;
	while (Editor.Undo())
	{
		++Steps;
	}
	EXPECT_EQ(Steps, FTextUndoHistory::MaxEdits);
	EXPECT_TRUE(Shows(TEXT("xxxxxxxxxx")));
}

TEST_F(FTextEditorTest, ATextFromOutsideKeepsTheCaretNearAndDropsTheHistory)
{
	SetText(TEXT("abcdef"), FTextLocation(0, 5));
	Editor.Insert(TEXT("x"));
	Editor.SelectAll();
	Editor.SetText(TEXT("abc"));
	EXPECT_TRUE(Editor.GetCaret().Location == FTextLocation(0, 3));
	EXPECT_FALSE(Editor.HasSelection());
	EXPECT_FALSE(Editor.Undo());
}

TEST_F(FTextEditorTest, ManyEditsLeaveTheSameRowsAsAFreshLayoutAndCanAllBeUndone)
{
	const TCHAR* const Pieces[] = {TEXT("word "), TEXT("\n"), TEXT("two\nlines"), TEXT("e\u0301"), TEXT("\U0001F600"), TEXT("")};
	std::mt19937 Random(7);
	const auto Pick = [&Random](int32 Bound)
	{
		return static_cast<int32>(Random() % Bound);
	};

	SetText(TEXT("some words\nto begin with"));
	Wrap(80.0f);
	const FString Before = Editor.GetDocument().GetText();
	int32 NumEdits = 0;
	while (NumEdits < FTextUndoHistory::MaxEdits)
	{
		const FTextLocation Anywhere(Pick(Editor.GetDocument().NumLines()), Pick(30));
		Editor.PlaceCaret(Anywhere, Pick(4) == 0);
		const bool bDelete = Pick(3) == 0;
		NumEdits += (bDelete ? Editor.Delete(static_cast<ETextCaretMove>(Pick(4))) : Editor.Insert(Pieces[Pick(6)])) ? 1 : 0;

		const FString Now = Editor.GetDocument().GetText();
		FTextEditor Fresh(true);
		Fresh.SetText(Now);
		Fresh.GetRows().SetMeasure(MakeUnique<FMonospaceMeasure>());
		FTextRowFormat Format;
		Format.WrapWidth = 80.0f;
		Fresh.GetRows().SetFormat(Format);
		ASSERT_EQ(Editor.GetRows().GetSize(), Fresh.GetRows().GetSize());
		ASSERT_EQ(Editor.GetDocument().NumCharacters(), Fresh.GetDocument().NumCharacters());
	}

	while (Editor.Undo())
	{
	}
	EXPECT_TRUE(Editor.GetDocument().Equals(Before));
}
