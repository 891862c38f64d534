#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Framework/Text/TextLayout.h"

class ITextMeasure;

/**
 * Breaks a line into rows no wider than Width, at the breaks of Unicode Annex 14. Blanks before a break may stick out.
 *
 * @return Where the rows after the first begin, ascending. Empty if the line fits, or if Width is not above zero.
 */
SLATE_API TArray<int32> WrapLine(const FString& Line, float Width, ETextWrappingPolicy Policy, const ITextMeasure& Measure);

/** How a line was wrapped, and what of it is the same as then. */
struct FTextWrapBefore
{
	/** What WrapLine gave, for a line of so many units. */
	TArray<int32> RowBegins;
	int32 Length = 0;

	/** So many units at the front and at the end did not change. */
	int32 SameAtFront = 0;
	int32 SameAtEnd = 0;
};

/**
 * As WrapLine, but only the rows around a change are broken anew.
 *
 * @param OutSameRowsAtFront  How many of the rows that there were before are still the same, counted from the first one.
 * @param OutSameRowsAtEnd    And counted from the last one.
 */
SLATE_API TArray<int32> WrapChangedLine(const FString& Line, float Width, ETextWrappingPolicy Policy, const ITextMeasure& Measure,
	const FTextWrapBefore& Before, int32& OutSameRowsAtFront, int32& OutSameRowsAtEnd);

/** Where the blanks begin that end the text [Begin, End). */
SLATE_API int32 TrimBlanksFromEnd(const FString& Line, int32 Begin, int32 End);

/** The width at which text wraps if both widths ask for it: the smaller of those above zero, or 0. */
SLATE_API float CombineWrapWidths(float A, float B);
