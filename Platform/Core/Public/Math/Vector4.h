#pragma once

#include "CoreTypes.h"
#include "Math/UnsetNumbers.h"

namespace UE::Math
{
template <typename T>
struct TVector4
{
	T X;
	T Y;
	T Z;
	T W = T(1);

	/** W is 1, the others are unset. */
	TVector4() { LeaveUnset(X, Y, Z); }
	constexpr TVector4(T InX, T InY, T InZ, T InW)
		: X(InX)
		, Y(InY)
		, Z(InZ)
		, W(InW)
	{
	}

	constexpr bool operator==(const TVector4& V) const { return X == V.X && Y == V.Y && Z == V.Z && W == V.W; }
	constexpr bool operator!=(const TVector4& V) const { return !(*this == V); }
};
}

using FVector4 = UE::Math::TVector4<double>;
