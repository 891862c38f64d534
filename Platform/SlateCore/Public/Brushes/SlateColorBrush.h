#pragma once

#include "Styling/SlateBrush.h"

/** A plain fill. */
struct FSlateColorBrush : public FSlateBrush
{
	explicit FSlateColorBrush(const FSlateColor& InColor)
		: FSlateBrush(ESlateBrushDrawType::Image, NAME_None, FMargin(0.0f), ESlateBrushTileType::NoTile,
			  ESlateBrushImageType::NoImage, FVector2D(1.0, 1.0), InColor)
	{
	}
	explicit FSlateColorBrush(const FLinearColor& InColor)
		: FSlateColorBrush(FSlateColor(InColor))
	{
	}
};
