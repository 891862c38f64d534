#pragma once

#include "Containers/UnrealString.h"
#include "Framework/Text/TextLayout.h"

/** Which way paragraphs run. */
namespace TextDirection
{
/**
 * Whether a paragraph runs from right to left: whether its first letter with a direction does.
 *
 * Source: Unicode Standard Annex 9, rules P2 and P3, without isolates. Only the first 4,096 units are looked at.
 */
bool IsRightToLeft(const FString& Paragraph);

/** Left and right are meant logically: where a paragraph begins, and where it ends. This is where they lie on the screen. */
ETextJustify::Type OnScreen(ETextJustify::Type Justification, const FString& Paragraph);
}
