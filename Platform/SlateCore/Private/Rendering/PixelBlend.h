#pragma once

#include "CoreMinimal.h"
#include "Math/IntRect.h"
#include "Rendering/PixelColor.h"

class FPixelBuffer;
struct FGlyphImage;

/** Fills of axis-aligned parts of an opaque buffer, cut at a clip that lies within the buffer. */
namespace PixelBlend
{
void FillRect(FPixelBuffer& Target, const FIntRect& Clip, const FIntRect& Rect, uint32 Premultiplied);

/** Lays a picture over the target with its top left at Position. */
void DrawImage(FPixelBuffer& Target, const FIntRect& Clip, FIntPoint Position, const FPixelBuffer& Image);

/**
 * Lays a picture over Rect in nine parts: the corners as they are, between them its middle column and row repeated.
 *
 * @param Middle  The column and row of the picture that are repeated. A side of Rect that is not longer than the picture's
 *                must be of its length.
 */
void DrawNineParts(FPixelBuffer& Target, const FIntRect& Clip, const FIntRect& Rect, const FPixelBuffer& Image, FIntPoint Middle);

/** A glyph with its origin at Position, in a colour. Of a glyph in colours of its own only the alpha is changed. */
void DrawGlyph(FPixelBuffer& Target, const FIntRect& Clip, FIntPoint Position, const FGlyphImage& Glyph, FPixelColor Color);
}
