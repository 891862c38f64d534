#pragma once

#include "Styling/SlateBrush.h"

/** A picture in nine parts of which the centre is left out. */
struct FSlateBorderBrush : public FSlateBrush
{
	/** @param InMargin  Width of the corner parts as fractions of the picture's size. */
	FSlateBorderBrush(const FString& InImageName, const FMargin& InMargin,
		const FSlateColor& InColorAndOpacity = FLinearColor::White,
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBorderBrush(InImageName, FVector2D(32.0, 32.0), InMargin, InColorAndOpacity, InImageType)
	{
	}
	FSlateBorderBrush(const FString& InImageName, const FVector2D& InImageSize, const FMargin& InMargin,
		const FSlateColor& InColorAndOpacity = FLinearColor::White,
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Border, FName(*InImageName), InMargin, ESlateBrushTileType::NoTile, InImageType,
			  InImageSize, InColorAndOpacity)
	{
	}
};
