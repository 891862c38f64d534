#include "Fonts/ShapedPieces.h"

#include <algorithm>

FShapedPieces::FShapedPieces(TArray<FPiece>&& InPieces)
	: Pieces(MoveTemp(InPieces))
{
	double Before = 0.0;
	for (FPiece& Piece : Pieces)
	{
		Piece.Before = Before;
		Before += Piece.Shaped->GetMeasuredWidth();
		bHasRightToLeft |= (Piece.Level & 1) != 0;
	}
	PutInVisualOrder();
	double Left = 0.0;
	for (const int32 Index : FromLeft)
	{
		Pieces[Index].Left = Left;
		Left += Pieces[Index].Shaped->GetMeasuredWidth();
	}
}

// Rule L2 of Unicode Standard Annex 9.
void FShapedPieces::PutInVisualOrder()
{
	uint8 Highest = 0;
	for (int32 Index = 0; Index < Pieces.Num(); ++Index)
	{
		FromLeft.Add(Index);
		Highest = FMath::Max(Highest, Pieces[Index].Level);
	}
	for (int32 Level = Highest; Level > 0; --Level)
	{
		for (int32 First = 0; First < FromLeft.Num();)
		{
			int32 End = First;
			while (End < FromLeft.Num() && Pieces[FromLeft[End]].Level >= Level)
			{
				++End;
			}
			std::reverse(FromLeft.GetData() + First, FromLeft.GetData() + End);
			First = End + 1;
		}
	}
}

const FShapedPieces::FPiece& FShapedPieces::GetPieceOf(int32 Character) const
{
	const FPiece* Behind = std::upper_bound(
		Pieces.begin(), Pieces.end(), Character, [](int32 Wanted, const FPiece& Piece) { return Wanted < Piece.FirstCharacter; });
	return Behind == Pieces.begin() ? Pieces[0] : Behind[-1];
}

double FShapedPieces::GetBefore(int32 Index) const
{
	const FPiece& Piece = GetPieceOf(Index);
	return Piece.Before + Piece.Shaped->GetMeasuredWidth(0, Index - Piece.FirstCharacter);
}

int32 FShapedPieces::GetCharacterAtOffset(int32 StartIndex, double HorizontalOffset) const
{
	const double Wanted = GetBefore(StartIndex) + HorizontalOffset;
	const FPiece* Behind = std::upper_bound(
		Pieces.begin(), Pieces.end(), Wanted, [](double Offset, const FPiece& Piece) { return Offset < Piece.Before; });
	const FPiece& Piece = Behind == Pieces.begin() ? Pieces[0] : Behind[-1];
	const int32 Character = Piece.FirstCharacter + Piece.Shaped->GetCharacterAtOffset(0, float(Wanted - Piece.Before));
	return FMath::Max(Character, StartIndex);
}

double FShapedPieces::GetCaretOffset(int32 Index) const
{
	// Behind the last character the caret stands at that one's end.
	const FPiece& Piece = GetPieceOf(FMath::Min(Index, Pieces.Last().GetEnd() - 1));
	return Piece.Left + Piece.Shaped->GetCaretOffset(Index - Piece.FirstCharacter);
}

int32 FShapedPieces::FindFromLeft(double HorizontalOffset) const
{
	const int32* Behind = std::upper_bound(FromLeft.begin(), FromLeft.end(), HorizontalOffset,
		[this](double Offset, int32 Index) { return Offset < Pieces[Index].Left; });
	return FMath::Max(int32(Behind - FromLeft.begin()) - 1, 0);
}

int32 FShapedPieces::GetCaretAtOffset(double HorizontalOffset) const
{
	// The caret behind a piece may belong to the next one in reading order, which may lie elsewhere: so look around, too.
	const int32 Middle = FindFromLeft(HorizontalOffset);
	int32 Nearest = INDEX_NONE;
	double Distance = 0.0;
	for (int32 Place = FMath::Max(Middle - 1, 0); Place <= FMath::Min(Middle + 1, FromLeft.Num() - 1); ++Place)
	{
		const FPiece& Piece = Pieces[FromLeft[Place]];
		const int32 Near = Piece.FirstCharacter + Piece.Shaped->GetCaretAtOffset(float(HorizontalOffset - Piece.Left));
		for (const int32 Index : {Near, Piece.FirstCharacter, Piece.GetEnd() - 1, Piece.GetEnd()})
		{
			const double DistanceOfIndex = FMath::Abs(GetCaretOffset(Index) - HorizontalOffset);
			if (Nearest == INDEX_NONE || DistanceOfIndex < Distance || (DistanceOfIndex == Distance && Index < Nearest))
			{
				Nearest = Index;
				Distance = DistanceOfIndex;
			}
		}
	}
	return Nearest;
}

TArray<FVector2D> FShapedPieces::GetSpans(int32 StartIndex, int32 EndIndex) const
{
	constexpr double Gap = 0.01;
	TArray<FVector2D> Spans;
	for (const int32 Index : FromLeft)
	{
		const FPiece& Piece = Pieces[Index];
		const int32 First = FMath::Max(StartIndex, Piece.FirstCharacter);
		const int32 Behind = FMath::Min(EndIndex, Piece.GetEnd());
		if (First >= Behind)
		{
			continue;
		}
		for (const FVector2D& Part : Piece.Shaped->GetSpans(First - Piece.FirstCharacter, Behind - Piece.FirstCharacter))
		{
			const FVector2D Span(Piece.Left + Part.X, Piece.Left + Part.Y);
			if (Spans.Num() > 0 && Span.X - Spans.Last().Y < Gap)
			{
				Spans.Last().Y = Span.Y;
			}
			else
			{
				Spans.Add(Span);
			}
		}
	}
	return Spans;
}

void FShapedPieces::ForEachPart(double Left, double Right, TFunctionRef<void(const FShapedGlyphSequence&, double)> Visit) const
{
	for (int32 Place = FindFromLeft(Left); Place < FromLeft.Num(); ++Place)
	{
		const FPiece& Piece = Pieces[FromLeft[Place]];
		if (Piece.Left > Right)
		{
			return;
		}
		Visit(*Piece.Shaped, Piece.Left);
	}
}
