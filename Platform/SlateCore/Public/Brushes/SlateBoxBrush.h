#pragma once

#include "Styling/SlateBrush.h"

/** A picture in nine parts, so that its corners keep their size. */
struct FSlateBoxBrush : public FSlateBrush
{
	/** @param InMargin  Width of the corner parts as fractions of the picture's size. */
	FSlateBoxBrush(const FString& InImageName, const FMargin& InMargin,
		const FSlateColor& InColorAndOpacity = FLinearColor::White,
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBoxBrush(InImageName, FVector2D(32.0, 32.0), InMargin, InColorAndOpacity, InImageType)
	{
	}
	FSlateBoxBrush(const FString& InImageName, const FVector2D& InImageSize, const FMargin& InMargin,
		const FSlateColor& InColorAndOpacity = FLinearColor::White,
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Box, FName(*InImageName), InMargin, ESlateBrushTileType::NoTile, InImageType,
			  InImageSize, InColorAndOpacity)
	{
	}
};
