#include "Framework/Text/FontTextMeasure.h"

#include "Application/SlateApplicationBase.h"
#include "Fonts/FontMeasure.h"
#include "Framework/Text/TextRows.h"
#include "Rendering/SlateRenderer.h"

#include <algorithm>

namespace
{
/** Sizes go from pixels to Slate units and back; what was a whole pixel must not lose one on the way. */
constexpr float GPixelTolerance = 0.01f;

/** No character before this one, the first of the Hebrew block, is written from right to left. */
constexpr TCHAR GFirstRightToLeft = 0x0590;

TSharedRef<FSlateFontMeasure> GetService()
{
	return FSlateApplicationBase::Get().GetRenderer()->GetFontMeasureService();
}
}

FFontTextMeasure::FFontTextMeasure(const FSlateFontInfo& InFont, float InScale)
	: Service(GetService())
	, Font(InFont)
	, Scale(InScale)
	, LineHeight(Service->GetMaxCharacterHeight(InFont, InScale) / InScale)
{
}

int32 FFontTextMeasure::ToPixels(float Distance) const
{
	return FMath::FloorToInt(FMath::Clamp(Distance * Scale + GPixelTolerance, 0.0f, 1e9f));
}

float FFontTextMeasure::GetWidth(const FString& Row, int32 NumCharacters) const
{
	return Service->Measure(Row, 0, NumCharacters, Font, true, Scale).X / Scale;
}

int32 FFontTextMeasure::GetNumFitting(const FString& Row, float Width) const
{
	return Service->FindLastWholeCharacterIndexBeforeOffset(Row, Font, ToPixels(Width), Scale) + 1;
}

FShapedGlyphSequencePtr FFontTextMeasure::ShapeIfRightToLeft(const FString& Row) const
{
	const bool bMayBe = std::any_of(Row.begin(), Row.end(), [](TCHAR Character) { return Character >= GFirstRightToLeft; });
	if (!bMayBe)
	{
		return nullptr;
	}
	const FShapedGlyphSequenceRef Shaped =
		FSlateApplicationBase::Get().GetRenderer()->GetFontCache()->ShapeBidirectionalText(Row, Font, Scale);
	return Shaped->HasRightToLeft() ? FShapedGlyphSequencePtr(Shaped) : nullptr;
}

int32 FFontTextMeasure::GetNearestIndex(const FString& Row, float Distance) const
{
	const FShapedGlyphSequencePtr Shaped = ShapeIfRightToLeft(Row);
	return Shaped.IsValid() ? Shaped->GetCaretAtOffset(Distance * Scale)
							: Service->FindCharacterIndexAtOffset(Row, Font, ToPixels(Distance), Scale);
}

float FFontTextMeasure::GetCaretDistance(const FString& Row, int32 Index) const
{
	const FShapedGlyphSequencePtr Shaped = ShapeIfRightToLeft(Row);
	return Shaped.IsValid() ? FMath::RoundToFloat(float(Shaped->GetCaretOffset(Index))) / Scale
							: ITextMeasure::GetCaretDistance(Row, Index);
}

TArray<FVector2D> FFontTextMeasure::GetSpans(const FString& Row, int32 Begin, int32 End) const
{
	const FShapedGlyphSequencePtr Shaped = ShapeIfRightToLeft(Row);
	if (!Shaped.IsValid())
	{
		return ITextMeasure::GetSpans(Row, Begin, End);
	}
	TArray<FVector2D> Spans = Shaped->GetSpans(Begin, End);
	for (FVector2D& Span : Spans)
	{
		Span = FVector2D(FMath::RoundToFloat(Span.X), FMath::RoundToFloat(Span.Y)) / Scale;
	}
	return Spans;
}

FVector2D MeasureSingleLine(const FString& Text, const FSlateFontInfo& Font, float Scale)
{
	return GetService()->Measure(Text, Font, Scale) / Scale;
}

void FFontOfRows::Apply(FTextRows& Rows, const FSlateFontInfo& InFont, float InScale)
{
	if (Scale != InScale || Font != InFont)
	{
		Scale = InScale;
		Font = InFont;
		Rows.SetMeasure(MakeUnique<FFontTextMeasure>(Font, Scale));
	}
}
