#include "Framework/Text/TextEditor.h"

#include "Framework/Text/TextBoundaries.h"

FTextEditor::FTextEditor(bool bMultiLine)
	: Document(bMultiLine)
	, Rows(Document)
{
}

void FTextEditor::SetText(const FString& Text)
{
	Document.SetText(Text);
	Rows.OnReset();
	ClearHistory();
	PlaceCaret(Caret, false);
}

void FTextEditor::PlaceCaret(const FTextCaret& NewCaret, bool bExtend)
{
	Caret.Location = Document.Clamp(NewCaret.Location);
	Caret.bAtRowEnd = NewCaret.bAtRowEnd;
	if (!bExtend)
	{
		Anchor = Caret.Location;
	}
	Column.Reset();
}

void FTextEditor::MoveCaret(ETextCaretMove Move, bool bExtend, int32 RowsPerPage)
{
	if (HasSelection() && !bExtend)
	{
		// A step aside from a selection ends at its edge.
		if (Move == ETextCaretMove::PreviousCharacter || Move == ETextCaretMove::NextCharacter)
		{
			const FTextSelection Selection = GetSelection();
			PlaceCaret(Move == ETextCaretMove::NextCharacter ? Selection.GetEnd() : Selection.GetBeginning(), false);
			return;
		}
	}

	const bool bVertical = IsVerticalMove(Move);
	const float Aim = !bVertical ? 0.0f : Column.IsSet() ? Column.GetValue() : Rows.GetCaretPosition(Caret).X;
	PlaceCaret(GetMovedCaret(Document, Rows, Caret, Move, Aim, RowsPerPage), bExtend);
	if (bVertical)
	{
		Column = Aim;
	}
}

void FTextEditor::SelectAll()
{
	PlaceCaret(FTextLocation(), false);
	PlaceCaret(Document.GetEnd(), true);
}

void FTextEditor::SelectWordAt(const FTextLocation& Location)
{
	const FTextLocation Inside = Document.Clamp(Location);
	const FTextRange Word = TextBoundaries::GetWordAt(Document.GetLine(Inside.GetLineIndex()), Inside.GetOffset());
	PlaceCaret(FTextLocation(Inside.GetLineIndex(), Word.BeginIndex), false);
	PlaceCaret(FTextCaret(FTextLocation(Inside.GetLineIndex(), Word.EndIndex), true), true);
}

void FTextEditor::ClearSelection()
{
	Anchor = Caret.Location;
}

void FTextEditor::Replace(const FTextSelection& Range, const FString& Text)
{
	const FTextChange Change = Document.Replace(Range, Text);
	Rows.OnReplaced(Change);
	PlaceCaret(Change.End, false);
}

bool FTextEditor::Edit(const FTextSelection& Range, const FString& Text)
{
	FTextEdit Edit;
	Edit.SelectionBefore = GetSelection();
	Edit.Begin = Range.GetBeginning();
	Edit.Removed = Document.GetText(Range);
	Edit.Inserted = Text;

	Replace(Range, Text);
	if (Edit.Removed.Equals(Edit.Inserted))
	{
		return false;
	}
	if (!History)
	{
		History = MakeUnique<FTextUndoHistory>();
	}
	History->Record(MoveTemp(Edit));
	return true;
}

bool FTextEditor::Insert(const FString& Text)
{
	return Edit(GetSelection(), Text);
}

bool FTextEditor::Delete(ETextCaretMove Move)
{
	if (HasSelection())
	{
		return Insert(FString());
	}
	const FTextCaret Target = GetMovedCaret(Document, Rows, Caret, Move, 0.0f, 1);
	return Edit(FTextSelection(Caret.Location, Target.Location), FString());
}

bool FTextEditor::Undo()
{
	const FTextEdit* const Edit = History ? History->StepBack() : nullptr;
	if (!Edit)
	{
		return false;
	}
	Replace(FTextSelection(Edit->Begin, Document.GetEndOfInserted(Edit->Begin, Edit->Inserted)), Edit->Removed);
	PlaceCaret(Edit->SelectionBefore.LocationA, false);
	PlaceCaret(Edit->SelectionBefore.LocationB, true);
	return true;
}

bool FTextEditor::Redo()
{
	const FTextEdit* const Edit = History ? History->StepForward() : nullptr;
	if (!Edit)
	{
		return false;
	}
	Replace(FTextSelection(Edit->Begin, Document.GetEndOfInserted(Edit->Begin, Edit->Removed)), Edit->Inserted);
	return true;
}
