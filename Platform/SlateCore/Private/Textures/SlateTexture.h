#pragma once

#include "CoreMinimal.h"

typedef struct _cairo cairo_t;

/** A picture that brushes show. */
class ISlateTexture
{
public:
	virtual ~ISlateTexture() = default;

	/** The size that the picture itself asks for, in pixels. */
	virtual FVector2D GetNaturalSize() const = 0;

	/** Draws the part (0, 0) to Size, in which the whole picture lies stretched. */
	virtual void Draw(cairo_t* Cairo, const FVector2D& Size) const = 0;
};

/** The pictures that were asked for so far, by the path of their files. */
class FSlateTextures
{
public:
	/**
	 * A file that cannot be read gives a grey checkerboard in its place, and one warning.
	 *
	 * @param ResourceName  Path of a PNG or, ending in ".svg", of an SVG file.
	 */
	const ISlateTexture& Get(FName ResourceName);

	void Empty() { Textures.Empty(); }

private:
	TMap<FName, TUniquePtr<ISlateTexture>> Textures;
};
