#include "Fonts/FontCache.h"

#include "Fonts/FontFace.h"
#include "Fonts/SizedFont.h"

#include <algorithm>

FShapedGlyphSequence::FShapedGlyphSequence(FString&& InText, TArray<FShapedGlyphEntry>&& InGlyphs,
	TArray<TSharedRef<FSlateFontFace>>&& InFaces, TArray<float>&& InOffsets, const FSlateSizedFont& InFont)
	: Text(MoveTemp(InText))
	, Glyphs(MoveTemp(InGlyphs))
	, Faces(MoveTemp(InFaces))
	, Offsets(MoveTemp(InOffsets))
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
