#pragma once

#include "Fonts/FontCache.h"
#include "Fonts/SlateFontInfo.h"
#include "Framework/Text/TextMeasure.h"
#include "Templates/SharedPointer.h"

class FSlateFontMeasure;
class FTextRows;

/** Measures with the application's fonts, at the scale at which the text will be painted. */
class FFontTextMeasure final : public ITextMeasure
{
public:
	/** @param InScale  Pixels per Slate unit. */
	FFontTextMeasure(const FSlateFontInfo& InFont, float InScale);

	virtual float GetLineHeight() const override { return LineHeight; }
	virtual float GetWidth(const FString& Row, int32 NumCharacters) const override;
	virtual int32 GetNumFitting(const FString& Row, float Width) const override;
	virtual int32 GetNearestIndex(const FString& Row, float Distance) const override;
	virtual float GetCaretDistance(const FString& Row, int32 Index) const override;
	virtual TArray<FVector2D> GetSpans(const FString& Row, int32 Begin, int32 End) const override;

private:
	/** The row as glyphs if a part of it runs from right to left. Other rows need no more than the widths of their beginnings. */
	FShapedGlyphSequencePtr ShapeIfRightToLeft(const FString& Row) const;
	int32 ToPixels(float Distance) const;

	TSharedRef<FSlateFontMeasure> Service;
	FSlateFontInfo Font;
	float Scale;
	float LineHeight;
};

/** The size of a text without line ends, in Slate units. */
FVector2D MeasureSingleLine(const FString& Text, const FSlateFontInfo& Font, float Scale);

/** Has rows measured in a font at a scale. Costs nothing while both stay the same. */
class FFontOfRows
{
public:
	void Apply(FTextRows& Rows, const FSlateFontInfo& InFont, float InScale);

private:
	FSlateFontInfo Font;
	float Scale = 0.0f;
};
