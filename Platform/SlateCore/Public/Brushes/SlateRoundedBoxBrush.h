#pragma once

#include "Styling/SlateBrush.h"

/** A filled box with round corners and an outline. Without radii the corners are half circles. */
struct FSlateRoundedBoxBrush : public FSlateBrush
{
	explicit FSlateRoundedBoxBrush(const FSlateColor& InColor, const FVector2D& InImageSize = FVector2D(0.0, 0.0))
		: FSlateRoundedBoxBrush(InColor, FSlateBrushOutlineSettings(), InImageSize)
	{
	}
	FSlateRoundedBoxBrush(const FSlateColor& InColor, float InRadius, const FVector2D& InImageSize = FVector2D(0.0, 0.0))
		: FSlateRoundedBoxBrush(InColor, FSlateBrushOutlineSettings(InRadius), InImageSize)
	{
	}
	FSlateRoundedBoxBrush(const FSlateColor& InColor, FVector4 InRadius, const FVector2D& InImageSize = FVector2D(0.0, 0.0))
		: FSlateRoundedBoxBrush(InColor, FSlateBrushOutlineSettings(InRadius), InImageSize)
	{
	}
	FSlateRoundedBoxBrush(const FSlateColor& InColor, float InRadius, const FSlateColor& InOutlineColor, float InOutlineWidth,
		const FVector2D& InImageSize = FVector2D(0.0, 0.0))
		: FSlateRoundedBoxBrush(InColor, FSlateBrushOutlineSettings(InRadius, InOutlineColor, InOutlineWidth), InImageSize)
	{
	}
	FSlateRoundedBoxBrush(const FSlateColor& InColor, FVector4 InRadius, const FSlateColor& InOutlineColor, float InOutlineWidth,
		const FVector2D& InImageSize = FVector2D(0.0, 0.0))
		: FSlateRoundedBoxBrush(InColor, FSlateBrushOutlineSettings(InRadius, InOutlineColor, InOutlineWidth), InImageSize)
	{
	}

private:
	FSlateRoundedBoxBrush(const FSlateColor& InColor, const FSlateBrushOutlineSettings& InOutline, const FVector2D& InImageSize)
		: FSlateBrush(ESlateBrushDrawType::RoundedBox, NAME_None, FMargin(0.0f), ESlateBrushTileType::NoTile,
			  ESlateBrushImageType::NoImage, InImageSize, InColor)
	{
		OutlineSettings = InOutline;
	}
};
