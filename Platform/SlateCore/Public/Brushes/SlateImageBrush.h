#pragma once

#include "Styling/SlateBrush.h"

/** A picture from a file, stretched or tiled. */
struct FSlateImageBrush : public FSlateBrush
{
	FSlateImageBrush(const FString& InImageName, const FVector2D& InImageSize, const FSlateColor& InTint = FLinearColor::White,
		ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile,
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateImageBrush(FName(*InImageName), InImageSize, InTint, InTiling, InImageType)
	{
	}
	FSlateImageBrush(const TCHAR* InImageName, const FVector2D& InImageSize, const FSlateColor& InTint = FLinearColor::White,
		ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile,
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateImageBrush(FName(InImageName), InImageSize, InTint, InTiling, InImageType)
	{
	}
	FSlateImageBrush(const FName InImageName, const FVector2D& InImageSize, const FSlateColor& InTint = FLinearColor::White,
		ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile,
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Image, InImageName, FMargin(0.0f), InTiling, InImageType, InImageSize, InTint)
	{
	}
};

/** A drawing from an SVG file, sharp at any size. */
struct FSlateVectorImageBrush : public FSlateImageBrush
{
	FSlateVectorImageBrush(const FString& InImageName, const FVector2D& InImageSize,
		const FSlateColor& InTint = FLinearColor::White, ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile)
		: FSlateImageBrush(InImageName, InImageSize, InTint, InTiling, ESlateBrushImageType::Vector)
	{
	}
};
