#include "Textures/SlateIcon.h"

#include "Styling/ISlateStyle.h"
#include "Styling/SlateStyleRegistry.h"

const FSlateBrush* FSlateIcon::GetOptionalIcon() const
{
	const ISlateStyle* Set = FSlateStyleRegistry::FindSlateStyle(StyleSetName);
	return Set ? Set->GetOptionalBrush(StyleName) : nullptr;
}
