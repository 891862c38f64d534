#pragma once

#include "CoreMinimal.h"
#include "Caching/GenerationMap.h"
#include "Rendering/PixelColor.h"

class FPixelBuffer;

/** A rounded box in pixels. */
struct FRoundedBoxShape
{
	FIntPoint Size = FIntPoint::ZeroValue;
	/** Top left, top right, bottom right, bottom left; at most half of the smaller side. */
	float Radii[4] = {};
	int32 OutlineWidth = 0;
	FPixelColor Fill;
	FPixelColor Outline;

	bool operator==(const FRoundedBoxShape& Other) const;
	friend uint32 GetTypeHash(const FRoundedBoxShape& Shape);
};

/** Pictures of rounded boxes. They are as small as their corners allow: the middle column and row are to be repeated. */
class FSlateRoundedBoxes
{
public:
	FSlateRoundedBoxes();
	~FSlateRoundedBoxes();

	/** Valid until the next call. */
	const FPixelBuffer& Get(const FRoundedBoxShape& Shape, FIntPoint& OutMiddle);

private:
	TGenerationMap<FRoundedBoxShape, TUniquePtr<FPixelBuffer>> Pictures;
};
