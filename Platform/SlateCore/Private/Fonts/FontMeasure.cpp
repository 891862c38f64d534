#include "Fonts/FontMeasure.h"

#include "Fonts/FontCache.h"
#include "Fonts/SlateFontInfo.h"

namespace
{

/** Sums of thirds of a pixel may come out a hair above a whole one. */
double RoundUp(double Width)
{
	return FMath::CeilToDouble(Width - 0.001);
}

}

TSharedRef<FSlateFontMeasure> FSlateFontMeasure::Create(const TSharedRef<FSlateFontCache>& InFontCache)
{
	return MakeShareable(new FSlateFontMeasure(InFontCache));
}

FSlateFontMeasure::FSlateFontMeasure(const TSharedRef<FSlateFontCache>& InFontCache)
	: FontCache(InFontCache)
{
}

FVector2D FSlateFontMeasure::MeasureLines(
	const TCHAR* Text, int32 Length, const FSlateFontInfo& InFontInfo, float FontScale) const
{
	double Width = 0.0;
	int32 NumLines = 0;
	int32 LineHeight = 0;
	for (int32 Start = 0; Start <= Length;)
	{
		int32 End = Start;
		while (End < Length && Text[End] != TEXT('\n'))
		{
			++End;
		}
		const FShapedGlyphSequenceRef Line = FontCache->ShapeBidirectionalText(Text, Start, End - Start, InFontInfo, FontScale);
		Width = FMath::Max(Width, Line->GetMeasuredWidth());
		LineHeight = Line->GetMaxTextHeight();
		++NumLines;
		Start = End + 1;
	}
	return FVector2D(RoundUp(Width), double(NumLines) * LineHeight);
}

FVector2D FSlateFontMeasure::Measure(const FString& Text, const FSlateFontInfo& InFontInfo, float FontScale) const
{
	return MeasureLines(*Text, Text.Len(), InFontInfo, FontScale);
}

FVector2D FSlateFontMeasure::Measure(const FText& Text, const FSlateFontInfo& InFontInfo, float FontScale) const
{
	return Measure(Text.ToString(), InFontInfo, FontScale);
}

FVector2D FSlateFontMeasure::Measure(const TCHAR* Text, const FSlateFontInfo& InFontInfo, float FontScale) const
{
	return MeasureLines(Text, FCString::Strlen(Text), InFontInfo, FontScale);
}

FVector2D FSlateFontMeasure::Measure(const FString& Text, int32 StartIndex, int32 EndIndex, const FSlateFontInfo& InFontInfo,
	bool IncludeKerningWithPrecedingChar, float FontScale) const
{
	const FShapedGlyphSequenceRef Line = FontCache->ShapeBidirectionalText(Text, InFontInfo, FontScale);
	return FVector2D(RoundUp(Line->GetMeasuredWidth(StartIndex, EndIndex)), Line->GetMaxTextHeight());
}

int32 FSlateFontMeasure::FindLastWholeCharacterIndexBeforeOffset(
	const FString& Text, const FSlateFontInfo& InFontInfo, const int32 HorizontalOffset, float FontScale) const
{
	return FindLastWholeCharacterIndexBeforeOffset(Text, 0, Text.Len(), InFontInfo, HorizontalOffset, false, FontScale);
}

int32 FSlateFontMeasure::FindLastWholeCharacterIndexBeforeOffset(const FString& Text, int32 StartIndex, int32 EndIndex,
	const FSlateFontInfo& InFontInfo, const int32 HorizontalOffset, bool IncludeKerningWithPrecedingChar, float FontScale) const
{
	const FShapedGlyphSequenceRef Line = FontCache->ShapeBidirectionalText(Text, InFontInfo, FontScale);
	const int32 Last = FMath::Min(Line->GetCharacterAtOffset(StartIndex, HorizontalOffset), EndIndex) - 1;
	return Last < StartIndex ? INDEX_NONE : Last;
}

int32 FSlateFontMeasure::FindCharacterIndexAtOffset(
	const FString& Text, const FSlateFontInfo& InFontInfo, const int32 HorizontalOffset, float FontScale) const
{
	return FindCharacterIndexAtOffset(Text, 0, Text.Len(), InFontInfo, HorizontalOffset, false, FontScale);
}

int32 FSlateFontMeasure::FindCharacterIndexAtOffset(const FString& Text, int32 StartIndex, int32 EndIndex,
	const FSlateFontInfo& InFontInfo, const int32 HorizontalOffset, bool IncludeKerningWithPrecedingChar, float FontScale) const
{
	const FShapedGlyphSequenceRef Line = FontCache->ShapeBidirectionalText(Text, InFontInfo, FontScale);
	const int32 Character = Line->GetCharacterAtOffset(StartIndex, HorizontalOffset);
	if (Character >= EndIndex)
	{
		return EndIndex;
	}
	const double Before = Line->GetMeasuredWidth(StartIndex, Character);
	const double Behind = Line->GetMeasuredWidth(StartIndex, Character + 1);
	return HorizontalOffset - Before < Behind - HorizontalOffset ? Character : Character + 1;
}

uint16 FSlateFontMeasure::GetMaxCharacterHeight(const FSlateFontInfo& InFontInfo, float FontScale) const
{
	return FontCache->GetMaxCharacterHeight(InFontInfo, FontScale);
}

int16 FSlateFontMeasure::GetBaseline(const FSlateFontInfo& InFontInfo, float FontScale) const
{
	return FontCache->GetBaseline(InFontInfo, FontScale);
}
