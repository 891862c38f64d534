#pragma once

#include "CoreTypes.h"
#include "Math/IntPoint.h"

/** A rectangle in whole units; Max lies outside. */
struct FIntRect
{
	FIntPoint Min;
	FIntPoint Max;

	constexpr FIntRect()
		: Min(ForceInit)
		, Max(ForceInit)
	{
	}
	constexpr FIntRect(int32 X0, int32 Y0, int32 X1, int32 Y1)
		: Min(X0, Y0)
		, Max(X1, Y1)
	{
	}
	constexpr FIntRect(FIntPoint InMin, FIntPoint InMax)
		: Min(InMin)
		, Max(InMax)
	{
	}

	constexpr int32 Width() const { return Max.X - Min.X; }
	constexpr int32 Height() const { return Max.Y - Min.Y; }
	constexpr FIntPoint Size() const { return Max - Min; }
	constexpr int32 Area() const { return Width() * Height(); }
	constexpr bool IsEmpty() const { return Width() <= 0 || Height() <= 0; }
	constexpr bool Contains(FIntPoint Point) const
	{
		return Point.X >= Min.X && Point.X < Max.X && Point.Y >= Min.Y && Point.Y < Max.Y;
	}
	constexpr bool Intersect(const FIntRect& Other) const
	{
		return Other.Min.X < Max.X && Other.Max.X > Min.X && Other.Min.Y < Max.Y && Other.Max.Y > Min.Y;
	}

	/** Keeps the part that lies in the other rectangle too; an empty rectangle when they do not meet. */
	void Clip(const FIntRect& Other)
	{
		Min = Min.ComponentMax(Other.Min);
		Max = Max.ComponentMin(Other.Max).ComponentMax(Min);
	}

	constexpr bool operator==(const FIntRect& Other) const { return Min == Other.Min && Max == Other.Max; }
	constexpr bool operator!=(const FIntRect& Other) const { return !(*this == Other); }
};
