#include "Framework/Text/TextDocument.h"

#include "Framework/Text/TextRange.h"
#include "Misc/CString.h"
#include "Templates/UnrealTemplate.h"

FTextDocument::FTextDocument(bool bInMultiLine)
	: bMultiLine(bInMultiLine)
{
	Lines.AddDefaulted();
}

TArray<FString> FTextDocument::SplitLines(const FString& Text) const
{
	if (!bMultiLine)
	{
		return {Text};
	}

	TArray<FTextRange> Ranges;
	FTextRange::CalculateLineRangesFromString(Text, Ranges);

	TArray<FString> Result;
	Result.Reserve(Ranges.Num());
	for (const FTextRange& Range : Ranges)
	{
		Result.Add(Text.Mid(Range.BeginIndex, Range.Len()));
	}
	return Result;
}

void FTextDocument::SetText(const FString& Text)
{
	Lines = SplitLines(Text);
	Characters = 0;
	for (const FString& Line : Lines)
	{
		Characters += Line.Len();
	}
}

FString FTextDocument::GetText() const
{
	return GetText(GetAll());
}

FString FTextDocument::GetText(const FTextSelection& Range) const
{
	const FTextLocation Begin = Range.GetBeginning();
	const FTextLocation End = Range.GetEnd();
	if (Begin.GetLineIndex() == End.GetLineIndex())
	{
		return Lines[Begin.GetLineIndex()].Mid(Begin.GetOffset(), End.GetOffset() - Begin.GetOffset());
	}

	FString Result = Lines[Begin.GetLineIndex()].Mid(Begin.GetOffset());
	Result.Reserve(Begin.GetLineIndex() == 0 ? Characters + Lines.Num() : 0);
	for (int32 LineIndex = Begin.GetLineIndex() + 1; LineIndex < End.GetLineIndex(); ++LineIndex)
	{
		Result += TEXT('\n');
		Result += Lines[LineIndex];
	}
	Result += TEXT('\n');
	Result += Lines[End.GetLineIndex()].Left(End.GetOffset());
	return Result;
}

bool FTextDocument::Equals(const FString& Text) const
{
	if (!bMultiLine)
	{
		return Lines[0].Equals(Text);
	}

	const TCHAR* Rest = *Text;
	for (int32 LineIndex = 0; LineIndex < Lines.Num(); ++LineIndex)
	{
		if (LineIndex > 0)
		{
			if (*Rest != TEXT('\n') && *Rest != TEXT('\r'))
			{
				return false;
			}
			Rest += Rest[0] == TEXT('\r') && Rest[1] == TEXT('\n') ? 2 : 1;
		}
		const FString& Line = Lines[LineIndex];
		if (FCString::Strncmp(Rest, *Line, Line.Len()) != 0)
		{
			return false;
		}
		Rest += Line.Len();
	}
	return *Rest == 0;
}

FTextLocation FTextDocument::GetEnd() const
{
	return FTextLocation(Lines.Num() - 1, Lines.Last().Len());
}

FTextLocation FTextDocument::Clamp(const FTextLocation& Location) const
{
	if (Location.GetLineIndex() >= Lines.Num())
	{
		return GetEnd();
	}
	const int32 LineIndex = FMath::Max(Location.GetLineIndex(), 0);
	return FTextLocation(LineIndex, FMath::Clamp(Location.GetOffset(), 0, Lines[LineIndex].Len()));
}

FTextLocation FTextDocument::GetEndOfInserted(const FTextLocation& Begin, const FString& Text) const
{
	const TArray<FString> NewLines = SplitLines(Text);
	const bool bOneLine = NewLines.Num() == 1;
	return FTextLocation(Begin.GetLineIndex() + NewLines.Num() - 1, NewLines.Last().Len() + (bOneLine ? Begin.GetOffset() : 0));
}

FTextChange FTextDocument::Replace(const FTextSelection& Range, const FString& Text)
{
	const FTextLocation Begin = Range.GetBeginning();
	const FTextLocation End = Range.GetEnd();
	TArray<FString> NewLines = SplitLines(Text);

	FTextChange Change;
	Change.FirstLine = Begin.GetLineIndex();
	Change.Begin = Begin;
	Change.NumRemovedLines = End.GetLineIndex() - Begin.GetLineIndex() + 1;
	Change.NumInsertedLines = NewLines.Num();

	const FString Tail = Lines[End.GetLineIndex()].Mid(End.GetOffset());
	NewLines[0] = Lines[Begin.GetLineIndex()].Left(Begin.GetOffset()) + NewLines[0];
	Change.End = FTextLocation(Begin.GetLineIndex() + NewLines.Num() - 1, NewLines.Last().Len());
	NewLines.Last() += Tail;

	for (int32 LineIndex = Begin.GetLineIndex(); LineIndex <= End.GetLineIndex(); ++LineIndex)
	{
		Characters -= Lines[LineIndex].Len();
	}
	for (const FString& Line : NewLines)
	{
		Characters += Line.Len();
	}

	if (Change.NumRemovedLines == 1 && Change.NumInsertedLines == 1)
	{
		Lines[Change.FirstLine] = MoveTemp(NewLines[0]);
	}
	else
	{
		Lines.RemoveAt(Change.FirstLine, Change.NumRemovedLines);
		Lines.Insert(MoveTemp(NewLines), Change.FirstLine);
	}
	return Change;
}
