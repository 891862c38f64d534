#include "Styling/SlateColor.h"

#include "Styling/WidgetStyle.h"

const FLinearColor& FSlateColor::GetColor(const FWidgetStyle& InWidgetStyle) const
{
	return ColorUseRule == ESlateColorStylingMode::UseColor_Foreground ? InWidgetStyle.GetForegroundColor() : SpecifiedColor;
}
