#include "Styling/StyleDefaults.h"

#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateNoResource.h"

const FSlateBrush* FStyleDefaults::GetDefaultBrush()
{
	static const FSlateColorBrush Brush(FLinearColor::White);
	return &Brush;
}

const FSlateBrush* FStyleDefaults::GetNoBrush()
{
	static const FSlateNoResource Brush;
	return &Brush;
}
