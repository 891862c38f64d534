#pragma once

#include "CoreTypes.h"
#include "Math/UnsetNumbers.h"

/** Three whole numbers, for instance a size in pixels and layers. The default constructor leaves them unset. */
struct FIntVector
{
	int32 X;
	int32 Y;
	int32 Z;

	FIntVector() { UE::Math::LeaveUnset(X, Y, Z); }
	constexpr explicit FIntVector(EForceInit)
		: FIntVector(0, 0, 0)
	{
	}
	constexpr FIntVector(int32 InX, int32 InY, int32 InZ)
		: X(InX)
		, Y(InY)
		, Z(InZ)
	{
	}

	constexpr bool operator==(const FIntVector& Other) const { return X == Other.X && Y == Other.Y && Z == Other.Z; }
	constexpr bool operator!=(const FIntVector& Other) const { return !(*this == Other); }
};
