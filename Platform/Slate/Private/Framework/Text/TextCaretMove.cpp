#include "Framework/Text/TextCaretMove.h"

#include "Framework/Text/TextBoundaries.h"

namespace
{
FTextLocation GetEndOfLineBefore(const FTextDocument& Document, const FTextLocation& Location)
{
	const int32 LineIndex = Location.GetLineIndex() - 1;
	return LineIndex < 0 ? FTextLocation() : FTextLocation(LineIndex, Document.GetLine(LineIndex).Len());
}

FTextLocation GetBeginOfLineBehind(const FTextDocument& Document, const FTextLocation& Location)
{
	const int32 LineIndex = Location.GetLineIndex() + 1;
	return LineIndex == Document.NumLines() ? Document.GetEnd() : FTextLocation(LineIndex, 0);
}

/** A step to the left or right inside a line by one of the boundary functions, or over the line's end. */
FTextLocation StepBack(const FTextDocument& Document, const FTextLocation& Location, int32 (*GetPrevious)(const FString&, int32))
{
	if (Location.GetOffset() == 0)
	{
		return GetEndOfLineBefore(Document, Location);
	}
	const int32 LineIndex = Location.GetLineIndex();
	return FTextLocation(LineIndex, GetPrevious(Document.GetLine(LineIndex), Location.GetOffset()));
}

FTextLocation StepForward(const FTextDocument& Document, const FTextLocation& Location, int32 (*GetNext)(const FString&, int32))
{
	const int32 LineIndex = Location.GetLineIndex();
	const FString& Line = Document.GetLine(LineIndex);
	if (Location.GetOffset() == Line.Len())
	{
		return GetBeginOfLineBehind(Document, Location);
	}
	return FTextLocation(LineIndex, GetNext(Line, Location.GetOffset()));
}

FTextCaret GetRowEdge(const FTextRows& Rows, const FTextCaret& Caret, bool bEnd)
{
	const FTextRow Row = Rows.GetRow(Rows.GetRowIndex(Caret));
	const int32 Offset = bEnd ? Row.Range.EndIndex : Row.Range.BeginIndex;
	return FTextCaret(FTextLocation(Row.LineIndex, Offset), bEnd && Row.bWrapped);
}

/** A step beyond the first or last row leads nowhere. A page step stops there. */
FTextCaret GetRowsAway(const FTextRows& Rows, const FTextCaret& Caret, int32 Distance, float Column)
{
	const int32 RowIndex = Rows.GetRowIndex(Caret);
	const int32 Target = FMath::Clamp(RowIndex + Distance, 0, Rows.NumRows() - 1);
	return Target == RowIndex ? Caret : Rows.GetCaretInRow(Target, Column);
}
}

bool IsVerticalMove(ETextCaretMove Move)
{
	return Move >= ETextCaretMove::RowAbove && Move <= ETextCaretMove::PageBelow;
}

FTextCaret GetMovedCaret(const FTextDocument& Document, const FTextRows& Rows, const FTextCaret& Caret, ETextCaretMove Move,
	float Column, int32 RowsPerPage)
{
	switch (Move)
	{
		case ETextCaretMove::PreviousCharacter:
			return StepBack(Document, Caret.Location, &TextBoundaries::GetPreviousCharacter);
		case ETextCaretMove::NextCharacter:
			return StepForward(Document, Caret.Location, &TextBoundaries::GetNextCharacter);
		case ETextCaretMove::PreviousWord:
			return StepBack(Document, Caret.Location, &TextBoundaries::GetPreviousWord);
		case ETextCaretMove::NextWord:
			return StepForward(Document, Caret.Location, &TextBoundaries::GetNextWord);
		case ETextCaretMove::RowBegin:
			return GetRowEdge(Rows, Caret, false);
		case ETextCaretMove::RowEnd:
			return GetRowEdge(Rows, Caret, true);
		case ETextCaretMove::RowAbove:
			return GetRowsAway(Rows, Caret, -1, Column);
		case ETextCaretMove::RowBelow:
			return GetRowsAway(Rows, Caret, 1, Column);
		case ETextCaretMove::PageAbove:
			return GetRowsAway(Rows, Caret, -RowsPerPage, Column);
		case ETextCaretMove::PageBelow:
			return GetRowsAway(Rows, Caret, RowsPerPage, Column);
		case ETextCaretMove::DocumentBegin:
			return FTextLocation();
		case ETextCaretMove::DocumentEnd:
			return Document.GetEnd();
	}
	return Caret;
}
