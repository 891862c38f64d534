#pragma once

#include "CoreMinimal.h"

/** A colour as it is blended: eight bits per channel, encoded in sRGB, not multiplied by its alpha. */
struct FPixelColor
{
	FPixelColor() = default;
	explicit FPixelColor(const FLinearColor& Linear);

	/** 0xAARRGGBB, colour multiplied by alpha. */
	uint32 Premultiplied() const;
	uint8 GetAlpha() const { return uint8(Bits >> 24); }

	/** 0xAARRGGBB */
	uint32 Bits = 0;
};

/** A product of two numbers of 0 to 255 that stand for 0 to 1, rounded to the nearest. */
inline uint32 MultiplyBytes(uint32 A, uint32 B)
{
	const uint32 Product = A * B + 128;
	return (Product + (Product >> 8)) >> 8;
}

/** The same for all four bytes of a pixel with one number. */
inline uint32 ScalePixel(uint32 Pixel, uint32 Factor)
{
	uint32 Even = (Pixel & 0x00FF00FF) * Factor + 0x00800080;
	uint32 Odd = ((Pixel >> 8) & 0x00FF00FF) * Factor + 0x00800080;
	Even = ((Even + ((Even >> 8) & 0x00FF00FF)) >> 8) & 0x00FF00FF;
	Odd = (Odd + ((Odd >> 8) & 0x00FF00FF)) & 0xFF00FF00;
	return Even | Odd;
}
