#include "Fonts/FontCache.h"

#include "Fonts/FontFace.h"
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

FShapedGlyphSequence::~FShapedGlyphSequence() = default;

float FShapedGlyphSequence::GetMeasuredWidth(int32 StartIndex, int32 EndIndex) const
{
	const int32 Start = FMath::Clamp(StartIndex, 0, Text.Len());
	const int32 End = FMath::Clamp(EndIndex, Start, Text.Len());
	return Offsets[End] - Offsets[Start];
}

int32 FShapedGlyphSequence::GetCharacterAtOffset(int32 StartIndex, float HorizontalOffset) const
{
	const int32 Start = FMath::Clamp(StartIndex, 0, Text.Len());
	const float* Behind = std::upper_bound(Offsets.begin() + Start, Offsets.end(), Offsets[Start] + HorizontalOffset);
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

float FShapedGlyphSequence::GetCaretOffset(int32 Index) const
{
	const int32 Clamped = FMath::Clamp(Index, 0, Text.Len());
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

int32 FShapedGlyphSequence::GetCaretAtOffset(float HorizontalOffset) const
{
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
		return {FVector2D(Offsets[Start], Offsets[End])};
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
