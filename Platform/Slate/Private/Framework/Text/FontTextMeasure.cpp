#include "Framework/Text/FontTextMeasure.h"

#include "Application/SlateApplicationBase.h"
#include "Fonts/FontMeasure.h"
#include "Framework/Text/TextRows.h"
#include "Rendering/SlateRenderer.h"

namespace
{
/** Sizes go from pixels to Slate units and back; what was a whole pixel must not lose one on the way. */
constexpr float GPixelTolerance = 0.01f;

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

int32 FFontTextMeasure::GetNearestIndex(const FString& Row, float Distance) const
{
	return Service->FindCharacterIndexAtOffset(Row, Font, ToPixels(Distance), Scale);
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
