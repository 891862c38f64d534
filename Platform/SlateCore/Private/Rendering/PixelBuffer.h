#pragma once

#include "CoreMinimal.h"
#include "Math/IntRect.h"

typedef struct _cairo_surface cairo_surface_t;

/** Pixels as 0xAARRGGBB, colour multiplied by alpha, and a Cairo surface over them. Black and transparent at first. */
class FPixelBuffer
{
public:
	explicit FPixelBuffer(FIntPoint InSize);
	FPixelBuffer(const FPixelBuffer&) = delete;
	FPixelBuffer& operator=(const FPixelBuffer&) = delete;
	~FPixelBuffer();

	FIntPoint GetSize() const { return Size; }
	FIntRect GetRect() const { return FIntRect(FIntPoint(0, 0), Size); }
	uint32* GetRow(int32 Y) { return Pixels.GetData() + SIZE_T(Y) * Size.X; }
	const uint32* GetRow(int32 Y) const { return Pixels.GetData() + SIZE_T(Y) * Size.X; }
	int32 GetStride() const { return Size.X * int32(sizeof(uint32)); }

	/** For drawing with Cairo. Pixels that were written directly count from the next call on. */
	cairo_surface_t* GetSurface();

private:
	FIntPoint Size;
	TArray<uint32> Pixels;
	cairo_surface_t* Surface;
};
