#pragma once

#include "CoreTypes.h"

/** Three whole numbers, for instance a size in pixels and layers. */
struct FIntVector
{
	int32 X = 0;
	int32 Y = 0;
	int32 Z = 0;

	constexpr FIntVector() = default;
	constexpr FIntVector(int32 InX, int32 InY, int32 InZ)
		: X(InX)
		, Y(InY)
		, Z(InZ)
	{
	}

	constexpr bool operator==(const FIntVector& Other) const { return X == Other.X && Y == Other.Y && Z == Other.Z; }
	constexpr bool operator!=(const FIntVector& Other) const { return !(*this == Other); }
};
