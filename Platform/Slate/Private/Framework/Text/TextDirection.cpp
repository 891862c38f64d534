#include "Framework/Text/TextDirection.h"

#include <unicode/ubidi.h>

namespace
{
constexpr int32 LongestLook = 4096;
}

bool TextDirection::IsRightToLeft(const FString& Paragraph)
{
	return ubidi_getBaseDirection(*Paragraph, FMath::Min(Paragraph.Len(), LongestLook)) == UBIDI_RTL;
}

ETextJustify::Type TextDirection::OnScreen(ETextJustify::Type Justification, const FString& Paragraph)
{
	if (Justification == ETextJustify::Center || !IsRightToLeft(Paragraph))
	{
		return Justification;
	}
	return Justification == ETextJustify::Left ? ETextJustify::Right : ETextJustify::Left;
}
