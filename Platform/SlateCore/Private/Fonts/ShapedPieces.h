#pragma once

#include "CoreMinimal.h"
#include "Fonts/FontCache.h"

/** A long text as pieces that were shaped one by one. Indices are UTF-16 offsets from the beginning of the text, lengths pixels. */
class FShapedPieces
{
public:
	struct FPiece
	{
		FShapedGlyphSequenceRef Shaped;
		int32 FirstCharacter;
		/** Level of embedding of all its characters: odd ones run from right to left (Unicode Standard Annex 9). */
		uint8 Level;
		/** Width of everything before it in reading order, and from the left end of the row to its own left end. */
		double Before = 0.0;
		double Left = 0.0;

		int32 GetEnd() const { return FirstCharacter + Shaped->GetText().Len(); }
	};

	/** @param InPieces  In reading order and without gaps, at least one; their places are worked out here. */
	explicit FShapedPieces(TArray<FPiece>&& InPieces);

	const TArray<FPiece>& GetPieces() const { return Pieces; }
	bool HasRightToLeft() const { return bHasRightToLeft; }

	// What the functions of the same names of FShapedGlyphSequence answer.
	double GetMeasuredWidth() const { return Pieces.Last().Before + Pieces.Last().Shaped->GetMeasuredWidth(); }
	double GetMeasuredWidth(int32 StartIndex, int32 EndIndex) const { return GetBefore(EndIndex) - GetBefore(StartIndex); }
	int32 GetCharacterAtOffset(int32 StartIndex, double HorizontalOffset) const;
	double GetCaretOffset(int32 Index) const;
	int32 GetCaretAtOffset(double HorizontalOffset) const;
	TArray<FVector2D> GetSpans(int32 StartIndex, int32 EndIndex) const;
	void ForEachPart(double Left, double Right, TFunctionRef<void(const FShapedGlyphSequence&, double)> Visit) const;

private:
	void PutInVisualOrder();
	const FPiece& GetPieceOf(int32 Character) const;
	/** Width of everything before a character in reading order. */
	double GetBefore(int32 Index) const;
	/** Which of the pieces in visual order lies at a place, or the nearest one. */
	int32 FindFromLeft(double HorizontalOffset) const;

	TArray<FPiece> Pieces;
	/** Indices of the pieces from left to right. */
	TArray<int32> FromLeft;
	bool bHasRightToLeft = false;
};
