#pragma once

#include "CoreMinimal.h"

class FSlateFontCache;
struct FSlateFontInfo;

/** Answers how much room text takes. All sizes are pixels at the given scale; widths are whole, rounded up. */
class SLATECORE_API FSlateFontMeasure
{
public:
	static TSharedRef<FSlateFontMeasure> Create(const TSharedRef<FSlateFontCache>& InFontCache);

	/** Size of a text, which may have several lines. An empty text has the height of a line. */
	FVector2D Measure(const FString& Text, const FSlateFontInfo& InFontInfo, float FontScale = 1.0f) const;
	FVector2D Measure(const FText& Text, const FSlateFontInfo& InFontInfo, float FontScale = 1.0f) const;
	FVector2D Measure(const TCHAR* Text, const FSlateFontInfo& InFontInfo, float FontScale = 1.0f) const;

	/** Size of the characters [StartIndex, EndIndex) of a line, as they stand in it. */
	FVector2D Measure(const FString& Text, int32 StartIndex, int32 EndIndex, const FSlateFontInfo& InFontInfo,
		bool IncludeKerningWithPrecedingChar = true, float FontScale = 1.0f) const;

	/** How many leading characters of a line lie whole within HorizontalOffset, less one; INDEX_NONE when none does. */
	int32 FindLastWholeCharacterIndexBeforeOffset(
		const FString& Text, const FSlateFontInfo& InFontInfo, const int32 HorizontalOffset, float FontScale = 1.0f) const;
	int32 FindLastWholeCharacterIndexBeforeOffset(const FString& Text, int32 StartIndex, int32 EndIndex,
		const FSlateFontInfo& InFontInfo, const int32 HorizontalOffset, bool IncludeKerningWithPrecedingChar = true,
		float FontScale = 1.0f) const;

	/** The place between two characters that is nearest to HorizontalOffset, as the index of the character behind it. */
	int32 FindCharacterIndexAtOffset(
		const FString& Text, const FSlateFontInfo& InFontInfo, const int32 HorizontalOffset, float FontScale = 1.0f) const;
	int32 FindCharacterIndexAtOffset(const FString& Text, int32 StartIndex, int32 EndIndex, const FSlateFontInfo& InFontInfo,
		const int32 HorizontalOffset, bool IncludeKerningWithPrecedingChar = true, float FontScale = 1.0f) const;

	/** Height of a line. */
	uint16 GetMaxCharacterHeight(const FSlateFontInfo& InFontInfo, float FontScale = 1.0f) const;

	/** From the bottom of a line to the baseline: zero or negative. */
	int16 GetBaseline(const FSlateFontInfo& InFontInfo, float FontScale = 1.0f) const;

private:
	explicit FSlateFontMeasure(const TSharedRef<FSlateFontCache>& InFontCache);

	FVector2D MeasureLines(const TCHAR* Text, int32 Length, const FSlateFontInfo& InFontInfo, float FontScale) const;

	TSharedRef<FSlateFontCache> FontCache;
};
