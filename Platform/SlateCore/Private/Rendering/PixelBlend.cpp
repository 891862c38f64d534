#include "Rendering/PixelBlend.h"

#include "Fonts/FontFace.h"
#include "Rendering/PixelBuffer.h"

#include <algorithm>

namespace
{

/** The channels of four pixels, in the compiler's own vector types: they work on any processor. */
typedef uint8 FFourPixels __attribute__((vector_size(16)));
typedef uint16 FWideFourPixels __attribute__((vector_size(32)));

FORCEINLINE FFourPixels Repeat(uint32 Pixel)
{
	const uint32 Pixels[4] = {Pixel, Pixel, Pixel, Pixel};
	FFourPixels Result;
	FMemory::Memcpy(&Result, Pixels, sizeof(Result));
	return Result;
}

/** A * B + C * D, each byte standing for 0 to 1, rounded to the nearest. The sum must not pass 1. */
FORCEINLINE FFourPixels MultiplyAdd(FFourPixels A, FFourPixels B, FFourPixels C, FFourPixels D)
{
	FWideFourPixels Sum = __builtin_convertvector(A, FWideFourPixels) * __builtin_convertvector(B, FWideFourPixels) +
		__builtin_convertvector(C, FWideFourPixels) * __builtin_convertvector(D, FWideFourPixels) + 128;
	Sum = (Sum + (Sum >> 8)) >> 8;
	return __builtin_convertvector(Sum, FFourPixels);
}

FORCEINLINE FFourPixels Multiply(FFourPixels A, FFourPixels B)
{
	return MultiplyAdd(A, B, FFourPixels{}, FFourPixels{});
}

/** Lays premultiplied pixels over others. */
FORCEINLINE FFourPixels Over(FFourPixels Source, FFourPixels Below)
{
	const FFourPixels Alpha = __builtin_shufflevector(Source, Source, 3, 3, 3, 3, 7, 7, 7, 7, 11, 11, 11, 11, 15, 15, 15, 15);
	return Source + Multiply(Below, 255 - Alpha);
}

/** Sets up to four pixels of a row to Blend(the source's, the target's). Source may be null when Blend does not use it. */
template <int32 Num, typename BlendType>
FORCEINLINE void BlendPixels(uint32* Target, const uint32* Source, const BlendType& Blend)
{
	FFourPixels Below = {};
	FFourPixels Above = {};
	FMemory::Memcpy(&Below, Target, Num * sizeof(uint32));
	if (Source)
	{
		FMemory::Memcpy(&Above, Source, Num * sizeof(uint32));
	}
	Below = Blend(Above, Below);
	FMemory::Memcpy(Target, &Below, Num * sizeof(uint32));
}

template <typename BlendType>
FORCEINLINE void BlendRow(uint32* Target, const uint32* Source, int32 Num, const BlendType& Blend)
{
	int32 Index = 0;
	for (; Index + 4 <= Num; Index += 4)
	{
		BlendPixels<4>(Target + Index, Source ? Source + Index : nullptr, Blend);
	}
	const uint32* Rest = Source ? Source + Index : nullptr;
	switch (Num - Index)
	{
		case 3:
			BlendPixels<3>(Target + Index, Rest, Blend);
			break;
		case 2:
			BlendPixels<2>(Target + Index, Rest, Blend);
			break;
		case 1:
			BlendPixels<1>(Target + Index, Rest, Blend);
			break;
		default:
			break;
	}
}

void FillRow(uint32* Target, int32 Num, uint32 Premultiplied)
{
	if (Premultiplied >> 24 == 255)
	{
		std::fill_n(Target, Num, Premultiplied);
		return;
	}
	const FFourPixels Color = Repeat(Premultiplied);
	BlendRow(Target, nullptr, Num, [Color](FFourPixels, FFourPixels Below) { return Over(Color, Below); });
}

void BlendImageRow(uint32* Target, const uint32* Source, int32 Num)
{
	BlendRow(Target, Source, Num, [](FFourPixels Above, FFourPixels Below) { return Over(Above, Below); });
}

}

void PixelBlend::FillRect(FPixelBuffer& Target, const FIntRect& Clip, const FIntRect& Rect, uint32 Premultiplied)
{
	FIntRect Part = Rect;
	Part.Clip(Clip);
	if (Part.IsEmpty() || Premultiplied == 0)
	{
		return;
	}
	for (int32 Y = Part.Min.Y; Y < Part.Max.Y; ++Y)
	{
		FillRow(Target.GetRow(Y) + Part.Min.X, Part.Width(), Premultiplied);
	}
}

