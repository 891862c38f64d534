#include "Rendering/RoundedBoxes.h"

#include "Rendering/PixelBuffer.h"

#include <cairo.h>

namespace
{

constexpr int32 MaxPicturesOfGeneration = 256;

/** The coverage of a rounded rectangle, a byte a pixel. */
class FCoverage
{
public:
	FCoverage(const FRoundedBoxShape& Shape, int32 Inset)
		: Surface(cairo_image_surface_create(CAIRO_FORMAT_A8, Shape.Size.X, Shape.Size.Y))
	{
		cairo_t* Cairo = cairo_create(Surface);
		cairo_set_antialias(Cairo, CAIRO_ANTIALIAS_BEST);
		const double Right = Shape.Size.X - Inset;
		const double Bottom = Shape.Size.Y - Inset;
		if (Right > Inset && Bottom > Inset)
		{
			AddCorner(Cairo, Inset, Inset, 1.0, 1.0, Shape.Radii[0] - Inset, 2);
			AddCorner(Cairo, Right, Inset, -1.0, 1.0, Shape.Radii[1] - Inset, 3);
			AddCorner(Cairo, Right, Bottom, -1.0, -1.0, Shape.Radii[2] - Inset, 0);
			AddCorner(Cairo, Inset, Bottom, 1.0, -1.0, Shape.Radii[3] - Inset, 1);
			cairo_fill(Cairo);
		}
		cairo_destroy(Cairo);
		cairo_surface_flush(Surface);
	}
	FCoverage(const FCoverage&) = delete;
	FCoverage& operator=(const FCoverage&) = delete;
	~FCoverage() { cairo_surface_destroy(Surface); }

	const uint8* GetRow(int32 Y) const
	{
		return cairo_image_surface_get_data(Surface) + Y * cairo_image_surface_get_stride(Surface);
	}

private:
	/** @param Quarter  In which quarter of a turn, clockwise from the right, the arc begins. */
	static void AddCorner(cairo_t* Cairo, double X, double Y, double InwardX, double InwardY, double Radius, int32 Quarter)
	{
		if (Radius <= 0.0)
		{
			cairo_line_to(Cairo, X, Y);
			return;
		}
		constexpr double HalfPi = 1.57079632679489662;
		cairo_arc(Cairo, X + InwardX * Radius, Y + InwardY * Radius, Radius, Quarter * HalfPi, (Quarter + 1) * HalfPi);
	}

	cairo_surface_t* Surface;
};

/** The smallest box with the same corners and one repeatable column and row, or the box itself where it is smaller. */
FRoundedBoxShape Shrink(const FRoundedBoxShape& Shape, FIntPoint& OutMiddle)
{
	const auto Reach = [&Shape](int32 A, int32 B)
	{
		return FMath::Max(FMath::CeilToInt(FMath::Max(Shape.Radii[A], Shape.Radii[B])), Shape.OutlineWidth);
	};
	const FIntPoint Near(Reach(0, 3), Reach(0, 1));
	const FIntPoint Far(Reach(1, 2), Reach(2, 3));
	FRoundedBoxShape Small = Shape;
	Small.Size = Shape.Size.ComponentMin(Near + Far + FIntPoint(1, 1));
	OutMiddle = Near.ComponentMin(Small.Size - FIntPoint(1, 1));
	return Small;
}

TUniquePtr<FPixelBuffer> Draw(const FRoundedBoxShape& Shape)
{
	TUniquePtr<FPixelBuffer> Picture = MakeUnique<FPixelBuffer>(Shape.Size);
	const FCoverage Outer(Shape, 0);
	const FCoverage Inner(Shape, Shape.OutlineWidth);
	const uint32 Fill = Shape.Fill.Premultiplied();
	const uint32 Outline = Shape.Outline.Premultiplied();
	for (int32 Y = 0; Y < Shape.Size.Y; ++Y)
	{
		const uint8* OuterRow = Outer.GetRow(Y);
		const uint8* InnerRow = Inner.GetRow(Y);
		uint32* Row = Picture->GetRow(Y);
		for (int32 X = 0; X < Shape.Size.X; ++X)
		{
			const uint32 OfFill = FMath::Min(InnerRow[X], OuterRow[X]);
			Row[X] = ScalePixel(Fill, OfFill) + ScalePixel(Outline, OuterRow[X] - OfFill);
		}
	}
	return Picture;
}

}

bool FRoundedBoxShape::operator==(const FRoundedBoxShape& Other) const
{
	return Size == Other.Size && FMemory::Memcmp(Radii, Other.Radii, sizeof(Radii)) == 0 && OutlineWidth == Other.OutlineWidth &&
		Fill.Bits == Other.Fill.Bits && Outline.Bits == Other.Outline.Bits;
}

uint32 GetTypeHash(const FRoundedBoxShape& Shape)
{
	const uint32 OfColors = HashCombine(Shape.Fill.Bits, Shape.Outline.Bits);
	return HashCombine(HashCombine(OfColors, GetTypeHash(Shape.Radii[0])), GetTypeHash(Shape.Size));
}

FSlateRoundedBoxes::FSlateRoundedBoxes()
	: Pictures(MaxPicturesOfGeneration)
{
}

FSlateRoundedBoxes::~FSlateRoundedBoxes() = default;

const FPixelBuffer& FSlateRoundedBoxes::Get(const FRoundedBoxShape& Shape, FIntPoint& OutMiddle)
{
	const FRoundedBoxShape Small = Shrink(Shape, OutMiddle);
	if (const TUniquePtr<FPixelBuffer>* Known = Pictures.Find(Small))
	{
		return **Known;
	}
	return *Pictures.Add(Small, Draw(Small));
}
