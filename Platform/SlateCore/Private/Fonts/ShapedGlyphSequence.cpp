#include "Fonts/FontCache.h"

#include "Fonts/FontFace.h"
#include "Fonts/ShapedPieces.h"
#include "Fonts/SizedFont.h"

#include <algorithm>

FShapedGlyphSequence::FShapedGlyphSequence(FString&& InText, TArray<FShapedGlyphEntry>&& InGlyphs,
	TArray<TSharedRef<FSlateFontFace>>&& InFaces, TArray<float>&& InOffsets, TArray<FShapedTextRun>&& InRuns,
	const FSlateSizedFont& InFont)
	: Text(MoveTemp(InText))
	, Glyphs(MoveTemp(InGlyphs))
	, Faces(MoveTemp(InFaces))
	, Offsets(MoveTemp(InOffsets))
	, Runs(MoveTemp(InRuns))
	, OutlineColor(InFont.GetFontInfo().OutlineSettings.OutlineColor)
	, OutlineWidth(InFont.GetOutlineWidth())
	, Ascent(InFont.GetAscent())
	, Descent(InFont.GetDescent())
{
}

FShapedGlyphSequence::FShapedGlyphSequence(FString&& InText, TUniquePtr<FShapedPieces>&& InPieces, const FSlateSizedFont& InFont)
	: Text(MoveTemp(InText))
	, Pieces(MoveTemp(InPieces))
	, OutlineColor(InFont.GetFontInfo().OutlineSettings.OutlineColor)
	, OutlineWidth(InFont.GetOutlineWidth())
	, Ascent(InFont.GetAscent())
	, Descent(InFont.GetDescent())
{
}

FShapedGlyphSequence::~FShapedGlyphSequence() = default;

void FShapedGlyphSequence::ForEachPart(
	double Left, double Right, TFunctionRef<void(const FShapedGlyphSequence&, double)> Visit) const
{
	if (Pieces)
	{
		Pieces->ForEachPart(Left, Right, Visit);
		return;
	}
	Visit(*this, 0.0);
}

bool FShapedGlyphSequence::HasRightToLeft() const
{
	return Pieces ? Pieces->HasRightToLeft() : Runs.Num() > 0;
}

double FShapedGlyphSequence::GetMeasuredWidth() const
{
	return Pieces ? Pieces->GetMeasuredWidth() : Offsets.Last();
}

double FShapedGlyphSequence::GetMeasuredWidth(int32 StartIndex, int32 EndIndex) const
{
	const int32 Start = FMath::Clamp(StartIndex, 0, Text.Len());
	const int32 End = FMath::Clamp(EndIndex, Start, Text.Len());
	return Pieces ? Pieces->GetMeasuredWidth(Start, End) : Offsets[End] - Offsets[Start];
}

int32 FShapedGlyphSequence::GetCharacterAtOffset(int32 StartIndex, double HorizontalOffset) const
{
	const int32 Start = FMath::Clamp(StartIndex, 0, Text.Len());
	if (Pieces)
	{
		return Pieces->GetCharacterAtOffset(Start, HorizontalOffset);
	}
	const float* Behind = std::upper_bound(Offsets.begin() + Start, Offsets.end(), Offsets[Start] + float(HorizontalOffset));
	return FMath::Clamp(int32(Behind - Offsets.begin()) - 1, Start, Text.Len());
}

float FShapedGlyphSequence::GetWidthOfRun(const FShapedTextRun& Run) const
{
	return Offsets[Run.FirstCharacter + Run.NumCharacters] - Offsets[Run.FirstCharacter];
}

float FShapedGlyphSequence::GetPlaceInRun(const FShapedTextRun& Run, float RunLeft, int32 Index) const
{
	const float Before = Offsets[Index] - Offsets[Run.FirstCharacter];
	return Run.bRightToLeft ? RunLeft + GetWidthOfRun(Run) - Before : RunLeft + Before;
}

double FShapedGlyphSequence::GetCaretOffset(int32 Index) const
{
	const int32 Clamped = FMath::Clamp(Index, 0, Text.Len());
	if (Pieces)
	{
		return Pieces->GetCaretOffset(Clamped);
	}
	// Behind the last character the caret stands at that one's end.
	const int32 Character = FMath::Min(Clamped, Text.Len() - 1);
	float Left = 0.0f;
	for (const FShapedTextRun& Run : Runs)
	{
		if (Character >= Run.FirstCharacter && Character < Run.FirstCharacter + Run.NumCharacters)
		{
			return GetPlaceInRun(Run, Left, Clamped);
		}
		Left += GetWidthOfRun(Run);
	}
	return Offsets[Clamped];
}

int32 FShapedGlyphSequence::GetCaretAtOffset(double HorizontalOffset) const
{
	if (Pieces)
	{
		return Pieces->GetCaretAtOffset(HorizontalOffset);
	}
	int32 Nearest = 0;
	for (int32 Index = 1; Index <= Text.Len(); ++Index)
	{
		if (FMath::Abs(GetCaretOffset(Index) - HorizontalOffset) < FMath::Abs(GetCaretOffset(Nearest) - HorizontalOffset))
		{
			Nearest = Index;
		}
	}
	return Nearest;
}

TArray<FVector2D> FShapedGlyphSequence::GetSpans(int32 StartIndex, int32 EndIndex) const
{
	const int32 Start = FMath::Clamp(StartIndex, 0, Text.Len());
	const int32 End = FMath::Clamp(EndIndex, Start, Text.Len());
	if (!HasRightToLeft())
	{
		if (Pieces)
		{
			return {FVector2D(Pieces->GetMeasuredWidth(0, Start), Pieces->GetMeasuredWidth(0, End))};
		}
		return {FVector2D(Offsets[Start], Offsets[End])};
	}
	if (Pieces)
	{
		return Pieces->GetSpans(Start, End);
	}
	TArray<FVector2D> Spans;
	float Left = 0.0f;
	for (const FShapedTextRun& Run : Runs)
	{
		const int32 First = FMath::Max(Start, Run.FirstCharacter);
		const int32 Behind = FMath::Min(End, Run.FirstCharacter + Run.NumCharacters);
		if (First < Behind)
		{
			const float A = GetPlaceInRun(Run, Left, First);
			const float B = GetPlaceInRun(Run, Left, Behind);
			Spans.Add(FVector2D(FMath::Min(A, B), FMath::Max(A, B)));
		}
		Left += GetWidthOfRun(Run);
	}
	return Spans;
}
