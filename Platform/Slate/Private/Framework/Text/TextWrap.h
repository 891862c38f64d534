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

/** Where the blanks begin that end the text [Begin, End). */
SLATE_API int32 TrimBlanksFromEnd(const FString& Line, int32 Begin, int32 End);

/** The width at which text wraps if both widths ask for it: the smaller of those above zero, or 0. */
SLATE_API float CombineWrapWidths(float A, float B);
