#include "Framework/Text/TextWrap.h"

#include "Framework/Text/TextBoundaries.h"
#include "Framework/Text/TextMeasure.h"
#include "Math/UnrealMathUtility.h"
#include "Misc/Char.h"

namespace
{
/** Where the text from Begin reaches Width. Looks only as far ahead as needed: a line may be a whole file. */
int32 GetFitting(const FString& Line, int32 Begin, float Width, const ITextMeasure& Measure)
{
	for (int32 Window = 64;; Window *= 2)
	{
		const FString Ahead = Line.Mid(Begin, Window);
		const int32 NumFitting = Measure.GetNumFitting(Ahead, Width);
		if (NumFitting < Ahead.Len() || Begin + NumFitting == Line.Len())
		{
			return Begin + NumFitting;
		}
	}
}

/** Where the row that begins at Begin ends, if the text up to Fitting fits into the width. */
int32 GetRowEnd(const FString& Line, int32 Begin, int32 Fitting, ETextWrappingPolicy Policy)
{
	const int32 Next = TextBoundaries::GetNextRowBreak(Line, Fitting);
	if (TrimBlanksFromEnd(Line, Begin, Next) <= Fitting)
	{
		return Next;
	}

	const int32 Last = TextBoundaries::GetLastRowBreak(Line, Fitting);
	if (Last > Begin)
	{
		return Last;
	}
	if (Policy == ETextWrappingPolicy::DefaultWrapping)
	{
		return Next;
	}
	return FMath::Max(TextBoundaries::GetLastCharacterBreak(Line, Fitting), TextBoundaries::GetNextCharacter(Line, Begin));
}
}

int32 TrimBlanksFromEnd(const FString& Line, int32 Begin, int32 End)
{
	while (End > Begin && FChar::IsWhitespace(Line[End - 1]))
	{
		--End;
	}
	return End;
}

TArray<int32> WrapLine(const FString& Line, float Width, ETextWrappingPolicy Policy, const ITextMeasure& Measure)
{
	TArray<int32> RowBegins;
	if (Width <= 0.0f)
	{
		return RowBegins;
	}

	int32 Begin = 0;
	while (true)
	{
		const int32 Fitting = GetFitting(Line, Begin, Width, Measure);
		if (Fitting == Line.Len())
		{
			return RowBegins;
		}
		Begin = GetRowEnd(Line, Begin, Fitting, Policy);
		if (Begin == Line.Len())
		{
			return RowBegins;
		}
		RowBegins.Add(Begin);
	}
}

float CombineWrapWidths(float A, float B)
{
	return A > 0.0f && B > 0.0f ? FMath::Min(A, B) : FMath::Max3(A, B, 0.0f);
}
