#include "Fonts/LongTexts.h"

#include "Fonts/SizedFont.h"
#include "Fonts/TextShaper.h"

#include <algorithm>

namespace
{

/** The rows of a large window, if all of them are long. */
constexpr int32 MaxKept = 128;
/** Of all that are kept, but for the last. A unit of a shaped text takes some thirty bytes. */
constexpr int32 MaxUnitsKept = 1 << 20;

/** A text that shares all but so many units is looked no further for a better one. */
constexpr int32 FewUnits = 512;

/** A piece ends at the first blank behind so many units ... */
constexpr int32 MinPiece = 128;
/** ... and at the latest here, if need be within a letter that has hundreds of marks. */
constexpr int32 MaxPiece = 256;

bool IsSecondOfPair(TCHAR Unit)
{
	return (Unit & 0xFC00) == 0xDC00;
}

/** Where a piece that begins at First ends. Letters on both sides of a blank do not touch each other. */
int32 FindCut(const TCHAR* Text, int32 First, int32 End)
{
	if (End - First <= MaxPiece)
	{
		return End;
	}
	for (int32 Index = First + MinPiece; Index < First + MaxPiece; ++Index)
	{
		if (Text[Index - 1] == TEXT(' ') && Text[Index] != TEXT(' ') && FSlateTextShaper::IsSimple(Text[Index]))
		{
			return Index;
		}
	}
	const int32 Cut = FSlateTextShaper::FindLastClusterBreak(Text + First, MaxPiece, End - First) + First;
	return Cut > First ? Cut : First + MaxPiece - (IsSecondOfPair(Text[First + MaxPiece]) ? 1 : 0);
}

}

/** A text while it is shaped. */
struct FSlateLongTexts::FTask
{
	const TCHAR* Text;
	int32 Length;
	const FSlateSizedFont& Font;
	/** Of each unit; empty where all of the text runs from left to right. */
	TArray<uint8> Levels;
	/** What another text has of this one's beginning and end. */
	TArray<FShapedPieces::FPiece> Head;
	TArray<FShapedPieces::FPiece> Tail;

	uint8 GetLevel(int32 Index) const { return Levels.Num() > 0 ? Levels[Index] : 0; }

	int32 FindEndOfLevel(int32 First, int32 End) const
	{
		if (Levels.Num() == 0)
		{
			return End;
		}
		int32 Index = First + 1;
		while (Index < End && GetLevel(Index) == GetLevel(First))
		{
			++Index;
		}
		return Index;
	}

	bool HasLevel(int32 First, int32 End, uint8 Level) const
	{
		return GetLevel(First) == Level && FindEndOfLevel(First, End) == End;
	}
};

const FShapedGlyphSequenceRef* FSlateLongTexts::Find(const TCHAR* Text, int32 Length, uint32 FontId)
{
	for (int32 Index = 0; Index < Kept.Num(); ++Index)
	{
		const FString& Known = Kept[Index].Shaped->GetText();
		if (Kept[Index].FontId == FontId && Known.Len() == Length &&
			FMemory::Memcmp(*Known, Text, SIZE_T(Length) * sizeof(TCHAR)) == 0)
		{
			std::rotate(Kept.GetData(), Kept.GetData() + Index, Kept.GetData() + Index + 1);
			return &Kept[0].Shaped;
		}
	}
	return nullptr;
}

void FSlateLongTexts::TakeOver(FTask& Task) const
{
	const FShapedGlyphSequence* Base = nullptr;
	int32 HeadLength = 0;
	int32 TailLength = 0;
	for (const FKept& Candidate : Kept)
	{
		const FString& Known = Candidate.Shaped->GetText();
		const int32 Shorter = FMath::Min(Known.Len(), Task.Length);
		if (Candidate.FontId != Task.Font.GetId())
		{
			continue;
		}
		const int32 Head = int32(std::mismatch(*Known, *Known + Shorter, Task.Text).first - *Known);
		int32 Tail = 0;
		while (Tail < Shorter - Head && (*Known)[Known.Len() - 1 - Tail] == Task.Text[Task.Length - 1 - Tail])
		{
			++Tail;
		}
		if (Head + Tail > HeadLength + TailLength)
		{
			Base = Candidate.Shaped.operator->();
			HeadLength = Head;
			TailLength = Tail;
		}
		if (HeadLength + TailLength + FewUnits >= Task.Length)
		{
			break;
		}
	}
	if (!Base)
	{
		return;
	}

	// The pieces that touch the difference are shaped anew: a mark may have come to their letters.
	const int32 Shift = Task.Length - Base->GetText().Len();
	for (const FShapedPieces::FPiece& Piece : Base->GetPieces()->GetPieces())
	{
		const int32 First = Piece.FirstCharacter + Shift;
		if (Piece.GetEnd() < HeadLength && Task.HasLevel(Piece.FirstCharacter, Piece.GetEnd(), Piece.Level))
		{
			Task.Head.Add(Piece);
		}
		else if (First > Task.Length - TailLength && Task.HasLevel(First, Piece.GetEnd() + Shift, Piece.Level))
		{
			Task.Tail.Add(Piece);
			Task.Tail.Last().FirstCharacter = First;
		}
	}
}

void FSlateLongTexts::ShapeBetween(FTask& Task, int32 First, int32 End, TArray<FShapedPieces::FPiece>& Pieces) const
{
	while (First < End)
	{
		const uint8 Level = Task.GetLevel(First);
		const int32 EndOfLevel = Task.FindEndOfLevel(First, End);
		while (First < EndOfLevel)
		{
			const int32 Cut = FindCut(Task.Text, First, EndOfLevel);
			Pieces.Add({Shaper.ShapePiece(Task.Text, First, Cut - First, Level, Task.Font), First, Level});
			First = Cut;
		}
	}
}

FShapedGlyphSequenceRef FSlateLongTexts::Shape(const TCHAR* Text, int32 Length, const FSlateSizedFont& Font)
{
	if (const FShapedGlyphSequenceRef* Known = Find(Text, Length, Font.GetId()))
	{
		return *Known;
	}

	FTask Task{Text, Length, Font, Shaper.FindLevels(Text, Length)};
	TakeOver(Task);

	// Pieces whose level has changed leave gaps anywhere.
	TArray<FShapedPieces::FPiece> Pieces;
	int32 End = 0;
	for (TArray<FShapedPieces::FPiece>* Known : {&Task.Head, &Task.Tail})
	{
		for (FShapedPieces::FPiece& Piece : *Known)
		{
			ShapeBetween(Task, End, Piece.FirstCharacter, Pieces);
			End = Piece.GetEnd();
			Pieces.Add(MoveTemp(Piece));
		}
	}
	ShapeBetween(Task, End, Length, Pieces);

	const FShapedGlyphSequenceRef Shaped =
		MakeShared<FShapedGlyphSequence>(FString(Length, Text), MakeUnique<FShapedPieces>(MoveTemp(Pieces)), Font);
	Kept.Insert({Font.GetId(), Shaped}, 0);
	int32 Units = 0;
	int32 NumKept = 1;
	while (NumKept < FMath::Min(Kept.Num(), MaxKept) && Units + Kept[NumKept].Shaped->GetText().Len() <= MaxUnitsKept)
	{
		Units += Kept[NumKept++].Shaped->GetText().Len();
	}
	Kept.RemoveAt(NumKept, Kept.Num() - NumKept);
	return Shaped;
}