void PixelBlend::DrawImage(FPixelBuffer& Target, const FIntRect& Clip, FIntPoint Position, const FPixelBuffer& Image)
{
	FIntRect Part(Position, Position + Image.GetSize());
	Part.Clip(Clip);
	if (Part.IsEmpty())
	{
		return;
	}
	for (int32 Y = Part.Min.Y; Y < Part.Max.Y; ++Y)
	{
		BlendImageRow(Target.GetRow(Y) + Part.Min.X, Image.GetRow(Y - Position.Y) + Part.Min.X - Position.X, Part.Width());
	}
}

void PixelBlend::DrawNineParts(
	FPixelBuffer& Target, const FIntRect& Clip, const FIntRect& Rect, const FPixelBuffer& Image, FIntPoint Middle)
{
	FIntRect Part = Rect;
	Part.Clip(Clip);
	if (Part.IsEmpty())
	{
		return;
	}

	// What is repeated begins at the middle column or row and ends where the far corner begins.
	const FIntPoint Repeated = Rect.Size() - Image.GetSize() + FIntPoint(1, 1);
	const int32 LeftEnd = Rect.Min.X + Middle.X;
	const int32 RightStart = LeftEnd + Repeated.X;
	for (int32 Y = Part.Min.Y; Y < Part.Max.Y; ++Y)
	{
		const int32 Below = Y - Rect.Min.Y;
		const int32 SourceY = Below < Middle.Y ? Below : FMath::Max(Below - Repeated.Y + 1, Middle.Y);
		const uint32* Source = Image.GetRow(SourceY);
		uint32* Row = Target.GetRow(Y);

		const int32 LeftCount = FMath::Min(LeftEnd, Part.Max.X) - Part.Min.X;
		if (LeftCount > 0)
		{
			BlendImageRow(Row + Part.Min.X, Source + Part.Min.X - Rect.Min.X, LeftCount);
		}
		const int32 MiddleStart = FMath::Max(LeftEnd, Part.Min.X);
		const int32 MiddleCount = FMath::Min(RightStart, Part.Max.X) - MiddleStart;
		if (MiddleCount > 0 && Source[Middle.X] != 0)
		{
			FillRow(Row + MiddleStart, MiddleCount, Source[Middle.X]);
		}
		const int32 RightFrom = FMath::Max(RightStart, Part.Min.X);
		const int32 RightCount = Part.Max.X - RightFrom;
		if (RightCount > 0)
		{
			BlendImageRow(Row + RightFrom, Source + RightFrom - RightStart + Middle.X + 1, RightCount);
		}
	}
}

void PixelBlend::DrawGlyph(
	FPixelBuffer& Target, const FIntRect& Clip, FIntPoint Position, const FGlyphImage& Glyph, FPixelColor Color)
{
	const FIntPoint TopLeft = Position + FIntPoint(Glyph.Left, Glyph.Top);
	FIntRect Part(TopLeft, TopLeft + FIntPoint(Glyph.Width, Glyph.Height));
	Part.Clip(Clip);
	if (Part.IsEmpty())
	{
		return;
	}

	const FFourPixels Opaque = Repeat(Color.Bits | 0xFF000000);
	const FFourPixels Alpha = Repeat(Color.GetAlpha() * 0x01010101u);
	const auto BlendMask = [Opaque](FFourPixels Coverage, FFourPixels Below)
	{
		return MultiplyAdd(Opaque, Coverage, Below, 255 - Coverage);
	};
	for (int32 Y = Part.Min.Y; Y < Part.Max.Y; ++Y)
	{
		uint32* Row = Target.GetRow(Y) + Part.Min.X;
		const uint32* Source = Glyph.Pixels.GetData() + (Y - TopLeft.Y) * Glyph.Width + Part.Min.X - TopLeft.X;
		if (Glyph.bIsColor)
		{
			BlendRow(Row, Source, Part.Width(),
				[Alpha](FFourPixels Above, FFourPixels Below) { return Over(Multiply(Above, Alpha), Below); });
		}
		else if (Color.GetAlpha() == 255)
		{
			BlendRow(Row, Source, Part.Width(), BlendMask);
		}
		else
		{
			BlendRow(Row, Source, Part.Width(),
				[Alpha, BlendMask](FFourPixels Mask, FFourPixels Below) { return BlendMask(Multiply(Mask, Alpha), Below); });
		}
	}
}
