#pragma once

#include "CoreMinimal.h"
#include "Fonts/ShapedPieces.h"

class FSlateSizedFont;
class FSlateTextShaper;

/**
 * Shapes texts of more than MinLength units in pieces, and keeps the last ones: a text that differs from one of these
 * in one place takes over the pieces before and behind it. So a key in a long line shapes two or three pieces.
 */
class FSlateLongTexts
{
public:
	static constexpr int32 MinLength = 512;

	explicit FSlateLongTexts(FSlateTextShaper& InShaper)
		: Shaper(InShaper)
	{
	}

	FShapedGlyphSequenceRef Shape(const TCHAR* Text, int32 Length, const FSlateSizedFont& Font);
	void Empty() { Kept.Empty(); }

private:
	struct FKept
	{
		uint32 FontId;
		FShapedGlyphSequenceRef Shaped;
	};
	struct FTask;

	const FShapedGlyphSequenceRef* Find(const TCHAR* Text, int32 Length, uint32 FontId);
	void TakeOver(FTask& Task) const;
	void ShapeBetween(FTask& Task, int32 First, int32 End, TArray<FShapedPieces::FPiece>& Pieces) const;

	FSlateTextShaper& Shaper;
	/** The one that was asked for last comes first. */
	TArray<FKept> Kept;
};
