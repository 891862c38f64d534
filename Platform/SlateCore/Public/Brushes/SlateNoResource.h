#pragma once

#include "Styling/SlateBrush.h"

/** A brush that draws nothing. */
struct FSlateNoResource : public FSlateBrush
{
	explicit FSlateNoResource(const FVector2D& InImageSize = FVector2D(0.0, 0.0))
		: FSlateBrush(ESlateBrushDrawType::NoDrawType, NAME_None, FMargin(0.0f), ESlateBrushTileType::NoTile,
			  ESlateBrushImageType::NoImage, InImageSize)
	{
	}
};
