#pragma once

#include "CoreMinimal.h"
#include "Caching/GenerationMap.h"
#include "Math/IntRect.h"
#include "Rendering/PixelColor.h"
#include "Styling/SlateBrush.h"
#include "Textures/SlateTexture.h"

class FPixelBuffer;

/** The pictures of brushes as they lie on the screen: stretched, tiled or in nine parts, and tinted. */
class FSlateBrushPictures
{
public:
	FSlateBrushPictures();
	~FSlateBrushPictures();

	/**
	 * A brush with a resource at a size.
	 *
	 * @param Size   Pixels.
	 * @param Scale  Pixels per slate unit.
	 * @param Seen   The part that will be shown, not empty.
	 * @param OutPosition  Where in the brush the picture's top left lies: at (0, 0), unless the brush is so large that only
	 *                     the part seen is drawn.
	 * @return       Valid until the next call.
	 */
	FPixelBuffer& Get(
		const FSlateBrush& Brush, FIntPoint Size, FPixelColor Tint, float Scale, const FIntRect& Seen, FIntPoint& OutPosition);

	/** Forgets pictures and files. */
	void Empty();

private:
	struct FKey
	{
		FName Resource;
		FIntPoint Size;
		uint32 Tint;
		float Scale;
		FMargin Margin;
		FVector2D ImageSize;
		ESlateBrushDrawType::Type DrawAs;
		ESlateBrushTileType::Type Tiling;

		bool operator==(const FKey& Other) const;
		friend uint32 GetTypeHash(const FKey& Key)
		{
			return HashCombine(HashCombine(GetTypeHash(Key.Resource), GetTypeHash(Key.Size)), Key.Tint);
		}
	};

	TUniquePtr<FPixelBuffer> Draw(const FSlateBrush& Brush, FIntPoint Size, FPixelColor Tint, float Scale, const FIntRect& Part);

	FSlateTextures Textures;
	TGenerationMap<FKey, TUniquePtr<FPixelBuffer>> Pictures;
	TUniquePtr<FPixelBuffer> LastLargePicture;
};
